// The weather station: what its reply means, the read-out and the eight weather functions, as a person uses
// them.
#include <gtest/gtest.h>

#include "projektvergleich.h"
#include "pruefstand.h"
#include "testmaster.h"
#include "weather/wetterdisplay.h"
#include "weather/wetterlogik.h"

namespace zav {
namespace {

using Stand = Wetterwerte::Stand;

class Wetter : public Pruefstand {
 protected:
  Testmaster sim;
};

TEST_F(Wetter, ReplyIsDecodedByPosition) {
  // outside 0A00 = 2560, south 0A, west 0B, east FF, daylight F9, inside 15, wind 0022 = 34
  const Wetterwerte w = Wetter_entschluesseln("11E...0A000A0BFFF9150022");
  EXPECT_TRUE(w.stand == Stand::gut && w.niederschlag);
  EXPECT_EQ(w.werte, (std::array<double, 7>{255, 10, 11, 249, -17, 21, 3.4}));
  EXPECT_EQ(Wetterwert_text(aussentemperatur, -0.5), "-0.5 °C");
}

TEST_F(Wetter, RepliesWithoutValuesTellWhatIsWrong) {
  const std::pair<const char*, Stand> faelle[] = {
      {"000000000000000000000000", Stand::keine_station},
      {"", Stand::keine_station},
      {"800000000000000000000000", Stand::keine_daten},
      {"110...0AAA00000000000000", Stand::defekt},  // quality
      {"118...0aaa00000000000000", Stand::defekt},  // lower case is no digit
      {"118...0AAA000000000000", Stand::defekt},    // cut off
  };
  for (const auto& [antwort, stand] : faelle) {
    EXPECT_EQ(Wetter_entschluesseln(antwort).stand, stand) << antwort;
  }
}

TEST_F(Wetter, DisplayShowsLiveValuesAndLimitsOnlyTheBars) {
  sim.verbinden();
  sim.wetter_setzen({.regen = true, .aussen = -30.5, .ost = 120, .wind = 25});
  Wetterdisplay f;
  f.beim_oeffnen();
  EXPECT_EQ(zeigt(f.Label24[sonne_ost], f.ProgressBar[sonne_ost]), "120 kLux|95");
  EXPECT_EQ(f.ProgressBar[sonne_ost].hinweis, "Sonne Ost: 95 kLux");
  EXPECT_EQ(zeigt(f.Label24[aussentemperatur], f.ProgressBar[aussentemperatur]), "-30.5 °C|0");
  EXPECT_EQ(f.ProgressBar[aussentemperatur].hinweis, "Aussentemperatur: -20 °C");
  EXPECT_EQ(f.ProgressBar[windgeschwindigkeit].hinweis, "Windgeschwindigkeit: 20 m/s = 72 km/h");
  EXPECT_EQ(zeigt(f.Label1, f.Label24[7], f.Label24[8]), "72 km/h|---|Niederschlag");

  // Nothing of the former values stays when there are none any more.
  sim.wetter_setzen({.gueltig = false});
  druecken(f.Command2, {.text = "Wetterstation defekt"});
  EXPECT_EQ(zeigt(f.Label24[sonne_ost], f.Label24[8], f.ProgressBar[sonne_ost]), "---|Trocken|0");
  sim.wetter_setzen({.station = simulator::Station::ohne_daten});
  druecken(f.Command2, {.text = "Keine Daten von der Wetterstation"});
}

TEST_F(Wetter, SilentMasterLeavesTheDisplayOpen) {
  Zeitraffer_setzen(100);
  sim.verbinden();
  sim.fehler_setzen({"stumm@s1x9"});
  d.erwarte({.text = "Abfrage nicht möglich. Versuchen Sie es bitte noch einmal."});
  Wetterdisplay f;
  f.beim_oeffnen();
  EXPECT_EQ(f.Text2.text(), "---");
  EXPECT_TRUE(f.offen());
  EXPECT_TRUE(f.Command1.frei);
  sim.stop();
  d.erwarte_text("TCP-Fehler -111: Fehler beim Öffnen\r\n\r\n127.0.0.1 (Port " +
                 std::to_string(einstellungen.Host_port) + ") nimmt keine Verbindung an.");
  druecken(f.Command2, {.text = "SIO: Fehler 1 bei Open Port"});
}

TEST_F(Wetter, FunctionIsEditedOnBothPages) {
  std::string geoeffnet;
  Wetterlogik f(12, [&](int e, const std::string& t) {
    geoeffnet = std::to_string(e) + " " + t;
    projekt.Ein_relais(e, 7) = 2;
    projekt.Ein_dimmer(e, 1, 3) = 4;  // the tempo alone does nothing
    projekt.Ein_timer(e, 3) = 1;
  });
  f.TabStrip1.waehlen(5);
  EXPECT_EQ(zeigt(f.Frame2, f.Combo2), "Wetterfunktion 5|O0-6: ") << "reset value 6";
  EXPECT_EQ(f.Command5[1].titel, "Funktion leer");
  f.Command5[1].druecken();
  EXPECT_EQ(geoeffnet, "59 Wetterfunktion 5");
  EXPECT_EQ(f.Command5[1].titel, "Verwendet: OT");

  Projekt vorher = projekt;
  f.Text3.eingeben("Sturm");
  f.Check1.haken(false);
  f.Command2.druecken();
  EXPECT_FALSE(f.Slider1[windgeschwindigkeit].frei);
  f.Combo1[windgeschwindigkeit].waehlen("grösser als");
  f.Slider1[windgeschwindigkeit].schieben(99);
  EXPECT_EQ(f.Text1[windgeschwindigkeit].text(), "20");
  EXPECT_EQ(f.Slider1[windgeschwindigkeit].hinweis, "20 m/s = 72 km/h");
  f.Combo1[aussentemperatur].waehlen("kleiner als");
  f.Slider1[aussentemperatur].schieben(-20);
  EXPECT_EQ(f.Label25[aussentemperatur].titel, "-20 °C");
  f.Combo1[7].waehlen("Nordost");
  f.Combo1[Wetterlogik::und_oder].waehlen("UND");
  EXPECT_FALSE(f.Command1.frei) << "nothing closes over conditions that are not taken over";
  f.Command3.druecken();
  EXPECT_EQ(
      zeigt(f.Label4[windgeschwindigkeit], f.Text0[windgeschwindigkeit], f.Label4[sonne_ost], f.Label4[10]),
      "grösser als|20 m/s|---|UND: Auslösen nur wenn ALLE alle Bedingungen erfüllt sind");
  EXPECT_EQ(Geaendert(vorher),
            "Wetter_aussen(5)=-20 Wetter_wind(5)=20 Wetter_undoder(5)=1 Wetter_v_aussen(5)=1 "
            "Wetter_v_wind(5)=2 Wetter_v_richtung(5)=7")
      << "the page itself is not taken over yet";

  f.Command2.druecken();
  f.Combo1[8].waehlen("ja");
  f.schliessen_wuenschen();
  EXPECT_TRUE(f.offen());
  vorher = projekt;
  f.TabStrip1.waehlen(0);
  EXPECT_EQ(Geaendert(vorher), "Wetter_aktiv(5)=0 Wetter_text(5)=Sturm");
  EXPECT_EQ(f.TabStrip1.eintrag(5).text, "5: Sturm");
  EXPECT_EQ(f.Combo1[windgeschwindigkeit].position(), 0);
  f.Command1.druecken();
  EXPECT_FALSE(f.offen());
  EXPECT_EQ(sitzung.Projekt_geaendert, 1);
}

TEST_F(Wetter, TimesAreTestedWhenLeftAndWhenClosed) {
  const Projekt vorher = projekt;
  Wetterlogik f(0, {});
  d.erwarte({.text = "Minimalwert eingesetzt"});
  f.Text10.ausfuellen("00.00.00");
  EXPECT_EQ(f.Text10.text(), "00.00.01");
  f.Text11.ausfuellen("");
  f.Text12.ausfuellen("nicht warten");
  d.erwarte({.text = "Bitte Eingabe korrigieren"});
  f.Text13.ausfuellen("nicht warten");  // the word of another field
  EXPECT_EQ(f.Text13.text(), "Richtig: hh.mm.ss");
  EXPECT_EQ(f.fokus(), &f.Text13);
  // Neither closing nor another function gets past it.
  d.erwarte({.text = "Bitte Eingabe korrigieren"});
  f.TabStrip1.waehlen(3);
  EXPECT_EQ(f.TabStrip1.position(), 0);
  druecken(f.Command1, {.text = "Bitte Eingabe korrigieren"});
  EXPECT_TRUE(f.offen());
  EXPECT_EQ(Geaendert(vorher), "");
  f.Command9.druecken();
  EXPECT_EQ(f.Text13.text(), "nicht wiederholen");
  // A broken bound is put in on the way, and closing goes on.
  f.Text12.eingeben("02.00.00");
  druecken(f.Command1, {.text = "Maximalwert eingesetzt"});
  EXPECT_FALSE(f.offen());
  EXPECT_EQ(Geaendert(vorher), "Wetter_warte1(0)=00.00.01 Wetter_wiederh1(0)= Wetter_warte2(0)=01.59.59");
}

TEST_F(Wetter, DamagedValuesShowAsFarAsTheyCanAndStay) {
  projekt.Wetter_licht[0] = "900";
  projekt.Wetter_wind[0] = "Sturm";
  projekt.Wetter_v_ost[0] = 9;
  projekt.Wetter_ausgang[0] = 700;
  const Projekt vorher = projekt;
  Wetterlogik f(0, {});
  EXPECT_EQ(zeigt(f.Slider1[tageslicht], f.Text0[tageslicht]), "249|900 Lux");
  EXPECT_EQ(f.Combo2.position(), -1);
  f.Command1.druecken();
  EXPECT_EQ(Geaendert(vorher), "");
  EXPECT_EQ(sitzung.Projekt_geaendert, 0);
}

TEST_F(Wetter, OpensOnlyForAStationWithRoomForItsEvents) {
  for (const char* adresse : {"", "253", "x"}) {
    projekt.App_typ[77] = 75;
    projekt.App_text[77] = adresse;
    d.erwarte({.text = "Bitte Adresse definieren"});
    Wetterlogik_oeffnen({});
  }
  projekt.App_text[77] = "252";
  d.erwarte_dialog<Wetterlogik>([](Wetterlogik& f) {
    f.TabStrip1.waehlen(7);
    f.Command5[1].druecken();  // the last event of all
    f.Command1.druecken();
  });
  Wetterlogik_oeffnen({});
}

TEST_F(Wetter, ConditionPageShowsTheLiveBars) {
  sim.verbinden();
  Wetterlogik f(0, {});
  f.Command2.druecken();
  f.Command10.druecken();
  EXPECT_EQ(f.ProgressBar[aussentemperatur].hinweis, "Aussentemperatur: 12.5 °C");
  sim.wetter_setzen({.station = simulator::Station::fehlt});
  druecken(f.Command10, {.text = "Keine oder defekte Wetterstation"});
  EXPECT_EQ(f.ProgressBar[aussentemperatur].hinweis, "");
}

}  // namespace
}  // namespace zav
