// The event tables: what the function matrices become in the master. Each event has a double page, relays and
// timers in the first, dimmers in the second; each group of four inputs has a table of its key LEDs.
#pragma once

#include "store/projekt.h"
#include "transfer/block.h"

namespace zav {

// Relay page of an input event or timer event, 204 bytes:
//   0  2  timers started         (timer events: 0)
//   2  2  timers stopped         (timer events: 0)
//   4  8  zero
//  12 192 for each pair of relay groups: planes 0 to 2, in each the odd group's byte, then the even one's
void Relaisseite_eingang(const Projekt& p, int e, Block& b);
void Relaisseite_timer(const Projekt& p, int t, Block& b);

// Relay page of a clock event, 364 bytes: as above, then
// 204 128 for each pair of relay groups: planes 3 (lock) and 4 (release), odd byte, even byte
// 332  32 for each pair of dimmer groups: locks, releases; bits 0 to 3 the even group, 4 to 7 the odd one
void Relaisseite_uhr(const Projekt& p, int e, Block& b);

// Dimmer page, 256 bytes: eight for each group of four dimmers. An image byte takes the low eight bits of a
// value.
//   0  bit 2k dim up, bit 2k + 1 dim down on a long press       (input events only)
//   1  four levels: 0 off, 1 no change, else percent
//   5  two bytes: four tempos of four bits, dimmer 0 in the high bits
//   7  bit k toggle, bit 4 + k memory                           (input events only)
void Dimmerseite_eingang(const Projekt& p, int e, Block& b);
void Dimmerseite_uhr(const Projekt& p, int e, Block& b);
void Dimmerseite_timer(const Projekt& p, int t, Block& b);

// LED table of input group g: bits 2 to 5 of the first byte for inputs without an LED, of the second for
// those always on. Where that says all, 2 bytes; else 320 more, a word for each 16 outputs and input.
void Ledseite(const Projekt& p, int g, Block& b);

}  // namespace zav
