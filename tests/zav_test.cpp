// The command line as a script sees it: arguments in; exit status, standard output, standard error and files
// out. Against the simulated master over real sockets and pseudo-terminals.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>
#include <thread>

#include "basis/text.h"
#include "befehlszeile.h"
#include "hilfen.h"
#include "klartext.h"
#include "platform/einstellungen.h"
#include "platform/ports.h"
#include "platform/uhrwerk.h"
#include "simulator/simulator.h"
#include "store/felder.h"
#include "store/projektdatei.h"

namespace zav {
namespace {

namespace fs = std::filesystem;

struct Ergebnis {
  int status = -1;
  std::string aus, fehler;
};

class Zav : public testing::Test {
 protected:
  // Runs one call in this process. With `tippt` a person sits at the terminal and types that.
  Ergebnis zav(std::vector<std::string> argumente, const char* tippt = nullptr) {
    std::istringstream ein(tippt == nullptr ? "" : tippt);
    std::ostringstream aus, fehler;
    const bool person = tippt != nullptr;
    const int status = Befehlszeile(std::move(argumente), {ein, aus, fehler, person, person});
    return {status, aus.str(), fehler.str()};
  }

  std::string pfad(const std::string& name) const { return ordner / name; }
  std::string lesen(const std::string& name) const { return Dateibytes(pfad(name)); }
  void schreiben(const std::string& name, const std::string& bytes) const {
    Datei_anlegen(pfad(name), bytes);
  }
  Projekt projekt_in(const std::string& name) const {
    Projekt p;
    EXPECT_TRUE(Projekt_lesen(lesen(name), p)) << name;
    return p;
  }
  // A project file with a handful of functions, everything marked.
  void haus_anlegen(const std::string& name) const {
    Projekt p;
    p.Datei_version = "910";
    p.Projekt_kennung = "0123456789ABCDEF";
    p.Ein_relais(5, 29) = 2;
    p.Ein_dimmer(7, 1, 2) = 55;
    for (const int e : {5, 7}) p.Ein_leer[e] = p.Ein_funktext[e] = 1;
    p.Uhr_tabelle_geaendert = 1;
    schreiben(name, Projekt_schreiben(p));
  }

  Testordner ordner;
};

class Zav_mit_master : public Zav {
 protected:
  Zav_mit_master() { master.start(); }
  // A call to the master over the network.
  Ergebnis am_master(std::vector<std::string> argumente, const char* tippt = nullptr) {
    argumente.insert(argumente.begin(), {"--tcp", tcp()});
    return zav(std::move(argumente), tippt);
  }
  std::string tcp() const { return "127.0.0.1:" + std::to_string(master.tcp_port()); }

  simulator::Simulator master{{.pty = true}};
};

// ---- use --------------------------------------------------------------------------------------------------

TEST(Klartext, LetsNothingSteerTheTerminal) {
  std::stringstream ziel;
  Klartextpuffer puffer(*ziel.rdbuf());
  std::ostream aus(&puffer);
  aus << "Küche\tÄ € \r\n"
      << "\x1b[2J" << '\a' << "\rx\x7f"
      << "\xC2\x9B"
         "31m\xC2\xA0"
      << 7 << std::endl;
  EXPECT_EQ(ziel.str(),
            "Küche\tÄ € \r\n?[2J??x??31m\xC2\xA0"
            "7\n");
}

TEST_F(Zav, WrongUseIsTwoWithAGermanReason) {
  struct Fall {
    std::vector<std::string> argumente;
    std::string grund;
  } const faelle[] = {
      {{}, "Es fehlt ein Befehl."},
      {{"sende", "haus"}, "Unbekannter Befehl: sende"},
      {{"senden"}, "Es fehlt: DATEI"},
      {{"neu", "a", "b"}, "Zu viele Argumente: b"},
      {{"neu", "a", "--quark"}, "Unbekannte Option: --quark"},
      {{"--json=ja", "zeigen", "a"}, "Ohne Wert zu schreiben: --json"},
      {{"master", "--tcp"}, "Es fehlt ein Wert für --tcp"},
      {{"--ja", "--nein", "master"}, "Nicht zusammen möglich: --ja, --nein"},
      {{"--com", "1", "--tcp", "a:1", "master"}, "Nicht zusammen möglich: --tcp, --com"},
      {{"--tcp", "host", "master"}, "--tcp: \"host\" ist kein HOST:PORT (Port 1 bis 65535)"},
      {{"--tcp", "host:70000", "master"}, "--tcp: \"host:70000\" ist kein HOST:PORT (Port 1 bis 65535)"},
      {{"--com", "9", "master"}, "--com: \"9\" ist weder 1 bis 8 noch eine Gerätedatei"},
      {{"--heute", "29.02.2025", "uhr"}, "--heute: \"29.02.2025\" ist kein Datum der Form TT.MM.JJJJ"},
      {{"--zufall", "-1", "abbild", "a"}, "--zufall: \"-1\" ist keine Zahl von 0 bis 2147483647"},
      {{"umwandeln", "a", "b", "--als", "710"}, "--als: möglich sind 910, 900 und 800"},
      {{"suche", "a", "O64-0"}, "AUSGANG: \"O64-0\" ist kein Ausgang wie O3-5, D1-2 oder T4"},
      {{"ereignis", "256", "0", "kurz"}, "ADRESSE: möglich sind 0 bis 255"},
      {{"ereignis", "1", "0", "lang"}, "AKTION: möglich sind druecken, loesen und kurz"},
      {{"uhr", "--umstellung", "3"}, "--umstellung: möglich sind 0, 1 und 2"},
  };
  for (const Fall& f : faelle) {
    const Ergebnis e = zav(f.argumente);
    EXPECT_EQ(e.status, 2) << f.grund;
    EXPECT_EQ(e.fehler, f.grund + "\nzav --hilfe zeigt alle Befehle und Optionen.\n");
    EXPECT_EQ(e.aus, "");
  }
  EXPECT_TRUE(fs::is_empty(ordner.pfad())) << "nothing was touched";
}

TEST_F(Zav, HelpIsOnStandardOutputAndEveryCommandHasAnExample) {
  const Ergebnis alles = zav({"--hilfe"});
  EXPECT_EQ(alles.status, 0);
  EXPECT_EQ(zav({"--version"}).aus, "zav 9.102\n");
  EXPECT_NE(alles.aus.find("\nRückgabewert:\n  0  "), std::string::npos);
  std::istringstream zeilen(alles.aus.substr(alles.aus.find("Befehle:\n")));
  std::string zeile;
  std::getline(zeilen, zeile);
  int befehle = 0;
  while (std::getline(zeilen, zeile) && !zeile.empty()) {
    const std::string befehl = zeile.substr(2, zeile.find(' ', 2) - 2);
    const Ergebnis e = zav({befehl, "--hilfe"});
    EXPECT_EQ(e.status, 0);
    for (const std::string& teil :
         {"Aufruf: zav " + befehl, std::string("Beispiel: zav "), std::string("--heute TT.MM.JJJJ")}) {
      EXPECT_NE(e.aus.find(teil), std::string::npos) << befehl << " does not tell " << teil;
    }
    EXPECT_NE(e.aus.find(befehl, e.aus.find("Beispiel: ")), std::string::npos);
    ++befehle;
  }
  EXPECT_GE(befehle, 8);
}

TEST_F(Zav, PortsAreListedByWhatTheyAreWithTheReasonOfThoseThatDoNotOpen) {
  EXPECT_EQ(zav({"ports"}).status, 0) << "whatever this computer has";
  Geraeteordner_setzen(ordner.pfad());
  EXPECT_EQ(zav({"ports"}).fehler, "Dieser Computer hat keine serielle Schnittstelle.\n");
  simulator::Simulator master{{.pty = true}};
  master.start();
  fs::create_symlink(master.pty_name(), ordner / "ttyUSB0");
  schreiben("ttyS0", "");
  const Ergebnis e = zav({"ports"});
  EXPECT_EQ(e.status, 0);
  EXPECT_EQ(e.aus, "1  frei   " + pfad("ttyUSB0") + "  USB-Adapter\n2  nicht  " + pfad("ttyS0") +
                       "  eingebaute Schnittstelle\n");
  EXPECT_EQ(e.fehler, "COM 2: " + pfad("ttyS0") + " ist keine serielle Schnittstelle.\n");
  EXPECT_EQ(nlohmann::json::parse(zav({"ports", "--json"}).aus)[0],
            (nlohmann::json{{"com", 1},
                            {"geraet", pfad("ttyUSB0")},
                            {"bezeichnung", "USB-Adapter"},
                            {"frei", true},
                            {"ursache", ""}}));
  Geraeteordner_setzen("/dev");
}

// ---- files ------------------------------------------------------------------------------------------------

TEST_F(Zav, NewAsksBeforeReplacing) {
  EXPECT_EQ(zav({"neu", pfad("haus"), "--zufall", "1"}).status, 0);
  const std::string erste = lesen("haus.zav");
  EXPECT_EQ(einstellungen.last_file[0], pfad("haus")) << "last files hold the path without extension";

  const std::string frage =
      "[Datei ersetzen] " + pfad("haus.zav") + " besteht bereits. Soll die Datei ersetzt werden?\n";
  const std::string prompt = " (j = Ja, n = Nein) ";
  struct Fall {
    std::vector<std::string> optionen;
    const char* tippt;
    bool ersetzt;
    std::string prompt;
  } const faelle[] = {
      {{}, nullptr, false, ""}, {{"--nein"}, nullptr, false, ""},         {{}, "n\n", false, prompt},
      {{}, "", false, prompt},  {{}, "was?\nJ\n", true, prompt + prompt}, {{"--ja"}, nullptr, true, ""}};
  for (const Fall& f : faelle) {
    schreiben("haus.zav", erste);
    std::vector<std::string> argumente{"neu", pfad("haus.zav"), "--zufall", "2"};
    argumente.insert(argumente.begin(), f.optionen.begin(), f.optionen.end());
    const Ergebnis e = zav(argumente, f.tippt);
    EXPECT_EQ(e.status, f.ersetzt ? 0 : 1);
    EXPECT_EQ(e.fehler, frage + f.prompt);
    EXPECT_EQ(lesen("haus.zav") != erste, f.ersetzt);
  }
}

TEST_F(Zav, RefusedFilesGiveNoDataAndDamagedOnesWhatIsLeft) {
  haus_anlegen("haus.zav");
  schreiben("fremd.zav", "x\r\n999\r\nrest");
  schreiben("leer.zav", "");
  const std::string ganz = lesen("haus.zav");
  schreiben("kurz.zav", ganz.substr(0, 600));

  const Ergebnis fehlt = zav({"zeigen", pfad("gibtsnicht")});
  EXPECT_EQ(fehlt.status, 1);
  EXPECT_NE(fehlt.fehler.find(": Fehler 2] Datei oder Ordner nicht gefunden"), std::string::npos)
      << fehlt.fehler;
  for (const char* name : {"fremd", "leer", "gibtsnicht"}) {
    for (const char* befehl : {"zeigen", "abbild"}) {
      const Ergebnis e = zav({befehl, pfad(name), "--json"});
      EXPECT_EQ(e.status, 1) << name;
      EXPECT_EQ(e.aus, "") << name;
      EXPECT_NE(e.fehler, "") << name;
    }
    EXPECT_EQ(zav({"umwandeln", pfad(name), pfad("ziel")}).status, 1);
    EXPECT_FALSE(fs::exists(pfad("ziel.zav")));
  }
  EXPECT_NE(zav({"zeigen", pfad("fremd")}).fehler.find("Die Dateiversion ist: 999"), std::string::npos);

  const Ergebnis kurz = zav({"zeigen", pfad("kurz")});
  EXPECT_EQ(kurz.status, 0) << kurz.fehler;
  EXPECT_NE(kurz.aus.find("0123456789ABCDEF"), std::string::npos);
}

TEST_F(Zav, ConvertKeepsOrChoosesTheGenerationAndRaisesOldOnes) {
  haus_anlegen("haus.zav");
  struct Fall {
    std::vector<std::string> als;
    std::string version;
  };
  for (const Fall& f : {Fall{{}, "910"}, Fall{{"--als", "900"}, "900"}, Fall{{"--als", "800"}, "800"}}) {
    std::vector<std::string> a{"umwandeln", pfad("haus"), pfad("neu" + f.version)};
    a.insert(a.end(), f.als.begin(), f.als.end());
    EXPECT_EQ(zav(a).status, 0);
    EXPECT_EQ(projekt_in("neu" + f.version + ".zav").Datei_version, f.version);
  }
  EXPECT_EQ(zav({"umwandeln", pfad("neu800"), pfad("b")}).status, 0) << "its box is information";
  EXPECT_EQ(projekt_in("b.zav").Datei_version, "800");

  schreiben("alt.zav", "ZAVlink\r\n700\r\n\r\n\r\n\r\nNotiz\r\n");
  EXPECT_EQ(zav({"umwandeln", "--ja", pfad("alt"), pfad("gehoben")}).status, 0);
  EXPECT_EQ(projekt_in("gehoben.zav").Datei_version, "910");
  EXPECT_TRUE(fs::exists(pfad("alt.70x"))) << "the question for a copy was answered with yes";
  EXPECT_EQ(zav({"umwandeln", "--nein", pfad("haus"), pfad("b")}).status, 1) << "replacing was refused";
}

TEST_F(Zav, WhatCannotBeWrittenIsSaidAndNothingIsLost) {
  haus_anlegen("haus.zav");
  const std::string vorher = lesen("haus.zav");
  EXPECT_EQ(zav({"neu", pfad("kein/ordner/haus")}).status, 1);
  EXPECT_EQ(zav({"abbild", pfad("haus"), "-o", pfad("kein/abbild")}).status, 1);

  // A full disk, by a limit on the size of files.
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit alt{};
  getrlimit(RLIMIT_FSIZE, &alt);
  const rlimit eng{20000, alt.rlim_max};
  setrlimit(RLIMIT_FSIZE, &eng);
  const Ergebnis voll = zav({"--ja", "umwandeln", pfad("haus"), pfad("haus"), "--als", "800"});
  setrlimit(RLIMIT_FSIZE, &alt);
  EXPECT_EQ(voll.status, 1);
  EXPECT_NE(voll.fehler.find("Die Datei auf der Platte ist unverändert."), std::string::npos) << voll.fehler;
  EXPECT_EQ(lesen("haus.zav"), vorher);
}

// ---- data -------------------------------------------------------------------------------------------------

TEST_F(Zav, JsonHasTheNamesOfTheStoreAndNothingElse) {
  Projekt p;
  p.Datei_version = "910";
  p.Notizen = "erste \"Zeile\"\r\nzweite: Ä";
  p.Ein_relais(5, 29) = 2;
  p.Ein_dimmer(1023, 127, 3) = 15;
  for (const int e : {5, 1023}) p.Ein_leer[e] = 1;
  schreiben("haus.zav", Projekt_schreiben(p));
  const Ergebnis e = zav({"--json", "zeigen", pfad("haus")});
  ASSERT_EQ(e.status, 0) << e.fehler;
  const auto j = nlohmann::json::parse(e.aus);
  std::set<std::string> namen, gegeben;
  Felder_besuchen(p, [&](const char* name, const auto&) { namen.insert(name); });
  for (const auto& [name, wert] : j.items()) gegeben.insert(name);
  EXPECT_EQ(gegeben, namen);

  EXPECT_EQ(j["Notizen"], p.Notizen);
  EXPECT_EQ(j["Ein_leer"].size(), 1024U);
  EXPECT_EQ(j["Ein_relais"], nlohmann::json::parse(R"({"5": {"29": 2}})"));
  EXPECT_EQ(j["Ein_dimmer"], nlohmann::json::parse(R"({"1023": {"127": [0, 0, 0, 15]}})"));
  EXPECT_EQ(j["Ein_param"][2], nlohmann::json::parse("[1, 0, 0]"));
  EXPECT_EQ(j["App_eigenschaften"][0].size(), 22U);
}

TEST_F(Zav, ImagesOfOneDayAndSeedAreEqualAndSayWhatIsMarked) {
  haus_anlegen("haus.zav");
  const std::vector<std::string> fest{"--heute", "21.11.2026", "--zufall", "7", "abbild", pfad("haus")};
  const Ergebnis a = zav(fest);
  ASSERT_EQ(a.status, 0) << a.fehler;
  EXPECT_EQ(a.aus, zav(fest).aus);
  EXPECT_NE(a.aus.find("\nW 000800 00081F 0123456789ABCDEF68617573"), std::string::npos) << "the stamp";
  EXPECT_EQ(zav({"--heute", "21.11.2026", "--zufall", "7", "abbild", pfad("haus"), "-o", pfad("x")}).aus, "");
  EXPECT_EQ(lesen("x"), a.aus);

  const auto zeilen = [](const std::string& t) { return std::ranges::count(t, '\n'); };
  const std::string geaendert = zav({"abbild", pfad("haus"), "--nur-geaenderte", "--sperren"}).aus;
  EXPECT_EQ(zeilen(a.aus), 9 + 372 + 2 * (1024 + 256 + 64) + 256 + 1);
  EXPECT_EQ(zeilen(geaendert), 9 + 372 + 2 * 2 + 256 + 1 + 2);
  EXPECT_NE(geaendert.find("\nLD 01\nLS 07\n"), std::string::npos);
  EXPECT_TRUE(geaendert.ends_with("\nLD 00\n"));

  const auto j = nlohmann::json::parse(zav({"abbild", pfad("haus"), "--json", "--nur-geaenderte"}).aus);
  EXPECT_EQ(j.size(), static_cast<std::size_t>(zeilen(geaendert) - 2));
  EXPECT_EQ(j[5], nlohmann::json::parse(R"({"befehl": "M", "daten": "1E0B0B2EE006"})"));
  EXPECT_EQ(j[6]["von"], "006000");
}

// What they say stands in golden_test.
TEST_F(Zav, ReportsAreLinesOrLists) {
  haus_anlegen("haus.zav");
  EXPECT_EQ(zav({"suche", pfad("haus"), "T4"}).aus, "");
  const Ergebnis nichts = zav({"suche", pfad("haus"), "T4", "--json"});
  EXPECT_EQ(nichts.status, 0);
  EXPECT_EQ(nichts.aus, "[]\n");
  EXPECT_EQ(zav({"suche", pfad("gibtsnicht"), "O3-5"}).status, 1);
  EXPECT_NE(zav({"--heute", "28.03.2026", "sonne"}).aus.find("Winterzeit\n"), std::string::npos);
  const std::string liste = zav({"--heute", "01.05.2028", "sonne", "--liste", "--json"}).aus;
  EXPECT_EQ(nlohmann::json::parse(liste).size(), 366U);
  EXPECT_TRUE(zav({"--heute", "01.05.2028", "sonne", "--liste"})
                  .aus.starts_with("Sonnenauf- und -untergang\nJanuar 2028\n"));
}

// ---- the master -------------------------------------------------------------------------------------------

TEST_F(Zav_mit_master, SendsOverTcpAndOverASerialLine) {
  haus_anlegen("haus.zav");
  for (const auto& weg : {std::vector<std::string>{"--tcp", tcp()}, {"--com", master.pty_name()}}) {
    std::vector<std::string> a = weg;
    a.insert(a.end(), {"--ja", "senden", pfad("haus"), "--initialisieren", "--sperren"});
    const Ergebnis e = zav(a);
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
  int bloecke = 0;
  for (const std::string& m : master.mitschrift()) bloecke += m.starts_with('W') ? 1 : 0;
  EXPECT_EQ(bloecke, 3) << "weather, dates, stamp";
}

TEST_F(Zav_mit_master, AFailedTransferKeepsTheMarksOfWhatHasNotGone) {
  haus_anlegen("haus.zav");
  ASSERT_EQ(am_master({"--nein", "senden", pfad("haus")}).status, 1) << "another project is in there";
  EXPECT_EQ(projekt_in("haus.zav").Ein_funktext[5], 1);

  // The stamp is there, as after an earlier transfer; the eighth page of switching times finds a broken
  // memory.
  master.speicher_setzen(0x800, {0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF});
  struct Fall {
    const char *fehler, *text;
    u8 ein5, ein7;
    i16 tabelle;
  };
  // Windowed blocks: 1 weather, 2 dates, 3 to 374 switching times, then 5, 7 relays, 5, 7 dimmers, LED
  // tables.
  for (const Fall& f : {Fall{"F03@W10", "F03", 1, 1, 1}, Fall{"trenn@W378", "F98", 0, 1, 0}}) {
    master.fehler_setzen({f.fehler});
    const std::string vorher = lesen("haus.zav");
    const Ergebnis ohne = am_master({"--ja", "senden", pfad("haus"), "--nicht-speichern"});
    EXPECT_EQ(ohne.status, 1);
    EXPECT_EQ(lesen("haus.zav"), vorher);
    master.fehler_setzen({f.fehler});
    const Ergebnis e = am_master({"--ja", "senden", pfad("haus")});
    EXPECT_EQ(e.status, 1) << f.fehler;
    EXPECT_NE(e.fehler.find(f.text), std::string::npos) << e.fehler;
    const Projekt p = projekt_in("haus.zav");
    EXPECT_EQ(p.Ein_funktext[5], f.ein5);
    EXPECT_EQ(p.Ein_funktext[7], f.ein7);
    EXPECT_EQ(p.Uhr_tabelle_geaendert, f.tabelle);
  }
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

TEST_F(Zav_mit_master, AsksVersionRestartsAndSetsTheClock) {
  const Ergebnis leer = am_master({"master", "--json"});
  EXPECT_EQ(nlohmann::json::parse(leer.aus),
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
  for (const int r : {2, 5}) p.Enocean_empf_da[r] = p.Enocean_empf_geaendert[r] = 1;
  p.Komb_text[0] = "EG";
  p.App_typ[3] = 84;
  p.App_text[3] = "9";
  p.App_text2[3] = "1";
  p.App_enocean_id[3] = "01AB23CD";
  p.App_enocean_empf[3] = 5;
  schreiben("funk.zav", Projekt_schreiben(p));
  master.fehler_setzen({"F01@&5"});  // the check of the second receiver
  Ergebnis e = am_master({"enocean", pfad("funk")});
  EXPECT_EQ(e.status, 1);
  EXPECT_EQ(e.fehler, "Fehler 01 bei der Kommunikation.\n");
  Projekt danach = projekt_in("funk.zav");
  EXPECT_EQ(danach.Enocean_empf_geaendert[2], 0);
  EXPECT_EQ(danach.Enocean_empf_geaendert[5], 1);

  master.fehler_setzen({});
  e = am_master({"enocean", pfad("funk")});
  EXPECT_EQ(e.status, 0);
  EXPECT_EQ(e.fehler, "Alle Empfänger sind jetzt aktualisiert.\n");
  EXPECT_EQ(master.empfaengertabelle(5)[3], 0xCD);
  EXPECT_EQ(projekt_in("funk.zav").Enocean_empf_geaendert, (Feld<u8, 16>{}));
  master.empfaengerseite_defekt(2, 3);
  e = am_master({"enocean", pfad("funk"), "--alle"});
  EXPECT_EQ(e.status, 1) << "a wrong checksum";
  EXPECT_EQ(projekt_in("funk.zav").Enocean_empf_geaendert, (Feld<u8, 16>{}));
}

TEST_F(Zav, WritesTheAppsDescriptorForGeneration910) {
  haus_anlegen("haus.zav");
  schreiben("da.xml", "alt");
  EXPECT_EQ(zav({"app", pfad("haus"), "-o", pfad("da.xml")}).status, 0);
  EXPECT_TRUE(lesen("da.xml").starts_with("\xEF\xBB\xBF<?xml"));
  const fs::path vorher = fs::current_path();
  fs::current_path(ordner.pfad());
  EXPECT_EQ(zav({"app", "haus"}).status, 0);
  EXPECT_EQ(lesen("zavappdescriptor.xml"), lesen("da.xml"));
  EXPECT_EQ(zav({"app", "haus", "--nein"}).status, 1) << "the file is there already";
  fs::current_path(vorher);
  EXPECT_EQ(zav({"umwandeln", pfad("haus"), pfad("alt"), "--als", "900"}).status, 0);
  const Ergebnis e = zav({"app", pfad("alt"), "-o", pfad("neu.xml")});
  EXPECT_EQ(e.status, 1);
  EXPECT_TRUE(e.fehler.starts_with("Wenn Sie die neuen Funktionen von ZAVlink-Version 9.102 nutzen"))
      << e.fehler;
  EXPECT_FALSE(fs::exists(pfad("neu.xml")));
}

TEST_F(Zav, TheEmbeddedMasterLeavesTheSettingsAlone) {
  EXPECT_EQ(zav({"--simulator", "--nein", "uhr", "--umstellung", "2"}).status, 0);
  EXPECT_FALSE(fs::exists(pfad("einstellungen/ZAVlink/ZAVlink.ini")));
  haus_anlegen("haus.zav");
  EXPECT_EQ(zav({"--simulator", "--ja", "senden", pfad("haus"), "--initialisieren"}).status, 0);
  const std::string ini = lesen("einstellungen/ZAVlink/ZAVlink.ini");
  EXPECT_NE(ini.find("last_file_0=" + pfad("haus")), std::string::npos) << ini;
  EXPECT_EQ(ini.find("HostName"), std::string::npos) << "the list of last files alone is written";
}

TEST_F(Zav, NobodyAtTheOtherEndIsAnErrorWithAReason) {
  haus_anlegen("haus.zav");
  for (const auto& weg : {std::vector<std::string>{"--tcp", "127.0.0.1:1"}, {"--com", "/dev/gibtsnicht"}}) {
    for (const auto& befehl :
         {std::vector<std::string>{"master"}, {"neustart"}, {"uhr"}, {"senden", pfad("haus")}}) {
      std::vector<std::string> a = weg;
      a.emplace_back("--ja");
      a.insert(a.end(), befehl.begin(), befehl.end());
      const Ergebnis e = zav(a);
      EXPECT_EQ(e.status, 1) << befehl[0];
      EXPECT_NE(e.fehler, "") << befehl[0];
      EXPECT_EQ(e.aus, "");
    }
  }
}

TEST_F(Zav_mit_master, ProgressIsForPeople) {
  haus_anlegen("haus.zav");
  const std::vector<std::string> a{"--tcp", tcp(), "--ja", "senden", pfad("haus"), "--initialisieren"};
  EXPECT_EQ(zav(a).fehler.find("Eingangsereignisse"), std::string::npos);
  const std::string gesehen = zav(a, "").fehler;
  EXPECT_NE(gesehen.find("Eingangsereignisse Switch: 2\n"), std::string::npos) << gesehen;
  EXPECT_NE(gesehen.find(" 100 %"), std::string::npos);
  std::vector<std::string> leise = a;
  leise.emplace_back("--leise");
  EXPECT_EQ(zav(leise, "").fehler.find("%"), std::string::npos);
}

// ---- the program ------------------------------------------------------------------------------------------

// Starts the program itself; its standard error goes to the file "fehler".
int starten(const std::string& befehl) {
  const int status = std::system(befehl.c_str());
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(Zav_mit_master, TheProgramEndsCleanlyOnCtrlC) {
  haus_anlegen("haus.zav");
  // Held to a serial line's speed the transfer takes minutes; it is stopped as soon as it writes.
  simulator::Simulator langsam({.baud = 19200});
  langsam.start();
  std::thread strg_c([&] {
    langsam.warten([&] { return langsam.anzahl("W") > 5; });
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

TEST_F(Zav, TheProgramReportsAnOutputThatCannotBeWritten) {
  haus_anlegen("haus.zav");
  EXPECT_EQ(starten(ZAV_PROGRAMM " zeigen " + pfad("haus") + " > " + pfad("aus") + " 2>/dev/null"), 0);
  EXPECT_NE(lesen("aus").find("Kennung             0123456789ABCDEF\n"), std::string::npos);
  EXPECT_EQ(starten(ZAV_PROGRAMM " --json zeigen " + pfad("haus") + " > /dev/full 2> " + pfad("fehler")), 1);
  EXPECT_EQ(lesen("fehler"), "Die Ausgabe konnte nicht geschrieben werden.\n");
}

TEST_F(Zav, TheExampleHouseIsWhatItsProgramWrites) {
  ASSERT_EQ(starten(EINFAMILIENHAUS_PROGRAMM " " + pfad("haus.zav")), 0);
  EXPECT_TRUE(lesen("haus.zav") == Dateibytes(EINFAMILIENHAUS_DATEI))
      << "examples/einfamilienhaus.zav is out of date: run the program again";
  EXPECT_EQ(zav({"abbild", pfad("haus")}).fehler, "") << "every value of it fits the master";
}

// ---- in front of the living system ------------------------------------------------------------------------

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
