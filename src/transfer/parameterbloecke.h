// The parameter blocks, sent at every transfer: what the outputs do at a restart, timers, dimmers, blinds,
// weather. Each packer appends one block; a value too wide for its field ends it there.
#pragma once

#include "store/projekt.h"
#include "transfer/block.h"

namespace zav {

// A: restart state of the 512 relay outputs, 128 bytes. Two words for each 16 outputs, bit n = output n of
// the 16: first the outputs that go on, then those that take their state from before.
void Block_a(const Projekt& p, Block& b);

// Q: restart brightness of the 128 dimmers, 256 bytes. Eight for each four dimmers: 00, four values, 00 00
// 00.
void Block_q(const Projekt& p, Block& b);

// T: the 48 times of the timers in seconds, 96 bytes, one word each. Longest: 18:12:15.
void Block_t(const Projekt& p, Block& b);

// P: trailing-edge dimmers, 256 bytes. Eight for each four dimmers: a bit for each, seven zeros.
void Block_p(const Projekt& p, Block& b);

// H: thermo inputs, 128 bytes. One byte for two groups: bit 0 the even one, bit 4 the odd one.
void Block_h(const Projekt& p, Block& b);

// M: blinds, 6 bytes: pause between tilts, tilt up, tilt down (10 ms each), run time (word, 10 ms), tilts.
void Block_m(const Projekt& p, Block& b);

// W: weather, 242 bytes: number of the station (252 = none), 00, then 30 for each of the eight functions.
void Block_w(const Projekt& p, Block& b);

}  // namespace zav
