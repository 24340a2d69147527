// What scripts read from the command line and people from the report, word for word: the outputs for the
// example house of one day and seed against the files in tests/golden. A wanted change is taken over with
// ZAV_GOLDEN=schreiben in the environment, and looked at.
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

#include "app/deskriptor.h"
#include "befehlszeile.h"
#include "editor/apparatseite.h"
#include "platform/uhrwerk.h"
#include "shell/bericht.h"
#include "store/funktionen.h"
#include "store/katalog.h"
#include "store/projektdatei.h"

namespace zav {
namespace {

namespace fs = std::filesystem;

// FNV-1a, 64 bits: enough to see that a line of thousands is different.
std::string Fingerabdruck(std::string_view text) {
  std::uint64_t h = 14695981039346656037U;
  for (const char c : text) h = (h ^ static_cast<unsigned char>(c)) * 1099511628211U;
  std::array<char, 17> hex{};
  std::snprintf(hex.data(), hex.size(), "%016llX", static_cast<unsigned long long>(h));
  return hex.data();
}

std::string Bytes(const fs::path& datei) {
  std::ifstream d(datei, std::ios::binary);
  return {std::istreambuf_iterator<char>(d), {}};
}

void Vergleichen(const std::string& name, const std::string& ist) {
  const fs::path datei = fs::path(GOLDEN_ORDNER) / (name + ".txt");
  if (std::getenv("ZAV_GOLDEN") != nullptr) std::ofstream(datei, std::ios::binary) << ist;
  EXPECT_EQ(ist, Bytes(datei)) << "If this is wanted, run the test once with ZAV_GOLDEN=schreiben";
}

// As printed.
std::string Ganz(const std::string& aus) { return aus; }

// One line a key, its value as a fingerprint: renamed keys and changed values show without megabytes of
// zeros. The name of the project is its path, which differs from machine to machine.
std::string Schluessel(const std::string& aus) {
  std::string text;
  const auto projekt = nlohmann::json::parse(aus);
  for (const auto& [name, wert] : projekt.items()) {
    text += name + " " + (name == "Projekt_name" ? "-" : Fingerabdruck(wert.dump())) + "\n";
  }
  return text;
}

// Direct blocks whole; windows by regions of 64 KB with their number and fingerprint.
std::string Regionen(const std::string& aus) {
  std::istringstream zeilen(aus);
  std::string text, zeile;
  std::map<std::string, std::pair<int, std::string>> regionen;
  while (std::getline(zeilen, zeile)) {
    if (!zeile.starts_with("W ")) {
      text += zeile + "\n";
      continue;
    }
    auto& [anzahl, bytes] = regionen[zeile.substr(2, 2)];
    ++anzahl;
    bytes += zeile + "\n";
  }
  for (const auto& [von, inhalt] : regionen) {
    text += "W " + von + "xxxx " + std::to_string(inhalt.first) + " " + Fingerabdruck(inhalt.second) + "\n";
  }
  return text;
}

struct Fall {
  const char* name;
  std::vector<std::string> befehl;  // "HAUS" stands for the example house
  std::string (*ansicht)(const std::string&) = Ganz;
};

void PrintTo(const Fall& f, std::ostream* o) { *o << f.name; }

class Golden : public testing::TestWithParam<Fall> {};

TEST_P(Golden, OutputIsAsPromised) {
  const fs::path ordner = fs::temp_directory_path() / ("golden_test." + std::to_string(getpid()));
  fs::create_directories(ordner);
  setenv("XDG_CONFIG_HOME", ordner.c_str(), 1);
  std::vector<std::string> argumente{"--heute", "29.03.2026", "--zufall", "1"};
  for (const std::string& a : GetParam().befehl) argumente.push_back(a == "HAUS" ? EINFAMILIENHAUS_DATEI : a);

  std::istringstream ein;
  std::ostringstream aus, fehler;
  EXPECT_EQ(Befehlszeile(argumente, {ein, aus, fehler, false, false}), 0) << fehler.str();
  EXPECT_EQ(fehler.str(), "");
  fs::remove_all(ordner);

  Vergleichen(GetParam().name, GetParam().ansicht(aus.str()));
}

INSTANTIATE_TEST_SUITE_P(Beispielhaus, Golden,
                         testing::Values(Fall{"zeigen", {"zeigen", "HAUS"}},
                                         Fall{"zeigen_json", {"--json", "zeigen", "HAUS"}, Schluessel},
                                         Fall{"abbild", {"abbild", "HAUS"}, Regionen},
                                         Fall{"suche_relais", {"suche", "HAUS", "O1-0"}},
                                         Fall{"suche_dimmer_json", {"--json", "suche", "HAUS", "D0-0"}},
                                         Fall{"suche_timer", {"suche", "HAUS", "T0"}},
                                         Fall{"touchpanel", {"touchpanel", "HAUS"}}, Fall{"sonne", {"sonne"}},
                                         Fall{"sonne_json", {"--json", "sonne"}}),
                         [](const auto& f) { return std::string(f.param.name); });

// The house, and what it has not got: functions on an address without device, a sequence of clocks, codes of
// a damaged file.
TEST(Golden, ReportIsAsPromised) {
  Heute_setzen({2026, 3, 29});
  ASSERT_TRUE(Projekt_lesen(Bytes(EINFAMILIENHAUS_DATEI), projekt));
  projekt.Projekt_name = "einfamilienhaus";
  projekt.Grp_text[255] = "Freie Gruppe";
  projekt.Grp_thermo[255] = 1;
  projekt.Ein_text[4 * 255 + 3] = "ohne\tFunktion";
  projekt.Ein_led[4 * 255 + 3] = erster_dimmer;
  projekt.Ein_dimmer(4 * 254, 127, 1) = 1;
  projekt.Seq_datum[5] = "24.12.2026";
  projekt.Relais_neustart[511] = 7;
  projekt.Dimmer_neustart[127] = helligkeit_aus;
  projekt.Wetter_v_ost[7] = projekt.Wetter_v_innen[7] = 1;
  projekt.Wetter_innen[7] = "19.5";
  projekt.Wetter_v_richtung[7] = 8;
  projekt.Wetter_v_regen[7] = 2;
  projekt.Wetter_v_defekt[7] = 1;
  Vergleichen("bericht", Bericht());
}

// The house, and a storey that has what its keys have not: a part behind "--", characters of XML, every place
// and every question; a camera with keys and without ports.
TEST(Golden, AppDescriptorIsAsPromised) {
  Projekt p;
  ASSERT_TRUE(Projekt_lesen(Bytes(EINFAMILIENHAUS_DATEI), p));
  constexpr int k = 26, d = plaetze * k + 2, von = 4 * 240;
  ASSERT_EQ(p.Komb_text[k], "");
  p.Komb_text[k] = "dach--hell";
  p.Komb_text2[k] = "Küche's";
  p.App_typ[d] = 29;
  p.App_text[d] = "240";
  p.App_text2[d] = "2";
  for (const auto& [n, text] :
       {std::pair{0, "Licht & Lärm"}, {4, "nicht in der App"}, {5, "Tor"}, {6, "Szene"}}) {
    p.Dev_text[tastenplaetze * d + n] = text;
  }
  const auto satz = [&p](int ereignis, std::initializer_list<std::pair<App_feld, const char*>> werte) {
    for (const auto& [feld, wert] : werte) p.App_eigenschaften.zeile(ereignis)[feld] = wert;
  };
  satz(von, {{App_geraet, "3"},
             {App_bereich, "2"},
             {App_mit_icon, "1"},
             {App_icon_name, "Licht"},
             {App_mit_rueckmeldung, "1"},
             {App_rueckmeldung, "513"}});
  satz(von + 1, {{App_geraet, "3"}});  // a key without a text
  satz(von + 5, {{App_geraet, "2"},
                 {App_eigener_text, "1"},
                 {App_tastentext, "Straße"},
                 {App_mit_bestaetigung, "1"},
                 {App_frage_art, "3"},
                 {App_frage1, "Zu?"},
                 {App_ja1, "Ja"},
                 {App_nein1, "Nein"},
                 {App_frage2, "\"Auf\"?"},
                 {App_ja2, "J"},
                 {App_nein2, "N"}});
  satz(von + 6, {{App_geraet, "1"}, {App_bereich, "1"}, {App_als_szene, "1"}});
  p.Kamera_aktiv[2] = "1";
  p.Kamera_usecase[2] = "63";
  p.Kamera_titel[2] = "Tür & Tor";
  p.Kamera_taste1[2] = std::to_string(von);
  p.Kamera_tastentext1[2] = "Öffnen";
  p.Kamera_taste2[2] = "0";  // no key, though event 0 is one of the app
  Vergleichen("app", App_xml_bauen(p));
}

// What neighbours have in common once, as "2-5 LED".
template <class F, class Wort>
std::string Laeufe(const F& feld, Wort wort) {
  std::string text;
  for (std::size_t i = 0, j = 0; i < feld.size(); i = ++j) {
    if (!feld[i]) continue;
    while (j + 1 < feld.size() && feld[j + 1] && wort(*feld[j + 1]) == wort(*feld[i])) ++j;
    text += "  " + std::to_string(i) + (j > i ? "-" + std::to_string(j) : "") + " " + wort(*feld[i]) + "\n";
  }
  return text;
}

// All kinds of device: their texts, their addresses, their page.
TEST(Golden, KindsAreAsPromised) {
  const auto name = [](const std::string& s) { return s; };
  const auto knopf = [](const Apparatseite::Knopf& k) { return k.titel + " (" + k.hinweis + ")"; };
  std::string text;
  for (const Apparatart& a : Apparatarten()) {
    const Apparatseite s = Apparat_seite(a.typ);
    text += std::to_string(a.typ) + " | " + std::string(a.tag) + " | " + std::string(a.titel) + " | " +
            std::to_string(a.adressen) + "\n";
    for (const std::string& u : s.ueberschriften) text += u.empty() ? "" : "  " + u + "\n";
    text += " Tasten\n" + Laeufe(s.tasten, name) + " LED\n" + Laeufe(s.leds, name) + " Ereignisse\n" +
            Laeufe(s.knoepfe, knopf);
  }
  Vergleichen("apparate", text);
}

}  // namespace
}  // namespace zav
