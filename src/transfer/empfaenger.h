// The bare "%" before the first command.
#pragma once

namespace zav {

// Resets the master's receiver: sends "%" on a serial link, and waits on any link until the second after the
// current one, rounded, has come (nothing to one second), as the receiver needs it.
void Empfaenger_ruecksetzen();

}  // namespace zav
