#include "arbeitsplatz.h"

#include <stdexcept>

namespace zav::beispiel {

void Arbeitsplatz::mit_meldung(const std::string& text, const std::function<void()>& handlung) {
  drehbuch_.erwarte_text(text);
  handlung();
  pruefen();
}

void Arbeitsplatz::schliessen() {
  if (!fenster_) return;
  if (!abschied_.empty()) drehbuch_.erwarte_text(abschied_);
  if (fenster_->offen()) uebernehmen(*fenster_);
  pruefen();
  fordern(!fenster_->offen(), fenster_->name() + " lässt sich nicht schliessen");
  fenster_.reset();
}

void Arbeitsplatz::uebernehmen(Formular& f) {
  for (Steuerelement* e : f.elemente()) {
    auto* const t = dynamic_cast<zav::Taste*>(e);
    if (t == nullptr || !t->standard || !t->frei || !t->sichtbar) continue;
    t->druecken();
    return;
  }
  f.schliessen_wuenschen();
}

void Arbeitsplatz::pruefen() {
  const std::string maengel = drehbuch_.maengel();
  fordern(maengel.empty(), maengel);
}

Arbeitsplatz& arbeitsplatz() {
  static Arbeitsplatz platz;
  return platz;
}

void fordern(bool gut, const std::string& was) {
  if (!gut) throw std::runtime_error(was);
}

void tippen(Textfeld& feld, const std::string& text) {
  feld.eingeben(text);
  fordern(feld.text() == text, feld.name() + " nimmt den Text nicht: " + text);
}

}  // namespace zav::beispiel
