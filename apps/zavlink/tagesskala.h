// The 24-hour scale of a switching time.
#pragma once

#include "zavlink/renderer.h"

namespace zav::fenster {

QWidget* Tagesskala_bauen(const Anordnung& a, Auffrischer& auffrischer, QWidget* eltern, Gebautes& ergebnis);

}  // namespace zav::fenster
