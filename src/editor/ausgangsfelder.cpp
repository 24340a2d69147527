#include "editor/ausgangsfelder.h"

#include <string>
#include <utility>
#include <vector>

namespace zav {

void Gruppenleiste_einrichten(Auswahl& leiste, Ziel::Art art) {
  const bool relais = art == Ziel::Art::Relais;
  std::vector<std::string> gruppen;
  for (int g = 0; g < (relais ? relaisgruppen : dimmergruppen); ++g)
    gruppen.push_back((relais ? "O" : "D") + std::to_string(g));
  leiste.fuellen(std::move(gruppen));
  leiste.hinweis = "Nummernbereich auswählen";
}

void Ausgangstext_einrichten(Textfeld& feld) {
  feld.hoechstlaenge = 25;
  feld.hinweis = "Text: Bezeichnug des Ausgangs, z.B. 'Küchenlicht Decke'";
}

}  // namespace zav
