#include "service/init_flash.h"

#include "enocean/enocean_send.h"
#include "form/oberflaeche.h"
#include "link/leitung.h"
#include "platform/einstellungen.h"
#include "service/masteranzeige.h"

namespace zav {

namespace {

constexpr const char* keine_uebertragung = "Es läuft keine Übertragung, die abgebrochen werden kann";

}  // namespace

Init_flash::Init_flash() : Formular("Init_flash", "Daten ---> ZAVmaster senden") {
  anmelden("Frame1", Frame1);
  anmelden("Text2", Text2);
  anmelden("Text6", Text6);
  anmelden("Command5", Command5);
  anmelden("Check1", Check1);
  anmelden("Text1", Text1);
  anmelden("Text3", Text3);
  anmelden("Label1", Label1);
  anmelden("Label2", Label2);
  anmelden("ProgressBar1", ProgressBar1);
  anmelden("ProgressBar2", ProgressBar2);
  anmelden("Command1", Command1);
  anmelden("Command6", Command6);
  anmelden("Command3", Command3);
  anmelden("Command2", Command2);
  anmelden("Cancel", Cancel);

  for (Textfeld* t : {&Text1, &Text2, &Text3, &Text6}) t->nur_lesen = true;
  Text1.mehrzeilig = true;
  Text2.setzen("---");
  Text6.setzen("---");
  Text3.setzen("0");
  Text3.breite = 6;
  Text3.hinweis = "Übertragungsfehler, die durch Wiederholen behoben wurden";
  Command1.hinweis =
      "Löscht alle Daten im ZAVmaster. Notwendig, wenn PC und ZAVmaster nicht synchrone Daten aufweisen. Der "
      "Vorgang kann nicht abgebrochen werden!";
  Command5.hinweis = "Nur Version des ZAVmasters abfragen";
  Command2.sperren(true, keine_uebertragung);

  Check1.setzen(einstellungen.Event_sperre == 1);
  Check1.wenn_geaendert = [this] { einstellungen.Event_sperre = Check1.an() ? 1 : 0; };
  Command1.wenn_gedrueckt = [this] { Initialisieren(); };
  Command2.wenn_gedrueckt = [] { leitung.Abbruch_flag = 1; };
  Command3.wenn_gedrueckt = [this] { Senden(); };
  Command5.wenn_gedrueckt = [this] { Info_holen(); };
  Command6.wenn_gedrueckt = [this] {
    Befehle_freigeben(false);
    Neustart_fragen();
    Befehle_freigeben(true);
  };
  Cancel.wenn_gedrueckt = [this] { schliessen(); };
  Command3.standard = true;
  Cancel.abbruch = true;
}

void Init_flash::Fortschritt_zeigen(const Fortschritt& f) {
  ProgressBar1.wert = f.gesamt;
  ProgressBar2.wert = f.aktuell;
}

// The one command of a run is to stop it, and an erase has none.
void Init_flash::Befehle_freigeben(bool frei) {
  const char* const grund =
      sendet_ ? "Während der Übertragung nicht möglich" : "Der ZAVmaster ist beschäftigt";
  for (Steuerelement* e :
       std::initializer_list<Steuerelement*>{&Command1, &Command3, &Command5, &Command6, &Cancel, &Check1}) {
    e->sperren(!frei, grund);
  }
  Command2.sperren(frei || !sendet_, keine_uebertragung);
  if (frei) melder().Hinweis("");
}

// A transfer cut short leaves the master without valid data: its own key ends it, never a stray Escape.
void Init_flash::schliessen_wuenschen() {
  if (Cancel.frei) {
    Cancel.druecken();
  } else {
    melder().Hinweis(Command2.frei
                         ? "Die Übertragung läuft noch. Mit 'Übertragung abbrechen' lässt sie sich beenden."
                         : "Der ZAVmaster ist beschäftigt. Bitte warten Sie, bis der Vorgang beendet ist.");
  }
}

void Init_flash::Senden() {
  uebertragung_.Check1 = Check1.an();
  sendet_ = true;
  const Sendeergebnis ergebnis = uebertragung_.Senden_starten();
  sendet_ = false;
  Befehle_freigeben(true);
  if (ergebnis == Sendeergebnis::keine_antwort) {
    Protokoll("Der ZAVmaster hat auf die Frage nach seiner Version nicht geantwortet.\r\n");
  } else if (ergebnis == Sendeergebnis::zu_breit) {
    Protokoll("Die Übertragung endete vorzeitig: ein Wert der Storenparameter ist zu gross.\r\n");
  }
  if (ergebnis == Sendeergebnis::gesendet) Empfaenger_aktualisieren();
}

void Init_flash::Empfaenger_aktualisieren() {
  for (int r = 0; r < empfaenger; ++r) {
    if (projekt.Enocean_empf_da[r] != 1 || projekt.Enocean_empf_geaendert[r] != 1) continue;
    Enocean_Send dialog;
    oberflaeche().Zeigen(dialog);
    return;
  }
}

void Init_flash::Initialisieren() { uebertragung_.Initialisieren(); }

void Init_flash::Info_holen() {
  Befehle_freigeben(false);
  Masterinfo_holen(Text2, Text6);
  Befehle_freigeben(true);
}

Anordnung Init_flash::anordnung() {
  return Spalte(Gruppe(Frame1, Zeile(Text2, Text6, Command5)), Check1, Text1,
                Raster(2, Label1, ProgressBar1, Label2, ProgressBar2), Text3,
                Knopfzeile(Command1, Command6, Feder(), Command3, Command2, Cancel));
}

}  // namespace zav
