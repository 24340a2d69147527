#include "shell/gruss.h"

#include "basis/text.h"
#include "form/oberflaeche.h"
#include "platform/einstellungen.h"
#include "shell/datei.h"
#include "store/projektdatei.h"

namespace zav {

namespace {

constexpr const char* leer = "---";
constexpr const char* neuerungen =
    "Neu in dieser Version: Eigenschaften und Tasten für die ZAVapp, IP-Kameras, Funksender mit bis zu 16 "
    "Empfängern, Ausgänge aus dem Funktionsfenster testen. Projekte der Generation 910 brauchen im ZAVmaster "
    "die Version 9.";
constexpr const char* haftung =
    "Prüfen Sie nach jedem Senden die Funktionen der Anlage vor Ort, besonders Storen, Tore und Heizungen. "
    "Für Schäden aus falsch programmierten Anlagen wird keine Haftung übernommen.";

}  // namespace

Gruss::Gruss() : Formular("Gruss", "Willkommen bei TESSARO") {
  anmelden("Label_name", Label_name);
  anmelden("Label_zweck", Label_zweck);
  anmelden("Frame1", Frame1);
  anmelden("Command1", Command1);
  anmelden("OK", OK);
  anmelden("Oeffnen", Oeffnen);
  anmelden("Command2", Command2);
  anmelden("Command4", Command4);
  anmelden("Command3", Command3);
  anmelden("Text1", Text1);
  anmelden("Label1", Label1);
  anmelden("Command5", Command5);

  for (std::size_t n = 0; n < dateien; ++n) {
    const str& eintrag = einstellungen.last_file[n];
    const bool da = eintrag != leer && !eintrag.empty();
    Command1[n].titel = da ? Ersetzen(eintrag.substr(eintrag.rfind('/') + 1), "&", "&&") : leer;
    Command1[n].hinweis = eintrag + ".zav";
    Command1[n].sperren(!da, "Hier stehen die Projekte, die Sie zuletzt geöffnet oder gespeichert haben");
    Command1[n].bild = "projekt";
    Command1[n].wenn_gedrueckt = [this, n] { Laden(n); };
  }
  Label_name.ueberschrift = true;
  OK.hinweis = "Mit einem leeren Projekt beginnen";
  OK.bild = "neu";
  Oeffnen.hinweis = "Ein bestehendes Projekt öffnen";
  Oeffnen.bild = "oeffnen";
  Oeffnen.wenn_gedrueckt = [this] { Anderes_laden(); };
  OK.wenn_gedrueckt = [this] {
    Projekt_reset();
    projekt.Projekt_name = "Namenlos";
    schliessen();
  };
  Command2.wenn_gedrueckt = [this] { Text_zeigen(neuerungen); };
  Command4.wenn_gedrueckt = [this] { Text_zeigen(haftung); };
  Command3.wenn_gedrueckt = [this] { Text_zeigen(""); };
  Command5.wenn_gedrueckt = [this] {
    beendet_ = true;
    schliessen();
  };
  Text1.nur_lesen = true;
  Text1.mehrzeilig = true;
  Text_zeigen("");
  Label1.sichtbar = false;
  (Command1[0].frei ? Command1[0] : OK).standard = true;
  Command5.abbruch = true;
}

void Gruss::Text_zeigen(const char* text) {
  Text1.setzen(text);
  const bool offen = *text != '\0';
  Text1.sichtbar = offen;
  Command3.sichtbar = offen;
}

void Gruss::Laden(std::size_t n) {
  projekt.Projekt_name = einstellungen.last_file[n] + ".zav";
  for (Steuerelement* e : elemente()) e->sichtbar = false;
  Label1.titel = projekt.Projekt_name + " wird geladen...";
  Label1.sichtbar = true;
  melder().DoEvents();
  Projekt_laden();
  schliessen();
}

// The file dialog's own command; cancelled, the greeting stays.
void Gruss::Anderes_laden() {
  Datei datei;
  datei.Command2.druecken();
  if (projekt.Projekt_name != "Namenlos") schliessen();
}

Anordnung Gruss::anordnung() {
  return Spalte(Label_name, Label_zweck, Gruppe(Frame1, Alle(Command1)), Gruppe("Projekt", OK, Oeffnen),
                Label1, Zeile(Command2, Command4, Command3, Feder()), Text1, Knopfzeile(Command5));
}

}  // namespace zav
