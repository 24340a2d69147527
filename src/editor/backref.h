// "Ereignissuche": lists what acts on an output or a timer.
#pragma once

#include <array>

#include "form/formular.h"
#include "store/funktionen.h"

namespace zav {

class Backref final : public Formular {
 public:
  Backref();

  Schild Label1{
      "Sie möchten von einem Ausgang oder Timer alle beeinflussenden Ereignisse wissen? Wählen Sie den "
      "entsprechenden "
      "Ausgang und klicken Sie auf Suchen. Damit werden alle Tasten- Uhr- und Wetterereignisse aufgelistet."};
  std::array<Taste, 3> Command1;  // what Combo1 offers: relay outputs, dimmers, timers
  Auswahl Combo1;
  Taste Command2{"Suchen"};
  Textfeld Text2;
  Taste Command3{"&Schliessen"};

  Anordnung anordnung() override;

 private:
  void Fuellen(Ziel::Art art, int anzahl);

  Ziel::Art art_ = Ziel::Art::Relais;
};

}  // namespace zav
