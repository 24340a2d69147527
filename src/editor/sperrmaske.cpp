#include "editor/sperrmaske.h"

#include "editor/ausgangsfelder.h"

namespace zav {

Sperrmaske::Sperrmaske(const std::string& name, const std::string& titel, Ereignisart art, int ereignis,
                       const std::string& funktionshinweis)
    : Funktionsmaske(name, titel, art, ereignis, funktionshinweis) {
  anmelden("Combo3", Combo3);
  Frame2.titel = "Szenenlicht einstellen und Ausgänge sperren";
  for (Auswahl& c : Combo3) {
    c.titel = "Ausgang sperren";
    c.hinweis = "Sperren oder entsperren des Ausgangs";
    c.fuellen(Sperrenliste());
  }
}

void Sperrmaske::Zusatz_zeigen(int i, bool an, bool /*hell*/) {
  Auswahl& c = Combo3[i];
  c.sichtbar = an;
  Einstellen(c, Parameter(Dimmer(i), dimmer_ab));
}

Anordnungsfolge Sperrmaske::Zusatzzellen(int i) {
  if (i == dimmer_je_gruppe) return {{Leer()}};
  return {{Combo3[i]}};
}

}  // namespace zav
