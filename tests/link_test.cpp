#include <gtest/gtest.h>
#include <sys/file.h>

#include <array>
#include <filesystem>
#include <iterator>
#include <tuple>

#include "gegenstelle.h"
#include "hilfen.h"
#include "link/adresse.h"
#include "link/protokoll.h"
#include "platform/uhrwerk.h"
#include "store/sitzung.h"

namespace zav {
namespace {

class Skript : public Meldungsskript {
 public:
  void Hinweis(const std::string& text) override { hinweise.push_back(text); }
  void fehler(const std::string& text) { erwarte({text, "Fehler", Knoepfe::OK, Symbol::Stopp}); }
  std::vector<std::string> hinweise;
};

constexpr const char* gut = "F00A6\r";

class LinkTest : public testing::TestWithParam<Verbindung> {
 protected:
  LinkTest() {
    einstellungen = {};
    leitung = {};
    sitzung = {};
    // Twenty seconds of waiting in one: long enough for a slow machine, where something must come.
    Zeitraffer_setzen(20);
  }
  ~LinkTest() override {
    Port_schliessen();
    Zeitraffer_setzen(1);
  }

  bool ist_com() const { return GetParam() == Verbindung::com; }
  void oeffne() {
    Port_oeffnen();
    ASSERT_EQ(leitung.Port_fehler, 0);
  }
  std::string sende(const std::string& text, i16 zeit = 40, bool anhang = true, int laenge = 6) {
    leitung.Sende_text = text;
    Meldung_senden(leitung.Sende_text, zeit, anhang, laenge);
    return leitung.Empfang_text;
  }

  Skript skript;
};

INSTANTIATE_TEST_SUITE_P(Leitungen, LinkTest, testing::Values(Verbindung::com, Verbindung::tcp),
                         [](const auto& art) { return art.param == Verbindung::com ? "Com" : "Tcp"; });

TEST_P(LinkTest, MessageCarriesItsChecksumAndTheReplyLosesIts) {
  Gegenstelle g(GetParam());
  g.antworte("i69\r", gut);
  g.antworte("V56\r", std::vector<std::string>{"REV 0", "9.04 ", "12\r"});  // the reply comes in pieces
  g.antworte("*", gut);
  g.antworte("s73\r", std::string("\xE4\x80\0??\r", 6));
  g.antworte("W\xFC\x30\x30\x42\x33\r", gut);
  g.los();
  oeffne();
  EXPECT_EQ(sende("i"), "F00\r");
  EXPECT_TRUE(Antwort_ist_gut());
  EXPECT_EQ(leitung.Sende_text, "i69\r");
  EXPECT_EQ(sende("V", 40, true, 13), "REV 09.04 \r");
  EXPECT_EQ(sende("*", 40, false), "F00\r");
  EXPECT_EQ(sende("s"), std::string("ä€\0\r", 7));  // garbage is text like any other
  EXPECT_FALSE(Antwort_ist_gut());
  EXPECT_EQ(sende("Wü00"), "F00\r");  // one byte a character on the wire
  EXPECT_EQ(leitung.Fehler_korrigiert, 0);
}

TEST_P(LinkTest, SilenceAndAShortReplyCountAsNone) {
  for (const std::string antwort : {"", "F00A6"}) {
    Gegenstelle g(GetParam());
    g.antworte("i69\r", antwort).los();
    oeffne();
    sitzung.Master_neu_pruefen = 0;
    const double beginn = Timer();
    EXPECT_EQ(sende("i", 2), "F98\r");
    EXPECT_GE(Timer() - beginn, 1.0) << "two seconds of the rounded clock, with its slack";
    EXPECT_EQ(leitung.Empfang_status + sitzung.Master_neu_pruefen, 2);
    Port_schliessen();
  }
  EXPECT_EQ(skript.pieptoene(), 2);
}

TEST_P(LinkTest, SurplusBytesBeginTheNextReplyUnlessTheyAreDropped) {
  Gegenstelle g(GetParam());
  g.antworte("i69\r", "F00A6\rXYZ").antworte("i69\r", gut);
  g.antworte("EI8E\r", std::vector<std::string>{"..\r..F00", "A6", "\r"}).antworte("i69\r", gut);
  g.los();
  oeffne();
  EXPECT_EQ(sende("i"), "F00\r");
  EXPECT_EQ(sende("i"), "XYZ\r");
  Empfang_leeren();

  EXPECT_EQ(Bytes_senden("EI8E\r"), 5);
  std::string strom;
  std::array<char, 3> puffer{};
  while (!strom.ends_with("F00")) {
    const int n = Bytes_lesen(puffer.data(), 1, 5000);
    ASSERT_EQ(n, 1);
    strom += puffer[0];
  }
  EXPECT_EQ(strom, "..\r..F00");
  Empfang_leeren();  // the rest of the stream is still under way
  EXPECT_EQ(sende("i"), "F00\r");
  EXPECT_EQ(Bytes_lesen(puffer.data(), 3, 10), 0);
}

TEST_P(LinkTest, MasterThatVanishesIsSeenAtOnce) {
  Zeitraffer_setzen(1);
  {
    Gegenstelle g(GetParam());
    g.verschwinde("i69\r", "F0").los();
    oeffne();
    const double beginn = Timer();
    EXPECT_EQ(sende("i", 60), "F98\r");
    EXPECT_LT(Timer() - beginn, 30.0);
    EXPECT_EQ(leitung.Empfang_status, 1);
    EXPECT_EQ(skript.pieptoene(), ist_com() ? 1 : 0);
  }
  // Sending into the void: the serial link complains in a box, the network is silent.
  if (ist_com()) skript.erwarte({.text = "SIO: Fehler -5 bei Befehl puts"});
  EXPECT_EQ(sende("i", 60), "F98\r");
  Port_schliessen();
  if (ist_com()) skript.erwarte({.text = "SIO: Fehler -9 bei Befehl puts"});
  EXPECT_EQ(sende("i", 60), "F98\r");  // a port that is not open
}

TEST_P(LinkTest, CancelEndsTheNextMessageBeforeItIsSent) {
  Gegenstelle g(GetParam());
  g.antworte("i69\r", gut).los();
  oeffne();
  leitung.Abbruch_flag = 1;
  EXPECT_EQ(sende("V"), "F97\r");
  EXPECT_EQ(leitung.Empfang_status, 1);
  EXPECT_EQ(leitung.Abbruch_gemeldet, 1);
  EXPECT_EQ(leitung.Abbruch_flag, 0);
  EXPECT_EQ(skript.pieptoene(), 1);
  EXPECT_EQ(sende("i"), "F00\r");
  EXPECT_EQ(leitung.Empfang_status, 0);
}

TEST_P(LinkTest, RestartCountsOnlyWithTheMastersFirstSignOfLife) {
  const std::string undefiniert = "Fxx: Undefinierbarer Fehler";
  const struct {
    std::string auf_stern, auf_i, fehler;
  } faelle[] = {{gut, "F99B8\r", ""},
                {gut, gut, undefiniert},
                {"F01C7\r", "", undefiniert},
                {"", "", "F98: Keine Antwort vom ZAVmaster"}};
  for (const auto& [auf_stern, auf_i, fehler] : faelle) {
    Gegenstelle g(GetParam());
    g.antworte("*", auf_stern);
    if (!auf_i.empty()) g.antworte("i", auf_i);  // bare: a master that restarts takes no checksum
    g.los();
    if (fehler.empty())
      skript.erwarte(
          {"F99: Neustart im ZAVmaster war erfolgreich", "Info", Knoepfe::OK, Symbol::Information});
    else skript.fehler(fehler);
    Neustart_ausfuehren();
    EXPECT_EQ(skript.zeiger(), Zeiger::normal);
  }
  ASSERT_EQ(skript.hinweise.size(), 2 * std::size(faelle));
  EXPECT_EQ(skript.hinweise[0], "Neustart ZAVmaster...bitte 10 bis 15 Sekunden warten");
  EXPECT_EQ(skript.hinweise[1], "");
}

TEST_P(LinkTest, QueryReadsVersionAndNameOfTheProject) {
  const auto fragen = [&](const std::string& auf_v, const std::string& auf_d, const std::string& auf_r) {
    Gegenstelle g(GetParam());
    g.antworte("V56\r", auf_v);
    if (!auf_v.empty()) g.antworte("D00080800081FB3\r", auf_d);
    if (auf_d == gut) g.antworte("R52\r", auf_r);
    g.los();
    return Master_abfragen();
  };
  const std::string version = "REV 09.04 00\r";
  const Masterinfo info = fragen(version, gut, "4DFC6C6C657220202020202020202020202020202020202000\r");
  EXPECT_TRUE(info.gut);
  EXPECT_EQ(info.version, "REV 09.04 ");
  EXPECT_EQ(info.projekt, "Müller" + std::string(18, ' '));
  EXPECT_EQ(sitzung.Master_version, "REV 09.04 ");
  using Antworten = std::array<std::string, 3>;
  for (const auto& [auf_v, auf_d, auf_r] : {Antworten{},
                                            {version, "F06CC\r"},
                                            {version, gut, "F06CC\r"},
                                            {version, gut, std::string(48, 'Q') + "00\r"}}) {
    skript.erwarte({.text = "Abfrage nicht möglich. Versuchen Sie es bitte noch einmal."});
    EXPECT_FALSE(fragen(auf_v, auf_d, auf_r).gut);
  }
}

TEST_P(LinkTest, TelegramAndEventTellTheCodeInTheirOwnWords) {
  using Zeile = std::array<std::string, 3>;
  for (const auto& [code, telegramm, ereignis] :
       {Zeile{"F06", ": Undefinierbarer Fehler", ": Argumente sind nicht im Wertebereich"},
        {"F66", ": Nicht genügend Argumente erhalten", ": Undefinierbarer Fehler"},
        {"F81", ": Die CAN-Telegrammlänge ist ungültig", ": Undefinierbarer Fehler"},
        {"F80", ": Die CAN-Adresse ist nicht im gültigen Bereich",
         ": Die CAN-Adresse ist nicht im gültigen Bereich"},
        {"???", ": Undefinierbarer Fehler", ": Undefinierbarer Fehler"}}) {
    Gegenstelle g(GetParam());
    g.antworte("X02010253410000000000008A\r", code + "00\r").antworte("Y000A0105F0\r", code + "00\r").los();
    skript.fehler(code + telegramm);
    Can_senden("0201", "02", "5341000000000000");
    EXPECT_EQ(leitung.Empfang_status, 1);
    skript.fehler(code + ereignis);
    Ereignis_erzeugen("000A", "01", "05");
    EXPECT_EQ(leitung.Empfang_status, 1);
  }
  Gegenstelle g(GetParam());
  g.antworte("Y000A0105F0\r", gut).schweige("Y000A0105F0\r").los();
  Ereignis_erzeugen("000A", "01", "05");
  EXPECT_EQ(leitung.Empfang_status, 0);
  skript.erwarte({.text = "Zeitüberschreitung, versuchen Sie es bitte noch einmal."});
  skript.fehler("F98: Keine Antwort vom ZAVmaster");
  Ereignis_erzeugen("000A", "01", "05");
}

TEST_P(LinkTest, FailedOpenSpeaksOnceAndTheCommandIsSilent) {
  { const Gegenstelle weg(GetParam()); }  // leaves the settings pointing at a line that is gone
  const std::string ziel = ist_com() ? einstellungen.Com_geraet : std::to_string(einstellungen.Host_port);
  const Meldung box{
      .text = ist_com()
                  ? "SIO-Fehler -2 --- F97: COM-Port kann nicht geöffnet werden. Eventuell ist es bereits "
                    "durch ein anderes Programm belegt.\r\n\r\nDas Gerät " +
                        ziel + " gibt es nicht. Ist der Adapter eingesteckt?"
                  : "TCP-Fehler -111: Fehler beim Öffnen\r\n\r\n127.0.0.1 (Port " + ziel +
                        ") nimmt keine Verbindung an."};
  skript.erwarte(box);
  Neustart_ausfuehren();
  skript.erwarte(box);
  Can_senden("0201", "02", "5341000000000000");
  EXPECT_EQ(leitung.Empfang_text, "portopen");
  EXPECT_EQ(leitung.Empfang_status, 1);
  EXPECT_EQ(leitung.Port_fehler, 1);
  skript.erwarte(box);
  skript.erwarte({.text = "1 bei Open Port", .titel = "SIO: Fehler "});
  EXPECT_FALSE(Master_abfragen().gut);
}

class LeitungTest : public LinkTest {};
INSTANTIATE_TEST_SUITE_P(Seriell, LeitungTest, testing::Values(Verbindung::com));

TEST_P(LeitungTest, WaitEndsAtMidnight) {
  Gegenstelle g(Verbindung::com);
  g.schweige("i69\r").los();
  oeffne();
  Zeitraffer_setzen(50000);
  while (Timer() < 86400 - 2000) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  Zeitraffer_setzen(2000);  // at most a second to midnight, sixteen to the end of the wait
  const auto beginn = std::chrono::steady_clock::now();
  EXPECT_EQ(sende("i", 32000), "F98\r");
  EXPECT_LT(std::chrono::steady_clock::now() - beginn, std::chrono::seconds(8));
}

TEST_P(LeitungTest, DeviceServerIsNoLinkOfMessages) {
  leitung.Link_art = Verbindung::geraeteserver;
  leitung.Empfang_text = "wie vorher";
  skript.erwarte({.text = "Es ist weder COMx- noch TCP-Schnittstelle ausgewählt"});
  Port_oeffnen();
  EXPECT_EQ(sende("i"), "wie vorher");
}

TEST_P(LeitungTest, InterfaceDecidesLinkAndTimeOut) {
  using Zeile = std::tuple<i16, Verbindung, i16, i16>;
  for (const auto& [com_art, link, eth_modus, sekunden] :
       {Zeile{0, Verbindung::com, 0, 2}, {1, Verbindung::tcp, 1, 10}, {2, Verbindung::tcp, 1, 15}}) {
    einstellungen.Com_art = com_art;
    Com_art_setzen();
    EXPECT_EQ(std::tuple(com_art, leitung.Link_art, leitung.Eth_modus, leitung.Antwort_zeit),
              std::tuple(com_art, link, eth_modus, sekunden));
  }
}

TEST_P(LeitungTest, SearchForPortsFindsTheFreeOnes) {
  const Gegenstelle frei(Verbindung::com), belegt(Verbindung::com);
  const int anderes_programm = open(belegt.geraet().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  ASSERT_EQ(flock(anderes_programm, LOCK_EX), 0);
  for (auto& port : einstellungen.Ports.alle()) port = "/dev/gibt_es_nicht";
  einstellungen.Ports[1] = frei.geraet();
  einstellungen.Ports[2] = belegt.geraet();
  einstellungen.Ports[3] = "/dev/null";
  Com_suche();
  for (int n = 0; n < 8; ++n) EXPECT_EQ(leitung.Com_frei[n], n == 1) << n;
  ASSERT_EQ(skript.hinweise.size(), 10u);
  EXPECT_EQ(skript.hinweise[2],
            "Freie COM-Ports 1 - 8 werden gesucht...bitte um einen Moment Geduld: 1, 2, ");
  EXPECT_EQ(skript.hinweise.back(), "");
  Com_suche();  // known already
  EXPECT_EQ(skript.hinweise.size(), 10u);

  einstellungen.Com_geraet.clear();
  einstellungen.Com_port = 3;
  skript.erwarte(
      {.text =
           "SIO-Fehler -11 --- F97: COM-Port kann nicht geöffnet werden. Eventuell ist es bereits durch ein "
           "anderes Programm belegt.\r\n\r\nDas Gerät " +
           belegt.geraet() +
           " ist durch ein anderes Programm belegt: Beenden Sie es. Nach dem Einstecken eines Adapters "
           "prüft ihn oft der ModemManager; warten Sie zehn Sekunden und versuchen Sie es noch einmal."});
  Port_oeffnen();
  close(anderes_programm);
  oeffne();
}

TEST(Protokoll, NumbersAndWindowHaveFixedWidths) {
  Skript skript;
  EXPECT_EQ(Hex2(10), "0A");
  EXPECT_EQ(Hex4(4095), "0FFF");
  EXPECT_EQ(Hex8(0xFFFFFFFF), "FFFFFFFF");
  const Meldung zu_breit{.text = "Ungültige Daten", .symbol = Symbol::Stopp};
  for (int i = 0; i < 4; ++i) skript.erwarte(zu_breit);
  EXPECT_EQ(Hex2(256) + Hex2(-1) + Hex4(65536) + Hex8(0x100000000), "");
  EXPECT_EQ(Pruefsumme("i"), "69");
  EXPECT_EQ(Pruefsumme("ü€"), "A8");  // FC + low byte of 20AC
  Fenster_setzen(2048, 2055);
  EXPECT_EQ(leitung.Sende_text, "D000800000807");
  Fenster_setzen(0x1000000, -1);
  EXPECT_EQ(leitung.Sende_text, "D");
}

TEST(Protokoll, TransferFailuresSpeakInTheWordsOfTheirCode) {
  Skript skript;
  Uebertragungsfehler_melden("portopen");
  Uebertragungsfehler_melden("F00\r");
  const std::pair<const char*, const char*> faelle[] = {
      {"F04\r", "F04: Schreibfehler ins EEPROM. Verwenden Sie ZAVmaster-256b mit eingebauter Uhr."},
      {"F65\r", "F65: Buffer ist grösser als 527."},
      {"F96\r",
       "F97: COM-Port kann nicht geöffnet werden. Eventuell ist es bereits durch ein anderes Programm "
       "belegt."},
      {"F98\r", "F98: Keine Antwort vom ZAVmaster"},
      {"F42\r", "Fxx: Undefinierbarer Fehler"},
      {"", "Fxx: Undefinierbarer Fehler"},
  };
  for (const auto& [empfang, text] : faelle) {
    skript.fehler(text);
    Uebertragungsfehler_melden(empfang);
  }
  skript.erwarte(
      {"F97: Sie haben die Übertragung zum ZAVmaster abgebrochen. Die Daten im ZAVmaster sind jetzt ungültig "
       "und es kann zu undefinierten Schaltzuständen kommen.\r\n\r\nDrücken Sie anschliessend die "
       "Schaltfläche 'Neustart ZAVmaster' oder unterbrechen Sie für einige Sekunden die Stromzufuhr von "
       "ZAVnet. Senden Sie raschmöglichst eine korrekte Datei zum ZAVmaster, damit die gewünschte Funktion "
       "gewährleistet ist.\r\n\r\n",
       "Abbruch der Übermittlung", Knoepfe::OK, Symbol::Stopp});
  Uebertragungsfehler_melden("F97\r");
}

TEST(Adresse, IsCheckedInOrder) {
  const struct {
    const char *ip, *port, *ergebnis, *box;
  } faelle[] = {
      {"192.168.1.1", "65535", "192.168.1.1", nullptr},
      {"192.168.001.010", "0004001", "192.168.1.10", nullptr},
      {"", "", "errPORT", "Eingabefeld ist leer"},
      {"1.2.3.4", "-1", "errPORT", "Nur Zahlen erlaubt"},
      {"1.2.3.4", "65536", "errPORT", "TCP Port muss im Bereich von 0...65535 sein"},
      {"1.2.3.4", "99999999999999999999", "errPORT", "TCP Port muss im Bereich von 0...65535 sein"},
      {"", "4001", "errIP", "Eingabefeld ist leer"},
      {"192.168.1", "4001", "errIP", "Zuwenig Punkte"},
      {"1.2.3.4.5", "4001", "errIP", "Zuviele Punkte"},
      {"1.2.3.256", "4001", "errIP", "Zahl zu gross"},
      {"1..2.3", "4001", "errIP", "Nur Zahlen erlaubt"},
      {"99999999999.2.3.4", "4001", "errIP", "Zahl zu gross"},
  };
  for (const auto& fall : faelle) {
    Skript skript;
    if (fall.box != nullptr) skript.erwarte({.text = fall.box});
    std::string ip = fall.ip;
    EXPECT_EQ(Adresse_pruefen(ip, fall.port), fall.ergebnis) << fall.ip << " " << fall.port;
    EXPECT_EQ(ip, fall.ip);
  }
  Skript skript;
  Zeitraffer_setzen(0.1);  // ten seconds are too short for a look-up that runs under a checker
  const Meldung name{
      "IP Adresse enthält Buchstaben - es wird versucht die Adresse über das Internet aufzulösen. Dies kann "
      "einige Sekunden dauern."};
  skript.erwarte(name);
  std::string ip = "localhost";
  EXPECT_EQ(Adresse_pruefen(ip, "4001"), "127.0.0.1");
  EXPECT_EQ(ip, "127.0.0.1");
  skript.erwarte(name);
  skript.erwarte({.text = "Hostname kann nicht aufgelöst werden"});
  ip = "kein name";
  EXPECT_EQ(Adresse_pruefen(ip, "4001"), "errIP");
  Zeitraffer_setzen(1);
}

}  // namespace
}  // namespace zav
