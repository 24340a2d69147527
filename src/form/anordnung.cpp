#include "form/anordnung.h"

namespace zav {

namespace {

void Sammeln(const Anordnung& a, std::vector<Steuerelement*>& ziel) {
  if (a.element != nullptr) ziel.push_back(a.element);
  for (const Anordnung& k : a.kinder) Sammeln(k, ziel);
}

}  // namespace

std::vector<Steuerelement*> Platzierte(const Anordnung& a) {
  std::vector<Steuerelement*> ziel;
  Sammeln(a, ziel);
  return ziel;
}

}  // namespace zav
