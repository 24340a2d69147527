// Sunrise and sunset at the one place that the system knows.
#pragma once

#include "basis/datum.h"

namespace zav {

// The place of every computation, in degrees. The longitude counts negative to the east; with the formula
// below it makes the result a reading of a clock on summer time.
inline constexpr double laenge_grad = -8.53;
inline constexpr double breite_grad = 47.38;

// Time of day as a fraction of a day, in summer-time reading; the caller takes an hour off in winter. The
// formula is a mean-orbit approximation (declination and equation of time as sines of the day number, height
// of the sun -50 arc minutes), good to about a minute between the polar circles, and not a number beyond
// them.
double Sonnenaufgang(double laenge, double breite, Datum d);
double Sonnenuntergang(double laenge, double breite, Datum d);

// Both times of a day at the fixed place, in the clock time of that day, in whole seconds since midnight
// (rounded to nearest).
struct Sonnenzeiten {
  int aufgang = 0;
  int untergang = 0;
};
Sonnenzeiten Sonnenzeiten_am(Datum d);

}  // namespace zav
