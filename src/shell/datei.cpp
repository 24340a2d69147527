#include "shell/datei.h"

#include <sstream>

#include "app/zavapp_form.h"
#include "form/oberflaeche.h"
#include "platform/einstellungen.h"
#include "shell/bericht.h"
#include "shell/projektbefehle.h"
#include "store/json.h"
#include "store/projektdatei.h"
#include "store/sitzung.h"

namespace zav {

Datei::Datei() : Formular("Datei", "Datei") {
  anmelden("Frame1", Frame1);
  anmelden("Label1", Label1);
  anmelden("New", New);
  anmelden("Command2", Command2);
  anmelden("Command3", Command3);
  anmelden("Command1", Command1);
  anmelden("Command4", Command4);
  anmelden("Drucken", Drucken);
  anmelden("Cancel", Cancel);

  Label1.titel = "Generation " + projekt.Datei_version;
  Command2.hinweis = "Ein bestehendes Projekt öffnen";
  Command3.hinweis = "Ein Projekt unter gleichem Namen speichern";
  Command1.hinweis = "Ein Projekt unter einem anderem Namen speichern";
  Drucken.hinweis = "Erstellt eine Datei, die in Excel oder Word formatiert und ausgedruckt werden kann";
  Cancel.hinweis = "Dieses Menu verlassen";
  New.wenn_gedrueckt = [this] { Neu(); };
  Command2.wenn_gedrueckt = [this] { Oeffnen(); };
  Command3.wenn_gedrueckt = [this] { Speichern_befehl(); };
  Command1.wenn_gedrueckt = [this] {
    const Umschalttasten t = oberflaeche().Tasten();
    if (t.strg && t.alt) {
      Exportieren();
    } else {
      Projekt_sichern_unter();
    }
    schliessen();
  };
  Command4.wenn_gedrueckt = [this] { App_oeffnen(); };
  Drucken.wenn_gedrueckt = [this] { Bericht_schreiben(); };
  Cancel.wenn_gedrueckt = [this] { schliessen(); };
  New.bild = "neu";
  Command2.bild = "oeffnen";
  Command3.bild = Command1.bild = "speichern";
  Command4.bild = "telefon";
  Drucken.bild = "drucken";
  Command3.standard = true;
  Cancel.abbruch = true;
}

void Datei::Neu() {
  projekt.Datei_version = "910";
  if (Ungespeichertes_fragen() &&
      Fragen({.text = "Neues Projekt erstellen (Setzt alle Eingaben und Daten auf Standardwerte zurück)?",
              .titel = "Info",
              .knoepfe = Knoepfe::Ja_Nein,
              .symbol = Symbol::Information,
              .standard = 2})) {
    // The older generation of a project that the question has saved is not the new one's.
    projekt.Datei_version = "910";
    Projekt_reset();
    projekt.Projekt_name = "Namenlos";
    Projekt_sichern_unter();
    sitzung.Projekt_geaendert = 0;
  }
  schliessen();
}

void Datei::Oeffnen() {
  sitzung.Projekt_name_vorher = projekt.Projekt_name;
  if (Ungespeichertes_fragen()) {
    const auto wahl =
        oberflaeche().Datei_oeffnen({.titel = "Projekt öffnen",
                                     .ordner = einstellungen.Standard_ordner,
                                     .filter = {{"ZAVnet (*.zav)", "*.zav"}, {"Alles (*.*)", "*.*"}},
                                     .schreibschutz_waehlbar = true});
    // Saved by the question under another name: that is the one to keep on a cancel.
    sitzung.Projekt_name_vorher = projekt.Projekt_name;
    if (wahl) sitzung.Schreibschutz = wahl->schreibgeschuetzt ? 1 : 0;
    Projekt_oeffnen(wahl ? wahl->pfad : "");
  }
  schliessen();
}

// With a write-protected file the dialog stays open for the way out that the message names.
void Datei::Speichern_befehl() {
  Projekt_sichern();
  if (sitzung.Schreibschutz == 0) schliessen();
}

void Datei::Exportieren() {
  const auto wahl = oberflaeche().Datei_speichern({.titel = "Projekt exportieren",
                                                   .ordner = einstellungen.Standard_ordner,
                                                   .vorschlag = projekt.Projekt_name,
                                                   .endung = ".iav",
                                                   .filter = {{"ZAVnet-EXPORT (*.iav)", "*.iav"}},
                                                   .ueberschreiben_fragen = true});
  if (!wahl) return;
  projekt.Projekt_name = Ohne_endung(wahl->pfad);
  const Wartezeiger zeiger;
  std::ostringstream aus;
  Projekt_json(projekt, aus);
  Datei_ablegen(projekt.Projekt_name + ".iav", aus.str());
}

void Datei::App_oeffnen() {
  if (projekt.Datei_version == "800" || projekt.Datei_version == "900") {
    Melden(std::string("Wenn Sie die neuen Funktionen von ") + programm_version +
           " nutzen möchten, wählen Sie 'Speichern unter' und den Dateityp 910. Achtung: Das Betriebssystem "
           "des ZAVmasters muss auf die Version 9 aufgerüstet werden.");
    return;
  }
  ZAVapp_Form dialog;
  oberflaeche().Zeigen(dialog);
  schliessen();
}

void Datei::Bericht_schreiben() {
  const auto wahl = oberflaeche().Datei_speichern({.titel = "Drucken in Datei",
                                                   .ordner = einstellungen.Standard_ordner,
                                                   .vorschlag = projekt.Projekt_name,
                                                   .endung = ".txt",
                                                   .filter = {{"Text (*.txt)", "*.txt"}},
                                                   .ueberschreiben_fragen = true});
  if (wahl) {
    const Wartezeiger zeiger;
    Datei_ablegen(wahl->pfad, Bericht());
  }
  schliessen();
}

Anordnung Datei::anordnung() {
  return Spalte(Gruppe(Frame1, Label1, Spalte(New, Command2, Command3, Command1, Command4, Drucken)), Feder(),
                Knopfzeile(Cancel));
}

}  // namespace zav
