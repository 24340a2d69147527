// "Sonnen-Info": sunrise, sunset and the change-over days of a date, and a list of a whole year.
#pragma once

#include "form/formular.h"

namespace zav {

class Uhr_Astro_Rechner final : public Formular {
 public:
  Uhr_Astro_Rechner();

  Textfeld Text1{"Datum"};
  Taste Command2{"&Datum auswählen"};
  zav::Kalender Kalender;
  Rahmen Frame2{"Von ZAVlink verwendete Daten"};
  Textfeld Text4{"Sonnenaufgang um"}, Text5{"Sonnenuntergang um"};
  Textfeld Text6{"Winterzeit auf Sommerzeit am"}, Text7{"Sommerzeit auf Winterzeit am"};
  Textfeld Text8{"Zeit"};
  Textfeld Text9;
  Taste Command3{"&Zeiten auflisten"}, Command1{"&Schliessen"};

  Anordnung anordnung() override;

 private:
  void Datum_setzen(Datum d);
  void Datum_eingegeben();

  Datum tag_;
};

}  // namespace zav
