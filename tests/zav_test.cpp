// The command line without a master: its use, the files it makes, and what it tells of a project.
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>

#include "klartext.h"
#include "platform/ports.h"
#include "store/felder.h"
#include "zav_hilfen.h"

namespace zav {
namespace {

namespace fs = std::filesystem;

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
    Argumente argumente;
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
  EXPECT_EQ(zav({"--version"}).aus, "zav 9.102\n");
  const Ergebnis alles = zav({"--hilfe"});
  EXPECT_EQ(alles.status, 0);
  EXPECT_NE(alles.aus.find("\nRückgabewert:\n  0  "), std::string::npos);
  std::istringstream zeilen(alles.aus.substr(alles.aus.find("Befehle:\n") + 9));
  int befehle = 0;
  for (std::string zeile; std::getline(zeilen, zeile) && !zeile.empty(); ++befehle) {
    const std::string befehl = zeile.substr(2, zeile.find(' ', 2) - 2);
    const Ergebnis e = zav({befehl, "--hilfe"});
    EXPECT_EQ(e.status, 0);
    EXPECT_NE(e.aus.find("Aufruf: zav " + befehl), std::string::npos) << befehl;
    EXPECT_NE(e.aus.find("--heute TT.MM.JJJJ"), std::string::npos) << befehl;
    EXPECT_NE(e.aus.find(befehl, e.aus.find("Beispiel: zav ")), std::string::npos) << befehl;
  }
  EXPECT_GE(befehle, 8);
}

TEST_F(Zav, PortsAreListedByWhatTheyAreWithTheReasonOfThoseThatDoNotOpen) {
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
  const auto j = nlohmann::json::parse(zav({"ports", "--json"}).aus)[0];
  EXPECT_TRUE(j["com"] == 1 && j["geraet"] == pfad("ttyUSB0") && j["frei"] == true) << j;
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
    Argumente optionen;
    const char* tippt;
    bool ersetzt;
    std::string prompt;
  };
  for (const auto& [optionen, tippt, ersetzt, prompts] : {Fall{{}, nullptr, false, ""},
                                                          {{"--nein"}, nullptr, false, ""},
                                                          {{"--ja"}, nullptr, true, ""},
                                                          {{}, "n\n", false, prompt},
                                                          {{}, "", false, prompt},
                                                          {{}, "was?\nJ\n", true, prompt + prompt}}) {
    schreiben("haus.zav", erste);
    const Ergebnis e = zav(optionen + Argumente{"neu", pfad("haus.zav"), "--zufall", "2"}, tippt);
    EXPECT_EQ(e.status, ersetzt ? 0 : 1);
    EXPECT_EQ(e.fehler, frage + prompts);
    EXPECT_EQ(lesen("haus.zav") != erste, ersetzt);
  }
}

TEST_F(Zav, RefusedFilesGiveNoDataAndDamagedOnesWhatIsLeft) {
  schreiben("fremd.zav", "x\r\n999\r\nrest");
  schreiben("leer.zav", "");
  for (const auto& [name, grund] : {std::pair{"fremd", "Die Dateiversion ist: 999"},
                                    {"leer", ""},
                                    {"gibtsnicht", ": Fehler 2] Datei oder Ordner nicht gefunden"}}) {
    for (const char* befehl : {"zeigen", "abbild"}) {
      const Ergebnis e = zav({befehl, pfad(name), "--json"});
      EXPECT_EQ(e.status, 1) << name;
      EXPECT_EQ(e.aus, "") << name;
      EXPECT_NE(e.fehler, "") << name;
      EXPECT_NE(e.fehler.find(grund), std::string::npos) << e.fehler;
    }
    EXPECT_EQ(zav({"umwandeln", pfad(name), pfad("ziel")}).status, 1);
    EXPECT_FALSE(fs::exists(pfad("ziel.zav")));
  }
  haus_anlegen("haus.zav");
  schreiben("kurz.zav", lesen("haus.zav").substr(0, 600));
  const Ergebnis kurz = zav({"zeigen", pfad("kurz")});
  EXPECT_EQ(kurz.status, 0) << kurz.fehler;
  EXPECT_NE(kurz.aus.find("0123456789ABCDEF"), std::string::npos);
}

TEST_F(Zav, ConvertKeepsOrChoosesTheGenerationAndRaisesOldOnes) {
  haus_anlegen("haus.zav");
  EXPECT_EQ(zav({"umwandeln", pfad("haus"), pfad("neu910")}).status, 0);
  EXPECT_EQ(zav({"umwandeln", pfad("haus"), pfad("neu900"), "--als", "900"}).status, 0);
  EXPECT_EQ(zav({"umwandeln", pfad("haus"), pfad("800"), "--als", "800"}).status, 0);
  EXPECT_EQ(zav({"umwandeln", pfad("800"), pfad("neu800")}).status, 0) << "its box is information";
  for (const std::string version : {"910", "900", "800"})
    EXPECT_EQ(projekt_in("neu" + version + ".zav").Datei_version, version);

  schreiben("alt.zav", "ZAVlink\r\n700\r\n\r\n\r\n\r\nNotiz\r\n");
  EXPECT_EQ(zav({"umwandeln", "--ja", pfad("alt"), pfad("gehoben")}).status, 0);
  EXPECT_EQ(projekt_in("gehoben.zav").Datei_version, "910");
  EXPECT_TRUE(fs::exists(pfad("alt.70x"))) << "the question for a copy was answered with yes";
  EXPECT_EQ(zav({"umwandeln", "--nein", pfad("haus"), pfad("neu800")}).status, 1) << "replacing was refused";
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

// ---- data -------------------------------------------------------------------------------------------------

TEST_F(Zav, JsonHoldsTextsLetterForLetterAndOfSparseTablesWhatIsThere) {
  Projekt p;
  p.Datei_version = "910";
  p.Notizen = "erste \"Zeile\"\r\nzweite: Ä";
  p.Ein_relais(5, 29) = 2;
  p.Ein_dimmer(1023, 127, 3) = 15;
  for (const int e : {5, 1023}) p.Ein_leer[e] = 1;
  schreiben("haus.zav", Projekt_schreiben(p));
  const auto j = nlohmann::json::parse(zav({"--json", "zeigen", pfad("haus")}).aus);
  std::set<std::string> namen;
  Felder_besuchen(p, [&](const char* name, const auto&) { namen.insert(name); });
  EXPECT_EQ(j.size(), namen.size());
  EXPECT_EQ(j["Notizen"], p.Notizen);
  EXPECT_EQ(j["Ein_relais"], nlohmann::json::parse(R"({"5": {"29": 2}})"));
  EXPECT_EQ(j["Ein_dimmer"], nlohmann::json::parse(R"({"1023": {"127": [0, 0, 0, 15]}})"));
}

// What an image holds stands in golden_test.
TEST_F(Zav, ImagesOfOneDayAndSeedAreEqualAndSayWhatIsMarked) {
  haus_anlegen("haus.zav");
  const Argumente fest{"--heute", "21.11.2026", "--zufall", "7", "abbild", pfad("haus")};
  const std::string ganz = zav(fest).aus;
  EXPECT_EQ(zav(fest + Argumente{"-o", pfad("x")}).aus, "");
  EXPECT_EQ(lesen("x"), ganz);

  const auto zeilen = [](const std::string& t) { return std::ranges::count(t, '\n'); };
  const std::string geaendert = zav({"abbild", pfad("haus"), "--nur-geaenderte", "--sperren"}).aus;
  EXPECT_EQ(zeilen(ganz), 9 + 372 + 2 * (1024 + 256 + 64) + 256 + 1);
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
  EXPECT_EQ(zav({"suche", pfad("haus"), "T4", "--json"}).aus, "[]\n");
  EXPECT_NE(zav({"--heute", "28.03.2026", "sonne"}).aus.find("Winterzeit\n"), std::string::npos);
  const std::string liste = zav({"--heute", "01.05.2028", "sonne", "--liste", "--json"}).aus;
  EXPECT_EQ(nlohmann::json::parse(liste).size(), 366U);
  EXPECT_TRUE(zav({"--heute", "01.05.2028", "sonne", "--liste"})
                  .aus.starts_with("Sonnenauf- und -untergang\nJanuar 2028\n"));
}

}  // namespace
}  // namespace zav
