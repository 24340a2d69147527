#include "service/infofenster.h"

#include "service/masteranzeige.h"
#include "store/projektdatei.h"

namespace zav {

Infofenster::Infofenster() : Formular("Infofenster", "Info") {
  anmelden("Text1", Text1);
  anmelden("Text3", Text3);
  anmelden("Frame1", Frame1);
  anmelden("Text2", Text2);
  anmelden("Text6", Text6);
  anmelden("Command5", Command5);
  anmelden("OK", OK);

  for (Textfeld* t : {&Text1, &Text2, &Text3, &Text6}) t->nur_lesen = true;
  Text1.setzen(programm_version);
  Text3.setzen(Schnittstelle_text());
  Text2.setzen("---");
  Text6.setzen("---");
  Command5.hinweis = "Nur Version des ZAVmasters abfragen";
  Command5.wenn_gedrueckt = [this] { Info_holen(); };
  OK.wenn_gedrueckt = [this] { schliessen(); };
  OK.standard = true;
  OK.abbruch = true;
}

void Infofenster::Info_holen() {
  for (Taste* t : {&Command5, &OK}) t->sperren(true, "Der ZAVmaster wird gefragt");
  Masterinfo_holen(Text2, Text6);
  for (Taste* t : {&Command5, &OK}) t->sperren(false, "");
}

Anordnung Infofenster::anordnung() {
  return Spalte(Text1, Text3, Gruppe(Frame1, Text2, Text6, Zeile(Command5, Feder())), Feder(),
                Knopfzeile(OK));
}

}  // namespace zav
