// The switching clocks, the sequencer and the clock page, as a person uses them.
#include <gtest/gtest.h>

#include "editor/actmask_uhr.h"
#include "projektvergleich.h"
#include "pruefstand.h"
#include "testmaster.h"
#include "time/form_setup_uhr.h"
#include "time/schaltzeile.h"
#include "time/uhr.h"
#include "time/uhr_astro.h"
#include "time/uhr_astro_rechner.h"
#include "time/uhrseite.h"

namespace zav {
namespace {

class Zeit : public Pruefstand {
 protected:
  Zeit() { Heute_setzen({2026, 3, 29}); }

  void Schliessen(Uhr& f) {
    druecken(f.OK, {.text = "Bitte wenn nötig den Schaltuhr-Sequenzer anpassen"});
    EXPECT_FALSE(f.offen());
  }
  // Texts of the first rows of the page, separated by "|".
  static std::string Zeilen(const Uhr& f, std::size_t n) {
    std::string text;
    for (std::size_t r = 0; r < n; ++r)
      text += f.Schaltzweck_txt[r].text() + "=" + f.Schaltzeit_txt[r].text() + "|";
    return text;
  }
  static int Markiert() { return static_cast<int>(std::ranges::count(projekt.Uhr_funktext.alle(), 1)); }
};

// ---- Uhr --------------------------------------------------------------------------------------------------

TEST_F(Zeit, RowGetsTimeAndFunctionsAndTheTextsComeAtClose) {
  projekt.Uhr_relais(7, 0) = 1;  // Monday, clock 1: in the file without its flag
  projekt.Uhr_leer[9] = 1;
  projekt.Uhr_dimmer(9, 3, 1) = -1;
  projekt.Uhr_dimmer(9, 3, 3) = 5;
  const Projekt vorher = projekt;
  Uhr f;
  EXPECT_EQ(f.titel(), "Schaltuhr 1");
  f.Uhr_auswahl.waehlen(1);
  f.TabStrip1.waehlen("Täglich");
  EXPECT_EQ(f.Uhr_auswahl.eintrag(1).farbe, Farbe::uhr2);
  f.Schaltzweck_txt[3].eingeben("Storen im Wohnzimmer öffnen");
  EXPECT_EQ(f.Schaltzweck_txt[3].text(), "Storen im Wohnzimmer öffn") << "25 characters";
  EXPECT_EQ(f.Label1[3].farbe, Farbe::uhr2);

  druecken<Uhr_Astro>(f.Zeitsetz[3], [](Uhr_Astro& a) {
    EXPECT_EQ(a.titel(), "Beeinflussung der Schaltzeit: Storen im Wohnzimmer öffn");
    a.Combo_Astro.waehlen("Sonnenaufgang");
    a.Command1.druecken();
  });
  EXPECT_EQ(f.Schaltzeit_txt[3].text(), "Aufgang");
  druecken<Actmask_uhr>(f.Funktion[3], [](Actmask_uhr& a) {
    EXPECT_EQ(a.titel(), "Funktionen für Schaltzeit: Storen im Wohnzimmer öffn - Aufgang");
    a.Check1[5].haken(true);
    a.Combo1[5].waehlen(2);
    a.Command5.druecken();
  });
  EXPECT_EQ(f.Funktion[3].titel, "O");
  EXPECT_EQ(Geaendert(vorher),
            "Uhr_tabelle_geaendert=1 Uhr_funktext(243)=1 Uhr_relais(243,5)=2 Uhr_astro(243)=2");
  // A cancelled rule leaves the row; another row takes the tint, this one shows that it is in use.
  druecken<Uhr_Astro>(f.Zeitsetz[4], [](Uhr_Astro& a) { a.Command4.druecken(); });
  EXPECT_EQ(f.Schaltzeit_txt[4].text(), "");
  EXPECT_EQ(f.Label1[3].farbe, Farbe::belegt);
  Schliessen(f);
  EXPECT_EQ(
      Geaendert(vorher),
      "Uhr_tabelle_geaendert=1 Uhr_leer(7)=1 Uhr_leer(9)=0 Uhr_leer(243)=1 Uhr_funktext(243)=1 "
      "Uhr_text(243)=Storen im Wohnzimmer öffn Uhr_zeit(243)=Aufgang Uhr_relais(243,5)=2 Uhr_astro(243)=2")
      << "a negative parameter or the tempo alone is no function";
  EXPECT_EQ(sitzung.Projekt_geaendert, 1);
}

TEST_F(Zeit, CutAndPasteMoveARowWithItsRule) {
  projekt.Uhr_text[0] = "Licht";
  projekt.Uhr_zeit[0] = "Untergang";
  projekt.Uhr_astro[0] = 4;
  projekt.Uhr_f1[0] = "00.15.00";
  projekt.Uhr_leer[0] = 1;
  projekt.Uhr_relais(0, 511) = 20;
  projekt.Uhr_timer(0, 15) = 3;
  for (int p = 0; p < 4; ++p) projekt.Uhr_dimmer(0, 127, p) = static_cast<i16>(p + 1);
  const Projekt vorher = projekt;
  Uhr f;
  EXPECT_EQ(f.Funktion[0].titel, "ODT");
  f.Cut.druecken();
  EXPECT_EQ(f.Funktion[0].titel, "");
  EXPECT_EQ(f.fokus(), &f.Schaltzweck_txt[0]);
  EXPECT_EQ(Geaendert(vorher),
            "Uhr_tabelle_geaendert=1 Uhr_funktext(0)=1 Uhr_relais(0,511)=0 Uhr_timer(0,15)=0 "
            "Uhr_dimmer(0,127,0-2)=0 Uhr_astro(0)=0 Uhr_f1(0)=")
      << "the tempo stays where it is, and the row in use until the editor closes";
  f.TabStrip1.waehlen(1);
  f.Schaltzweck_txt[5].betreten();
  f.Paste.druecken();
  EXPECT_EQ(f.Schaltzeit_txt[5].text(), "Untergang");
  Schliessen(f);
  EXPECT_EQ(Geaendert(vorher),
            "Uhr_tabelle_geaendert=1 Uhr_leer(0)=0 Uhr_leer(21)=1 Uhr_funktext(0)=1 Uhr_funktext(21)=1 "
            "Uhr_text(0)= Uhr_text(21)=Licht Uhr_zeit(0)= Uhr_zeit(21)=Untergang Uhr_relais(0,511)=0 "
            "Uhr_relais(21,511)=20 Uhr_timer(0,15)=0 Uhr_timer(21,15)=3 Uhr_dimmer(0,127,0-2)=0 "
            "Uhr_dimmer(21,127,0)=1 Uhr_dimmer(21,127,1)=2 Uhr_dimmer(21,127,2)=3 Uhr_astro(0)=0 "
            "Uhr_astro(21)=4 Uhr_f1(0)= Uhr_f1(21)=00.15.00");
}

TEST_F(Zeit, DayClipboardSharesItsFirstRowWithTheRowClipboard) {
  for (int r = 0; r < 3; ++r) projekt.Uhr_text[r] = std::string(1, static_cast<char>('a' + r));
  Uhr f;
  f.Copy_day.druecken();
  f.TabStrip1.waehlen(2);
  f.Schaltzweck_txt[8].betreten();
  f.Paste.druecken();
  EXPECT_EQ(f.Schaltzweck_txt[8].text(), "a");
  f.Schaltzweck_txt[9].eingeben("z");
  f.Copy.druecken();
  const Meldung frage{
      "Mit 'Einfügen' werden alle bestehenden Einträge dieses Tages unwiderruflich überschrieben!", "Info",
      Knoepfe::OK_Abbrechen, Symbol::Information};
  druecken(f.Paste_day, frage, Antwort::Abbrechen);
  EXPECT_EQ(f.Schaltzweck_txt[9].text(), "z");
  druecken(f.Paste_day, frage, Antwort::OK);
  EXPECT_EQ(Zeilen(f, 4), "z=|b=|c=|=|");
  EXPECT_EQ(f.Schaltzweck_txt[8].text() + f.Schaltzweck_txt[9].text(), "");
  EXPECT_EQ(Markiert(), 16);
}

TEST_F(Zeit, DeleteAsksAndMarksTheTableWhateverTheAnswer) {
  projekt.Uhr_zeit[0] = "06.00.00";
  projekt.Uhr_relais(0, 1) = 2;
  const Projekt vorher = projekt;
  Uhr f;
  const Meldung frage{
      "Alle Schalt-, Dimm- und Sperrfunktionen dieses Ereignisses werden unwiderruflich gelöscht.\n\nMöchten "
      "Sie das?",
      "Warnung vor dem Löschen", Knoepfe::Ja_Nein_Abbrechen, Symbol::Stopp, 2};
  druecken(f.Delete, frage, Antwort::Nein);
  EXPECT_EQ(Geaendert(vorher), "Uhr_tabelle_geaendert=1");
  druecken(f.Delete, frage, Antwort::Ja);
  EXPECT_EQ(Geaendert(vorher), "Uhr_tabelle_geaendert=1 Uhr_funktext(0)=1 Uhr_relais(0,1)=0");
  EXPECT_EQ(f.Schaltzeit_txt[0].text(), "");
}

TEST_F(Zeit, SortOrdersByTheTextOfTheTime) {
  const std::array<const char*, 9> zeiten{
      "Untergang", "", "Aufgang + Zufall", "23.00.00", "06.00.00 mit Zufall",
      "06.00.00",  "", "Aufgang",          "06.00.00"};
  const int seite = Uhrereignis(0, 7, 0);
  for (int r = 0; r < 9; ++r) {
    projekt.Uhr_text[seite + r] = std::to_string(r);
    projekt.Uhr_zeit[seite + r] = zeiten[static_cast<std::size_t>(r)];
    projekt.Uhr_relais(seite + r, 0) = static_cast<i16>(r + 1);
  }
  Uhr f;
  f.TabStrip1.waehlen(7);
  const Projekt vorher = projekt;
  f.Command1.druecken();
  EXPECT_EQ(Zeilen(f, 9),
            "5=06.00.00|8=06.00.00|4=06.00.00 mit Zufall|3=23.00.00|7=Aufgang|2=Aufgang + "
            "Zufall|0=Untergang|1=|6=|");
  EXPECT_EQ(Geaendert(vorher),
            "Uhr_tabelle_geaendert=1 Uhr_funktext(112-127)=1 Uhr_relais(112,0)=6 Uhr_relais(113,0)=9 "
            "Uhr_relais(114,0)=5 Uhr_relais(116,0)=8 Uhr_relais(117,0)=3 Uhr_relais(118,0)=1 "
            "Uhr_relais(119,0)=2 Uhr_relais(120,0)=7");
}

// ---- Form_Setup_uhr ---------------------------------------------------------------------------------------

TEST_F(Zeit, SequencerSortsChecksAndCommitsOnOkOnly) {
  Form_Setup_uhr f;
  f.Text_dat[0].ausfuellen("01.12.2026");
  f.Combo1[0].waehlen("Schaltuhr 2");
  f.Text_dat[2].ausfuellen("01.02.26");
  EXPECT_EQ(f.Text_dat[2].text(), "01.02.2026");
  f.Check1[2].haken(true);
  f.Text_dat[4].betreten();
  f.Kalender.waehlen({2026, 2, 1});
  f.Combo1[4].waehlen("Schaltuhr 1");
  f.Combo1[5].waehlen("Schaltuhr 1");
  f.Text_dat[3].ausfuellen("30.02.2026");
  EXPECT_EQ(f.Text_dat[3].farbe, Farbe::belegt);
  for (Taste* t : {&f.SortButton, &f.ok_button}) {
    d.erwarte_text("'30.02.2026' ist kein Datum. Bitte das Datum im Format TT.MM.JJJJ eingeben.");
    t->druecken();
    EXPECT_EQ(f.Text_dat[3].text(), "30.02.2026");
    EXPECT_EQ(f.fokus(), &f.Text_dat[3]);
  }
  EXPECT_EQ(f.plan(2026)[334], (Sequenztag{.uhr = 2, .beginn = true}));
  EXPECT_EQ(f.Combo1[0].farbe, Farbe::uhr2);
  f.Text_dat[3].ausfuellen("15.01.2027");
  f.SortButton.druecken();
  const std::array<const char*, 6> daten{"01.02.2026", "01.02.2026", "01.12.2026", "15.01.2027", "", ""};
  for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(f.Text_dat[i].text(), daten[i]);
  EXPECT_TRUE(f.Check1[0].an() && f.Combo1[1].position() == 1) << "equal dates in their order";
  EXPECT_EQ(f.Combo1[5].position(), 1) << "a row without a date is behind, not lost";

  const Meldung frage{
      "Die Schaltuhr wird aus der Sequenz gelöscht. Alle programmieren Zeiten und Funktionen bleiben aber in "
      "der Schaltuhr selber erhalten.Möchten Sie die Schaltuhr aus der Sequenz löschen?",
      "Warnung vor dem Löschen", Knoepfe::Ja_Nein, Symbol::Warnung, 2};
  druecken(f.Command1[0], frage, Antwort::Nein);
  EXPECT_TRUE(f.Check1[0].an());
  druecken(f.Command1[0], frage, Antwort::Ja);
  EXPECT_TRUE(f.Text_dat[0].text().empty() && !f.Check1[0].an());

  f.Check4.haken(true);
  f.Option2.waehlen(1);
  f.Check5[2].haken(false);
  Projekt vorher = projekt;
  f.ok_button.druecken();
  EXPECT_EQ(Geaendert(vorher),
            "Uhr_tabelle_geaendert=1 Seq_datum(1)=01.02.2026 Seq_datum(2)=01.12.2026 Seq_datum(3)=15.01.2027 "
            "Seq_uhr(1)=1 Seq_uhr(2)=2 Seq_uhr(5)=1 Seq_manuell=1 Seq_neustart=1 Sowi_modus(2)=0");
  vorher = projekt;
  Form_Setup_uhr verworfen;
  verworfen.Text_dat[1].ausfuellen("");
  verworfen.Check4.haken(false);
  verworfen.schliessen_wuenschen();
  EXPECT_EQ(Geaendert(vorher), "");
}

// The days of a year on which the clock changes, as "day:clock".
std::string Wechsel(const std::vector<Sequenztag>& plan) {
  std::string text;
  for (std::size_t i = 0; i < plan.size(); ++i) {
    if (i > 0 && !plan[i].beginn && plan[i].uhr == plan[i - 1].uhr) continue;
    text += std::to_string(i + 1) + (plan[i].beginn ? ":" : "-") + std::to_string(plan[i].uhr) + " ";
  }
  return text;
}

TEST(Sequenzplan, FollowsYearlyAndSingleSequencesOverTheTurnOfTheYear) {
  const std::vector<Sequenz> ferien{{{2026, 7, 11}, 2, true}, {{2026, 8, 1}, 1, true}, {{2027, 12, 24}, 0}};
  // Yearly ones hold in every year, also before the one they were written in.
  EXPECT_EQ(Wechsel(Sequenzplan(ferien, 2025)), "1-1 192:2 213:1 ");
  EXPECT_EQ(Wechsel(Sequenzplan(ferien, 2027)), "1-1 192:2 213:1 358:0 ");
  EXPECT_EQ(Wechsel(Sequenzplan(ferien, 2028)), "1-0 193:2 214:1 ");

  const std::vector<Sequenz> einmal{{{2026, 3, 1}, 1}, {{2026, 3, 1}, 2}};
  EXPECT_EQ(Wechsel(Sequenzplan(einmal, 2025)), "1--1 ");
  EXPECT_EQ(Wechsel(Sequenzplan(einmal, 2026)), "1--1 60:2 ") << "the last of one day holds";
  EXPECT_EQ(Wechsel(Sequenzplan(einmal, 2099)), "1-2 ");
  // Seven years without a 29 February, over 2100.
  const std::vector<Sequenz> schalttag{{{2024, 2, 29}, 2, true}, {{2024, 3, 1}, 1}};
  EXPECT_EQ(Wechsel(Sequenzplan(schalttag, 2103)), "1-2 ");
  EXPECT_EQ(Sequenzplan(schalttag, 2104).size(), 366U);
}

// ---- Uhrseite ---------------------------------------------------------------------------------------------

TEST_F(Zeit, ClockPageTakesGoodTimesAndRefusesOthers) {
  Uhrseite f;
  EXPECT_EQ(f.Dat[0].text() + f.Wotag[0].titel.operator*(), "29.03.2026Sonntag");
  f.Akt_zeit.ausfuellen("12.30");
  EXPECT_EQ(f.Akt_zeit.text(), "12.30.00");
  for (const char* falsch :
       {"12:30", "12.30:00", "24.00.00", "12.60.00", "12.00.60", "1.30.00", "ab.cd.ef"}) {
    d.erwarte({"Eingabe in Stunden, Minuten und Sekunden im Format HH.MM.SS oder HH.MM", "Info", Knoepfe::OK,
               Symbol::Information});
    f.Akt_zeit.ausfuellen(falsch);
    EXPECT_EQ(f.Akt_zeit.text(), "00.00.00") << falsch;
    EXPECT_EQ(f.fokus(), &f.Akt_zeit);
  }
  EXPECT_EQ(d.pieptoene(), 7);
}

TEST_F(Zeit, ChangeOverDatesAreComputedOrTypedByHand) {
  einstellungen.Richt_modus = 2;
  Uhrseite f;
  EXPECT_EQ(zeigt(f.Dat[20], f.Wotag[20]), "02.02.2002|Samstag");
  EXPECT_FALSE(f.Dat[1].frei || f.Command8.frei || f.Label1[0].frei);
  f.Option1.waehlen("Automatische Zeitumstellung");
  EXPECT_EQ(einstellungen.Richt_modus, 1);
  const Meldung frage{"Für die nächsten 10 Jahre die Daten für die Zeitumstellung berechnen?",
                      "Sommer-/Winterzeit", Knoepfe::Ja_Nein_Abbrechen, Symbol::Frage, 3};
  druecken(f.Command8, frage, Antwort::Nein);
  EXPECT_EQ(einstellungen.Sowi_datum[0], "02.02.2002");
  druecken(f.Command8, frage, Antwort::Ja);
  EXPECT_EQ(einstellungen.Sowi_datum[0] + einstellungen.Sowi_datum[1], "29.03.202625.10.2026");
  EXPECT_EQ(zeigt(f.Dat[11], f.Dat[20], f.Wotag[20]), "30.03.2031|28.10.2035|Sonntag");

  f.Dat[3].betreten();
  EXPECT_TRUE(f.MonthView1.sichtbar);
  EXPECT_EQ(f.MonthView1.datum(), (Datum{2027, 3, 28}));
  f.MonthView1.waehlen({2027, 3, 29});
  EXPECT_FALSE(f.MonthView1.sichtbar);
  EXPECT_EQ(einstellungen.Sowi_datum[2], "29.03.2027");
  EXPECT_EQ(f.Wotag[3].titel, "Montag");
  f.Dat[4].eingeben("31.02.2027");
  EXPECT_EQ(f.Dat[4].farbe, Farbe::belegt);
  druecken(f.Command3, "'31.02.2027' ist kein Datum. Bitte das Datum im Format TT.MM.JJJJ eingeben.");
  EXPECT_EQ(f.fokus(), &f.Dat[4]);
}

class Zeit_am_master : public Zeit {
 protected:
  Zeit_am_master() {
    sim.verbinden();
    Zeitraffer_setzen(100);
  }

  const Meldung neustartfrage{"Im ZAVmaster einen Neustart durchführen (nur so werden Änderungen wirksam)?",
                              "Neustart ZAVmaster?", Knoepfe::Ja_Nein_Abbrechen, Symbol::Frage};
  Testmaster sim;
};

TEST_F(Zeit_am_master, ClockPageSetsTheClockAndTheDates) {
  einstellungen.Richt_modus = 1;
  Uhrseite f;
  f.Akt_zeit.ausfuellen("12.30.05");
  d.erwarte_text("Eingabe in Stunden, Minuten und Sekunden im Format HH.MM.SS oder HH.MM");
  f.Akt_zeit.ausfuellen("24.00.00");
  druecken(f.Command3, neustartfrage, Antwort::Nein);
  EXPECT_EQ(sim.uhr(), "0530121629032600") << "the last good time, a Sunday in summer time";
  EXPECT_EQ(sim.neustarts(), 0);

  // A change-over date from the calendar changes the weekday that is sent, and Enter sends what is being
  // typed.
  f.Dat[2].betreten();
  f.MonthView1.waehlen({2026, 10, 26});
  f.Akt_zeit.eingeben("07.00");
  d.erwarte(neustartfrage, Antwort::Ja);
  druecken(f.Command3, "F99: Neustart im ZAVmaster war erfolgreich");
  EXPECT_EQ(sim.uhr(), "0000071029032600");
  EXPECT_EQ(sim.neustarts(), 1);
}

}  // namespace
}  // namespace zav
