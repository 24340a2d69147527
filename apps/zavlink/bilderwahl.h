// A page of device pictures to choose a kind from.
#pragma once

#include "zavlink/renderer.h"

namespace zav::fenster {

QWidget* Bilderwahl_bauen(const Anordnung& a, Auffrischer& auffrischer, QWidget* eltern, Gebautes& ergebnis);

}  // namespace zav::fenster
