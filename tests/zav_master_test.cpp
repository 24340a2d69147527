// The command line at the simulated master, over real sockets and pseudo-terminals.
#include <algorithm>
#include <csignal>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <thread>

#include "platform/uhrwerk.h"
#include "zav_hilfen.h"

namespace zav {
namespace {

TEST_F(Zav_mit_master, SendsOverTcpAndOverASerialLine) {
  haus_anlegen("haus.zav");
  for (const Argumente& weg : {tcp(), {"--com", master.pty_name()}}) {
    const Ergebnis e = zav(weg + Argumente{"--ja", "senden", pfad("haus"), "--initialisieren", "--sperren"});
    ASSERT_EQ(e.status, 0) << e.fehler;
    EXPECT_NE(e.fehler.find("F99: Neustart im ZAVmaster war erfolgreich"), std::string::npos);
    EXPECT_EQ(simulator::hex(master.speicher(0x800, 12)), "0123456789ABCDEF68617573");
    EXPECT_EQ(master.speicher(0x8000 + 5 * 0x800 + 12 + 6, 1)[0], 0x20) << "O3-5 on";
    EXPECT_EQ(master.speicher(0x8400 + 7 * 0x800 + 2, 1)[0], 55) << "D0-1 at 55 %";
    EXPECT_FALSE(master.gesperrt());
    EXPECT_EQ(projekt_in("haus.zav").Ein_funktext[5], 0) << "saved as sent";
  }
  EXPECT_EQ(einstellungen.Com_art, 0);

  // Nothing changed: only what goes with every transfer. The question is answered by --neustart alone.
  master.mitschrift_leeren();
  const int neustarts = master.neustarts();
  EXPECT_EQ(am_master({"--nein", "senden", pfad("haus"), "--neustart"}).status, 0);
  EXPECT_EQ(master.neustarts(), neustarts + 1);
  const auto meldungen = master.mitschrift();
  EXPECT_EQ(std::ranges::count(meldungen, 'W', [](const auto& m) { return m[0]; }), 3)
      << "weather, dates, stamp";
}

// What counts as gone stands in jeder_austausch_test.
TEST_F(Zav_mit_master, AFailedTransferKeepsTheMarksOfWhatHasNotGone) {
  haus_anlegen("haus.zav");
  const std::string vorher = lesen("haus.zav");
  ASSERT_EQ(am_master({"--nein", "senden", pfad("haus")}).status, 1) << "another project is in there";
  EXPECT_EQ(lesen("haus.zav"), vorher);

  // The stamp is there, as after an earlier transfer. Windowed blocks: 1 weather, 2 dates, 3 to 374 switching
  // times, then 5, 7 relays, 5, 7 dimmers, LED tables.
  master.speicher_setzen(0x800, {0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF});
  for (const Argumente& optionen : {Argumente{"--nicht-speichern"}, {}}) {
    EXPECT_EQ(lesen("haus.zav"), vorher);
    master.fehler_setzen({"trenn@W378"});
    const Ergebnis e = am_master(Argumente{"--ja", "senden", pfad("haus")} + optionen);
    EXPECT_EQ(e.status, 1);
    EXPECT_NE(e.fehler.find("F98"), std::string::npos) << e.fehler;
  }
  Projekt p = projekt_in("haus.zav");
  EXPECT_EQ(p.Ein_funktext[5] + p.Uhr_tabelle_geaendert, 0);
  EXPECT_EQ(p.Ein_funktext[7], 1);
  // The next one completes the rest.
  EXPECT_EQ(am_master({"--nein", "senden", pfad("haus")}).status, 0);
  EXPECT_EQ(projekt_in("haus.zav").Ein_funktext[7], 0);
  EXPECT_EQ(master.speicher(0x8400 + 7 * 0x800 + 2, 1)[0], 55);
}

TEST_F(Zav_mit_master, OldGenerationsAreNeverWritten) {
  const std::string alt = "ZAVlink\r\n700\r\n\r\n\r\n\r\nNotiz\r\n";
  schreiben("alt.zav", alt);
  EXPECT_EQ(am_master({"--ja", "senden", pfad("alt"), "--initialisieren"}).status, 1);
  EXPECT_EQ(lesen("alt.zav"), alt);
}

TEST_F(Zav_mit_master, ProgressIsForPeople) {
  haus_anlegen("haus.zav");
  ASSERT_EQ(am_master({"--ja", "senden", pfad("haus"), "--initialisieren"}).status, 0);
  const Argumente noch_einmal{"--nein", "senden", pfad("haus")};
  EXPECT_EQ(am_master(noch_einmal).fehler.find("Eingangsereignisse"), std::string::npos);
  EXPECT_EQ(am_master(Argumente{"--leise"} + noch_einmal, "").fehler.find("%"), std::string::npos);
  const std::string gesehen = am_master(noch_einmal, "").fehler;
  EXPECT_NE(gesehen.find("Eingangsereignisse Switch: 0\n"), std::string::npos) << gesehen;
  EXPECT_NE(gesehen.find(" 100 %"), std::string::npos) << gesehen;
}

TEST_F(Zav_mit_master, TheProgramEndsCleanlyOnCtrlC) {
  haus_anlegen("haus.zav");
  // Held to a serial line's speed the transfer takes minutes; it is stopped as soon as it writes.
  simulator::Simulator langsam({.baud = 19200});
  langsam.start();
  std::thread strg_c([&] {
    EXPECT_TRUE(langsam.warten([&] { return langsam.anzahl("W") > 5; }, std::chrono::minutes(2)));
    starten("kill -INT $(cat " + pfad("pid") + ")");
  });
  const std::string befehl =
      "sh -c 'echo $$ > " + pfad("pid") +
      "; exec " ZAV_PROGRAMM " --ja --tcp 127.0.0.1:" + std::to_string(langsam.tcp_port()) + " senden " +
      pfad("haus") + " --initialisieren 2> " + pfad("fehler") + "'";
  const int status = starten(befehl);
  strg_c.join();
  EXPECT_EQ(status, 1);
  EXPECT_NE(lesen("fehler").find("[Abbruch der Übermittlung] F97"), std::string::npos) << lesen("fehler");
  EXPECT_EQ(projekt_in("haus.zav").Uhr_tabelle_geaendert, 1);
  EXPECT_TRUE(Projekt_lesen(lesen("haus.zav"), projekt));
}

TEST_F(Zav, NobodyAtTheOtherEndIsAnErrorWithAReason) {
  haus_anlegen("haus.zav");
  for (const Argumente& weg : {Argumente{"--tcp", "127.0.0.1:1"}, {"--com", "/dev/gibtsnicht"}}) {
    for (const Argumente& befehl : {Argumente{"master"}, {"neustart"}, {"uhr"}, {"senden", pfad("haus")}}) {
      const Ergebnis e = zav(weg + Argumente{"--ja"} + befehl);
      EXPECT_EQ(e.status, 1) << befehl[0];
      EXPECT_NE(e.fehler, "") << befehl[0];
      EXPECT_EQ(e.aus, "");
    }
  }
}

TEST_F(Zav, TheEmbeddedMasterLeavesTheSettingsAlone) {
  EXPECT_EQ(zav({"--simulator", "--nein", "uhr", "--umstellung", "2"}).status, 0);
  EXPECT_FALSE(std::filesystem::exists(pfad("einstellungen/ZAVlink/ZAVlink.ini")));
  haus_anlegen("haus.zav");
  EXPECT_EQ(zav({"--simulator", "--ja", "senden", pfad("haus"), "--initialisieren"}).status, 0);
  const std::string ini = lesen("einstellungen/ZAVlink/ZAVlink.ini");
  EXPECT_NE(ini.find("last_file_0=" + pfad("haus")), std::string::npos) << ini;
  EXPECT_EQ(ini.find("HostName"), std::string::npos) << "the list of last files alone is written";
}

TEST_F(Zav_mit_master, AsksVersionRestartsAndSetsTheClock) {
  EXPECT_EQ(nlohmann::json::parse(am_master({"master", "--json"}).aus),
            nlohmann::json::parse(R"({"version": "REV 09.04", "projekt": ""})"));
  haus_anlegen("Küche.zav");
  ASSERT_EQ(am_master({"--ja", "senden", pfad("Küche"), "--initialisieren"}).status, 0);
  EXPECT_EQ(am_master({"master"}).aus, "Version  REV 09.04\nProjekt  Küche\n");

  const int neustarts = master.neustarts();
  for (const auto& [antwort, status] : {std::pair{"--nein", 1}, {"--ja", 0}}) {
    EXPECT_EQ(am_master({antwort, "neustart"}).status, status);
  }
  EXPECT_EQ(master.neustarts(), neustarts + 1);

  EXPECT_EQ(am_master({"--heute", "29.07.2026", "--nein", "uhr", "--umstellung", "1"}).status, 0);
  EXPECT_EQ(master.uhr().substr(6), "1229072600") << "summer time, Wednesday, date";
  EXPECT_EQ(simulator::hex(master.speicher(0x362000, 5)), "01262226F7") << "by dates; 29.03.2026, 25.10.2026";
  EXPECT_EQ(master.neustarts(), neustarts + 1);
  ASSERT_EQ(Einstellungen_lesen(), "");
  EXPECT_EQ(einstellungen.Richt_modus, 1) << "a later transfer must not take the dates back";
  EXPECT_EQ(einstellungen.Sowi_datum[19], "28.10.2035");
  EXPECT_EQ(einstellungen.Com_art, 0) << "the interface of one call is not stored";
}

TEST_F(Zav_mit_master, PressesKeys) {
  for (const char* aktion : {"druecken", "loesen", "kurz"}) {
    EXPECT_EQ(am_master({"ereignis", "12", "5", aktion}).status, 0);
  }
  using simulator::Tastenaktion;
  // Offset 5 is key 2 of the second address.
  EXPECT_EQ(master.ereignisse(), (std::vector<simulator::Ereignis>{{13, 2, Tastenaktion::druecken},
                                                                   {13, 2, Tastenaktion::loesen},
                                                                   {13, 2, Tastenaktion::kurz}}));
  EXPECT_EQ(am_master({"ereignis", "255", "4", "kurz"}).status, 1) << "beyond the last address";
  master.fehler_setzen({"F12@Y"});
  EXPECT_EQ(am_master({"ereignis", "12", "0", "kurz"}).status, 1);
}

TEST_F(Zav_mit_master, ReadsTheWeatherStation) {
  Ergebnis e = am_master({"wetter"});
  EXPECT_EQ(e.status, 0);
  EXPECT_EQ(e.aus,
            "Sonne Ost             31 kLux\nSonne Süd             18 kLux\nSonne West            7 kLux\n"
            "Tageslicht            240 Lux\nAussentemperatur      12.5 °C\nInnentemperatur       21 °C\n"
            "Windgeschwindigkeit   3.4 m/s = 12.2 km/h\nNiederschlag          Trocken\n");
  EXPECT_EQ(nlohmann::json::parse(am_master({"wetter", "--json"}).aus).at("aussentemperatur"), 12.5);
  simulator::Wetter w;
  w.station = simulator::Station::fehlt;
  master.wetter_setzen(w);
  e = am_master({"wetter"});
  EXPECT_EQ(e.status, 1);
  EXPECT_EQ(e.aus + e.fehler, "Keine oder defekte Wetterstation\n");
}

TEST_F(Zav_mit_master, ProgramsRadioReceiversAndKeepsTheirMarks) {
  Projekt p;
  p.Datei_version = "910";
  p.Enocean_empf_da[2] = p.Enocean_empf_da[5] = p.Enocean_empf_geaendert[2] = 1;
  schreiben("funk.zav", Projekt_schreiben(p));
  const auto marken = [this] { return projekt_in("funk.zav").Enocean_empf_geaendert; };
  // The second receiver is written before the first is checked, and holds half a table then.
  for (const auto& [fehler, markiert] : {std::pair{"F80@X3", 1}, {"F80@X80", 2}}) {
    master.fehler_setzen({fehler});
    EXPECT_EQ(am_master({"enocean", pfad("funk"), "--alle"}).status, 1);
    EXPECT_EQ(marken()[2] + marken()[5], markiert);
  }
  master.fehler_setzen({"F01@&5"});  // the check of the second
  Ergebnis e = am_master({"enocean", pfad("funk")});
  EXPECT_EQ(e.status, 1);
  EXPECT_EQ(e.fehler, "Fehler 01 bei der Kommunikation.\n");
  EXPECT_EQ(marken()[2], 0);
  EXPECT_EQ(marken()[5], 1);

  master.fehler_setzen({});
  e = am_master({"enocean", pfad("funk")});
  EXPECT_EQ(e.status, 0);
  EXPECT_EQ(e.fehler, "Alle Empfänger sind jetzt aktualisiert.\n");
  EXPECT_EQ(marken(), (Feld<u8, 16>{}));
  master.empfaengerseite_setzen(2, 3, {9});
  master.empfaengerseite_defekt(2, 3);
  EXPECT_EQ(am_master({"enocean", pfad("funk"), "--alle"}).status, 1) << "a wrong checksum";
  EXPECT_EQ(marken(), (Feld<u8, 16>{}));
}

TEST_F(Zav_mit_master, ProtokollWritesLinesUntilItsTimeOrCtrlC) {
  EXPECT_EQ(am_master({"protokoll", "--liste", "--filter", "O0", "K00", "--dauer", "1"}).aus,
            "K000 ZAVin\nK001 ZAVin\nO0 ZAVswitch\n");
  master.mitschrift_leeren();
  std::thread haus([this] {
    master.warten([this] { return master.mitschrift() == std::vector<std::string>{"I"}; });
    master.ereignis({.adresse = 7, .taste = 3});
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    kill(getpid(), SIGINT);
  });
  const Ergebnis e =
      zav({"--com", master.pty_name(), "--json", "--heute", "04.05.2026", "protokoll", "--datum"});
  haus.join();
  EXPECT_EQ(e.status, 0);
  EXPECT_EQ(nlohmann::json::parse(e.aus), nlohmann::json({"K007 T3 ---  04.05.2026"}));
  master.fehler_setzen({"F01@I"});
  EXPECT_EQ(am_master({"protokoll"}).status, 1);
  EXPECT_EQ(zav({"protokoll", "--dauer", "-1"}).fehler.substr(0, 36), "--dauer: möglich sind 0 bis 1000000");
}

TEST_F(Zav, UpdateReplacesTheFirmwareAndWarnsOfAFileThatIsNone) {
  simulator::Simulator master({.pty = true, .startladen = true});
  master.start();
  Zeitraffer_setzen(30);
  schreiben("ZAVMAStER_1.s19", "S1051000AABB85\r\nS9030000FC\r\n");
  schreiben("ZAVMAStER_2.s19", "S1051000AABB84\r\nS9030000FC\r\n");
  const Ergebnis ohne_ja = zav({"--com", master.pty_name(), "update", pfad("ZAVMAStER_2.s19")});
  EXPECT_EQ(ohne_ja.status, 1);
  EXPECT_NE(ohne_ja.fehler.find("Zeile 1 hat eine falsche Prüfsumme."), std::string::npos) << ohne_ja.fehler;
  EXPECT_TRUE(master.firmware().gueltig);
  const Ergebnis e = zav({"--com", master.pty_name(), "update", pfad("ZAVMAStER_1.s19")});
  Zeitraffer_setzen(1);
  EXPECT_EQ(e.status, 0) << e.fehler;
  EXPECT_NE(e.fehler.find("2. Jetzt bitte ZAVmaster aus-/einschalten"), std::string::npos);
  EXPECT_EQ(master.firmware().bytes, 2U);
  EXPECT_EQ(master.neustarts(), 1);
}

}  // namespace
}  // namespace zav
