#include "time/uhr_astro_rechner.h"

#include "basis/melder.h"
#include "platform/uhrwerk.h"
#include "time/sonneninfo.h"

namespace zav {

Uhr_Astro_Rechner::Uhr_Astro_Rechner() : Formular("Uhr_Astro_Rechner", "Sonnen-Info") {
  anmelden("Text1", Text1);
  anmelden("Command2", Command2);
  anmelden("Kalender", Kalender);
  anmelden("Frame2", Frame2);
  anmelden("Text4", Text4);
  anmelden("Text5", Text5);
  anmelden("Text8", Text8);
  anmelden("Text6", Text6);
  anmelden("Text7", Text7);
  anmelden("Text9", Text9);
  anmelden("Command3", Command3);
  anmelden("Command1", Command1);

  for (Textfeld* t : {&Text4, &Text5, &Text6, &Text7, &Text8, &Text9}) t->nur_lesen = true;
  for (Textfeld* t : {&Text4, &Text5, &Text6, &Text7, &Text8}) t->breite = 10;
  Text1.hoechstlaenge = 10;
  Text9.mehrzeilig = true;
  Text9.setzen(
      "Listet alle Schaltzeiten des ausgewählten Jahres auf (inkl. Schalttage in den Schaltjahren).\n"
      "Zum Ausdrucken: rechte Maustaste, alles markieren, kopieren\n"
      "und in einer Textverarbeitung oder einem\n"
      "anderen Texteditor einfügen, formatieren und ausdrucken.");
  Kalender.sichtbar = false;
  Command1.abbruch = true;

  Text1.wenn_verlassen = [this] { Datum_eingegeben(); };
  Command2.wenn_gedrueckt = [this] { Kalender.sichtbar = true; };
  Kalender.wenn_geaendert = [this] {
    Datum_setzen(Kalender.datum());
    Kalender.sichtbar = false;
  };
  Command3.wenn_gedrueckt = [this] { Text9.setzen(Sonnenliste(tag_.jahr)); };
  Command1.wenn_gedrueckt = [this] { schliessen(); };
  Datum_setzen(Heute());
}

void Uhr_Astro_Rechner::Datum_setzen(Datum d) {
  const Beschaeftigt still(*this);
  tag_ = d;
  const Sonneninfo info = Sonneninfo_am(d);
  Text1.setzen(Datum_text(d));
  Kalender.setzen(d);
  Text4.setzen(info.aufgang);
  Text5.setzen(info.untergang);
  Text6.setzen(Datum_text(info.auf_sommerzeit));
  Text7.setzen(Datum_text(info.auf_winterzeit));
  Text8.setzen(std::string(info.zeit));
}

void Uhr_Astro_Rechner::Datum_eingegeben() {
  if (const auto d = Datum_lesen(Text1.text())) {
    Datum_setzen(*d);
    return;
  }
  Melden("Bitte ein Datum im Format TT.MM.JJJJ eingeben", "Info", Symbol::Information);
  Datum_setzen(tag_);
  fokussieren(Text1);
}

Anordnung Uhr_Astro_Rechner::anordnung() {
  return Spalte(Zeile(Spalte(Zeile(Text1, Command2, Feder()), Kalender,
                             Gruppe(Frame2, Raster(2, Text4, Text5, Text6, Text7, Text8, Leer())), Feder()),
                      Text9),
                Knopfzeile(Command3, Command1));
}

}  // namespace zav
