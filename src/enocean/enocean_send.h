// "Funkempfänger aktualisieren": copies the sender tables into the receivers on the bus.
#pragma once

#include "enocean/programmieren.h"
#include "form/formular.h"

namespace zav {

class Enocean_Send final : public Formular, private Enocean_anzeige {
 public:
  Enocean_Send();

  Kaestchen Check1{"&Alle eingebauten Empfänger aktualisieren, nicht nur geänderte"};
  Schild Label2;  // the receivers that would be programmed
  Schild Label1;
  Balken ProgressBar1;
  Taste Command1{"&Daten zu den Funkempfängern senden"};
  Taste Command5{"&Schliessen"};

  Anordnung anordnung() override;
  // A run that has begun goes to its end.
  void schliessen_wuenschen() override;

 private:
  void Senden();
  void Umfang_zeigen();
  void Meldung_zeigen(const std::string& text) override { Label1.titel = text; }
  void Fortschritt_zeigen(double prozent) override { ProgressBar1.wert = prozent; }
};

}  // namespace zav
