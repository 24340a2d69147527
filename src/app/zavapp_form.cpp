#include "app/zavapp_form.h"

#include "app/deskriptor.h"
#include "store/sitzung.h"

namespace zav {

namespace {

struct Umfang {
  const char* was;
  int App_umfang::*anzahl;
};
constexpr std::array<Umfang, 4> umfaenge{{{"Normale Tasten", &App_umfang::normale},
                                          {"Globale Tasten", &App_umfang::globale},
                                          {"Globale Szenen", &App_umfang::szenen},
                                          {"Kameras", &App_umfang::kameras}}};

}  // namespace

ZAVapp_Form::ZAVapp_Form() : Formular("ZAVapp_Form", "ZAVapp") {
  anmelden("Text1", Text1);
  anmelden("Frame1", Frame1);
  anmelden("Label1", Label1);
  anmelden("Label3", Label3);
  anmelden("Label2", Label2);
  anmelden("Command1", Command1);
  anmelden("Command2", Command2);

  Text1.setzen(projekt.App_allgemein[0]);
  Text1.wenn_verlassen = [this] { Titel_uebernehmen(); };
  const App_umfang umfang = App_zaehlen(projekt);
  for (std::size_t i = 0; i < umfaenge.size(); ++i) {
    Label1[i].titel = umfaenge[i].was;
    Label3[i].titel = std::to_string(umfang.*umfaenge[i].anzahl);
    Label3[i].zahl = true;
  }
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
  return Spalte(Text1, Gruppe(Frame1, Raster(2, Zeilenweise(Label1, Label3))), Label2, Feder(),
                Knopfzeile(Command1, Command2));
}

}  // namespace zav
