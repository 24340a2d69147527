// The tree, the places and the device page of the installation editor, as a person goes through them.
#include <algorithm>

#include "editor/actmask.h"
#include "editor/apparatseite.h"
#include "editor/import.h"
#include "einmask8_hilfen.h"
#include "testmaster.h"

namespace zav {
namespace {

// The knots of the tree, each with the one above it.
std::string Baumtexte(const Baum& b) {
  std::string texte;
  for (const Baum::Knoten& k : b.knoten()) {
    texte += (k.eltern < 0 ? "" : b.knoten()[static_cast<std::size_t>(k.eltern)].text + ">") + k.text + "|";
  }
  return texte;
}

TEST_F(Installation, TreeGathersRoomsUnderTheirStorey) {
  {
    const Einmask8 leer;
    EXPECT_EQ(Baumtexte(leer.TreeView1), "|");
    EXPECT_EQ(leer.Text7.text(), "0");
  }
  kombination(0, "Erdgeschoss", "Küche", 0);
  kombination(1, "Dach", "Wetter", 16);
  kombination(2, "Erdgeschoss", "Wohnen", 15);
  Einmask8 m;
  EXPECT_EQ(Baumtexte(m.TreeView1),
            "Erdgeschoss|Erdgeschoss>Dach|Erdgeschoss>Küche|Dach>Wetter|Erdgeschoss>Wohnen|");
  EXPECT_EQ(m.Text7.text(), "3");
  m.TreeView1.waehlen("2key1547852");
  EXPECT_EQ(m.kombination(), 2);
  EXPECT_EQ(m.Frame1.titel, "Erdgeschoss - Wohnen");
  m.TreeView1.waehlen("Dach");
  EXPECT_EQ(m.kombination(), 2) << "a storey does nothing";
  EXPECT_EQ(m.Image3[15].sichtbar, true);
  m.TreeView1.waehlen("1key1547852");
  EXPECT_EQ(m.Image3[1].sichtbar, false);
  EXPECT_EQ(sitzung.Projekt_geaendert, 0) << "looking changes nothing";
}

TEST_F(Installation, SearchShowsWhatItFindsAndChoosesThePlace) {
  kombination(0, "EG", "Küche", 15);
  kombination(1, "OG", "Bad", 15);
  kombination(2, "OG", "Gäste", 15);
  apparat(1, 3, 70, 20);
  projekt.Dev_text[(16 + 5) * 8] = "Radio laut";  // a key of the list at place 3, kept two places behind it
  projekt.Dev_text[(32 + 1) * 8 + 2] = "Radio";
  apparat(2, 1, 14, 30);
  Einmask8 m;
  const auto ort = [&m] { return m.TreeView1.gewaehlt() + "/" + std::to_string(m.platz()); };
  m.Text_Suche.eingeben("RADIO");
  EXPECT_EQ(Baumtexte(m.TreeView1), "EG|EG>OG|OG>Bad|OG>Gäste|");
  for (const char* fund : {"1key1547852/3", "2key1547852/1", "1key1547852/3"}) {
    EXPECT_EQ(ort(), fund) << "round and round";
    m.Text_Suche.eingabe();
  }
  m.Text_Suche.eingeben("i30");
  EXPECT_EQ(ort(), "2key1547852/1");
  m.Text_Suche.eingeben("I25");
  EXPECT_EQ(ort(), "1key1547852/3") << "the last address of a run of six";
  m.Text_Suche.eingeben("RADIOS");
  EXPECT_EQ(ort(), "1key1547852/3");
  EXPECT_EQ(m.Label1.titel, "Nichts gefunden");
  EXPECT_EQ(m.TreeView1.knoten().size(), 5u) << "all are there again";
  m.Text_Suche.eingeben("");
  EXPECT_EQ(m.Label1.titel, "");
}

TEST_F(Installation, NewKombinationAsksForStoreyRoomAndLayout) {
  Einmask8 m;
  d.erwarte_dialog<Layoutwahl>([this](Layoutwahl& w) {
    erwarte("Eingabe erforderlich");
    w.Text_Standort.eingeben("Keller");
    w.Command1.druecken();
    w.Text_Bezeichnung.eingeben("Bad");
    w.Image6[7].druecken();
    w.Command1.druecken();
  });
  Projekt vorher = projekt;
  m.Command9.druecken();
  EXPECT_EQ(m.kombination(), 0);
  EXPECT_EQ(Geaendert(vorher),
            "Komb_typ(0)=1 Komb_text(0)=Keller Komb_text2(0)=Bad Komb_layout(0)=7 App_text2(0)=0");
  EXPECT_EQ(sitzung.Projekt_geaendert, 1);

  apparat(0, 9, 14, -1);
  vorher = projekt;
  druecken<Layoutwahl>(m.Command_Layout, [this](Layoutwahl& w) {
    druecken(
        w.Image6[4],
        {.text =
             "Bitte zuerst Apparate löschen. Die gewünschte Kombination ist kleiner als die bestehende."});
    w.Command1.druecken();
    w.Cancel.druecken();
  });
  druecken<Layoutwahl>(m.Command_Layout, [](Layoutwahl& w) {
    w.Image6[16].druecken();
    w.Command1.druecken();
  });
  EXPECT_EQ(Geaendert(vorher), "Komb_layout(0)=16") << "Diverse is not checked";

  for (int k = 0; k < kombinationen; ++k) kombination(k, "S", std::to_string(k), 0);
  druecken(m.Command9, {.text = "Es sind bereits alle 256 Kombinationen belegt."});
}

TEST_F(Installation, DeletingAKombinationClosesTheGap) {
  const Meldung frage = loeschfrage("Die Kombination");
  for (int k = 0; k < kombinationen; ++k) kombination(k, "S", std::to_string(k), k % 16);
  apparat(0, 0, 14, 3);
  apparat(255, 15, 84, 9);
  projekt.Dev_text[32767] = "letzte";
  projekt.Dev_adr[32767] = 641;
  projekt.App_enocean_id[4095] = "0123ABCD";
  projekt.App_enocean_empf[4095] = 2;
  Einmask8 m;
  druecken(m.Command13, {.text = "Bitte löschen Sie vorher alle Apparate"});
  m.TreeView1.waehlen("1key1547852");
  druecken(m.Command13, frage, Antwort::Nein);
  EXPECT_EQ(projekt.Komb_text2[1], "1");
  Projekt soll = projekt;
  druecken(m.Command13, frage, Antwort::Ja);
  EXPECT_EQ(zeigt(m.Label1, m.Frame1, m.Text7), "Kombination gelöscht|Kombination|255");
  for (int k = 1; k < 255; ++k) {
    soll.Komb_text2[k] = std::to_string(k + 1);
    soll.Komb_layout[k] = static_cast<i16>((k + 1) % 16);
  }
  EXPECT_EQ(Geaendert(soll),
            "Komb_typ(255)=0 Komb_text(255)= Komb_text2(255)= Komb_layout(255)=0 App_typ(4079)=84 "
            "App_typ(4095)=80 App_text(4079)=9 App_text(4095)= App_text2(16)= App_text2(4079)=1 "
            "App_text2(4095)= Dev_text(32639)=letzte Dev_text(32767)= Dev_adr(32639)=641 Dev_adr(32767)=640 "
            "App_enocean_id(4079)=0123ABCD App_enocean_id(4095)= App_enocean_empf(4079)=2 "
            "App_enocean_empf(4095)=255");
}

TEST_F(Installation, PlacingRulesKeepAddressesTogether) {
  const std::string andere =
      "Bitte löschen Sie zuerst den alten Apparat, da der neue nicht gleich viele Adressen belegt.";
  const std::string keine = "Bitte löschen Sie zuerst den alten Apparat, da der neue keine Adressen belegt.";
  const std::string diverse = "Bitte wählen Sie für diesen Apparat die Kombination 'Diverse'";
  const std::string wetter =
      "Es ist bereits ein Wettersensor definiert. Pro ZAVmaster kann nur EIN Wettersensor definiert werden.";
  kombination(0, "Dach", "Wetter", 16);
  kombination(1, "EG", "Küche", 0);
  kombination(2, "EG", "IR", 16);
  struct {
    int k, alt, adresse, neu;
    std::string verweigert;
  } const faelle[] = {
      {1, 80, -1, 65, diverse}, {1, 80, -1, 77, diverse}, {1, 30, 10, 25, ""},     {1, 14, 10, 25, andere},
      {1, 25, 10, 14, andere},  {1, 14, 10, 1, ""},       {1, 14, 10, 80, keine},  {1, 14, -1, 80, ""},
      {1, 14, 10, 33, keine},   {1, 14, -1, 40, ""},      {1, 14, 10, 40, andere}, {1, 40, 10, 78, ""},
      {2, 65, 10, 93, ""},      {2, 77, 10, 93, andere},  {2, 80, -1, 75, wetter}, {1, 80, -1, 75, diverse},
      {1, 80, -1, 84, ""},      {1, 80, -1, 59, ""},
  };
  EXPECT_EQ(Apparatwahl_Enocean().Bilder.eintrag(16).hinweis, "Zweifachtaster EnOcean (Bild:81)");
  apparat(0, 0, 75, -1);
  Einmask8 m;
  for (const auto& f : faelle) {
    apparat(f.k, 0, f.alt, f.adresse);
    m.TreeView1.waehlen(std::to_string(f.k) + "key1547852");
    sitzung.Projekt_geaendert = 0;
    if (!f.verweigert.empty()) {
      d.erwarte_dialog<Bilderseite>([&](Bilderseite& w) { w.Bilder.waehlen(std::to_string(f.neu)); });
      erwarte(f.verweigert);
      const Projekt vorher = projekt;
      m.mnuChoose.druecken();
      EXPECT_EQ(Geaendert(vorher), "");
    } else {
      setzen(m, f.neu);
      EXPECT_EQ(projekt.App_typ[16 * f.k], f.neu);
      EXPECT_EQ(projekt.App_text2[16 * f.k], std::to_string(Apparat_art(f.neu)->adressen));
      EXPECT_EQ(projekt.App_enocean_art[16 * f.k], f.neu == 84 ? 2 : 0);
    }
    EXPECT_EQ(sitzung.Projekt_geaendert, f.verweigert.empty() ? 1 : 0) << f.alt << " -> " << f.neu;
    EXPECT_EQ(d.maengel(), "") << f.alt << " -> " << f.neu;
  }
}

// The page of a kind in short: text fields, LED lists and buttons that show, by number.
std::string Seite(const Einmask8& m) {
  std::string s;
  const auto liste = [&](const auto& feld) {
    for (std::size_t i = 0; i < feld.size(); ++i) {
      if (feld[i].sichtbar) s += (s.empty() || s.back() == '|' ? "" : " ") + std::to_string(i);
    }
    s += "|";
  };
  liste(m.TTxt);
  liste(m.Combo_LED);
  liste(m.Command15);
  return s;
}

// What each kind's page has stands in golden_test.
TEST_F(Installation, APageShowsWhatItsKindHas) {
  const std::string alle = "0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23|";
  const std::pair<int, std::string> faelle[] = {{26, "2 3 4 5 6 7|2 3 4 5 6 7|2 3 4 5 6 7|"},
                                                {40, "0 1 2|0 1 2 3|0 1 2 8|"},
                                                {45, "0 1||0 1 2 3|"},
                                                {79, alle + "|" + alle},
                                                {75, "|||"},
                                                {0, "|||"},
                                                {94, "|||"},
                                                {65, alle + "|" + alle}};
  kombination(0, "EG", "Alles", 16);
  Einmask8 m;
  for (const auto& [typ, seite] : faelle) {
    projekt.App_typ[0] = static_cast<i16>(typ);
    projekt.App_text2[0] = "9";
    m.Image3[0].druecken();
    EXPECT_EQ(Seite(m), seite) << typ;
    const Apparatart* const art = Apparat_art(typ);
    EXPECT_EQ(m.Frame2.titel, art == nullptr ? "" : std::string(art->titel));
    EXPECT_EQ(projekt.App_text2[0], art == nullptr ? "9" : std::to_string(art->adressen)) << typ;
    std::size_t knoepfe = 0;
    for (const auto& z : m.Tastenzeilen()) knoepfe += z.ereignisse.size();
    EXPECT_EQ(knoepfe, static_cast<std::size_t>(
                           std::ranges::count_if(m.Command15, [](const Taste& t) { return *t.sichtbar; })));
  }
  EXPECT_EQ(zeigt(m.Label_Zeile[5], m.Label_Taste[20], m.Command15[23]),
            "Mehrfachsender, Tasten D, E, F|D|Funktionen...");
  EXPECT_EQ(m.Command15[23].hinweis, "Funktionen dieser Taste bearbeiten");
  projekt.App_typ[0] = 78;
  m.Image3[0].druecken();
  EXPECT_EQ(m.Label_LED[1].titel, "Display: Aus = Aktiv, Ein = Dunkel");
}

TEST_F(Installation, TextsAndLedsGoToTheirSlotsAndReachTheMaster) {
  for (int k = 0; k < kombinationen; ++k) kombination(k, "EG", "Raum", 15);
  apparat(0, 0, 40, 10);  // its LED lists write the slots 8 to 11
  apparat(0, 5, 69, 20);  // two events a key
  apparat(0, 6, 39, 30);
  apparat(255, 15, 30, 254);
  std::ranges::fill(projekt.Grp_led.alle(), i16{0});
  projekt.Grp_thermo[99] = 1;
  Einmask8 m;
  const Projekt vorher = projekt;
  m.Combo_LED[1].waehlen("LED dauernd ein");
  m.Image3[5].druecken();
  m.Combo_LED[2].waehlen(513);
  m.Image3[6].druecken();
  m.Combo_LED[3].waehlen(1);
  m.TTxt[0].eingeben("Heizung");
  m.TreeView1.waehlen("255key1547852");
  m.Image3[15].druecken();
  EXPECT_EQ(m.Label_Adresse.titel, "Adresse i254 - i255");
  m.TTxt[7].eingeben("Licht");
  m.Combo_LED[7].waehlen(29);
  m.Cancel.druecken();

  // The thermostat's third address shows its lists, an edge input's two events one LED.
  EXPECT_EQ(Geaendert(vorher),
            "Grp_led(12)=1 Grp_led(21)=1 Grp_led(30)=1 Grp_led(255)=1 Grp_thermo(12)=1 Grp_thermo(30)=1 "
            "Grp_thermo(99)=0 Ein_led(49)=641 Ein_led(84-85)=513 Ein_led(123)=1 Ein_led(1023)=29 "
            "App_text2(4080)=0 Dev_text(48)=Heizung Dev_text(32767)=Licht Dev_adr(9)=641 Dev_adr(42)=513 "
            "Dev_adr(51)=1 Dev_adr(32767)=29");

  apparat(255, 15, 78, 200);
  m.oeffnen();
  m.Image3[15].druecken();
  EXPECT_EQ(m.Combo_LED[0].frei, false) << "no place behind the last one";
  m.Cancel.druecken();
}

TEST_F(Installation, EventsOpenByTheirOffset) {
  kombination(0, "EG", "Küche", 16);
  apparat(0, 0, 30, -1);
  projekt.Dev_text[5] = "Licht";
  Einmask8 m;
  adresse_waehlen(12);
  m.Command2.druecken();
  druecken<Actmask>(m.Command15[5], [](Actmask& a) {
    EXPECT_NE(a.titel().find("EG - Küche - Licht"), std::string::npos) << a.titel();
    a.Check1[2].haken(true);
    a.Combo1[2].waehlen(2);
    a.Text1[2].ausfuellen("Decke");
    a.Command5.druecken();
  });
  EXPECT_TRUE(projekt.Ein_relais(53, 2) == 2 && projekt.Ein_leer[53] == 1);
  EXPECT_EQ(m.Command15[5].farbe, Farbe::belegt);
  EXPECT_EQ(m.Command15[5].marken, "O");
  EXPECT_EQ(m.Command15[4].farbe, Farbe::normal);
  EXPECT_TRUE(m.Taste_belegt(0, 5));
  EXPECT_EQ(m.Combo_LED[0].eintrag(2).text, "O0-2: Decke") << "lists follow new texts";

  // An edge input: the falling edge of key 2 has offset 5. A remote control: 24 events.
  projekt.App_typ[0] = 69;
  projekt.Dev_text[2] = "Tor";
  m.Image3[0].druecken();
  EXPECT_EQ(m.Command15[5].farbe, Farbe::belegt);
  d.erwarte_dialog<Actmask>([](Actmask& a) {
    EXPECT_NE(a.titel().find("EG - Küche - Tor"), std::string::npos);
    a.Command6.druecken();
  });
  m.Command15[5].rechts_druecken();
  m.mnuCommand7.druecken();
  apparat(0, 0, 71, 20);
  projekt.Ein_leer[103] = 1;
  m.Image3[0].druecken();
  EXPECT_EQ(m.Command15[23].farbe, Farbe::belegt);
}

TEST_F(Installation, FeedbackSearchLinksTheFirstOutput) {
  kombination(0, "EG", "Küche", 15);
  apparat(0, 0, 14, 10);
  projekt.Ein_relais(40, 7) = 5;  // a blind
  projekt.Ein_relais(41, 6) = 7;  // a thermostat
  projekt.Ein_relais(41, 9) = 4;
  projekt.Ein_dimmer(42, 5, 2) = 60;
  std::ranges::fill(projekt.Grp_led.alle(), i16{0});
  const Projekt vorher = projekt;
  Einmask8 m;
  druecken(
      m.mnuRucksuch,
      "2 LED-Rückmeldungen gefunden\nKeine LED-Rückmeldungen für Storen, Timer und Thermo, bitte manuell "
      "verknüpfen");
  EXPECT_EQ(Geaendert(vorher), "Grp_led(10)=1 Dev_adr(1)=9 Dev_adr(2)=517");
}

TEST_F(Installation, DoorsLeadWhereTheyShould) {
  kombination(0, "Dach", "Wetter", 16);
  std::string gang;
  Einmask8 m(
      {.senden = [&] { gang += " senden"; },
       .wetterlogik = [&] { gang += " wetter"; },
       .enocean_definition = [&](int p) { gang += " funk" + std::to_string(p); },
       .enocean_schatten_kopieren = [&] { gang += " schatten"; },
       .enocean_abgleichen = [&] { gang += " abgleichen"; },
       .app_seite = [&](int p, int j) { gang += " app" + std::to_string(p) + "," + std::to_string(j); }});
  apparat(0, 0, 75, 60);
  m.Image3[0].druecken();
  m.Command_Wetter.druecken();
  apparat(0, 0, 89, 60);
  m.Image3[0].druecken();
  m.Slider20.schieben(200);
  EXPECT_EQ(m.Label_Lux.titel, "200 Lux");
  EXPECT_EQ(projekt.App_enocean_wert[0], 200);
  m.Command_Enocean.druecken();
  m.Command15[3].rechts_druecken();
  m.mnuEigenschaften.druecken();
  druecken(m.mnuSend, {.text = "Bitte das erste Senden in dieser Sitzung über das Hauptmenu aufrufen"});
  sitzung.Projekt_gesendet = 1;
  m.mnuSend.druecken();
  m.schliessen_wuenschen();
  EXPECT_FALSE(m.offen());
  EXPECT_EQ(gang, " schatten wetter funk0 app0,3 abgleichen senden abgleichen");
}

TEST_F(Installation, LiveCommandsReachTheMasterAndAlwaysReleaseTheKey) {
  Testmaster sim;
  sim.verbinden();
  kombination(0, "EG", "Küche", 15);
  apparat(0, 0, 30, -1);
  Einmask8 m;
  m.Command15[5].rechts_druecken();
  druecken(m.mnuOn, {.text = "Bitte Adresse definieren"});
  projekt.App_text[0] = "12";
  m.mnuShort.druecken();
  m.mnuOn.druecken();
  EXPECT_FALSE(m.mnuOn.frei || m.mnuShort.frei);
  m.Command15[0].rechts_druecken();
  m.mnuOff.druecken();
  m.mnuOn.druecken();
  m.Cancel.druecken();
  std::vector<std::string> y;
  for (const std::string& zeile : sim.mitschrift()) {
    if (zeile.starts_with("Y")) y.push_back(zeile);
  }
  // Address 13, key 2; then address 12, key 1, released by closing.
  EXPECT_EQ(y, (std::vector<std::string>{"Y041A0202", "Y041A0102", "Y041A0002", "Y04180101", "Y04180001"}));
}

TEST_F(Installation, ImportMakesAKombinationOfEachGroup) {
  struct {
    int adresse;
    const char* text;
    i16 bild;
    int typ, anzahl;
  } const faelle[] = {{3, "Küche", 5, 54, 1}, {7, "@me Wohnen", 5, 65, 6}, {13, "x", 24, 48, 2},
                      {20, "@wa", 0, 67, 1},  {21, "@di Bad", 0, 40, 4},   {30, "?", 7, 73, 1},
                      {31, "y", 42, 73, 1},   {32, "z", 40, 25, 2},        {253, "@no Keller", 1, 76, 6}};
  for (const auto& f : faelle) {
    projekt.Grp_text[f.adresse] = f.text;
    projekt.Grp_typ[f.adresse] = f.bild;
  }
  projekt.Grp_text[9] = "gehört zum Mehrfachsender";
  projekt.Ein_text[5] = "ohne Gruppentext";
  projekt.Ein_text[4 * 7 + 23] = "F";
  projekt.Ein_led[4 * 7 + 23] = 77;
  projekt.Ein_text[1023] = "letzter";
  Einmask8 m;
  m.mnuImport.druecken();
  int k = 0;
  for (const auto& f : faelle) {
    EXPECT_EQ(projekt.App_typ[16 * k], f.typ) << f.text;
    EXPECT_EQ(projekt.App_text[16 * k] + "x" + projekt.App_text2[16 * k],
              std::to_string(f.adresse) + "x" + std::to_string(f.anzahl));
    EXPECT_EQ(projekt.Komb_layout[k++], layout_diverse);
  }
  EXPECT_EQ(projekt.Komb_text[k], "");
  EXPECT_EQ(projekt.Komb_text2[0], "i003: Küche");
  EXPECT_EQ(projekt.Dev_text[128 + 23], "F");
  EXPECT_EQ(projekt.Dev_adr[128 + 23], 77);
  EXPECT_EQ(projekt.Dev_text[8 * 128 + 11], "letzter");
  EXPECT_TRUE(Baumtexte(m.TreeView1).starts_with("IMPORT|IMPORT>i003: Küche|"));
  const Projekt vorher = projekt;
  druecken(m.mnuImport, {.text = "Import nicht zulässig, wenn schon Kombinationen bestehen. Bitte löschen "
                                 "Sie alle Kombinationen oder "
                                 "erstellen Sie ein neues Projekt."});
  EXPECT_EQ(Geaendert(vorher), "");
}

}  // namespace
}  // namespace zav
