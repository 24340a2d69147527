// Text fields as wide as their longest text.
#pragma once

#include "zavlink/bindung.h"

namespace zav::fenster {

QWidget* Textfeld_bauen(Textfeld& t, Auffrischer& auffrischer, QWidget* eltern);

// May the field grow with its window? One with a short longest text may not.
bool Textfeld_waechst(const Textfeld& t);

}  // namespace zav::fenster
