// What the master is told of dates and times: change-over dates, sequencer, catch-up flags, switching times.
#pragma once

#include "store/projekt.h"
#include "transfer/block.h"
#include "transfer/tageszeiten.h"

namespace zav {

// The change between summer and winter time, 41 bytes: mode byte (1 by the dates, 2 radio clock), then the
// date words of the twenty dates.
void Umstellungstabelle(int Richt_modus, const Feld<str, 20>& Sowi_datum, Block& b);

// The change-over table, 23 zeros, the sequencer's flag byte, six entries of three bytes: 83 bytes.
void Datentabelle(const Projekt& p, int Richt_modus, const Feld<str, 20>& Sowi_datum, Block& b);

// The catch-up flags of "LS", one byte: relays, dimmers, timers.
void Aufholbyte(const Projekt& p, Block& b);

// Switching times of one day, 528 bytes: 256 words in units of two seconds, 65535 for none, then 16 x FF.
// m 0 to 11, d 0 to 30.
void Schaltzeitenseite(const Uhr_tafel& Uhr_work, int m, int d, Block& b);

// The stamp by which the master's content is known again, 32 bytes: Projekt_kennung, then the file name
// without its folder in 24 characters of the code page. Ends at once when Projekt_kennung is not 16
// hexadecimal digits.
void Stempel(const Projekt& p, Block& b);

}  // namespace zav
