// The map of the 256 addresses: number and room in every cell, the whole text of the cell in hand below.
#pragma once

#include "zavlink/renderer.h"

namespace zav::fenster {

QWidget* Adressplanfeld_bauen(const Anordnung& a, Auffrischer& auffrischer, QWidget* eltern,
                              Gebautes& ergebnis);

}  // namespace zav::fenster
