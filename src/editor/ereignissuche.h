// Which events act on an output or a timer.
#pragma once

#include <string>

#include "store/funktionen.h"

namespace zav {

// One line for each event of the project that touches the output or timer, each closed with CR LF: keys and
// inputs of placed devices first, then switching times, then steps of timers. "" when nothing does.
std::string Ereignisse_suchen(Ziel ziel);

}  // namespace zav
