#include "editor/actmask_timer.h"

namespace zav {

// The lock lists have no handler: at a timer event a dimmer cannot be locked, whatever is chosen.
Actmask_timer::Actmask_timer(int ereignis, const std::string& text)
    : Sperrmaske("Actmask_timer", "Funktionen für Timer-Ereignis: " + text, Ereignisart::Timer, ereignis,
                 "Funktion für diesen Ausgang beim Timer-Ereignis") {
  anmelden("Label4", Label4);
  Anfang_zeigen();
}

}  // namespace zav
