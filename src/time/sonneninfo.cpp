#include "time/sonneninfo.h"

#include "basis/sonne.h"
#include "basis/text.h"

namespace zav {

std::string_view Zeit_wort(Datum tag) { return Sommerzeit(tag) != 0 ? "Sommerzeit" : "Winterzeit"; }

std::string Datum_mit_wochentag(Datum tag) {
  return std::string(Wochentag_wort(Wochentag(tag))) + " " + Datum_text(tag);
}

Sonneninfo Sonneninfo_am(Datum tag) {
  const Sonnenzeiten sonne = Sonnenzeiten_am(tag);
  return {tag,
          Zeit_text(sonne.aufgang),
          Zeit_text(sonne.untergang),
          Zeit_wort(tag),
          Letzter_sonntag(tag.jahr, 3),
          Letzter_sonntag(tag.jahr, 10)};
}

std::string Sonnenliste(int jahr) {
  std::string text = "Sonnenauf- und -untergang\n";
  // The list writes its times with colons, as the sun tables always have.
  const auto uhrzeit = [](int sekunden) { return Ersetzen(Zeit_text(sekunden), ".", ":"); };
  for (int monat = 1; monat <= 12; ++monat) {
    text += std::string(Monat_wort(monat)) + " " + std::to_string(jahr) + "\n";
    for (int tag = 1; tag <= Tage_im_monat(jahr, monat); ++tag) {
      const Datum d{jahr, monat, tag};
      const Sonnenzeiten sonne = Sonnenzeiten_am(d);
      text += Datum_text(d) + "   A: " + uhrzeit(sonne.aufgang) + "   U: " + uhrzeit(sonne.untergang) + "\n";
    }
  }
  return text;
}

}  // namespace zav
