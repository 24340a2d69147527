#include "editor/actmask_uhr.h"

namespace zav {

Actmask_uhr::Actmask_uhr(int ereignis, const std::string& text)
    : Sperrmaske("Actmask_uhr", "Funktionen für Schaltzeit: " + text, Ereignisart::Uhr, ereignis,
                 "Funktion für diesen Ausgang, zur programmierten Schaltzeit") {
  for (int i = 0; i < dimmer_je_gruppe; ++i) {
    Auswahl& c = Combo3[i];
    c.wenn_geaendert =
        Zeilenhandler(i, [this, &c, i] { Parameter(Dimmer(i), dimmer_ab) = static_cast<i16>(c.position()); });
  }
  Anfang_zeigen();
}

}  // namespace zav
