// What the tests of the installation editor share: acts that take several steps, and their questions.
#pragma once

#include "editor/apparatwahl.h"
#include "editor/dialog_kombination.h"
#include "editor/einmask8.h"
#include "editor/layoutwahl.h"
#include "projektvergleich.h"
#include "pruefstand.h"

namespace zav {

class Installation : public Pruefstand {
 protected:
  // The device picture is chosen, the dialog shown next picks the kind.
  void setzen(Einmask8& m, int typ) {
    d.erwarte_dialog<Bilderseite>([typ](Bilderseite& w) { w.Bilder.waehlen(std::to_string(typ)); });
    (typ >= 52 && typ != 65 && (typ < 65 || (typ > 80 && typ < 90)) ? m.mnuChooseEnocean : m.mnuChoose)
        .druecken();
  }
  void adresse_waehlen(int n) {
    d.erwarte_dialog<Dialog_Kombination>([n](Dialog_Kombination& k) { k.Zellen.waehlen(n); });
  }
  static Meldung wechsel(int alt, int neu, bool einzeln) {
    const std::string von_bis = std::to_string(alt) + " wirklich auf " + std::to_string(neu) + " ändern?";
    return {
        (einzeln ? "Adresse " : "Adressengruppe ab ") + von_bis,
        einzeln ? "Adresse ändern für bestehende oder eingefügte Baugruppe" : "Ändern einer Adressengruppe",
        Knoepfe::Ja_Nein_Abbrechen};
  }
  static Meldung loeschfrage(const std::string& was) {
    return {was + " wird endgültig gelöscht. Wollen Sie das?", "Löschen", Knoepfe::Ja_Nein, Symbol::keines,
            2};
  }
  void erwarte(const std::string& box) { d.erwarte({.text = box}); }
};

}  // namespace zav
