// The year of the sequencer: a strip of days a month, coloured by the clock that is active.
#pragma once

#include "zavlink/renderer.h"

namespace zav::fenster {

QWidget* Jahresplan_bauen(const Anordnung& a, Auffrischer& auffrischer, QWidget* eltern, Gebautes& ergebnis);

}  // namespace zav::fenster
