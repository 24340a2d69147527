// The devices of a Kombination as they hang on the wall.
#pragma once

#include "zavlink/renderer.h"

namespace zav::fenster {

QWidget* Apparaterahmen_bauen(const Anordnung& a, Auffrischer& auffrischer, QWidget* eltern,
                              Gebautes& ergebnis);

}  // namespace zav::fenster
