#include "app/zavapp_form.h"

#include "app/deskriptor.h"
#include "store/sitzung.h"

namespace zav {

namespace {

std::string Umfang_in_worten(const App_umfang& u) {
  return std::to_string(u.normale) + " normale Tasten, " + std::to_string(u.globale) + " globale Tasten, " +
         std::to_string(u.szenen) + " globale Szenen, " + std::to_string(u.kameras) + " Kameras";
}

}  // namespace

ZAVapp_Form::ZAVapp_Form() : Formular("ZAVapp_Form", "ZAVapp") {
  anmelden("Text1", Text1);
  anmelden("Label1", Label1);
  anmelden("Label2", Label2);
  anmelden("Command1", Command1);
  anmelden("Command2", Command2);

  Text1.setzen(projekt.App_allgemein[0]);
  Text1.wenn_verlassen = [this] { Titel_uebernehmen(); };
  Label1.titel = Umfang_in_worten(App_zaehlen(projekt));
  Command1.wenn_gedrueckt = [this] { Exportieren(); };
  Command2.wenn_gedrueckt = [this] {
    Titel_uebernehmen();
    schliessen();
  };
  Command1.standard = true;
  Command2.abbruch = true;
}

void ZAVapp_Form::Titel_uebernehmen() {
  if (projekt.App_allgemein[0] == Text1.text()) return;
  projekt.App_allgemein[0] = Text1.text();
  sitzung.Projekt_geaendert = 1;
}

void ZAVapp_Form::Exportieren() {
  Titel_uebernehmen();
  Label2.titel = std::string();
  std::string pfad;
  if (App_xml_export(&pfad)) Label2.titel = "Geschrieben: " + pfad;
}

Anordnung ZAVapp_Form::anordnung() {
  return Spalte(Text1, Label1, Label2, Feder(), Knopfzeile(Command1, Command2));
}

}  // namespace zav
