// Addresses and the device clipboard of the installation editor: what moves, what stays, what is refused.
#include "einmask8_hilfen.h"
#include "store/funktionen.h"

namespace zav {
namespace {

// Moves the current device by the map of addresses, which asks.
class Umzug : public Installation {
 protected:
  void verschieben(Einmask8& m, int alt, int neu, bool einzeln, Antwort a = Antwort::Ja) {
    druecken<Dialog_Kombination>(m.Command2, [=, this](Dialog_Kombination& k) {
      d.erwarte(wechsel(alt, neu, einzeln), a);
      k.Zellen.waehlen(neu);
      if (a != Antwort::Ja) k.Cancel.druecken();
    });
  }
};

// A function of each sort on the event, and an app record.
void Belegen(int e, i16 code) {
  projekt.Ein_relais(e, 511) = code;
  projekt.Ein_timer(e, 15) = code;
  projekt.Ein_dimmer(e, 127, 3) = code;
  projekt.App_eigenschaften.zeile(e)[App_tastentext] = std::to_string(code);
  Leer_berechnen(Ereignisart::Eingang, e);
}
// The code the event holds throughout, 0 when it is empty; -1 when its parts do not agree.
int Belegung(int e) {
  const int code = projekt.Ein_relais(e, 511);
  const std::string app = code == 0 ? "" : std::to_string(code);
  const bool einig = projekt.Ein_timer(e, 15) == code && projekt.Ein_dimmer(e, 127, 3) == code &&
                     projekt.App_eigenschaften.zeile(e)[App_tastentext] == app &&
                     (projekt.Ein_leer[e] != 0) == (code != 0);
  return einig ? code : -1;
}

TEST_F(Installation, MapShowsWhoHoldsWhat) {
  kombination(0, "EG", "Küche", 15);
  apparat(0, 0, 30, 10);
  apparat(0, 1, 40, 100);
  apparat(0, 2, 78, 200);
  apparat(0, 3, 14, 201);  // moved into an address that the thermostat leaves
  projekt.App_text[4] = "viele";
  Dialog_Kombination k("10", 2);
  const auto zelle = [&](int n) { return k.Zellen.eintrag(n).hinweis + "/" + k.Zellen.eintrag(n).text; };
  EXPECT_EQ(zelle(9), "frei/9");
  EXPECT_EQ(zelle(11), "besetzt/11   Küche - EG");
  EXPECT_EQ(zelle(100), "besetzt/100   Küche - EG");
  EXPECT_EQ(zelle(101), "frei/101");
  EXPECT_EQ(zelle(201), "frei/201") << "freed after all are drawn";
  EXPECT_EQ(zelle(203), "besetzt/203   Küche - EG");
  EXPECT_EQ(k.Zellen.eintrag(9).farbe, Farbe::frei);
  EXPECT_EQ(k.Zellen.eintrag(10).farbe, Farbe::aktuell);
  EXPECT_EQ(k.Zellen.eintrag(103).farbe, Farbe::belegt);
  for (int a = 0; a < 10; a += 2) apparat(0, 5 + a, 1, a);
  EXPECT_EQ(Dialog_Kombination("", 2).Zellen.position(), 12) << "the first run for a new device is proposed";
}

TEST_F(Installation, MapRefusesWhatDoesNotFit) {
  const std::string bereich = "Überschreitet Adressbereich, Vorgang wird nicht ausgeführt";
  const std::string besetzt = "Überschneidet besetzte Adressen, Vorgang wird nicht ausgeführt";
  kombination(0, "EG", "Küche", 15);
  apparat(0, 0, 30, 10);
  struct {
    std::string aktuell;
    int anzahl, zelle;
    std::string meldung;
  } const faelle[] = {{"", 6, 250, ""},      {"", 6, 251, bereich},  {"", 1, 255, ""},
                      {"", 2, 255, bereich}, {"", 2, 9, besetzt},    {"", 2, 12, ""},
                      {"", 2, 8, ""},        {"10", 2, 10, besetzt}, {"10", 2, 11, besetzt}};
  for (const auto& f : faelle) {
    Dialog_Kombination k(f.aktuell, f.anzahl);
    if (!f.meldung.empty()) erwarte(f.meldung);
    k.Zellen.waehlen(f.zelle);
    EXPECT_EQ(k.gewaehlt().has_value(), f.meldung.empty()) << f.zelle;
    EXPECT_EQ(k.offen(), !f.meldung.empty());
    EXPECT_EQ(d.maengel(), "") << f.zelle;
  }
}

TEST_F(Umzug, MovingADeviceTakesItsFunctionsAlong) {
  kombination(0, "EG", "Küche", 15);
  apparat(0, 0, 14, -1);
  apparat(0, 1, 80, -1);
  Einmask8 m;
  adresse_waehlen(3);
  m.Command2.druecken();
  for (int j = 0; j < 4; ++j) Belegen(12 + j, static_cast<i16>(j + 1));
  Belegen(16, 6);
  std::ranges::fill(projekt.Grp_led.alle(), i16{0});
  const Projekt vorher = projekt;
  for (const Antwort a : {Antwort::Nein, Antwort::Abbrechen}) verschieben(m, 3, 7, true, a);
  EXPECT_EQ(Geaendert(vorher), "");
  verschieben(m, 3, 7, true);
  EXPECT_EQ(projekt.App_text[0], "7");
  for (int j = 0; j < 4; ++j) {
    EXPECT_EQ(Belegung(12 + j), 0);
    EXPECT_EQ(Belegung(28 + j), j + 1);
    EXPECT_EQ(projekt.Ein_funktext[12 + j] + projekt.Ein_funktext[28 + j], 2);
  }
  EXPECT_EQ(Belegung(16), 6) << "the neighbour keeps its own";
  EXPECT_EQ(projekt.Grp_led[3] + projekt.Grp_led[7], 2);

  m.Image3[1].druecken();
  druecken(m.Command2, {.text = "Ungültige Adressen-Anzahl"});
  projekt.App_text2[16] = "";
  projekt.App_text2[1] = "";
  druecken(m.Command2, {.text = "Apparat ohne Adresse"});
}

TEST_F(Umzug, AThermostatLeavesOthersWhatIsTheirs) {
  kombination(0, "EG", "Küche", 15);
  apparat(0, 0, 78, 10);
  apparat(0, 5, 14, 11);
  for (int a = 10; a < 14; ++a) Belegen(4 * a, static_cast<i16>(a - 9));
  Einmask8 m;
  verschieben(m, 10, 100, false);
  EXPECT_EQ(Belegung(44), 2) << "the other device's";
  EXPECT_EQ(Belegung(404), 0);
  EXPECT_EQ(Belegung(400), 1);
  EXPECT_EQ(Belegung(412), 4);
  apparat(0, 5, 80, -1);
  verschieben(m, 100, 98, false);
  EXPECT_EQ(Belegung(392), 1) << "moves down over its own free cells";
  EXPECT_EQ(Belegung(400), 3);
  EXPECT_EQ(Belegung(404), 4);
  EXPECT_EQ(Belegung(408), 0);
}

TEST_F(Installation, EmptyPlacesHaveNothingToCut) {
  kombination(0, "EG", "Küche", 15);
  Einmask8 m;
  const auto probieren = [&](Taste& t, const std::string& leer, const std::string& ohne) {
    m.Image3[0].druecken();
    druecken(t, {.text = leer});
    projekt.App_text2[0] = "";
    druecken(t, {.text = ohne});
  };
  probieren(m.mnuCut, "Nichts zu auszuschneiden, kein Apparat an dieser Stelle", "Nichts auszuschneiden");
  probieren(m.Command12, "Nichts zu kopieren, kein Apparat an dieser Stelle", "Nichts zu kopieren");
  probieren(m.mnuDelete, "Nichts zu löschen, kein Apparat an dieser Stelle", "Nichts zu löschen");
  EXPECT_EQ(m.mnuPaste.frei, false);
}

TEST_F(Installation, CutAndPasteKeepsTheAddress) {
  kombination(0, "EG", "Küche", 16);
  kombination(1, "OG", "Bad", 15);
  apparat(0, 0, 71, 250);
  projekt.Dev_text[23] = "Blau";
  projekt.App_enocean_text3[0] = "x";
  projekt.App_enocean_empf[0] = 3;
  Belegen(1023, 4);
  projekt.Ein_led[1023] = 5;
  Einmask8 m;
  const Projekt vorher = projekt;
  m.mnuCut.druecken();
  EXPECT_EQ(Geaendert(vorher),
            "Ein_leer(1023)=0 Ein_funktext(1000-1023)=1 Ein_led(1023)=640 Ein_relais(1023,511)=0 "
            "Ein_timer(1023,15)=0 Ein_dimmer(1023,127,3)=0 App_typ(0)=80 App_text(0)= App_text2(0)= "
            "Dev_text(23)= App_enocean_text3(0)= App_enocean_empf(0)=255 App_eigenschaften(1023,7)=");

  m.TreeView1.waehlen("1key1547852");
  druecken(m.Command4, {.text = "Bitte wählen Sie für diesen Apparat die Kombination 'Diverse'"});
  m.TreeView1.waehlen("0key1547852");
  m.mnuPaste.druecken();
  EXPECT_EQ(Geaendert(vorher), "Ein_funktext(1000-1023)=1 Ein_led(1023)=640 App_text2(16)=0");
}

TEST_F(Installation, CopiesTakeAddressesOfTheirOwn) {
  kombination(0, "EG", "Küche", 15);
  apparat(0, 0, 14, 3);
  projekt.Dev_text[2] = "Licht";
  projekt.Dev_adr[2] = 17;
  Belegen(14, 2);
  Einmask8 m;
  m.Command12.druecken();
  const auto einfuegen = [&](int alt, int neu) {
    d.erwarte({.text = "Der Apparat in der Zwischenablage hat Adresse i" + std::to_string(alt) +
                       ". Bitte wählen Sie für die einzufügende Kopie eine neue Adresse aus."});
    druecken<Dialog_Kombination>(m.mnuPaste, [this, alt, neu](Dialog_Kombination& k) {
      if (neu >= 0) {
        d.erwarte(wechsel(alt, neu, true), Antwort::Ja);
        k.Zellen.waehlen(neu);
      } else {
        k.Cancel.druecken();
      }
    });
  };
  const Projekt vorher = projekt;
  druecken(m.mnuPaste, {.text = "Bitte löschen Sie zuerst den alten Apparat."});
  EXPECT_EQ(projekt, vorher);
  m.Image3[1].druecken();
  einfuegen(3, 7);
  m.Image3[2].druecken();
  einfuegen(7, 255);
  for (const int e : {14, 30, 1022}) EXPECT_EQ(Belegung(e), 2) << e;
  EXPECT_EQ(projekt.Dev_text[8 + 2], "Licht");
  EXPECT_EQ(projekt.Dev_adr[16 + 2], 17);
  EXPECT_EQ(projekt.App_text[2], "255");
  EXPECT_EQ(projekt.Grp_led[255], 1);
  m.Image3[3].druecken();
  einfuegen(255, -1);
  EXPECT_EQ(projekt.App_typ[3], 80);
  EXPECT_EQ(m.Command4.frei, false) << "a copy without a new address cannot be pasted";
  m.Image3[4].druecken();
  EXPECT_EQ(m.mnuPaste.frei, false);
}

TEST_F(Installation, WhatWasCutFindsItsAddressTaken) {
  kombination(0, "EG", "Küche", 15);
  apparat(0, 0, 14, 3);
  Belegen(14, 2);
  Einmask8 m;
  m.mnuCut.druecken();
  apparat(0, 1, 14, 3);
  Belegen(14, 5);
  erwarte(
      "Der Apparat in der Zwischenablage hat Adresse i3. Bitte wählen Sie für die einzufügende Kopie eine "
      "neue Adresse aus.");
  druecken<Dialog_Kombination>(m.mnuPaste, [](Dialog_Kombination& k) { k.Cancel.druecken(); });
  EXPECT_EQ(Belegung(14), 5);
  EXPECT_EQ(m.mnuPaste.frei, true) << "it is nowhere else";
}

TEST_F(Installation, DeletedDevicesDoNotComeBack) {
  kombination(0, "Dach", "Wetter", 16);
  kombination(1, "EG", "Küche", 15);
  apparat(0, 0, 75, 60);
  apparat(1, 3, 33, -1);
  Einmask8 m;
  druecken(m.mnuDelete, loeschfrage("Der Apparat"), Antwort::Nein);
  EXPECT_EQ(projekt.App_typ[0], 75);
  m.mnuCopy.druecken();
  druecken(m.mnuPaste, {.text = "Es ist bereits ein Wettersensor definiert. Pro ZAVmaster kann nur EIN "
                                "Wettersensor definiert werden."});
  druecken(m.Command3, loeschfrage("Der Apparat"), Antwort::Ja);
  EXPECT_EQ(projekt.App_typ[0], 80);
  EXPECT_EQ(m.mnuPaste.frei, false);
  m.TreeView1.waehlen("1key1547852");
  EXPECT_EQ(m.mnuPaste.frei, false);
  m.Image3[3].druecken();
  m.mnuCut.druecken();
  m.Image3[4].druecken();
  m.mnuPaste.druecken();
  EXPECT_EQ(projekt.App_typ[16 + 4], 33) << "a socket needs no address";

  // Pasting knows another list of kinds for "Diverse" than placing: 92 in place of 93.
  for (const int typ : {92, 93}) {
    apparat(1, 3, typ, -1);
    m.Image3[3].druecken();
    m.mnuCut.druecken();
    if (typ == 92) erwarte("Bitte wählen Sie für diesen Apparat die Kombination 'Diverse'");
    m.mnuPaste.druecken();
    EXPECT_EQ(projekt.App_typ[16 + 3], typ == 92 ? 80 : 93);
  }
}

TEST_F(Installation, AThermostatAndTheDeviceBehindItKeepTheirTexts) {
  kombination(0, "EG", "Küche", 15);
  apparat(0, 0, 40, 10);
  apparat(0, 1, 5, 20);  // keys 2 and 3, no LED
  projekt.Dev_text[10] = "Nachbar";
  projekt.Dev_adr[11] = 8;  // the thermostat's fourth list
  Einmask8 m;
  m.mnuCut.druecken();
  EXPECT_EQ(projekt.Dev_text[10], "Nachbar");
  EXPECT_EQ(projekt.Dev_adr[11], 640);
  m.Image3[4].druecken();
  m.mnuPaste.druecken();
  EXPECT_EQ(projekt.Dev_adr[43], 8);
  EXPECT_EQ(projekt.Dev_text[42], "");
}

}  // namespace
}  // namespace zav
