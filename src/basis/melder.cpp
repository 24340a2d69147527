#include "basis/melder.h"

#include <utility>

namespace zav {

namespace {

class Stiller_melder final : public Melder {
 public:
  Antwort Melden(const Meldung& m) override { return Vorsichtige_antwort(m.knoepfe); }
};

Stiller_melder stiller_melder;
Melder* aktueller_melder = nullptr;

}  // namespace

Melder& melder() { return aktueller_melder != nullptr ? *aktueller_melder : stiller_melder; }

Melder* Melder_setzen(Melder* m) { return std::exchange(aktueller_melder, m); }

Antwort Vorsichtige_antwort(Knoepfe k) {
  switch (k) {
    case Knoepfe::OK: return Antwort::OK;
    case Knoepfe::Ja_Nein: return Antwort::Nein;
    case Knoepfe::OK_Abbrechen:
    case Knoepfe::Ja_Nein_Abbrechen: break;
  }
  return Antwort::Abbrechen;
}

void Melden(const std::string& text, const std::string& titel, Symbol symbol) {
  melder().Melden({.text = text, .titel = titel, .symbol = symbol});
}

bool Fragen(const Meldung& m) {
  const Antwort a = melder().Melden(m);
  return a == Antwort::Ja || a == Antwort::OK;
}

}  // namespace zav
