// What a person does in the three function editors, and what the project holds afterwards.
#include "editor/actmask.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "editor/actmask_timer.h"
#include "editor/actmask_uhr.h"
#include "projektvergleich.h"
#include "pruefstand.h"

namespace zav {
namespace {

const Meldung nicht_moeglich{
    "Bei Storen nicht möglich: es dürfen nie beide Ausgänge gleichzeitig eingeschaltet sein.", "",
    Knoepfe::OK, Symbol::Information};
const Meldung partner_aus{
    "Desaktiviert den anderen Ausgang, damit nicht beide Ausgänge gleichzeitig eingeschaltet sind.", "",
    Knoepfe::OK, Symbol::Information};

class Funktionen : public Pruefstand {};

// One choice on output i while the other output of its pair holds a code: what both hold then.
struct Storenfall {
  int i;
  i16 partner, neu, bleibt, partner_dann;
  const Meldung* meldung;
};

template <class Maske>
void Durchspielen(Drehbuch& d, const std::vector<Storenfall>& faelle) {
  for (const Storenfall& f : faelle) {
    SCOPED_TRACE(testing::Message() << "output " << f.i << " gets " << f.neu << " beside " << f.partner);
    Projekt_reset();
    const int p = f.i % 2 == 0 ? f.i + 1 : f.i - 1;
    Maske m(3, "");
    if (f.partner != 0) {
      m.Check1[p].haken(true);
      m.Combo1[p].waehlen(f.partner);
    }
    m.Check1[f.i].haken(true);
    if (f.meldung != nullptr) d.erwarte(*f.meldung);
    m.Combo1[f.i].waehlen(f.neu);
    EXPECT_EQ(m.Combo1[f.i].position(), f.bleibt);
    EXPECT_EQ(m.Check1[f.i].an(), true) << "a choice never takes the tick away";
    EXPECT_EQ(m.Combo1[p].position(), f.partner_dann);
    EXPECT_EQ(m.Check1[p].an(), f.partner != 0 || f.partner_dann != 0);
    EXPECT_EQ(d.maengel(), "");
  }
}

TEST_F(Funktionen, BothOutputsOfABlindAreNeverOnAtOnce) {
  const std::vector<Storenfall> gemeinsam{
      {0, 1, 5, 5, 0, &partner_aus},    {1, 6, 5, 5, 0, &partner_aus}, {4, 5, 5, 5, 0, &partner_aus},
      {1, 5, 2, 0, 5, &nicht_moeglich}, {2, 0, 5, 5, 0, nullptr},      {7, 0, 6, 6, 6, nullptr},
      {6, 5, 6, 6, 6, nullptr},         {0, 5, 1, 1, 5, nullptr},      {0, 1, 2, 2, 1, nullptr},
      {3, 4, 3, 3, 4, nullptr},
  };
  Durchspielen<Actmask>(d, gemeinsam);
  Durchspielen<Actmask_timer>(d, gemeinsam);
  Durchspielen<Actmask_uhr>(d, gemeinsam);

  const std::vector<Storenfall> impulse{{0, 5, 3, 0, 5, &nicht_moeglich}, {1, 5, 4, 0, 5, &nicht_moeglich}};
  Durchspielen<Actmask>(d, impulse);
  Durchspielen<Actmask_timer>(d, impulse);
  Durchspielen<Actmask>(d, {{0, 5, 7, 0, 5, &nicht_moeglich}});

  // At a switching time only the codes with "Ein" collide; the locks follow their plain function.
  Durchspielen<Actmask_uhr>(d, {
                                   {1, 5, 3, 3, 5, nullptr},
                                   {0, 11, 4, 4, 11, nullptr},
                                   {0, 17, 8, 0, 17, &nicht_moeglich},
                                   {1, 11, 14, 0, 11, &nicht_moeglich},
                                   {2, 0, 12, 12, 12, nullptr},
                                   {3, 1, 18, 18, 18, nullptr},
                                   {0, 20, 11, 11, 0, &partner_aus},
                                   {5, 12, 17, 17, 0, &partner_aus},
                                   {4, 5, 19, 19, 5, nullptr},
                               });
}

TEST_F(Funktionen, ListsDifferByEventAndByOutput) {
  Actmask ein(0, "Küche - Licht");
  Actmask_uhr uhr(0, "x");
  Actmask_timer tev(0, "x");
  EXPECT_EQ(
      ein.titel() + "|" + uhr.titel() + "|" + tev.titel(),
      "Funktionen für Ereignis: Küche - Licht|Funktionen für Schaltzeit: x|Funktionen für Timer-Ereignis: x");
  const auto letzte = [](const Auswahl& a) {
    return std::to_string(a.anzahl()) + " " + a.eintrag(a.anzahl() - 1).text;
  };
  EXPECT_EQ(letzte(ein.Combo1[0]) + "|" + letzte(uhr.Combo1[0]) + "|" + letzte(tev.Combo1[0]),
            "8 Thermo|21 Nur entsperren|7 Store stop");
  EXPECT_EQ(ein.Combo1[6].eintrag(5).text + "|" + ein.Combo1[7].eintrag(5).text, "Store auf|Store ab");
  EXPECT_EQ(uhr.Combo1[0].eintrag(10).text + "|" + uhr.Combo1[1].eintrag(17).text,
            "Um (Schrittsch.) und sperren|Store ab und entsperren");
  EXPECT_EQ(tev.element("Check4(0)"), nullptr) << "a timer starts no timer";
  EXPECT_EQ(ein.element("Combo3(0)"), nullptr);
}

TEST_F(Funktionen, OpensOnTheLowestGroupsAndTheFirstTabInUse) {
  projekt.Ein_relais(53, 9 * 8) = 1;
  projekt.Ein_relais(53, 5 * 8 + 7) = 2;
  projekt.Ein_dimmer(53, 127, 3) = 4;
  Actmask m(53, "");
  EXPECT_EQ(m.Baugruppe.position(), 5);
  EXPECT_EQ(zeigt(m.Frame1, m.Check1[7], m.Combo1[7]), "Baugruppe 5|an|Ein");
  EXPECT_EQ(m.Check1[7].titel, "O5-7");
  EXPECT_FALSE(m.Combo1[6].sichtbar);
  EXPECT_EQ(m.Dimmbaugruppe.position(), 31);
  EXPECT_EQ(Actmask::dimmbaugruppe_aktuell, 31);
  EXPECT_EQ(m.TabStrip1.eintrag(0).text, "&Schalten (aktiviert)");
  EXPECT_EQ(m.TabStrip1.eintrag(2).text, "&Timer (---------)");
  EXPECT_EQ(m.Label1.farbe, Farbe::belegt);
  EXPECT_EQ(m.Baugruppe.eintrag(9).farbe, Farbe::belegt);
  EXPECT_EQ(m.Baugruppe.eintrag(8).farbe, Farbe::normal);

  projekt.Uhr_timer(255, 15) = 3;
  Actmask_uhr nur_timer(255, "");
  EXPECT_EQ(nur_timer.TabStrip1.position(), 2);
  EXPECT_EQ(nur_timer.Combo_timerfkt[15].text(), "Start/Reset (um)");
  projekt.Tev_dimmer(63, 5, 2) = 50;
  Actmask_timer nur_dimmer(63, "");
  EXPECT_EQ(std::pair(nur_dimmer.TabStrip1.position(), nur_dimmer.Dimmbaugruppe.position()), std::pair(1, 1));
  EXPECT_EQ(Actmask(0, "").TabStrip1.position(), 0);
}

TEST_F(Funktionen, GroupCommandsSetCodesAndTicks) {
  struct Fall {
    Taste Funktionsmaske::*taste;
    i16 gerade, ungerade;
  } const faelle[] = {{&Actmask::Alle_8_aus, 1, 1},  {&Actmask::Storen_auf, 5, 0},
                      {&Actmask::Alle_8_ein, 2, 2},  {&Actmask::Storen_ab, 0, 5},
                      {&Actmask::Storen_stop, 6, 6}, {&Actmask::Alle_8_neutral, 0, 0}};
  Actmask m(0, "");
  m.Baugruppe.waehlen(63);
  for (const Fall& f : faelle) {
    (m.*f.taste).druecken();
    for (int i = 0; i < 8; ++i) {
      const int code = i % 2 == 0 ? f.gerade : f.ungerade;
      EXPECT_EQ(m.Combo1[i].position(), code);
      EXPECT_EQ(m.Check1[i].an(), code != 0);
    }
  }
  EXPECT_EQ(m.Baugruppe.eintrag(63).farbe, Farbe::normal);
  m.Alle_512_aus.druecken();
  const auto& leiste = m.Baugruppe.eintraege();
  EXPECT_TRUE(
      std::all_of(leiste.begin(), leiste.end(), [](const auto& e) { return e.farbe == Farbe::belegt; }));
  m.Check1[0].haken(false);
  m.Command5.druecken();
  const auto zeile = projekt.Ein_relais.zeile(0);
  EXPECT_EQ(std::count(zeile.begin(), zeile.end(), 1), 511);
  EXPECT_EQ(zeile[504], 0);
}

// What event 7 does to a dimmer.
std::array<i16, 4> Werte(int dimmer) {
  std::array<i16, 4> werte{};
  std::ranges::copy(projekt.Ein_dimmer.zeile(7).subspan(dimmer * 4, 4), werte.begin());
  return werte;
}

TEST_F(Funktionen, ADimmerRowShowsWhatItCanDo) {
  Actmask m(7, "");
  EXPECT_FALSE(m.Slider1[0].sichtbar);
  m.Check2[0].haken(true);
  EXPECT_EQ(m.Intens[0].titel, "Keine Änderung");
  EXPECT_TRUE(!m.Tempo[0].sichtbar && !m.Check3[0].sichtbar && m.Check_auf[0].sichtbar);
  m.Command1[0].druecken();
  EXPECT_EQ(m.Intens[0].titel, "Aus");
  EXPECT_TRUE(m.Check_mem[0].sichtbar);
  m.Slider1[0].schieben(70);
  EXPECT_EQ(m.Intens[0].titel, "70");
  m.Tempo[0].waehlen("7 Sek.");
  m.Check_auf[0].haken(true);
  m.Check3[0].haken(true);
  m.Check_mem[0].haken(true);
  m.Command5.druecken();
  EXPECT_EQ(Werte(0), (std::array<i16, 4>{17, 16, 70, 7}));
  EXPECT_EQ(projekt.Ein_funktext[7], 1);

  Actmask zweite(7, "");
  zweite.Command1[0].druecken();
  EXPECT_EQ(zweite.Slider1[0].wert(), 0);
  zweite.Check2[0].haken(false);
  zweite.Command5.druecken();
  EXPECT_FALSE(Hat_funktionen(Ereignisart::Eingang, 7)) << "flags go with the row";
}

TEST_F(Funktionen, AllFourAndAll128) {
  Actmask m(7, "");
  m.Dimmbaugruppe.waehlen(2);
  m.Slider2.schieben(40);
  m.Tempo[4].waehlen(15);
  m.Check_ab[4].haken(true);
  m.Check3[4].haken(true);
  for (int i = 0; i < 4; ++i) {
    EXPECT_TRUE(m.Check2[i].an() && m.Check_ab[i].an() && m.Check3[i].an());
    EXPECT_EQ(zeigt(m.Intens[i], m.Tempo[i]), "40|23 Sek.");
  }
  m.Command5.druecken();
  for (int dimmer = 8; dimmer < 12; ++dimmer) EXPECT_EQ(Werte(dimmer), (std::array<i16, 4>{16, 1, 40, 15}));
  Actmask aus(7, "");
  aus.Alle_128_aus.druecken();
  EXPECT_EQ(aus.Check3[0].an(), false);
  EXPECT_EQ(aus.Tempo[0].position(), 0);
  aus.Command5.druecken();
  for (int dimmer = 0; dimmer < 128; ++dimmer) EXPECT_EQ(Werte(dimmer), (std::array<i16, 4>{0, 0, 1, 0}));
  Actmask neutral(7, "");
  neutral.Alle_4_neutral.druecken();
  EXPECT_EQ(neutral.Check2[3].an(), false);
  EXPECT_EQ(neutral.Dimmbaugruppe.eintrag(0).farbe, Farbe::normal);
  EXPECT_EQ(neutral.Dimmbaugruppe.eintrag(1).farbe, Farbe::belegt);
  neutral.Alle_128_neutral.druecken();
  neutral.Command5.druecken();
  EXPECT_FALSE(Hat_funktionen(Ereignisart::Eingang, 7));
}

TEST_F(Funktionen, TheLockIsKeptAtASwitchingTimeAndLostAtATimerEvent) {
  const Projekt vorher = projekt;
  Actmask_uhr uhr(9, "");
  uhr.Check2[1].haken(true);
  uhr.Combo3[1].waehlen("Sperre aus");
  uhr.Command5.druecken();
  Actmask_timer tev(9, "");
  tev.Check2[1].haken(true);
  tev.Combo3[1].waehlen("Sperre aus");
  tev.Command5.druecken();
  EXPECT_EQ(Geaendert(vorher), "Uhr_funktext(9)=1 Uhr_dimmer(9,1,1)=2");
}

TEST_F(Funktionen, OnlyAChangedFunctionMarksTheEvent) {
  projekt.Ein_dimmer(53, 6, 0) = 17;
  projekt.Ein_dimmer(53, 6, 1) = 9;  // no legal value: passes through
  projekt.Ein_dimmer(53, 7, 1) = 33;
  projekt.Ein_relais(53, 3) = 12;  // a code of an older kind
  projekt.Ein_timer(53, 2) = 1;
  Projekt vorher = projekt;

  Actmask unveraendert(53, "");
  EXPECT_TRUE(unveraendert.Check_auf[2].an() && !unveraendert.Check_mem[2].an());
  EXPECT_EQ(unveraendert.Combo1[3].position(), -1);
  unveraendert.Command5.druecken();
  EXPECT_EQ(sitzung.Projekt_geaendert, 0);

  Actmask abgebrochen(53, "");
  abgebrochen.Text1[0].eingeben("Licht");
  abgebrochen.Alle_512_neutral.druecken();
  abgebrochen.schliessen_wuenschen();
  EXPECT_FALSE(abgebrochen.offen());
  EXPECT_EQ(Geaendert(vorher), "");

  Actmask texte(53, "");
  texte.Text1[7].eingeben("Küchenlicht Decke über dem großen Tisch");
  texte.Text2[0].eingeben("Stehlampe");
  texte.Txtbox_timerbez[15].eingeben("Treppe");
  texte.Baugruppe.waehlen(1);
  texte.Baugruppe.waehlen(0);
  EXPECT_EQ(texte.Text1[7].text(), "Küchenlicht Decke über de");
  texte.Command5.druecken();
  EXPECT_EQ(Geaendert(vorher),
            "Relais_text(7)=Küchenlicht Decke über de Dimmer_text(4)=Stehlampe Timer_text(15)=Treppe");
  EXPECT_EQ(sitzung.Projekt_geaendert, 1);

  vorher = projekt;
  Actmask ein_timer(53, "");
  ein_timer.Check4[2].haken(false);
  ein_timer.Check4[0].haken(true);
  ein_timer.Combo_timerfkt[0].waehlen("Stop & Reset");
  ein_timer.Command5.druecken();
  EXPECT_EQ(Geaendert(vorher), "Ein_funktext(53)=1 Ein_timer(53,0)=2 Ein_timer(53,2)=0");
}

TEST_F(Funktionen, OutputTestNeedsTheNewestGeneration) {
  int geoeffnet = 0;
  Funktionsmaske::ausgangssimulation_oeffnen = [&] { ++geoeffnet; };
  Actmask_uhr m(0, "");
  m.Ausgaenge_testen.druecken();
  projekt.Datei_version = "900";
  druecken(
      m.Ausgaenge_testen,
      "Wenn Sie die neuen Funktionen von ZAVlink-Version 9.102 nutzen möchten, wählen Sie 'Speichern unter' "
      "und den Dateityp 910. Achtung: Das Betriebssystem des ZAVmasters muss auf die Version 9 aufgerüstet "
      "werden.");
  EXPECT_EQ(geoeffnet, 1);
  Funktionsmaske::ausgangssimulation_oeffnen = nullptr;
}

TEST(Funktionsworte, NamesAndWords) {
  const std::pair<const char*, Ziel> namen[] = {{"O3-5", {Ziel::Art::Relais, 29}},
                                                {"O63-7", {Ziel::Art::Relais, 511}},
                                                {"D1-2", {Ziel::Art::Dimmer, 6}},
                                                {"D31-3", {Ziel::Art::Dimmer, 127}},
                                                {"T15", {Ziel::Art::Timer, 15}}};
  for (const auto& [text, ziel] : namen) {
    EXPECT_EQ(Ziel_name(ziel), text);
    EXPECT_EQ(Ziel_lesen(text), ziel);
  }
  EXPECT_EQ(Ziel_lesen("o0-0"), (Ziel{Ziel::Art::Relais, 0}));
  for (const char* falsch :
       {"", "O", "O64-0", "O3-8", "O3", "O3-", "D0-4", "D32-0", "T16", "T1-0", "T-1", "X1", "O3-5 "}) {
    EXPECT_EQ(Ziel_lesen(falsch), std::nullopt) << falsch;
  }
  EXPECT_EQ(Relais_in_worten(Ereignisart::Uhr, 11, 3), "Store ab und sperren");
  EXPECT_EQ(Relais_in_worten(Ereignisart::Timer, 7, 3), "Code 7");
  EXPECT_EQ(Timer_in_worten(1), "Start & Restart");
  EXPECT_EQ(Dimmer_in_worten(Ereignisart::Eingang, std::array<i16, 4>{17, 16, 45, 2}),
            "45 %, Tempo Ambiance, Aufdimmen, Um, Memory");
  EXPECT_EQ(Dimmer_in_worten(Ereignisart::Uhr, std::array<i16, 4>{0, 1, 0, 9}), "Keine Änderung, Sperre ein");
  EXPECT_EQ(Dimmer_in_worten(Ereignisart::Timer, std::array<i16, 4>{0, 0, 0, 0}), "-");
}

}  // namespace
}  // namespace zav
