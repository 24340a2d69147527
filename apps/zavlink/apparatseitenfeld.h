// The page of the chosen device: one line a key with its text, LED and events.
#pragma once

#include "zavlink/renderer.h"

namespace zav::fenster {

QWidget* Apparatseitenfeld_bauen(const Anordnung& a, Auffrischer& auffrischer, QWidget* eltern,
                                 Gebautes& ergebnis);

}  // namespace zav::fenster
