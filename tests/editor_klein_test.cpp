// The smaller editors of the installation: timers, restart states, dimmer modes, event search, touchpanel
// reference.
#include <gtest/gtest.h>

#include "editor/actmask.h"
#include "editor/actmask_init.h"
#include "editor/actmask_timer.h"
#include "editor/auswahl_taster.h"
#include "editor/backref.h"
#include "editor/dimmermode.h"
#include "editor/einmask.h"
#include "editor/ereignissuche.h"
#include "editor/timer_trepp.h"
#include "editor/touchpanel_referenz.h"
#include "projektvergleich.h"
#include "pruefstand.h"

namespace zav {
namespace {

class Kleine_editoren : public Pruefstand {};

TEST_F(Kleine_editoren, TimerTimesAreCheckedOnLeavingTheField) {
  const std::string form = "Eingabe im Format HH.MM.SS oder HH.MM, Maximalwert 17.59.59";
  const std::pair<const char*, const char*> gut[] = {
      {"17.59.59", "17.59.59"}, {"05.30", "05.30.00"}, {"", "HH.MM.SS"}, {"HH.MM.SS", "HH.MM.SS"}};
  const std::pair<const char*, std::string> schlecht[] = {{"18.00.00", "Stunde zu gross"},
                                                          {"18.00", "Stunde zu gross"},
                                                          {"00.60.00", "Minute zu gross"},
                                                          {"00.00.60", "Sekunde zu gross"},
                                                          {"0.30", form},
                                                          {"12:30", form},
                                                          {"12.30:00", form},
                                                          {"ab.cd.ef", form},
                                                          {"-1.00.00", form},
                                                          {"00.00.1ü", form}};
  Timer_trepp m;
  for (const auto& [eingabe, steht_dann] : gut) {
    m.Ttime[47].ausfuellen(eingabe);
    EXPECT_EQ(m.Ttime[47].text(), steht_dann);
  }
  for (const auto& [eingabe, meldung] : schlecht) {
    d.erwarte({.text = meldung});
    m.Ttime[47].ausfuellen(eingabe);
    EXPECT_EQ(m.Ttime[47].text() + d.maengel(), "HH.MM.SS") << eingabe;
  }
}

TEST_F(Kleine_editoren, TimersAreNamedTimedAndGivenFunctions) {
  projekt.Timer_zeit[3] = "00.05.00";
  projekt.Tev_leer[60] = 1;  // marked in use, but without a function
  const Projekt vorher = projekt;
  Timer_trepp m;
  EXPECT_EQ(m.titel(), "Timer Manager");
  EXPECT_EQ(m.Ttime[3].text(), "00.05.00");
  EXPECT_EQ(m.Tevent[60].farbe, Farbe::belegt);
  m.Txtbox_timerbez[1].eingeben("Treppenhaus");
  EXPECT_EQ(m.Tnr[1].farbe, Farbe::belegt);
  druecken<Actmask_timer>(m.Tevent[7], [](Actmask_timer& a) {
    EXPECT_EQ(a.titel(), "Funktionen für Timer-Ereignis: Treppenhaus");
    a.Check2[0].haken(true);
    a.Slider1[0].schieben(30);
    a.Command5.druecken();
  });
  EXPECT_EQ(m.Tevent[7].farbe, Farbe::belegt);

  // Enter goes on: name, times, next row; a wrong time holds it.
  m.Txtbox_timerbez[1].eingabe();
  EXPECT_EQ(m.fokus(), &m.Ttime[3]);
  m.Ttime[5].eingabe();
  EXPECT_EQ(m.fokus(), &m.Txtbox_timerbez[2]);
  m.Ttime[47].eingeben("9");
  d.erwarte({.text = "Eingabe im Format HH.MM.SS oder HH.MM, Maximalwert 17.59.59"});
  m.Ttime[47].eingabe();
  EXPECT_EQ(m.fokus(), &m.Ttime[47]);
  m.Ttime[47].eingabe();
  EXPECT_EQ(m.fokus(), &m.OK);

  m.Ttime[3].eingeben("");
  m.Ttime[4].eingeben("1.00.00");
  druecken(m.OK, {.text = "Eingabe im Format HH.MM.SS oder HH.MM, Maximalwert 17.59.59"});
  EXPECT_TRUE(m.offen()) << "Enter does not get past a wrong time";
  m.Ttime[5].eingeben("01.30");
  m.schliessen_wuenschen();
  EXPECT_FALSE(m.offen());
  EXPECT_EQ(Geaendert(vorher),
            "Tev_leer(7)=1 Tev_leer(60)=0 Tev_funktext(7)=1 Timer_text(1)=Treppenhaus Timer_zeit(3)= "
            "Timer_zeit(5)=01.30.00 Tev_dimmer(7,0,2)=30");
  EXPECT_EQ(sitzung.Projekt_geaendert, 1);
}

TEST_F(Kleine_editoren, RestartStates) {
  projekt.Dimmer_neustart[5] = 60;
  projekt.Relais_neustart_a[9] = 2;
  Projekt vorher = projekt;
  Actmask_init m;
  EXPECT_EQ(m.Dimmbaugruppe.eintrag(1).farbe, Farbe::belegt);
  EXPECT_EQ(m.Intens[0].text(), "Zustand wie vorher");
  m.Slider1[0].schieben(2);
  EXPECT_EQ(m.Intens[0].text(), "2");
  m.Command1[0].druecken();
  EXPECT_EQ(m.Intens[0].text(), "Aus");
  m.Alle_512[1].druecken();
  m.Baugruppe.waehlen(63);
  EXPECT_EQ(m.Combo1[7].text(), "Einschalten");
  m.Alle_8[0].druecken();
  m.Combo1[7].waehlen("Zustand wie vorher");
  m.Text1[7].eingeben("Pumpe");
  EXPECT_EQ(m.Baugruppe.eintrag(63).farbe, Farbe::belegt);
  m.Command5.druecken();
  vorher.Relais_neustart = Feld<i16, 512>(1);
  EXPECT_EQ(Geaendert(vorher),
            "Relais_text(511)=Pumpe Relais_neustart(504-510)=0 Relais_neustart(511)=2 Dimmer_neustart(0)=1");

  vorher = projekt;
  Actmask_init abbruch;
  abbruch.Alle_512[0].druecken();
  abbruch.Text2[0].eingeben("x");
  abbruch.Command6.druecken();
  EXPECT_EQ(Geaendert(vorher), "");
}

TEST_F(Kleine_editoren, ADimmerHasExactlyOneMode) {
  projekt.Dimmer_text[127] = "Spots";
  projekt.Dimmer_modus[0] = 1;
  const Projekt vorher = projekt;
  Dimmermode m;
  EXPECT_TRUE(!m.Check1[0].an() && m.Check2[0].an());
  m.Check2[0].haken(false);
  EXPECT_TRUE(m.Check2[0].an()) << "only the other one takes it away";
  m.Check1[0].haken(true);
  EXPECT_FALSE(m.Check2[0].an());
  m.TabStrip1.waehlen(7);
  EXPECT_EQ(zeigt(m.Lnr[15], m.Text1[15]), "D31-3|Spots");
  m.Check2[15].haken(true);
  EXPECT_EQ(Geaendert(vorher), "") << "nothing before OK";
  m.OK.druecken();
  EXPECT_EQ(Geaendert(vorher), "Dimmer_modus(0)=0 Dimmer_modus(127)=1");
}

TEST_F(Kleine_editoren, TheSearchFindsEveryEventOfAnOutput) {
  kombination(0, "EG", "Küche");
  apparat(0, 0, 14, 12);
  projekt.Dev_text[3] = "Licht";
  projekt.Ein_relais(4 * 12 + 3, 29) = 4;
  kombination(1, "EG", "Gang");
  apparat(1, 0, 45, 20);  // edges: offsets 2 and 3 are key 1
  projekt.Dev_text[128 + 1] = "Melder";
  projekt.Ein_relais(4 * 20 + 2, 29) = 2;
  projekt.Ein_relais(4 * 20 + 3, 29) = 1;
  kombination(2, "Dach", "Wetter");
  apparat(2, 0, 75, 252);
  projekt.Ein_relais(4 * 252, 29) = 5;
  projekt.Ein_relais(4 * 252 + 15, 29) = 5;
  projekt.Ein_relais(0, 29) = 1;  // no device there
  projekt.Uhr_relais(128 + 7 * 16 + 15, 29) = 2;
  projekt.Uhr_text[255] = "Abend";
  projekt.Uhr_zeit[255] = "18.00.00";
  projekt.Uhr_relais(6 * 16, 29) = 2;
  projekt.Tev_relais(63, 29) = 1;
  projekt.Timer_text[15] = "Treppe";
  const std::string erwartet =
      "i12 - EG - Küche: Licht\r\n"
      "i20 - EG - Gang: Melder\r\n"
      "i20 - EG - Gang: Melder\r\n"
      "i252 - Dach - Wetter:  Wetterfunktion 0 - Prüfbedingung erfüllt\r\n"
      "i252 - Dach - Wetter:  Wetterfunktion 7 - Prüfbedingung nicht erfüllt\r\n"
      "Uhr 1, Sonntag, Zeit 0:  - \r\n"
      "Uhr 2, Täglich, Zeit 15: Abend - 18.00.00\r\n"
      "T15-3: Treppe\r\n";
  EXPECT_EQ(Ereignisse_suchen({Ziel::Art::Relais, 29}), erwartet);

  projekt.App_text2[0] = "999999999999";  // what a damaged file may hold
  projekt.App_text[16] = "abc";
  EXPECT_NO_THROW(Ereignisse_suchen({Ziel::Art::Relais, 29}));
  projekt.App_text2[0] = "1";

  projekt.Ein_dimmer(4 * 12, 29, 3) = 1;
  projekt.Ein_timer(4 * 12 + 1, 5) = 1;
  projekt.Timer_text[5] = "Lüfter";
  Backref b;
  EXPECT_EQ(b.Text2.text(), "Anzeige des Suchergebnisses...");
  EXPECT_EQ(b.Combo1.eintrag(29).text, "O3-5: ");
  b.Command1[2].druecken();
  b.Combo1.waehlen("T5: Lüfter");
  b.Command2.druecken();
  EXPECT_EQ(b.Text2.text(), "i12 - EG - Küche: \r\n");
  b.Command1[1].druecken();
  EXPECT_EQ(b.Combo1.anzahl(), 128);
  b.Combo1.waehlen(29);
  b.Command2.druecken();
  EXPECT_EQ(b.Text2.text(), "i12 - EG - Küche: \r\n") << "a search replaces the text";
}

// Its form stands in golden_test.
TEST_F(Kleine_editoren, TouchpanelReferenceNamesTextsWhereverTheyStand) {
  kombination(0, "EG", "Küche");
  projekt.Dev_text[8 * 2] = "Reserve";  // a place without a device
  kombination(1, "EG", "Wohnen");
  apparat(1, 0, 65, 200);
  projekt.Dev_text[128 + 23] = "Taste 24";  // on the places behind the sender
  const std::string text = Touchpanel_text();
  EXPECT_NE(text.find("EG - Küche\r\n   Reserve\r\n"), std::string::npos) << text;
  EXPECT_NE(text.find("EG - Wohnen\r\n   Taste 24 ---> GR  C8\r\n"), std::string::npos) << text;
  Touchpanel_Referenz m;
  m.Command1.druecken();
  EXPECT_EQ(d.zwischenablage(), text);
}

TEST_F(Kleine_editoren, TheFlatEditorWorksOnAddressGroups) {
  projekt.Grp_text[17] = "Küche";
  projekt.Grp_led[17] = 0;
  Projekt vorher = projekt;
  Einmask m;
  m.TabStrip1.waehlen(1);
  EXPECT_EQ(m.Text_grp[1].text(), "Küche");
  m.Text_ein[4 * 1 + 2].eingeben("Licht");  // makes I17 the current group
  EXPECT_EQ(m.Nummer[1].farbe, Farbe::aktuell);
  EXPECT_EQ(zeigt(m.Frame1, m.Label_bild), "I17  Küche|Feller (alt): Vierfachtaster mit LED");
  m.Combo_LED[2].waehlen("LED dauernd ein");
  m.Check_thermo.haken(true);
  EXPECT_EQ(Geaendert(vorher), "Grp_led(17)=1 Grp_thermo(17)=1 Ein_text(70)=Licht Ein_led(70)=641");

  druecken<Actmask>(m.Command_fkt[2], [](Actmask& a) {
    EXPECT_EQ(a.titel(), "Funktionen für Ereignis: Küche - Licht");
    a.Alle_8_ein.druecken();
    a.Text1[0].eingeben("Decke");
    a.Command5.druecken();
  });
  EXPECT_EQ(projekt.Ein_leer[70], 1);
  EXPECT_EQ(m.Command_fkt[2].farbe, Farbe::belegt);
  EXPECT_EQ(m.Combo_LED[0].eintrag(0).text, "O0-0: Decke");
  m.Nummer[0].druecken();
  EXPECT_EQ(m.Nummer[1].farbe, Farbe::belegt);
  m.Nummer[1].druecken();

  const Meldung warnung{
      "Alle Schalt-, Dimm- und Timerfunktionen dieses Ereignisses werden unwiderruflich gelöscht. Die "
      "Abläufe in den Timern selbst bleiben aber erhalten. Die LEDs werden auf 'dauernd aus' "
      "gesetzt.\nAusführen?",
      "Warnung vor dem Löschen", Knoepfe::Ja_Nein, Symbol::Warnung, 2};
  vorher = projekt;
  druecken(m.Command_loeschen, warnung, Antwort::Nein);
  EXPECT_EQ(Geaendert(vorher), "");
  druecken(m.Command_loeschen, warnung, Antwort::Ja);
  EXPECT_EQ(zeigt(m.Text_ein[6], m.Combo_LED[2]), "|LED dauernd aus");
  EXPECT_EQ(Geaendert(vorher),
            "Ein_text(70)= Ein_leer(70)=0 Ein_funktext(68-69)=1 Ein_funktext(71)=1 Ein_led(70)=640 "
            "Ein_relais(70,0-7)=0");
}

TEST_F(Kleine_editoren, AMultipleSenderTakesSixGroups) {
  projekt.Grp_text[40] = "@meZweiter";
  Einmask m;
  m.Nummer[11].druecken();
  druecken(
      m.Command_mehrfach,
      "Der Mehrfachsender belegt 6 aufeinanderfolgende ZAVnummern. Die höchste wählbare Nummer in dieser "
      "Gruppe ist somit die I10");
  m.Nummer[10].druecken();
  m.Command_mehrfach.druecken();
  EXPECT_EQ(projekt.Grp_typ[10], 70);
  EXPECT_EQ(m.Label_bild.titel, "Feller: IR-Mehrfachsender");
  m.Nummer[15].druecken();
  EXPECT_EQ(m.Command_taster.frei, false);
  EXPECT_EQ(m.Command_taster.hinweis, "Gehört zum Mehrfachsender ab I10");

  m.TabStrip1.waehlen(2);
  m.Nummer[0].druecken();
  druecken(
      m.Command_mehrfach,
      "Es ist bereits ein Mehrfachsender ab I10 definiert. Wie Sie mehrere Mehrfachsender definieren können, "
      "finden Sie in der Anleitung zum IR-Empfänger.");
  EXPECT_EQ(projekt.Grp_typ[32], 5);
  d.erwarte_dialog<Auswahl_Taster>([](Auswahl_Taster& a) { a.Bilder.waehlen("26"); });  // Beo4, another kind
  m.Command_taster.druecken();
  EXPECT_EQ(projekt.Grp_typ[32], 26);
  EXPECT_EQ(Auswahl_Taster_2().Bilder.eintrag(0).hinweis, "Feller: Einfachtaster ohne LED");
  m.Nummer[8].druecken();
  EXPECT_EQ(m.Label_bild.titel, "Feller: IR-Mehrfachsender") << "the mark in the text";
  EXPECT_EQ(m.Command_mehrfach.frei, false);

  m.TabStrip1.waehlen(0);
  m.Nummer[10].druecken();
  const Meldung frage{"Mehrfachsender löschen? Alle Texte und Funktionen bleiben erhalten.",
                      "Warnung vor dem Löschen", Knoepfe::Ja_Nein, Symbol::Warnung, 2};
  druecken(m.Command_mehrfach, frage, Antwort::Nein);
  EXPECT_EQ(projekt.Grp_typ[10], 70);
  druecken(m.Command_mehrfach, frage, Antwort::Ja);
  EXPECT_EQ(projekt.Grp_typ[10], 5);
}

}  // namespace
}  // namespace zav
