// The data of the sun and of summer time that the system works with, for one day and as a list of a year.
#pragma once

#include <string>
#include <string_view>

#include "basis/datum.h"

namespace zav {

struct Sonneninfo {
  Datum tag;
  std::string aufgang;  // "HH.MM.SS", the clock time of the day
  std::string untergang;
  std::string_view zeit;  // "Sommerzeit" or "Winterzeit"
  Datum auf_sommerzeit;   // change-over days of the day's year
  Datum auf_winterzeit;
};
Sonneninfo Sonneninfo_am(Datum tag);

// "Sommerzeit" or "Winterzeit" of a day.
std::string_view Zeit_wort(Datum tag);
// "Sonntag 29.03.2026"
std::string Datum_mit_wochentag(Datum tag);

// Both times of every day of a year, a line each ("01.01.2026   A: 08:14:13   U: 16:45:27") below the name of
// its month. Lines end with LF.
std::string Sonnenliste(int jahr);

}  // namespace zav
