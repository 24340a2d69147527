// Dates, times of day as text, and the change between summer and winter time.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zav {

// A calendar day. `Datum_aus(2026, 2, 31)` rolls over into March, as ordinary date arithmetic does.
struct Datum {
  int jahr = 2000;
  int monat = 1;  // 1 to 12
  int tag = 1;    // 1 to 31

  auto operator<=>(const Datum&) const = default;
};

// The day of that number, day beyond the month's end rolled over. Day may be 0 (last day of the month
// before).
Datum Datum_aus(int jahr, int monat, int tag);
Datum Plus_tage(Datum d, int tage);
int Tage_zwischen(Datum von, Datum bis);
int Tag_des_jahres(Datum d);                     // 1 to 366
int Tage_im_monat(int jahr, int monat);          // 28 to 31
int Wochentag(Datum d);                          // 0 Monday to 6 Sunday
std::string_view Wochentag_wort(int wochentag);  // "Montag" to "Sonntag"
std::string_view Monat_wort(int monat);          // "Januar" to "Dezember", monat 1 to 12

std::string Datum_text(Datum d);  // "DD.MM.YYYY"
// Reads DD.MM.YYYY and DD.MM.YY (years 2000 to 2099); nothing for another form or a day that does not exist.
std::optional<Datum> Datum_lesen(std::string_view text);

// The last Sunday of a month: the days on which summer time begins (March) and ends (October).
Datum Letzter_sonntag(int jahr, int monat);
// 1 when the day, asked at its midnight, lies in summer time: the last Sunday of March counts as summer time
// as a whole, the last Sunday of October as winter time.
int Sommerzeit(Datum d);

// Seconds since midnight of a time "HH.MM.SS": reads characters 1-2, 4-5 and 7-8 whatever stands between or
// behind them. A pair that is no number counts as 0.
int Zeit_sekunden(std::string_view text);
// "HH.MM.SS" of 0 to 86399 seconds.
std::string Zeit_text(int sekunden);

// The date word of the master: year x 372 + (month - 1) x 31 + (day - 1), every month counted as 31 days, so
// that words compare in date order. The year is that of a text DD.MM.YY or, with ten characters, the last two
// digits of DD.MM.YYYY; 0 for another length. An empty text gives 0xFFFF.
int Tag_nummer(std::string_view text);

}  // namespace zav
