#include "enocean/enocean_send.h"

namespace zav {

Enocean_Send::Enocean_Send() : Formular("Enocean_Send", "Funkempfänger aktualisieren") {
  anmelden("Check1", Check1);
  anmelden("Label1", Label1);
  anmelden("ProgressBar1", ProgressBar1);
  anmelden("Command1", Command1);
  anmelden("Command5", Command5);

  Command1.wenn_gedrueckt = [this] { Senden(); };
  Command5.wenn_gedrueckt = [this] { schliessen(); };
  Command1.standard = true;
  Command5.abbruch = true;
}

void Enocean_Send::schliessen_wuenschen() {
  if (Command5.frei) Command5.druecken();
}

void Enocean_Send::Senden() {
  Check1.frei = Command1.frei = Command5.frei = false;
  ProgressBar1.wert = 0;
  Enocean_programmieren(Check1.an(), *this);
  Label1.titel = std::string();
  Check1.frei = Command1.frei = Command5.frei = true;
}

Anordnung Enocean_Send::anordnung() {
  return Spalte(Check1, Label1, ProgressBar1, Feder(), Knopfzeile(Command1, Command5));
}

}  // namespace zav
