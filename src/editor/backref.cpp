#include "editor/backref.h"

#include <string>
#include <utility>
#include <vector>

#include "basis/liste.h"
#include "editor/ereignissuche.h"

namespace zav {

Backref::Backref() : Formular("Backref", "Ereignissuche") {
  anmelden("Label1", Label1);
  anmelden("Command1", Command1);
  anmelden("Combo1", Combo1);
  anmelden("Command2", Command2);
  anmelden("Text2", Text2);
  anmelden("Command3", Command3);

  struct Grobauswahl {
    const char* titel;
    Ziel::Art art;
    int anzahl;
  };
  constexpr std::array grobauswahl{Grobauswahl{"Switch/Motor", Ziel::Art::Relais, relaisausgaenge},
                                   Grobauswahl{"Dimmer", Ziel::Art::Dimmer, dimmerausgaenge},
                                   Grobauswahl{"Timer", Ziel::Art::Timer, timeranzahl}};
  for (std::size_t i = 0; i < grobauswahl.size(); ++i) {
    const Grobauswahl g = grobauswahl[i];
    Command1[i].titel = g.titel;
    Command1[i].wenn_gedrueckt = [this, g] { Fuellen(g.art, g.anzahl); };
  }
  Command2.standard = true;
  Command2.wenn_gedrueckt = [this] {
    const std::string treffer = Ereignisse_suchen({art_, Combo1.position()});
    Text2.setzen(treffer.empty() ? "Keine Ereignisse gefunden." : treffer);
  };
  Text2.mehrzeilig = true;
  Text2.nur_lesen = true;
  Text2.breite = 84;
  Text2.zeilen = 16;
  Text2.setzen("Anzeige des Suchergebnisses...");
  Command3.abbruch = true;
  Command3.wenn_gedrueckt = [this] { schliessen(); };
  Fuellen(Ziel::Art::Relais, relaisausgaenge);
}

void Backref::Fuellen(Ziel::Art art, int anzahl) {
  art_ = art;
  Combo1.fuellen(Texte(anzahl, [art](int i) { return Ziel_bezeichnung({art, i}); }));
  Combo1.setzen(0);
}

Anordnung Backref::anordnung() {
  return Spalte(Label1, Gruppe("Grobauswahl", Zeile(Alle(Command1), Feder())),
                Gruppe("Feinauswahl und Suche starten", Zeile(Combo1, Command2)), Text2,
                Knopfzeile(Command3));
}

}  // namespace zav
