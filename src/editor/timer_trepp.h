// The 16 timers, the staircase functions of the house: their names, their times and what their four steps do.
#pragma once

#include <array>
#include <string>

#include "form/formular.h"
#include "store/projekt.h"

namespace zav {

// A time of a timer as a user typed it: "HH.MM.SS" or "HH.MM", 17.59.59 at most. `text` is what the field
// shows then, the mask "HH.MM.SS" for a time that is not set or not good; `fehler` the message that is due,
// nullptr for none.
struct Timerzeit {
  std::string text;
  const char* fehler = nullptr;
};
Timerzeit Timerzeit_pruefen(const std::string& eingabe);

class Timer_trepp final : public Formular {
 public:
  static constexpr int zeiten_je_timer = 3;
  static constexpr int schritte = 4;

  Timer_trepp();

  std::array<Taste, timeranzahl> Tnr;  // goes to the name
  std::array<Textfeld, timeranzahl> Txtbox_timerbez;
  std::array<Textfeld, timeranzahl * zeiten_je_timer> Ttime;
  std::array<Taste, timerereignisse> Tevent;
  Schild Label1{"Bezeichnung, Verwendung"};
  std::array<Schild, zeiten_je_timer> Label2;
  Taste OK{"&Schliessen"};

  Anordnung anordnung() override;

 private:
  // False where the field's time was refused; it shows the mask then and has the focus.
  bool Zeit_pruefen(int nummer);
  // Enter in a time: to the next time of the row, else to the next row's name.
  void Weiter(int nummer);
  void Ereignis_oeffnen(int ereignis);
  void Faerben(int timer);
  void Uebernehmen();
};

}  // namespace zav
