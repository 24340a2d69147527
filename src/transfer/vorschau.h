// What the next transfer would send, before anything is sent.
#pragma once

#include "store/projekt.h"

namespace zav {

struct Sendevorschau {
  int ereignisse = 0;         // flagged events of inputs, clocks and timers
  bool schaltzeiten = false;  // the table of switching times goes
  int led_gruppen = 0;
  int sekunden = 0;  // estimate for a serial line
};

// Walks the plan of the transfer and packs what is flagged, so that lengths are the real ones.
Sendevorschau Sendevorschau_von(const Projekt& p);

}  // namespace zav
