#include "editor/ausgangsfelder.h"

#include <string>
#include <utility>
#include <vector>

#include "basis/liste.h"

namespace zav {

void Gruppenleiste_einrichten(Auswahl& leiste, Ziel::Art art) {
  const bool relais = art == Ziel::Art::Relais;
  leiste.fuellen(Texte(relais ? relaisgruppen : dimmergruppen,
                       [relais](int g) { return (relais ? "O" : "D") + std::to_string(g); }));
  leiste.hinweis = "Nummernbereich auswählen";
}

void Ausgangstext_einrichten(Textfeld& feld) {
  feld.hoechstlaenge = 25;
  feld.hinweis = "Text: Bezeichnug des Ausgangs, z.B. 'Küchenlicht Decke'";
}

}  // namespace zav
