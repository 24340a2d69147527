#include "time/tagesbild.h"

#include <algorithm>

#include "basis/sonne.h"

namespace zav {

namespace {

constexpr int letzte_sekunde = 86399;

int Im_tag(int sekunden) { return std::clamp(sekunden, 0, letzte_sekunde); }

// What becomes of times from `von` to `bis` (equal without a random shift) at the limits of the rule.
std::string Status(const Schaltregel& r, int von, int bis) {
  std::string status = "Schaltzeit ok";
  const auto an_limite = [&status](bool jenseits, i16 verhalten) {
    if (jenseits) status = verhalten == 0 ? "Schaltzeit bei Limite" : "Schaltzeit unterdrückt";
  };
  an_limite(!r.f3.empty() && bis > Zeit_sekunden(r.f3), r.f7);
  an_limite(!r.f2.empty() && von < Zeit_sekunden(r.f2), r.f6);
  return status;
}

}  // namespace

double Skala_ort(int sekunden) { return std::clamp(sekunden / 9.0 + skala_anfang, skala_anfang, skala_ende); }

Tagesbild Tagesbild_von(const Schaltregel& regel, std::string_view zeit, Datum tag) {
  using Rolle = Tagesbild::Rolle;
  Tagesbild bild;
  const auto marke = [&bild](Rolle rolle, int sekunden) {
    bild.marken.push_back({rolle, Skala_ort(Im_tag(sekunden)), Zeit_text(Im_tag(sekunden))});
  };

  int t = Zeit_sekunden(zeit);
  if (Mit_sonne(regel.modus())) {
    const Sonnenzeiten sonne = Sonnenzeiten_am(tag);
    marke(Rolle::aufgang, sonne.aufgang);
    marke(Rolle::untergang, sonne.untergang);
    if (!regel.f2.empty()) marke(Rolle::untere_limite, Zeit_sekunden(regel.f2));
    if (!regel.f3.empty()) marke(Rolle::obere_limite, Zeit_sekunden(regel.f3));
    t = Bei_aufgang(regel.modus()) ? sonne.aufgang : sonne.untergang;
    if (regel.versatz() == Versatz::frueher) t -= Zeit_sekunden(regel.f1);
    if (regel.versatz() == Versatz::spaeter) t += Zeit_sekunden(regel.f1);
  }
  marke(Rolle::schaltzeit, t);

  int von = t;
  int bis = t;
  if (Mit_zufall(regel.modus())) {
    von -= Zeit_sekunden(regel.f4);
    bis += Zeit_sekunden(regel.f5);
  }
  if (von != bis) {
    bild.band = {Skala_ort(Im_tag(von)), Skala_ort(Im_tag(bis)), Zeit_text(Im_tag(von)),
                 Zeit_text(Im_tag(bis))};
  }
  if (Mit_sonne(regel.modus())) bild.status = Status(regel, von, bis);
  return bild;
}

}  // namespace zav
