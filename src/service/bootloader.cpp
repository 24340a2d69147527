#include "service/bootloader.h"

#include "form/oberflaeche.h"
#include "platform/einstellungen.h"

namespace zav {

Bootloader::Bootloader() : Formular("Bootloader", "Update-Assistent") {
  anmelden("Label1", Label1);
  anmelden("Command9", Command9);
  anmelden("Command10", Command10);
  anmelden("Frame1", Frame1);
  anmelden("Option1", Option1);
  anmelden("Text1", Text1);
  anmelden("ProgressBar1", ProgressBar1);
  anmelden("Command8", Command8);

  Beschriften();
  Option1.setzen(1);
  Frame1.sperren(true, "Der ZAVmaster braucht genau diese Verzögerung");
  Text1.nur_lesen = true;
  Text1.mehrzeilig = true;
  Command9.wenn_gedrueckt = [this] { Starten(Updateweg::com); };
  Command10.wenn_gedrueckt = [this] { Starten(Updateweg::ethernet); };
  Command8.wenn_gedrueckt = [this] { Schliessen(); };
  Command8.abbruch = true;
}

void Bootloader::Beschriften() {
  for (std::size_t i = 0; i < schritte; ++i) Label1[i].titel = std::to_string(i + 1) + ".";
}

void Bootloader::Starten(Updateweg weg) {
  Text1.setzen("Ablauf-Info\r\n---\r\n");
  Beschriften();
  Fortschritt_zeigen(0, 100);
  Label1[0].titel = "1. Datei auswählen";
  const auto wahl = oberflaeche().Datei_oeffnen(
      {.titel = "Update-Datei wählen",
       .ordner = einstellungen.Standard_ordner,
       .filter = {{"Update ZAVmaster (*.s19)", "*.s19"}, {"Alles (*.*)", "*.*"}}});
  Update_datei_ = wahl ? wahl->pfad : "";
  if (Update_datei_.empty()) {
    Melden("Ungültige Update-Datei");
    return;
  }
  for (Taste* t : {&Command8, &Command9, &Command10}) t->sperren(true, "Das Update läuft");
  laeuft_ = true;
  const Updateergebnis ergebnis = update_.Ausfuehren(weg, Update_datei_);
  laeuft_ = false;
  for (Taste* t : {&Command8, &Command9, &Command10}) t->sperren(false, "");
  if (ergebnis == Updateergebnis::abgebrochen) schliessen();
}

void Bootloader::Schritt_zeigen(int nr, const std::string& text) {
  Label1.at(static_cast<std::size_t>(nr - 1)).titel = text;
}

void Bootloader::Fortschritt_zeigen(double wert, double bis) {
  ProgressBar1.bis = bis;
  ProgressBar1.wert = wert;
}

void Bootloader::Abbruch_freigeben(bool frei) {
  Command8.sperren(!frei, "Jetzt darf das Update nicht abgebrochen werden");
}

// While the run waits for the master it can be left; once the erase has begun, not without a word.
void Bootloader::Schliessen() {
  if (!laeuft_) {
    schliessen();
    return;
  }
  if (!update_.geloescht || Fragen({.text = "Das Betriebssystem im ZAVmaster wird gelöscht. Ohne Update kann "
                                            "er nicht mehr starten. Trotzdem abbrechen?",
                                    .titel = "Update-Assistent",
                                    .knoepfe = Knoepfe::Ja_Nein,
                                    .symbol = Symbol::Warnung,
                                    .standard = 2})) {
    update_.Abbruch = true;
  }
}

void Bootloader::schliessen_wuenschen() {
  if (Command8.frei) Command8.druecken();
}

Anordnung Bootloader::anordnung() {
  return Spalte(Command9, Command10, Gruppe("Schritte", Alle(Label1)), Gruppe(Frame1, Option1), Text1,
                ProgressBar1, Knopfzeile(Command8));
}

}  // namespace zav
