#include "shell/storentimer.h"

#include "basis/melder.h"
#include "basis/zahl.h"
#include "store/projekt.h"
#include "store/sitzung.h"

namespace zav {

namespace {

struct Parameter {
  i16 Projekt::*wert;
  i16 standard;
  int von, bis;
  const char* titel;
  const char* einheit;
  const char* hinweis;
};
// Times of a tilt travel as one byte in units of 10 ms, the run as a word in units of 10 ms.
const std::array<Parameter, Storentimer::werte> parameter{{
    {&Projekt::Store_p1, 120, 1, 655, "Laufzeit", "Sekunden (1 bis 655)",
     "Nach Ablauf dieser Zeit wird der Storenausgang ausgeschaltet"},
    {&Projekt::Store_p2, 110, 10, 2550, "Wippen nach oben", "Millisekunden (10 bis 2550)",
     "Während dieser Zeit wippt die Store kurz nach oben"},
    {&Projekt::Store_p3, 110, 10, 2550, "Wippen nach unten", "Millisekunden (10 bis 2550)",
     "Während dieser Zeit wippt die Store kurz nach unten"},
    {&Projekt::Store_p4, 300, 10, 2550, "Pause", "Millisekunden (10 bis 2550)",
     "Pause zwischen zwei Wippbewegungen"},
    {&Projekt::Store_p5, 6, 0, 255, "Anzahl", "Wippbewegungen (0 bis 255)",
     "Maximale Anzahl Wippbewegungen pro langem Tastendruck"},
}};

}  // namespace

Storentimer::Storentimer() : Formular("Storentimer", "Storenparameter") {
  anmelden("Label1", Label1);
  anmelden("Text1", Text1);
  anmelden("Label2", Label2);
  anmelden("Command1", Command1);
  anmelden("OK", OK);
  anmelden("Cancel", Cancel);
  for (std::size_t i = 0; i < werte; ++i) {
    const Parameter& p = parameter[i];
    Label1[i].titel = p.titel;
    Label2[i].titel = p.einheit;
    Text1[i].hinweis = p.hinweis;
    Text1[i].hoechstlaenge = 4;
    Text1[i].setzen(std::to_string(projekt.*p.wert));
    Text1[i].wenn_geaendert = [this, i] { Text1[i].farbe = Farbe::normal; };
  }
  Command1.wenn_gedrueckt = [this] {
    for (std::size_t i = 0; i < werte; ++i) Text1[i].setzen(std::to_string(parameter[i].standard));
  };
  OK.wenn_gedrueckt = [this] { Uebernehmen(); };
  Cancel.wenn_gedrueckt = [this] { schliessen(); };
  OK.standard = true;
  Cancel.abbruch = true;
}

void Storentimer::Uebernehmen() {
  std::array<i16, werte> neu{};
  for (std::size_t i = 0; i < werte; ++i) {
    const Parameter& p = parameter[i];
    const auto zahl = Zahl_lesen(Text1[i].text(), p.von, p.bis);
    if (!zahl) {
      Text1[i].farbe = Farbe::belegt;
      Melden(std::string(p.titel) + ": bitte eine ganze Zahl eingeben, " + p.einheit + ".", titel(),
             Symbol::Information);
      fokussieren(Text1[i]);
      return;
    }
    neu[i] = static_cast<i16>(*zahl);
  }
  for (std::size_t i = 0; i < werte; ++i) {
    i16& wert = projekt.*parameter[i].wert;
    if (wert != neu[i]) sitzung.Projekt_geaendert = 1;
    wert = neu[i];
  }
  schliessen();
}

Anordnung Storentimer::anordnung() {
  return Spalte(Raster(3, Zeilenweise(Label1, Text1, Label2)), Feder(), Knopfzeile(Command1, OK, Cancel));
}

}  // namespace zav
