// The address of the chosen device.
#include "basis/melder.h"
#include "basis/zahl.h"
#include "editor/dialog_kombination.h"
#include "editor/einmask8.h"
#include "form/oberflaeche.h"
#include "store/katalog.h"
#include "store/sitzung.h"

namespace zav {

void Einmask8::Adresse_vergeben() {
  const int d = apparat();
  if (projekt.App_text2[d].empty()) {
    Melden("Apparat ohne Adresse");
    return;
  }
  const int anzahl = Zahl_lesen(projekt.App_text2[d], 1, adressen).value_or(0);
  if (anzahl == 0) {
    Melden("Ungültige Adressen-Anzahl");
    return;
  }
  Dialog_Kombination dialog(projekt.App_text[d], anzahl);
  oberflaeche().Zeigen(dialog);
  if (!dialog.gewaehlt()) return;
  const std::string neu = std::to_string(*dialog.gewaehlt());
  if (neu == projekt.App_text[d]) return;

  const auto alt = Apparat_adressen(projekt, d);
  projekt.App_text[d] = neu;
  if (alt) Lauf_verschieben(*alt, {*dialog.gewaehlt(), anzahl}, d);
  sitzung.Projekt_geaendert = 1;
  Baum_zeigen();
  Platz_waehlen(platz_);
}

}  // namespace zav
