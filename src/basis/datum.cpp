#include "basis/datum.h"

#include <array>
#include <chrono>

#include "basis/text.h"
#include "basis/zahl.h"

namespace zav {

namespace {

using std::chrono::sys_days;

sys_days Tage(Datum d) {
  using namespace std::chrono;
  return sys_days{year{d.jahr} / month{static_cast<unsigned>(d.monat)} / 1} + days{d.tag - 1};
}

Datum Aus_tagen(sys_days t) {
  const std::chrono::year_month_day ymd{t};
  return {static_cast<int>(ymd.year()), static_cast<int>(static_cast<unsigned>(ymd.month())),
          static_cast<int>(static_cast<unsigned>(ymd.day()))};
}

constexpr std::array<std::string_view, 7> wochentage{"Montag",  "Dienstag", "Mittwoch", "Donnerstag",
                                                     "Freitag", "Samstag",  "Sonntag"};
constexpr std::array<std::string_view, 12> monate{"Januar",    "Februar", "März",     "April",
                                                  "Mai",       "Juni",    "Juli",     "August",
                                                  "September", "Oktober", "November", "Dezember"};

// The number at a position of two characters; 0 where there is none.
int Paar(std::string_view text, std::size_t von) { return Zahl_lesen(Mitte(text, von, 2)).value_or(0); }

}  // namespace

Datum Datum_aus(int jahr, int monat, int tag) { return Aus_tagen(Tage({jahr, monat, tag})); }
Datum Plus_tage(Datum d, int tage) { return Aus_tagen(Tage(d) + std::chrono::days{tage}); }
int Tage_zwischen(Datum von, Datum bis) { return static_cast<int>((Tage(bis) - Tage(von)).count()); }
int Tag_des_jahres(Datum d) { return Tage_zwischen({d.jahr, 1, 1}, d) + 1; }
int Tage_im_monat(int jahr, int monat) {
  return Tage_zwischen({jahr, monat, 1}, monat == 12 ? Datum{jahr + 1, 1, 1} : Datum{jahr, monat + 1, 1});
}
int Wochentag(Datum d) { return static_cast<int>(std::chrono::weekday{Tage(d)}.iso_encoding()) - 1; }
std::string_view Wochentag_wort(int wochentag) { return wochentage.at(static_cast<std::size_t>(wochentag)); }
std::string_view Monat_wort(int monat) { return monate.at(static_cast<std::size_t>(monat - 1)); }

std::string Datum_text(Datum d) {
  return Stellen(d.tag, 2) + "." + Stellen(d.monat, 2) + "." + Stellen(d.jahr, 4);
}

std::optional<Datum> Datum_lesen(std::string_view text) {
  if ((text.size() != 10 && text.size() != 8) || text[2] != '.' || text[5] != '.') return std::nullopt;
  const auto tag = Zahl_lesen(text.substr(0, 2), 1, 31);
  const auto monat = Zahl_lesen(text.substr(3, 2), 1, 12);
  const auto jahr = Zahl_lesen(text.substr(6), 0, 9999);
  if (!tag || !monat || !jahr) return std::nullopt;
  const int j = text.size() == 8 ? 2000 + *jahr : *jahr;
  if (*tag > Tage_im_monat(j, *monat)) return std::nullopt;
  return Datum{j, *monat, *tag};
}

Datum Letzter_sonntag(int jahr, int monat) {
  const Datum letzter{jahr, monat, Tage_im_monat(jahr, monat)};
  return Plus_tage(letzter, -((Wochentag(letzter) + 1) % 7));
}

int Sommerzeit(Datum d) { return Letzter_sonntag(d.jahr, 3) <= d && d < Letzter_sonntag(d.jahr, 10) ? 1 : 0; }

int Zeit_sekunden(std::string_view text) { return Paar(text, 1) * 3600 + Paar(text, 4) * 60 + Paar(text, 7); }

std::string Zeit_text(int sekunden) {
  return Stellen(sekunden / 3600, 2) + "." + Stellen(sekunden / 60 % 60, 2) + "." + Stellen(sekunden % 60, 2);
}

int Tag_nummer(std::string_view text) {
  if (text.empty()) return 0xFFFF;
  const std::size_t laenge = Zeichen_anzahl(text);
  const int jahr = laenge == 8 ? Paar(text, 7) : laenge == 10 ? Paar(text, 9) : 0;
  return jahr * 12 * 31 + (Paar(text, 4) - 1) * 31 + (Paar(text, 1) - 1);
}

}  // namespace zav
