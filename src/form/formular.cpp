#include "form/formular.h"

#include <algorithm>

namespace zav {

Formular::Formular(std::string name, std::string titel) : name_(std::move(name)), titel_(std::move(titel)) {}

void Formular::titel_setzen(std::string titel) {
  titel_ = std::move(titel);
  geaendert();
}

void Formular::ungespeichert_setzen(bool ungespeichert) {
  if (ungespeichert == ungespeichert_) return;
  ungespeichert_ = ungespeichert;
  geaendert();
}

void Formular::schliessen_wuenschen() {
  for (Steuerelement* e : elemente_) {
    auto* const t = dynamic_cast<Taste*>(e);
    if (t != nullptr && t->abbruch && t->frei && t->sichtbar) {
      t->druecken();
      return;
    }
  }
  schliessen();
}

void Formular::schliessen() {
  offen_ = false;
  geaendert();
}

Steuerelement* Formular::element(std::string_view name) const {
  const auto treffer = std::find_if(elemente_.begin(), elemente_.end(),
                                    [&](const Steuerelement* e) { return e->name() == name; });
  return treffer == elemente_.end() ? nullptr : *treffer;
}

void Formular::fokussieren(Steuerelement& e) {
  fokus_ = &e;
  ++fokuswunsch_;
  geaendert();
}

void Formular::anmelden(const std::string& name, Steuerelement& e) {
  e.name_ = name;
  e.formular_ = this;
  elemente_.push_back(&e);
}

}  // namespace zav
