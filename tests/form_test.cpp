#include <gtest/gtest.h>

#include "form/drehbuch.h"
#include "form/formular.h"
#include "form/zeitfeld.h"

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
      if (Fragen({.text = "Wirklich?", .titel = "Frage", .knoepfe = Knoepfe::Ja_Nein, .standard = 2}))
        schliessen();
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

TEST(Formular, LogKeepsItsNewerHalfInWholeLines) {
  Textfeld protokoll;
  std::size_t zeilen = 0;
  for (; zeilen < Textfeld::laengstes_protokoll / 8 + 1; ++zeilen) protokoll.anhaengen("0123456\n");
  EXPECT_EQ(protokoll.text().size() % 8, 0U);
  EXPECT_TRUE(protokoll.text().starts_with("0123456\n"));
  EXPECT_LE(protokoll.text().size(), Textfeld::laengstes_protokoll / 2);
  protokoll.anhaengen(std::string(Textfeld::laengstes_protokoll, 'x'));
  EXPECT_EQ(protokoll.text(), std::string(Textfeld::laengstes_protokoll / 2, 'x'));
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

TEST(Zeitfeld, NamesTheFirstFault) {
  const std::vector<std::pair<const char*, const char*>> faelle{
      {"23.59.59", ""},
      {"00.00:00", ""},  // the sixth character may be any
      {"", "Richtig: hh.mm.ss"},
      {"7.30.00", "Richtig: hh.mm.ss"},
      {"07:30.00", "Richtig: hh.mm.ss"},
      {"07.30.000", "Richtig: hh.mm.ss"},
      {"0x.30.00", "Richtig: hh.mm.ss"},
      {"-1.30.00", "Richtig: hh.mm.ss"},
      {"24.60.60", "Stunde zu gross"},
      {"23.60.60", "Minute zu gross"},
      {"23.59.60", "Sekunde zu gross"},
  };
  for (const auto& [text, fehler] : faelle) EXPECT_EQ(Zeittest(text), fehler) << text;
}

// What it says to the user is seen in the forms that have such fields.
TEST(Zeitfeld, IsMarkedOnlyWhileTheBoxIsOpen) {
  Drehbuch d;
  Muster f;
  f.Text1.setzen("24.00.00");
  d.erwarte({.text = "Bitte Eingabe korrigieren"});
  EXPECT_EQ(Zeitfeld_pruefen(f.Text1), "Stunde zu gross");
  EXPECT_EQ(f.Text1.farbe, Farbe::normal);
  f.Text1.setzen("02.00.00");
  Hoechstens(f.Text1, "02.00.00");
  Mindestens(f.Text1, "02.00.00");
  EXPECT_EQ(f.Text1.text() + d.maengel(), "02.00.00") << "the bound itself is good";
}

TEST(Drehbuch, TellsWhatDidNotGoByTheBook) {
  Drehbuch d;
  Muster f;
  const Meldung frage{.text = "Wirklich?", .titel = "Frage", .knoepfe = Knoepfe::Ja_Nein, .standard = 2};
  d.erwarte_dialog<Muster>([](Muster& m) { m.OK.druecken(); });
  d.erwarte(frage, Antwort::Ja);
  oberflaeche().Zeigen(f);
  EXPECT_EQ(d.maengel(), "");
  EXPECT_FALSE(f.offen());

  d.erwarte_text("kommt nie");
  EXPECT_NE(d.maengel(), "");
  Melden("unerwartet");
  EXPECT_NE(d.maengel(), "");
}

}  // namespace
}  // namespace zav
