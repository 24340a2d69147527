// The phone app: the descriptor byte for byte, the properties of a key, and the cameras.
#include <gtest/gtest.h>

#include "app/app_eigenschaften_seite.h"
#include "app/deskriptor.h"
#include "app/eigenschaften.h"
#include "app/ip_kameras.h"
#include "app/xml_text.h"
#include "app/zavapp_form.h"
#include "basis/text.h"
#include "hilfen.h"
#include "projektvergleich.h"
#include "pruefstand.h"

namespace zav {
namespace {

class App : public Pruefstand {
 protected:
  static void taste(int k, int platz, int n, const char* text) {
    projekt.Dev_text[128 * k + 8 * platz + n] = text;
  }
  static void setzen(int ereignis, std::initializer_list<std::pair<App_feld, const char*>> werte) {
    for (const auto& [f, wert] : werte) projekt.App_eigenschaften.zeile(ereignis)[f] = wert;
  }
};

// ---- the descriptor: as a whole it stands in golden_test

TEST_F(App, QuestionsAndFeedbackFollowTheirKind) {
  projekt.Komb_text[0] = "EG";
  apparat(0, 0, 14, 0);
  taste(0, 0, 0, "x");
  setzen(0, {{App_geraet, "3"},
             {App_mit_bestaetigung, "1"},
             {App_mit_rueckmeldung, "1"},
             {App_frage1, "A"},
             {App_frage2, "B"}});
  for (const auto& [art, zustand, frage] :
       {std::tuple{"0", "", "A"}, {"1", " forstate =\"off\"", "A"}, {"2", " forstate =\"on\"", "B"}}) {
    setzen(0, {{App_frage_art, art}});
    EXPECT_NE(
        App_xml_bauen(projekt).find("<confirmation" + std::string(zustand) + " keyok=\"\" keyabort=\"\">" +
                                    frage + "</confirmation>\r\n            </node>"),
        std::string::npos);
  }
  const std::pair<const char*, const char*> ausgaenge[] = {
      {"0", "O0-0"}, {"511", "O63-7"}, {"512", "D0-0"}, {"639", "D31-3"}, {"640", "-"}, {"", "-"}};
  for (const auto& [nummer, text] : ausgaenge) {
    setzen(0, {{App_rueckmeldung, nummer}});
    EXPECT_NE(App_xml_bauen(projekt).find(">" + std::string(text) + "</feedbackaddress>"), std::string::npos);
  }
  setzen(0, {{App_geraet, "0"}});
  EXPECT_EQ(App_xml_bauen(projekt).find("button"), std::string::npos);
}

TEST_F(App, StoreysAreSortedWithoutCaseAndKeepTheirOrder) {
  int k = 7;
  for (const char* standort : {"Ober", "erd", "ÄUSSERES", "ober", "äUSSERES", "Erd", "", "Ober"}) {
    projekt.Komb_text[k] = standort;
    projekt.Komb_text2[k] = std::to_string(k - 6);
    ++k;
  }
  std::string folge;
  const std::string tasten = App_xml_bauen(projekt);
  for (std::size_t n = 0; (n = tasten.find("          <title>", n)) != std::string::npos; ++n)
    folge += tasten[n + 17];
  EXPECT_EQ(folge, "2614835");
}

TEST_F(App, SlotsBehindAnOccupiedPlaceAreNotExported) {
  projekt.Komb_text[0] = "EG";
  apparat(0, 0, 40, 20);
  apparat(0, 1, 14, 30);
  taste(0, 1, 0, "Nachbar");
  for (int e = 0; e < eingangsereignisse; ++e) setzen(e, {{App_geraet, "3"}});
  EXPECT_EQ(App_zaehlen(projekt).normale, 1);
  EXPECT_EQ(App_xml_bauen(projekt).find("I22-1"), std::string::npos);
  projekt.App_text[16] = "acht";  // damaged: no address, no keys
  projekt.App_text[1] = "300";
  EXPECT_EQ(App_zaehlen(projekt).normale, 0);
}

TEST_F(App, CamerasHaveSixPortsFromAnyFirstOne) {
  projekt.Kamera_aktiv[2] = "1";
  // Empty, and the largest that a file can hold.
  for (const auto& [von, ports] : {std::pair{"", "\"0-5\""}, {"2147483647", "\"2147483647-2147483652\""}}) {
    projekt.Kamera_stream_von[2] = von;
    EXPECT_NE(App_xml_bauen(projekt).find(std::string("streamportpool=") + ports), std::string::npos);
  }
}

TEST_F(App, TextsPassAsBytes) {
  EXPECT_EQ(
      Xml_text("äöüÄÖÜéèà<>&\"'"),
      "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x84\xC3\x96\xC3\x9C\xC3\xA9\xC3\xA8\xC3\xA0&lt;&gt;&amp;&quot;&apos;");
  EXPECT_EQ(Xml_text("ß€ç\x7F"), "\xDF\x80\xE7\x7F");
  EXPECT_EQ(
      App_titel_teil("a--b--c") + "|" + App_untertitel_teil("a--b--c") + "|" + App_untertitel_teil("a-b"),
      "a|b--c|");
}

TEST_F(App, ExportAsksForTheFileAndKeepsTheOldOneOnFailure) {
  const Testordner ordner;
  ZAVapp_Form f;
  f.Text1.eingeben("Mein Haus");
  d.erwarte_datei(std::nullopt);
  f.Command1.druecken();
  ASSERT_EQ(d.dateifragen().size(), 1U);
  const Dateifrage& frage = d.dateifragen()[0];
  EXPECT_EQ(frage.vorschlag + frage.endung, "zavappdescriptor.xml");
  EXPECT_EQ(frage.filter, (std::vector<Dateifilter>{{"XML-Datei (*.xml)", "*.xml"}}));
  EXPECT_TRUE(frage.ueberschreiben_fragen);
  EXPECT_EQ(projekt.App_allgemein[0], "Mein Haus");
  EXPECT_EQ(sitzung.Projekt_geaendert, 1);

  d.erwarte_datei(Dateiwahl{.pfad = ordner / "a.xml"});
  f.Command1.druecken();
  EXPECT_EQ(Dateibytes(ordner / "a.xml"), App_xml_bauen(projekt));
  EXPECT_EQ(f.Label2.titel, "Geschrieben: " + ordner / "a.xml");
  d.erwarte_datei(Dateiwahl{.pfad = ordner / "fehlt/a.xml"});
  druecken(
      f.Command1,
      {"Datei oder Ordner nicht gefunden. Die Datei mit diesem Namen ist möglicherweise schreibgeschützt. "
       "Speichern Sie sie mit einem anderen Namen oder in einen anderen Ordner.",
       "ZAVlink: Fehler 2", Knoepfe::OK, Symbol::Stopp});
  EXPECT_EQ(f.Label2.titel, "");
  projekt.Datei_version = "900";
  d.erwarte_text(
      "Wenn Sie die neuen Funktionen von ZAVlink-Version 9.102 nutzen möchten, wählen Sie 'Speichern unter' "
      "und den Dateityp 910. Achtung: Das Betriebssystem des ZAVmasters muss auf die Version 9 aufgerüstet "
      "werden.");
  EXPECT_FALSE(App_daten_moeglich());
}

// ---- properties

TEST_F(App, AutomaticFillFindsIconAndFeedback) {
  apparat(0, 0, 14, 5);
  taste(0, 0, 0, "STOREN auf");
  projekt.Ein_relais(20, 6) = 5;  // blind: no feedback
  projekt.Ein_relais(21, 9) = 4;
  projekt.Ein_relais(21, 30) = 2;
  projekt.Ein_dimmer(22, 7, 2) = 60;
  projekt.Dev_adr[5000] = 30;  // an LED shows it
  setzen(20, {{App_rueckmeldung, "17"}, {App_frage1, "bleibt"}, {App_tastentext, "alt"}});
  const App_automatik automatik(projekt);
  Projekt vorher = projekt;
  for (int j = 0; j < 5; ++j) automatik.fuellen(0, j, projekt.App_eigenschaften.zeile(20 + j));
  EXPECT_EQ(Geaendert(vorher),
            "App_eigenschaften(20,0)=3 App_eigenschaften(20,3)=1 App_eigenschaften(20,7)=0 "
            "App_eigenschaften(20,8)=3 App_eigenschaften(20,9)=Store App_eigenschaften(21,0)=3 "
            "App_eigenschaften(21,3-4)=1 App_eigenschaften(21,7)=0 App_eigenschaften(21,8)=1 "
            "App_eigenschaften(21,9)=Licht App_eigenschaften(21,11)=30 App_eigenschaften(22,0)=3 "
            "App_eigenschaften(22,3-4)=1 App_eigenschaften(22,7)=0 App_eigenschaften(22,8)=2 "
            "App_eigenschaften(22,9)=Dimmer App_eigenschaften(22,11)=519 App_eigenschaften(23,0)=3 "
            "App_eigenschaften(23,3)=1 App_eigenschaften(23,7)=0 App_eigenschaften(23,9)=Taste")
      << "the fifth key is beyond the device";
  projekt.App_typ[0] = 45;  // nobody presses a motion sensor
  vorher = projekt;
  automatik.fuellen(0, 0, projekt.App_eigenschaften.zeile(20));
  EXPECT_EQ(Geaendert(vorher), "App_eigenschaften(20,0)=0");
}

TEST_F(App, PageEditsACopyOfTheDevicesRecords) {
  apparat(2, 1, 14, 7);
  taste(2, 1, 2, "Licht");
  setzen(29, {{App_mit_icon, "1"}, {App_icon_name, "lampe_alt"}, {App_icon_bild, "99"}});
  const Projekt vorher = projekt;
  App_eigenschaften_seite f(33, 2);
  EXPECT_EQ(f.Tastenwahl.text(), "Taste 3: Licht");
  EXPECT_FALSE(f.Text12.frei || f.Combo1.sichtbar);
  f.Combo2.waehlen(3);
  f.Check5.haken(true);
  f.Text12.eingeben("Lampe");
  f.Check6.haken(true);
  f.Combo1.waehlen("Licht");
  f.Check7.haken(true);
  f.Combo4.waehlen(29);
  f.Check8.haken(true);
  f.Option1.waehlen(3);
  EXPECT_EQ(zeigt(f.Label25, f.Label26),
            "Frage 1, wenn Rückmeldung aus ist|Frage 2, wenn Rückmeldung ein ist");
  f.Text18.eingeben("Wirklich?");
  f.Check9.haken(true);
  EXPECT_FALSE(f.Check6.frei || f.Combo1.sichtbar || f.Frame3.sichtbar);
  f.Check9.haken(false);
  // Another key: an icon of another program's is shown and kept.
  f.Tastenwahl.waehlen(1);
  EXPECT_EQ(f.Combo1.text(), "lampe_alt");
  EXPECT_EQ(Geaendert(vorher), "") << "nothing is written before OK";
  f.OK.druecken();
  EXPECT_EQ(Geaendert(vorher),
            "App_eigenschaften(30,0)=3 App_eigenschaften(30,2-5)=1 App_eigenschaften(30,7)=Lampe "
            "App_eigenschaften(30,8)=1 App_eigenschaften(30,9)=Licht App_eigenschaften(30,11)=29 "
            "App_eigenschaften(30,12)=3 App_eigenschaften(30,16)=Wirklich?");
  EXPECT_EQ(sitzung.Projekt_geaendert, 1);

  sitzung = {};
  App_eigenschaften_seite g(33, 2);
  g.Option2.waehlen(1);
  g.Command1.druecken();
  EXPECT_EQ(zeigt(g.Combo1, g.Text12), "Licht|0");
  g.Command2.druecken();
  EXPECT_EQ(std::pair(g.Combo2.position(), g.Combo4.position()), std::pair(0, 640));
  g.Cancel.druecken();
  EXPECT_EQ(sitzung.Projekt_geaendert, 0);
}

// ---- cameras

TEST_F(App, CamerasAreEditedDeletedAndKeptAsLines) {
  projekt.Kamera_text[7] = "bleibt";
  apparat(0, 0, 93, 14);
  taste(0, 0, 1, "Tor");
  {
    IP_Kameras f;
    f.TabStrip1.waehlen(1);
    f.Check1.haken(true);
    f.Text1.eingeben("Eingang");
    f.Combo1.waehlen("Panasonic");
    EXPECT_EQ(zeigt(f.Text7, f.Check2[5]), "panasonic.bb.hcm5xx|an");
    f.Check2[5].haken(false);
    f.Text6.eingeben("65531");
    f.Combo2.waehlen("I14-2:  - Tor");
    f.Text3.eingeben("192.168.1.256");
    f.Text4.eingeben("80");
    druecken(f.Command5, {.text = "Zahl zu gross"});
    EXPECT_EQ(f.Label1.titel, "Die IP-Adresse ist nicht in Ordnung");
    f.Text3.eingeben("192.168.001.020");
    f.Command5.druecken();
    EXPECT_EQ(f.Text3.text(), "192.168.1.20");
    f.TabStrip1.waehlen(0);
    EXPECT_EQ(f.Text1.text(), "");
    druecken(f.Command1, "'65531' ist kein Port (0 bis 65530).");
    EXPECT_EQ(f.TabStrip1.position(), 1);
    f.Text6.eingeben("6000");
    f.Text2.eingeben("a@03#b");
    druecken(f.Command1, "'a@03#b' enthält die Zeichenfolge einer Feldmarkierung (@, zwei Ziffern, #).");
    f.Text2.eingeben("a@3#b");
    EXPECT_EQ(projekt.Kamera_text[1], "X");
    f.Command1.druecken();
    EXPECT_FALSE(f.offen());
  }
  EXPECT_EQ(projekt.Kamera_text[1],
            "Eingang@01#a@3#b@02#192.168.1.20@03#80@04#80@05#6000@06#panasonic.bb.hcm5xx@07#@08#1@09#31@10#"
            "57@11#0@12#0@13#0@14#");
  EXPECT_EQ(projekt.Kamera_text[0], "X") << "looking at a camera does not define it";
  EXPECT_EQ(sitzung.Projekt_geaendert, 1);

  IP_Kameras f;
  f.TabStrip1.waehlen(1);
  EXPECT_EQ(f.Combo1.text(), "Panasonic");
  const Meldung frage{"Wollen Sie diese Kamera und alle Einstellungen wirklich löschen?", "Löschen",
                      Knoepfe::Ja_Nein, Symbol::Warnung, 2};
  druecken(f.Command3, frage, Antwort::Nein);
  EXPECT_EQ(f.Text1.text(), "Eingang");
  druecken(f.Command3, frage, Antwort::Ja);
  EXPECT_EQ(f.Text1.text(), "");
  f.Command1.druecken();
  EXPECT_EQ(projekt.Kamera_text[1] + projekt.Kamera_ip[1] + projekt.Kamera_text[7], "Xbleibt");
}

}  // namespace
}  // namespace zav
