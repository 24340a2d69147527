// "Wetterinfos": the current values of the weather station, asked for when the window opens and on demand.
#pragma once

#include <array>

#include "form/formular.h"
#include "weather/wetterwerte.h"

namespace zav {

class Wetterdisplay final : public Formular {
 public:
  Wetterdisplay();

  Schild Image5;                  // the weather in one picture
  std::array<Schild, 9> Image1;   // symbol of each row
  std::array<Schild, 9> Label2;   // what stands in each row
  std::array<Schild, 9> Label24;  // the seven sensors, wind direction, precipitation
  Wetterbalken ProgressBar = Leere_wetterbalken();
  Schild Label1;  // wind speed in km/h
  Textfeld Text2{"Antwort der Wetterstation"};
  Taste Command2{"&Nochmals abfragen"};
  Taste Command1{"&Schliessen"};

  void beim_oeffnen() override { Abfragen(); }
  Anordnung anordnung() override;

 private:
  void Abfragen();
  void Wetterbild_zeigen(const Wetterwerte& w);
};

}  // namespace zav
