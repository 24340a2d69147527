// What the tests of the installation editor share: a fresh project, Kombinationen and devices set up in the
// store, and acts that take several steps.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "editor/apparatwahl.h"
#include "editor/dialog_kombination.h"
#include "editor/einmask8.h"
#include "editor/layoutwahl.h"
#include "form/drehbuch.h"
#include "store/katalog.h"
#include "store/sitzung.h"

namespace zav {

class Installation : public testing::Test {
 protected:
  void SetUp() override {
    Projekt_reset();
    sitzung = Sitzung{};
  }
  void TearDown() override { EXPECT_EQ(d.maengel(), ""); }

  static void kombination(int k, const std::string& standort, const std::string& raum, int layout) {
    projekt.Komb_typ[k] = 1;
    projekt.Komb_text[k] = standort;
    projekt.Komb_text2[k] = raum;
    projekt.Komb_layout[k] = static_cast<i16>(layout);
  }
  // adresse -1 = none yet
  static void apparat(int k, int p, int typ, int adresse) {
    projekt.App_typ[16 * k + p] = static_cast<i16>(typ);
    projekt.App_text[16 * k + p] = adresse < 0 ? "" : std::to_string(adresse);
    projekt.App_text2[16 * k + p] = std::to_string(Apparat_art(typ)->adressen);
  }
  // The device picture is chosen, the dialog shown next picks the kind.
  void setzen(Einmask8& m, int typ) {
    d.erwarte_dialog<Apparatwahl>([typ](Apparatwahl& w) { w.Bilder.waehlen(std::to_string(typ)); });
    (typ >= 52 && typ != 65 && (typ < 65 || (typ > 80 && typ < 90)) ? m.mnuChooseEnocean : m.mnuChoose)
        .druecken();
  }
  void adresse_waehlen(int n) {
    d.erwarte_dialog<Dialog_Kombination>([n](Dialog_Kombination& k) { k.Zellen.waehlen(n); });
  }
  static Meldung wechsel(int alt, int neu, bool einzeln) {
    const std::string von_bis = std::to_string(alt) + " wirklich auf " + std::to_string(neu) + " ändern?";
    return {.text = (einzeln ? "Adresse " : "Adressengruppe ab ") + von_bis,
            .titel = einzeln ? "Adresse ändern für bestehende oder eingefügte Baugruppe"
                             : "Ändern einer Adressengruppe",
            .knoepfe = Knoepfe::Ja_Nein_Abbrechen};
  }
  const Meldung apparat_loeschen{.text = "Der Apparat wird endgültig gelöscht. Wollen Sie das?",
                                 .titel = "Löschen",
                                 .knoepfe = Knoepfe::Ja_Nein,
                                 .standard = 2};
  Drehbuch d;
};

}  // namespace zav
