// The list of the files that were opened or saved last.
#pragma once

namespace zav {

// Puts Projekt_name at the head of the list of four, and the list into the settings.
void Letzte_dateien_eintragen();

}  // namespace zav
