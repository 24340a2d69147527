#include "shell/eingabehilfe.h"

#include <array>

#include "basis/liste.h"
#include "basis/melder.h"
#include "basis/text.h"
#include "basis/zahl.h"
#include "store/sitzung.h"

namespace zav {

namespace {

// In the order of Ziel::Art.
constexpr std::array anzahl_von{relaisausgaenge, dimmerausgaenge, timeranzahl};

}  // namespace

Eingabehilfe::Eingabehilfe() : Formular("Eingabehilfe", "Sonderfunktionen") {
  anmelden("Label1", Label1);
  anmelden("Option1", Option1);
  anmelden("Combo1", Combo1);
  anmelden("Combo2", Combo2);
  anmelden("Text1", Text1);
  anmelden("Text2", Text2);
  anmelden("Check1", Check1);
  anmelden("Label2", Label2);
  anmelden("OK", OK);
  anmelden("Cancel", Cancel);

  Text1.setzen("Licht #");
  Text2.setzen("1");
  Text2.hoechstlaenge = 4;
  Option1.wenn_geaendert = [this] { Art_gewaehlt(); };
  for (Auswahl* a : {&Combo1, &Combo2}) a->wenn_geaendert = [this] { Vorschau(); };
  for (Textfeld* t : {&Text1, &Text2}) t->wenn_geaendert = [this] { Vorschau(); };
  Check1.wenn_geaendert = [this] { Vorschau(); };
  OK.wenn_gedrueckt = [this] { Uebernehmen(); };
  Cancel.wenn_gedrueckt = [this] { schliessen(); };
  OK.standard = true;
  Cancel.abbruch = true;
  Option1.setzen(0);
}

void Eingabehilfe::Art_gewaehlt() {
  auto namen = Texte(anzahl_von.at(static_cast<std::size_t>(Option1.position())), [this](int n) {
    return Ziel_name({art(), n});
  });
  Combo1.fuellen(namen);
  Combo2.fuellen(std::move(namen));
  Combo1.setzen(0);
  Combo2.setzen(0);
}

str& Eingabehilfe::Platz(int nummer) const {
  switch (art()) {
    case Ziel::Art::Dimmer: return projekt.Dimmer_text[nummer];
    case Ziel::Art::Timer: return projekt.Timer_text[nummer];
    case Ziel::Art::Relais: break;
  }
  return projekt.Relais_text[nummer];
}

std::string Eingabehilfe::Neuer_text(int n, int nummer) const {
  const auto erste = Zahl_lesen(Text2.text(), 0, 9999);
  const std::string& bisher = Platz(nummer);
  if (!erste || (!bisher.empty() && !Check1.an())) return bisher;
  return Ersetzen(Text1.text(), "#", std::to_string(*erste + n));
}

void Eingabehilfe::Vorschau() {
  const int von = Combo1.position();
  const int bis = Combo2.position();
  int geaendert = 0;
  for (int i = von; i <= bis; ++i) geaendert += Neuer_text(i - von, i) != Platz(i);
  Label2.titel = bis < von ? "'Bis' liegt vor 'Von'."
                           : std::to_string(geaendert) + " von " + std::to_string(bis - von + 1) +
                                 " Texten werden geändert";
  OK.sperren(geaendert == 0, "So würde kein Text geändert");
  OK.hinweis = geaendert > 0 ? "" : "Kein Text ändert sich";
}

void Eingabehilfe::Uebernehmen() {
  const int von = Combo1.position();
  for (int i = von; i <= Combo2.position(); ++i) Platz(i) = Neuer_text(i - von, i);
  sitzung.Projekt_geaendert = 1;
  schliessen();
}

Anordnung Eingabehilfe::anordnung() {
  return Spalte(Label1, Option1, Combo1, Combo2, Text1, Text2, Check1, Label2, Feder(),
                Knopfzeile(OK, Cancel));
}

}  // namespace zav
