// The switching times of a year. The master knows no sun: for every row of the clocks and every day it gets
// the time worked out here.
#pragma once

#include <functional>

#include "store/projekt.h"

namespace zav {

// Every month has 31 days here; one beyond the month's end is the rolled-over day of the next.
inline constexpr int monate_im_jahr = 12;
inline constexpr int tage_im_monat = 31;

// Sunrise and sunset in seconds since midnight, clock time of the day; month 0 to 11, day 0 to 30.
struct Sonnentafeln {
  Feld<i32, monate_im_jahr, tage_im_monat> Sonne_auf;
  Feld<i32, monate_im_jahr, tage_im_monat> Sonne_unter;
};
Sonnentafeln Sonnen_tabellen_fuellen(int jahr);

// Switching times by month, day and clock event, in units of two seconds.
using Uhr_tafel = Feld<i32, monate_im_jahr, tage_im_monat, uhrereignisse>;
inline constexpr i32 schaltet_nicht = 65535;

// Modes of a switching time (Uhr_astro).
enum Zeitregel : i16 {
  Zeit_fest,
  Zeit_fest_zufall,
  Zeit_aufgang,
  Zeit_aufgang_zufall,
  Zeit_untergang,
  Zeit_untergang_zufall,
};

// Works out every row on every day: months outermost, events innermost. Random shifts are drawn for each day
// from the source, which gives numbers in [0, 1). A sun row with a random shift and an empty bound takes over
// the amount that the row before it drew; masters in the field rely on the images made that way. A row with
// an unknown mode does not switch. A plain time beyond the day is not clamped and may exceed 16 bits.
Uhr_tafel Tageszeiten_berechnen(const Projekt& p, const Sonnentafeln& sonne,
                                const std::function<double()>& zufall);

}  // namespace zav
