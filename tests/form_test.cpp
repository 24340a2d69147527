#include <gtest/gtest.h>

#include "form/drehbuch.h"
#include "form/formular.h"

namespace zav {
namespace {

class Muster final : public Formular {
 public:
  Muster() : Formular("Muster", "Muster") {
    anmelden("Text1", Text1);
    anmelden("Combo1", Combo1);
    anmelden("OK", OK);
    anmelden("Cancel", Cancel);
    Cancel.abbruch = true;
    Text1.hoechstlaenge = 5;
    Text1.wenn_geaendert = [this] { ++aenderungen; };
    Combo1[0].fuellen({"a", "b"});
    Combo1[0].wenn_geaendert = [this] { Combo1[1].sichtbar = Combo1[0].position() == 1; };
    OK.wenn_gedrueckt = [this] {
      if (Fragen({.text = "Wirklich?", .titel = "Frage", .knoepfe = Knoepfe::Ja_Nein, .standard = 2})) schliessen();
    };
    Cancel.wenn_gedrueckt = [this] { schliessen(); };
  }
  Anordnung anordnung() override { return Spalte(Text1, Zeile(Alle(Combo1)), Knopfzeile(OK, Cancel)); }

  Textfeld Text1;
  std::array<Auswahl, 2> Combo1;
  Taste OK{"&OK"}, Cancel{"&Abbrechen"};
  int aenderungen = 0;
};

TEST(Formular, ChangesRunHandlersUnlessBusyOrUnchanged) {
  Drehbuch d;
  Muster f;
  f.Text1.setzen("abc");
  f.Text1.setzen("abc");
  f.Text1.eingeben("abcdefg");
  EXPECT_EQ(f.Text1.text(), "abcde") << "cut to the longest text";
  EXPECT_EQ(f.aenderungen, 2);
  {
    const Beschaeftigt b(f);
    f.Text1.setzen("x");
  }
  EXPECT_EQ(f.aenderungen, 2);
  EXPECT_FALSE(f.Text1.eingeben("Ω")) << "no place in a project file";
  EXPECT_EQ(f.Text1.text(), "x");
  EXPECT_EQ(d.pieptoene(), 1);
}

TEST(Formular, ActsOnHiddenOrDisabledControlsAreProgrammingErrors) {
  Muster f;
  f.Combo1[0].waehlen("b");
  EXPECT_EQ(f.Combo1[1].sichtbar, true);
  f.Combo1[0].waehlen(0);
  EXPECT_THROW(f.Combo1[1].waehlen(0), std::logic_error);
  EXPECT_THROW(f.Combo1[0].waehlen(2), std::out_of_range);
  f.OK.frei = false;
  EXPECT_THROW(f.OK.druecken(), std::logic_error);
}

TEST(Formular, LayoutNamesEveryControlOnce) {
  Muster f;
  EXPECT_EQ(Platzierte(f.anordnung()), f.elemente());
  EXPECT_EQ(f.element("Combo1(1)"), &f.Combo1[1]);
}

TEST(Drehbuch, TellsWhatDidNotGoByTheBook) {
  Drehbuch d;
  Muster f;
  d.erwarte({.text = "Wirklich?", .titel = "Frage", .knoepfe = Knoepfe::Ja_Nein, .standard = 2}, Antwort::Ja);
  d.erwarte_dialog<Muster>([](Muster& m) { m.OK.druecken(); });
  d.maengel();
  d.erwarte_dialog<Muster>([](Muster& m) { m.OK.druecken(); });
  d.erwarte({.text = "Wirklich?", .titel = "Frage", .knoepfe = Knoepfe::Ja_Nein, .standard = 2}, Antwort::Ja);
  oberflaeche().Zeigen(f);
  EXPECT_EQ(d.maengel(), "");
  EXPECT_FALSE(f.offen());

  d.erwarte_text("kommt nie");
  f.oeffnen();
  f.schliessen_wuenschen();
  EXPECT_FALSE(f.offen());
  EXPECT_NE(d.maengel(), "");
  Melden("unerwartet");
  EXPECT_NE(d.maengel(), "");
}

}  // namespace
}  // namespace zav
