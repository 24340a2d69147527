// Which switching clock the sequencer makes active on each day of a year.
#pragma once

#include <span>
#include <vector>

#include "basis/datum.h"

namespace zav {

// From midnight of the day on, `uhr` is active: 1 or 2, 0 = none.
struct Sequenz {
  Datum ab;
  int uhr = 0;
  bool jedes_jahr = false;  // on this day of every year; else once
};

// What the sequencer says of a day.
struct Sequenztag {
  static constexpr int von_hand = -1;  // before the first sequence: as chosen by hand
  int uhr = von_hand;
  bool beginn = false;  // a sequence starts on this day

  bool operator==(const Sequenztag&) const = default;
};

// The days of a year in order, 365 or 366. Of several sequences on one day the last one holds. A yearly one
// of 29 February starts in leap years only.
std::vector<Sequenztag> Sequenzplan(std::span<const Sequenz> sequenzen, int jahr);

}  // namespace zav
