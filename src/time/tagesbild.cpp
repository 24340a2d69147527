#include "time/tagesbild.h"

#include <algorithm>

#include "basis/sonne.h"

namespace zav {

namespace {

constexpr int letzte_sekunde = 86399;
constexpr const char* status_unterdrueckt = "Schaltzeit unterdrückt";

int Im_tag(int sekunden) { return std::clamp(sekunden, 0, letzte_sekunde); }

// What becomes of times from `von` to `bis` (equal without a random shift) at the limits of the rule.
std::string Status(const Schaltregel& r, int von, int bis) {
  std::string status = "Schaltzeit ok";
  const auto an_limite = [&status](bool jenseits, i16 verhalten) {
    if (jenseits) status = verhalten == 0 ? "Schaltzeit bei Limite" : status_unterdrueckt;
  };
  an_limite(!r.f3.empty() && bis > Zeit_sekunden(r.f3), r.f7);
  an_limite(!r.f2.empty() && von < Zeit_sekunden(r.f2), r.f6);
  return status;
}

struct Spanne {
  int von, bis;  // s
};

Tagesbild::Band Band_von(Spanne s) {
  s = {Im_tag(s.von), Im_tag(s.bis)};
  return {Skala_ort(s.von), Skala_ort(s.bis), Zeit_text(s.von), Zeit_text(s.bis)};
}

// What the limits leave of a span; a part that is not to be switched falls away, the rest moves to the limit.
std::optional<Spanne> Nach_limiten(const Schaltregel& r, Spanne s) {
  if (!r.f2.empty()) {
    const int untere = Zeit_sekunden(r.f2);
    if (s.bis < untere && r.f6 != 0) return std::nullopt;
    s = {std::max(s.von, untere), std::max(s.bis, untere)};
  }
  if (!r.f3.empty()) {
    const int obere = Zeit_sekunden(r.f3);
    if (s.von > obere && r.f7 != 0) return std::nullopt;
    s = {std::min(s.von, obere), std::min(s.bis, obere)};
  }
  return s;
}

std::string In_worten(const Tagesbild& b) {
  if (!b.ergebnis) return "An diesem Tag wird nicht geschaltet";
  std::string worte = "Schaltzeit " + b.ergebnis->text_von;
  if (b.ergebnis->text_von != b.ergebnis->text_bis) worte += " bis " + b.ergebnis->text_bis;
  if (b.status == status_unterdrueckt) worte += ", ausserhalb der Limiten wird nicht geschaltet";
  return worte;
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

  Spanne spanne{t, t};
  if (Mit_zufall(regel.modus())) spanne = {t - Zeit_sekunden(regel.f4), t + Zeit_sekunden(regel.f5)};
  if (spanne.von != spanne.bis) bild.band = Band_von(spanne);
  const bool sonne = Mit_sonne(regel.modus());
  if (sonne) bild.status = Status(regel, spanne.von, spanne.bis);
  if (const auto s = sonne ? Nach_limiten(regel, spanne) : spanne) bild.ergebnis = Band_von(*s);
  bild.worte = In_worten(bild);
  return bild;
}

}  // namespace zav
