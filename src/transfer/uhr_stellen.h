// Setting the master's clock, and the dates by which it changes between summer and winter time.
#pragma once

#include "platform/einstellungen.h"
#include "transfer/block.h"

namespace zav {

struct Uhrstellung {
  str Akt_zeit_text{};    // hour, minute, second at characters 1, 4, 7; separators as they come
  str Akt_datum_text{};   // DD.MM.YYYY or DD.MM.YY
  i16 Akt_wochentag = 0;  // 0 Monday to 6 Sunday
  i16 Richt_modus = 0;    // 0 no change-over, 1 by the dates, 2 radio clock
  Feld<str, 20> Sowi_datum{};
};

// The change-over dates of ten years from that on, DD.MM.YYYY: entry 2i to summer, 2i + 1 to winter time.
Feld<str, 20> Sowi_daten_berechnen(int jahr);

// The 16 digits behind "U": second, minute, hour, summer time 0 or 1, weekday, day, month, year, "00". The
// digits are those of the texts, unchecked; a date of another length has the year "00".
str Uhrziffern(const Uhrstellung& u);

// Sends clock and change-over table; every failure has shown its box. Asks at the end whether to restart the
// master. True when both have arrived.
bool Uhr_stellen(const Uhrstellung& u);

}  // namespace zav
