// The shapes of a choice: drop-down list, list, option buttons, tabs, strip of buttons, map of cells.
#pragma once

#include "zavlink/bindung.h"

namespace zav::fenster {

QWidget* Wahlfeld_bauen(Auswahl& a, Auffrischer& auffrischer, QWidget* eltern);

// From this many buttons a strip fills the width, in rows of sixteen.
inline constexpr int leiste_breit = 16;

}  // namespace zav::fenster
