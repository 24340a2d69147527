// The functions of a timer event: what one of a timer's four steps does. It has outputs only: a timer starts
// no timer.
#pragma once

#include <string>

#include "editor/sperrmaske.h"

namespace zav {

class Actmask_timer final : public Sperrmaske {
 public:
  // ereignis 0 to 63; text: the timer's name, for the title.
  Actmask_timer(int ereignis, const std::string& text);

  Schild Label4{"Die Timerfunktion kann kein neues Timer-Ereignis auslösen"};

 private:
  Anordnung Timerseite() override { return Spalte(Label4, Feder()); }
};

}  // namespace zav
