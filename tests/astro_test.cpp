// The time rule of a switching time and the sun information, as a person uses them. Sun times were worked out
// with a desk calculator from the formula; the day is 29 March 2026, the first of summer time, unless a test
// says otherwise.
#include <gtest/gtest.h>

#include "projektvergleich.h"
#include "pruefstand.h"
#include "time/sonneninfo.h"
#include "time/uhr_astro.h"
#include "time/uhr_astro_rechner.h"

namespace zav {
namespace {

using Rolle = Tagesbild::Rolle;
using Marke = Tagesbild::Marke;
using Band = Tagesbild::Band;

constexpr int e = 200;
const Datum tag{2026, 3, 29};  // sunrise 07.18.23, sunset 19.58.34
constexpr int aufgang = 7 * 3600 + 18 * 60 + 23;
constexpr int untergang = 19 * 3600 + 58 * 60 + 34;

double Ort(int sekunden) { return sekunden / 9.0 + 500; }

class Astro : public Pruefstand {
 protected:
  Astro() { Heute_setzen(tag); }
};

TEST_F(Astro, FixedTimeWithRandomShiftGoesIntoTheProjectOnlyWithOk) {
  const Projekt vorher = projekt;
  Uhr_Astro f(e, "Licht", "");
  EXPECT_EQ(f.Label3.titel, "<--- Bitte Zeit eingeben, Format HH.MM.SS");
  f.beim_oeffnen();
  EXPECT_FALSE(f.bild()) << "nothing to show for a row without a time";

  f.Text14.eingeben("12.00.00");
  f.Combo_Astro.waehlen("Normal + Zufall");
  d.erwarte({.text = "Bitte Eingabe korrigieren"});
  f.Check4.haken(true);
  EXPECT_EQ(f.Text19.text(), "Richtig: hh.mm.ss");
  f.Text19.eingeben("00.31.00");
  druecken(f.Command7, {.text = "Maximalwert eingesetzt"});
  ASSERT_TRUE(f.bild());
  EXPECT_EQ(f.bild()->marken, (std::vector<Marke>{{Rolle::schaltzeit, 5300, "12.00.00"}}));
  EXPECT_EQ(f.bild()->band, (Band{5300, 5500, "12.00.00", "12.30.00"}));
  EXPECT_EQ(Geaendert(vorher), "");
  f.Command1.druecken();
  EXPECT_EQ(f.zeit_neu, "12.00.00 mit Zufall");
  EXPECT_EQ(Geaendert(vorher), "Uhr_tabelle_geaendert=1 Uhr_astro(200)=1 Uhr_f5(200)=00.30.00");
  EXPECT_EQ(sitzung.Projekt_geaendert, 1);

  Uhr_Astro wieder(e, "", "12.00.00 mit Zufall");
  EXPECT_EQ(wieder.Text14.text(), "12.00.00");
  wieder.Combo_Astro.waehlen("Normal");
  EXPECT_EQ(wieder.Text19.text(), "");
  wieder.schliessen_wuenschen();
  EXPECT_FALSE(wieder.zeit_neu);
  EXPECT_EQ(projekt.Uhr_f5[e], "00.30.00");
}

TEST_F(Astro, ModesShowTheirFramesAndKeepTheTypedTime) {
  Uhr_Astro f(e, "", "06.30.00");
  const std::string aufgang_rahmen = "Schaltzeit bei Sonnenaufgang",
                    untergang_rahmen = "Schaltzeit bei Sonnenuntergang";
  struct {
    int modus;
    const char* text;
    std::string rahmen;  // of the sun rules
    bool zufall;
  } const faelle[] = {{2, "Aufgang", aufgang_rahmen, false},
                      {3, "Aufgang + Zufall", aufgang_rahmen, true},
                      {4, "Untergang", untergang_rahmen, false},
                      {5, "Untergang + Zufall", untergang_rahmen, true},
                      {1, "06.30.00", "", true},
                      {0, "06.30.00", "", false}};
  for (const auto& fall : faelle) {
    f.Combo_Astro.waehlen(fall.modus);
    EXPECT_EQ(f.Text14.text(), fall.text);
    const bool sonne = !fall.rahmen.empty();
    for (const bool b : {*f.Text14.nur_lesen, *f.Frame3.sichtbar, *f.Frame8.sichtbar, *f.Slider1.frei})
      EXPECT_EQ(b, sonne);
    EXPECT_EQ(sonne ? *f.Frame3.titel : "", fall.rahmen);
    EXPECT_EQ(f.Frame6.sichtbar, fall.zufall);
  }
}

TEST_F(Astro, CheckStopsAtABadTimeAndGoesOnAfterABound) {
  projekt.Uhr_astro[e] = 5;
  projekt.Uhr_tag[e] = 1;
  projekt.Uhr_f1[e] = "02.00.01";
  projekt.Uhr_f2[e] = "12.59.59";
  projekt.Uhr_f3[e] = "23.00.01";
  projekt.Uhr_f4[e] = "00.60.00";
  const Projekt vorher = projekt;
  Uhr_Astro f(e, "", "Untergang + Zufall");
  druecken(f.Command1, {.text = "Bitte Eingabe korrigieren"});
  EXPECT_TRUE(f.offen());
  EXPECT_EQ(f.Text18.text(), "Minute zu gross");
  EXPECT_EQ(f.fokus(), &f.Text18);
  EXPECT_EQ(f.Text15.text(), "02.00.01") << "not reached";
  f.Text18.eingeben("00.10.00");
  d.erwarte_text("Maximalwert eingesetzt");
  d.erwarte_text("Minimalwert eingesetzt");
  druecken(f.Command1, "Maximalwert eingesetzt");
  EXPECT_FALSE(f.offen());
  EXPECT_EQ(Geaendert(vorher),
            "Uhr_tabelle_geaendert=1 Uhr_f1(200)=02.00.00 Uhr_f2(200)=13.00.00 Uhr_f3(200)=23.00.00 "
            "Uhr_f4(200)=00.10.00");
  EXPECT_EQ(f.zeit_neu, "Untergang + Zufall");

  // The same limits belong to the other half of the day.
  Uhr_Astro morgens(e, "", "Untergang + Zufall");
  d.erwarte_text("Maximalwert eingesetzt");
  morgens.Combo_Astro.waehlen("Sonnenaufgang");
  EXPECT_EQ(morgens.Text17.text(), "11.00.00");
  morgens.Option3.waehlen(0);
  EXPECT_EQ(morgens.Text15.text() + morgens.Text16.text() + morgens.Text17.text(), "");
  EXPECT_FALSE(morgens.Check1.an() || morgens.Check2.an() || morgens.Option4.frei || morgens.Option5.frei);
  morgens.Command4.druecken();
}

TEST_F(Astro, PictureOfASunRuleFollowsTheDay) {
  projekt.Uhr_astro[e] = 3;
  projekt.Uhr_tag[e] = 2;
  projekt.Uhr_f1[e] = "00.30.00";
  projekt.Uhr_f2[e] = "07.00.00";
  projekt.Uhr_f3[e] = "08.00.00";
  projekt.Uhr_f4[e] = "00.10.00";
  projekt.Uhr_f5[e] = "00.05.00";
  projekt.Uhr_f7[e] = 1;
  Uhr_Astro f(e, "", "Aufgang + Zufall");
  f.beim_oeffnen();
  EXPECT_EQ(zeigt(f.Slider1, f.Label2, f.Label4), "88|Datum: Sonntag 29.03.2026|Sommerzeit");
  ASSERT_TRUE(f.bild());
  EXPECT_EQ(f.bild()->marken, (std::vector<Marke>{{Rolle::aufgang, Ort(aufgang), "07.18.23"},
                                                  {Rolle::untergang, Ort(untergang), "19.58.34"},
                                                  {Rolle::untere_limite, Ort(7 * 3600), "07.00.00"},
                                                  {Rolle::obere_limite, Ort(8 * 3600), "08.00.00"},
                                                  {Rolle::schaltzeit, Ort(aufgang + 1800), "07.48.23"}}));
  EXPECT_EQ(f.bild()->band, (Band{Ort(aufgang + 1200), Ort(aufgang + 2100), "07.38.23", "07.53.23"}));
  EXPECT_EQ(zeigt(f.Label10, f.Label11), "Schaltzeit ok|Schaltzeit 07.38.23 bis 07.53.23");

  f.Command2.druecken();  // the last day of winter time, sunrise 06.20.26: from 06.40.26 on
  EXPECT_EQ(f.Label4.titel, "Winterzeit");
  EXPECT_EQ(f.bild()->marken[0].text, "06.20.26");
  EXPECT_EQ(zeigt(f.Label10, f.Label11), "Schaltzeit bei Limite|Schaltzeit 07.00.00")
      << "06.40.26 to 06.55.26 is moved to the limit";
  f.Option4.waehlen(1);
  EXPECT_EQ(zeigt(f.Label10, f.Label11), "Schaltzeit unterdrückt|An diesem Tag wird nicht geschaltet");
  f.Text18.ausfuellen("00.00.00");
  f.Text19.eingeben("00.30.0");  // the picture follows every good time, and waits at others without a word
  EXPECT_EQ(f.Label11.titel, "An diesem Tag wird nicht geschaltet");
  f.Text19.eingeben("00.30.00");
  EXPECT_EQ(f.Label11.titel,
            "Schaltzeit 07.00.00 bis 07.20.26, ausserhalb der Limiten wird nicht geschaltet");
  f.Slider1.schieben(1);  // 08.21.43, band to 08.56.43
  EXPECT_EQ(zeigt(f.Label2, f.Label10), "Datum: Donnerstag 01.01.2026|Schaltzeit unterdrückt");
  f.Option5.waehlen(0);
  EXPECT_EQ(f.Label10.titel, "Schaltzeit bei Limite");
}

TEST_F(Astro, StatusCountsOnlyTimesBeyondALimit) {
  const Schaltregel regel{.astro = 2, .f2 = "07.18.23", .f3 = "07.18.23"};
  EXPECT_EQ(Tagesbild_von(regel, "", tag).status, "Schaltzeit ok");
  const Schaltregel frueh{
      .astro = 2, .tag = 1, .f1 = "02.00.00", .f2 = "07.18.23", .f3 = "05.00.00", .f6 = 1};
  EXPECT_EQ(Tagesbild_von(frueh, "", tag).status, "Schaltzeit unterdrückt") << "the lower limit speaks last";
  // Near midnight the band ends with the day.
  const auto bild = Tagesbild_von({.astro = 1, .f4 = "00.30.00"}, "00.10.00", tag);
  EXPECT_EQ(bild.band->von, 500);
  EXPECT_EQ(bild.status, "");
}

// What a day says, and the list of a year: the command line's outputs show those too.
TEST_F(Astro, SunInformationFollowsTheDay) {
  Uhr_Astro astro(e, "", "");
  druecken<Uhr_Astro_Rechner>(astro.Command5, [this](Uhr_Astro_Rechner& f) {
    const auto tag = [&f] {
      std::string text;
      for (const Textfeld* t : {&f.Text1, &f.Text4, &f.Text5, &f.Text6, &f.Text7, &f.Text8})
        text += t->text() + " ";
      return text;
    };
    EXPECT_EQ(tag(), "29.03.2026 07.18.23 19.58.34 29.03.2026 25.10.2026 Sommerzeit ");
    EXPECT_TRUE(f.Text9.text().starts_with("Listet alle Schaltzeiten des ausgewählten Jahres auf"));
    f.Command2.druecken();
    f.Kalender.waehlen({2024, 2, 29});
    EXPECT_FALSE(f.Kalender.sichtbar);
    EXPECT_EQ(tag(), "29.02.2024 07.14.53 18.17.37 31.03.2024 27.10.2024 Winterzeit ");
    f.Command3.druecken();
    EXPECT_EQ(f.Text9.text(), Sonnenliste(2024));
    EXPECT_NE(f.Text9.text().find("29.02.2024   A: 07:14:53   U: 18:17:37\nMärz 2024\n"), std::string::npos);

    d.erwarte_text("Bitte ein Datum im Format TT.MM.JJJJ eingeben");
    f.Text1.ausfuellen("29.02.2026");
    EXPECT_EQ(f.Text1.text(), "29.02.2024");
    f.Text1.ausfuellen("25.10.26");
    EXPECT_EQ(tag(), "25.10.2026 07.13.42 17.22.03 29.03.2026 25.10.2026 Winterzeit ");
    f.Command1.druecken();
  });
}

}  // namespace
}  // namespace zav
