#include "simulator/geraet.h"

namespace zav::simulator {

void Geraet::empfangen(Zustand& z, char c, double jetzt, Ausgabe& aus) {
  if (!lader.laeuft()) return master.empfangen(z, c, aus);
  lader.empfangen(c, jetzt, an_alle);
  if (!lader.laeuft()) master.hochfahren();
}

void Geraet::einschalten(bool bleiben, double jetzt) { lader.einschalten(bleiben, jetzt); }

void Geraet::zeit(double jetzt) {
  if (!lader.laeuft()) return;
  lader.zeit(jetzt, an_alle);
  if (!lader.laeuft()) master.hochfahren();
}

}  // namespace zav::simulator
