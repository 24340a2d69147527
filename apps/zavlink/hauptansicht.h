// The main window's own look: the commands as a side bar, the project as a page beside it, a status line
// below.
#pragma once

#include "zavlink/renderer.h"

namespace zav::fenster {

// Children: the commands' frame with its list and its page, the terminal's frame, the status line.
QWidget* Hauptansicht_bauen(const Anordnung& a, Auffrischer& auffrischer, QWidget* eltern,
                            Gebautes& ergebnis);
// A plate that lifts its children off the page.
QWidget* Tafel_bauen(const Anordnung& a, Auffrischer& auffrischer, QWidget* eltern, Gebautes& ergebnis);

}  // namespace zav::fenster
