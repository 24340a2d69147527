#include "enocean/enocean_send.h"

#include "store/projekt.h"

namespace zav {

namespace {

// "Empfänger 0 (Technikraum), 1 (Estrich)"
std::string Empfaenger_in_worten(bool alle) {
  std::string text;
  for (int r = 0; r < empfaenger; ++r) {
    if (!Enocean_zu_programmieren(projekt, r, alle)) continue;
    text += (text.empty() ? "Empfänger " : ", ") + std::to_string(r);
    if (!projekt.Enocean_empf_ort[r].empty()) text += " (" + projekt.Enocean_empf_ort[r] + ")";
  }
  if (!text.empty()) return text;
  return alle ? "Im Projekt ist kein Empfänger eingebaut" : "Kein eingebauter Empfänger ist geändert";
}

}  // namespace

Enocean_Send::Enocean_Send() : Formular("Enocean_Send", "Funkempfänger aktualisieren") {
  anmelden("Check1", Check1);
  anmelden("Label2", Label2);
  anmelden("Label1", Label1);
  anmelden("ProgressBar1", ProgressBar1);
  anmelden("Command1", Command1);
  anmelden("Command5", Command5);

  Check1.wenn_geaendert = [this] { Umfang_zeigen(); };
  Command1.wenn_gedrueckt = [this] { Senden(); };
  Command5.wenn_gedrueckt = [this] { schliessen(); };
  Command1.standard = true;
  Command5.abbruch = true;
  Umfang_zeigen();
}

void Enocean_Send::schliessen_wuenschen() {
  if (Command5.frei) Command5.druecken();
}

void Enocean_Send::Umfang_zeigen() { Label2.titel = Empfaenger_in_worten(Check1.an()); }

void Enocean_Send::Senden() {
  Check1.frei = Command1.frei = Command5.frei = false;
  ProgressBar1.wert = 0;
  Enocean_programmieren(Check1.an(), *this);
  Label1.titel = std::string();
  Umfang_zeigen();
  Check1.frei = Command1.frei = Command5.frei = true;
}

Anordnung Enocean_Send::anordnung() {
  return Spalte(Check1, Label2, Feder(), Label1, ProgressBar1, Knopfzeile(Command1, Command5));
}

}  // namespace zav
