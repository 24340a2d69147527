#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "basis/windows1252.h"
#include "hilfen.h"
#include "platform/einstellungen.h"
#include "projektvergleich.h"
#include "store/kamera.h"
#include "store/letzte_dateien.h"
#include "store/projekt.h"
#include "store/projektdatei.h"
#include "store/sitzung.h"

using namespace zav;

namespace {

constexpr std::size_t zeilen_910 = 11281;  // of an empty project
constexpr std::size_t zeile_app = 11181;   // the one line of all app records

Projekt Neues_projekt(const char* version = "910") {
  Projekt p;
  p.Projekt_name = "Namenlos";
  p.Datei_version = version;
  p.Projekt_kennung = "0123456701234567";
  return p;
}

// The lines of a file, split at CR LF alone; entry 0 is line 1.
std::vector<std::string> Zeilen(const std::string& bytes) {
  std::vector<std::string> zeilen;
  std::size_t von = 0;
  for (std::size_t n; (n = bytes.find("\r\n", von)) != std::string::npos; von = n + 2) {
    zeilen.push_back(bytes.substr(von, n - von));
  }
  EXPECT_EQ(von, bytes.size()) << "the last line is not closed";
  return zeilen;
}

std::string Verbinden(const std::vector<std::string>& zeilen) {
  std::string bytes;
  for (const auto& z : zeilen) bytes += z + "\r\n";
  return bytes;
}

// Every value of a project different from its neighbours, and texts of all bytes that a line can hold.
Projekt Volles_projekt(const char* version) {
  Projekt p = Neues_projekt(version);
  std::mt19937 zufall(7);
  std::string alle_bytes;
  for (int b = 0; b < 256; ++b) alle_bytes += static_cast<char>(b);
  Felder_besuchen(p, [&]<class T>(std::string_view name, T& feld) {
    if constexpr (requires { feld.alle(); }) {
      for (auto& e : feld.alle()) {
        if constexpr (std::is_same_v<std::remove_reference_t<decltype(e)>, str>) {
          e = std::to_string(zufall() % 1000);
        } else if constexpr (sizeof e == 1) {
          e = zufall() % 4 == 0;
        } else {
          e = static_cast<i16>(zufall() % 3 == 0 ? zufall() : zufall() % 2);
        }
      }
    } else if constexpr (std::is_same_v<T, i16>) {
      feld = name.starts_with("Seq_") ? 1 : static_cast<i16>(zufall());
    }
  });
  p.Notizen = "Zeile eins\r\nZeile zwei: Öl & Straße\r\n";
  p.Ein_text[7] = Aus_1252(alle_bytes);
  p.Komb_text[3] = "";
  for (auto& z : p.Kamera_text.alle()) z = "X";
  Kamera_zusammensetzen(p);
  return p;
}

TEST(Projektdatei, NewProjectHasTheLinesOfItsGeneration) {
  const auto zeilen = Zeilen(Projekt_schreiben(Neues_projekt()));
  ASSERT_EQ(zeilen.size(), zeilen_910);
  const std::vector<std::string> kopf{"ZAVlink-Version 9.102", "910", "ETB", "",  "",  "", "",
                                      "0123456701234567",      "1",   "1",   "1", "1", "", "1"};
  EXPECT_EQ(std::vector(zeilen.begin(), zeilen.begin() + 14), kopf);
  EXPECT_EQ(std::count(zeilen[zeile_app - 1].begin(), zeilen[zeile_app - 1].end(), '\r'), 22528);
  EXPECT_EQ(zeilen[zeile_app - 1].substr(0, 31), "0\r0\r0\r0\r0\r0\r0\r\r0\r0\r\r640\r0\r\r\r\r\r\r");
  for (std::size_t n = zeile_app; n < zeilen_910; ++n) EXPECT_EQ(zeilen[n], "X");

  EXPECT_EQ(Zeilen(Projekt_schreiben(Neues_projekt("900"))).size(), zeilen_910 - 11);
  const auto alt = Zeilen(Projekt_schreiben(Neues_projekt("800")));
  EXPECT_EQ(alt.size(), zeilen_910 - 11 - 48);
  EXPECT_EQ(alt[1], "800");
  EXPECT_EQ(alt[2], "ETB");
  // A project that was read from an older file goes out in the lines of 800 under its old name.
  const auto noch_aelter = Zeilen(Projekt_schreiben(Neues_projekt("600")));
  EXPECT_EQ(noch_aelter.size(), alt.size());
  EXPECT_EQ(noch_aelter[1], "600");
}

TEST(Projektdatei, EveryValueStandsInItsLine) {
  struct {
    std::size_t zeile;
    std::function<void(Projekt&)> setzen;
    std::string text;
  } const faelle[] = {
      {7, [](Projekt& p) { p.Notizen = "a\r\nö"; }, "a\xFD\xFA\xF6"},
      {11, [](Projekt& p) { p.Sowi_modus[2] = -32768; }, "-32768"},
      {215, [](Projekt& p) { p.Wetter_aktiv[7] = "€"; }, "\x80"},
      {755, [](Projekt& p) { p.Grp_led[255] = 0; }, "0"},
      {1779, [](Projekt& p) { p.Ein_funktext[1023] = 255; }, "255"},
      {2100, [](Projekt& p) { p.Uhr_tabelle_geaendert = 1; }, "1"},
      {5684, [](Projekt& p) { p.Uhr_f5[255] = "00.10.00"; }, "00.10.00"},
      {8192, [](Projekt& p) { p.Seq_datum[5] = "01.02.2026"; }, "01.02.2026"},
      {10304, [](Projekt& p) { p.Ein_led[1023] = 0; }, "0"},
      {10305, [](Projekt&) {}, "1"},
      {10712, [](Projekt& p) { p.Grp_thermo[255] = 9; }, "9"},
      {11122, [](Projekt&) {}, "6"},
      {11125, [](Projekt& p) { p.Enocean_empf_ort[0] = "Keller"; }, "Keller"},
      {11171, [](Projekt& p) { p.App_allgemein[0] = "Haus"; }, "Haus"},
      // A Kombination in use adds its 307 lines behind the texts, and 128 lines of radio.
      {500 + 1, [](Projekt& p) { p.Komb_text[9] = "EG", p.Komb_text2[9] = "Bad"; }, "Bad"},
      {500 + 3 + 45, [](Projekt& p) { p.Komb_text[9] = "EG", p.App_typ[9 * 16 + 15] = 33; }, "33"},
      {500 + 306, [](Projekt& p) { p.Komb_text[9] = "EG", p.Dev_adr[9 * 128 + 127] = 12; }, "12"},
      {11123 + 307 + 127, [](Projekt& p) { p.Komb_text[9] = "EG", p.App_enocean_res2[9 * 16 + 15] = 8; },
       "8"},
      // An event in use adds its rows: 512 relays, 512 dimmer parameters, 16 timers.
      {8193 + 511, [](Projekt& p) { p.Ein_leer[5] = 1, p.Ein_relais(5, 511) = 20; }, "20"},
      {8193 + 512 + 7, [](Projekt& p) { p.Ein_leer[5] = 1, p.Ein_dimmer(5, 1, 3) = 100; }, "100"},
      {8193 + 1024 + 15, [](Projekt& p) { p.Ein_leer[5] = 1, p.Ein_timer(5, 15) = 3; }, "3"},
      {8193 + 15, [](Projekt& p) { p.Uhr_leer[5] = 1, p.Uhr_timer(5, 15) = 4; }, "4"},
      {8257 + 512 + 511, [](Projekt& p) { p.Tev_leer[63] = 1, p.Tev_dimmer(63, 127, 3) = 7; }, "7"},
      {10713 + 16 + 511, [](Projekt& p) { p.Uhr_leer[5] = 1, p.Uhr_relais(5, 511) = 20; }, "20"},
      // A flag other than 1 has no rows.
      {8193, [](Projekt& p) { p.Ein_leer[5] = 2, p.Timer_text[0] = "Timer"; }, "Timer"},
  };
  for (const auto& fall : faelle) {
    Projekt p = Neues_projekt();
    fall.setzen(p);
    EXPECT_EQ(Zeilen(Projekt_schreiben(p)).at(fall.zeile - 1), fall.text) << "line " << fall.zeile;
  }
}

TEST(Projektdatei, RoundTripIsExact) {
  for (const char* version : {"910", "900", "800"}) {
    for (const Projekt& p : {Neues_projekt(version), Volles_projekt(version)}) {
      const std::string bytes = Projekt_schreiben(p);
      Projekt gelesen;
      ASSERT_TRUE(Projekt_lesen(bytes, gelesen));
      EXPECT_TRUE(Projekt_schreiben(gelesen) == bytes) << version;
      EXPECT_EQ(gelesen.App_text[3 * 16], "") << "devices of an unused slot are not kept";
    }
  }
  // The largest project: everything is in use, so everything comes back.
  Projekt p = Volles_projekt("910");
  p.Komb_text[3] = "Dach";
  for (auto flaggen : {p.Ein_leer.alle(), p.Uhr_leer.alle(), p.Tev_leer.alle()}) {
    std::fill(flaggen.begin(), flaggen.end(), u8{1});
  }
  Projekt gelesen;
  gelesen.Projekt_name = p.Projekt_name;
  ASSERT_TRUE(Projekt_lesen(Projekt_schreiben(p), gelesen));
  EXPECT_EQ(Geaendert(p, gelesen), "");
}

// One section of the file in use at a time, its texts of all bytes that a line can hold.
TEST(Projektdatei, FilesOfEveryShapeComeBackByteByByte) {
  const std::string alle_bytes = Volles_projekt("910").Ein_text[7];
  using Setzen = void (*)(Projekt&, const str&);
  const Setzen formen[] = {
      [](Projekt& p, const str& t) { p.Notizen = t + "\r\n" + t; },
      [](Projekt& p, const str& t) { p.Grp_text[255] = p.Relais_text[511] = p.Dimmer_text[127] = t; },
      [](Projekt& p, const str&) { p.Ein_leer[0] = 1, p.Ein_dimmer(0, 127, 3) = -1; },
      [](Projekt& p, const str&) { p.Ein_leer[1023] = 1, p.Ein_timer(1023, 15) = 4; },
      [](Projekt& p, const str& t) { p.Uhr_leer[255] = 1, p.Uhr_relais(255, 511) = 20, p.Uhr_text[255] = t; },
      [](Projekt& p, const str& t) { p.Tev_leer[0] = p.Tev_leer[63] = 1, p.Timer_text[15] = t; },
      [](Projekt& p, const str& t) { p.Komb_text[0] = p.Komb_text[255] = p.App_text[16 * 255] = t; },
      [](Projekt& p, const str& t) { p.Kamera_titel[3] = t, Kamera_zusammensetzen(p); }};
  for (const char* version : {"910", "900", "800"}) {
    for (const Setzen& form : formen) {
      Projekt p = Neues_projekt(version), gelesen;
      form(p, alle_bytes);
      const std::string bytes = Projekt_schreiben(p);
      ASSERT_TRUE(Projekt_lesen(bytes, gelesen));
      EXPECT_TRUE(Projekt_schreiben(gelesen) == bytes) << version << " " << &form - formen;
    }
  }
}

TEST(Projektdatei, EachFieldConvertsByItsRule) {
  Projekt benutzt = Neues_projekt();
  benutzt.Ein_leer[0] = 1;
  const auto grund = Zeilen(Projekt_schreiben(benutzt));
  struct Fall {
    const char* text;
    int wert;
  };
  struct {
    std::size_t zeile;
    std::function<int(const Projekt&)> wert;
    std::vector<Fall> faelle;
  } const felder[] = {
      {9,
       [](const Projekt& p) { return p.Sowi_modus[0]; },
       {{"", 1},
        {"2", 2},
        {" 2", 1},
        {"+2", 1},
        {"2.0", 1},
        {"-7", -7},
        {"0032767", 32767},
        {"32768", 1},
        {"99999999999999999999", 1}}},
      {756, [](const Projekt& p) { return p.Ein_funktext[0]; }, {{"255", 255}, {"256", 0}, {"-1", 0}}},
      {8193, [](const Projekt& p) { return p.Ein_relais(0, 0); }, {{"", 0}, {"-3", -3}}},
      {8193 + 1024, [](const Projekt& p) { return p.Ein_timer(0, 0); }, {{"32767", 32767}, {"32768", 0}}},
      {1040 + 9281, [](const Projekt& p) { return p.Ein_led[0]; }, {{"", 640}, {"0", 0}, {"x", 640}}},
      {1040 + 10305, [](const Projekt& p) { return p.Ein_param(0, 0); }, {{"", 0}, {"x", 1}}},
      {1040 + 10859, [](const Projekt& p) { return p.Grp_typ[0]; }, {{"", 0}, {"x", 5}}},
      {1040 + 11115, [](const Projekt& p) { return p.Seq_manuell; }, {{"1", 1}, {"01", 0}}},
      {1040 + 11118, [](const Projekt& p) { return p.Store_p1; }, {{"", 120}, {"90", 90}}},
  };
  for (const auto& feld : felder) {
    for (const auto& [text, wert] : feld.faelle) {
      auto zeilen = grund;
      zeilen.at(feld.zeile - 1) = text;
      Projekt p;
      ASSERT_TRUE(Projekt_lesen(Verbinden(zeilen), p));
      EXPECT_EQ(feld.wert(p), wert) << "line " << feld.zeile << " '" << text << "'";
    }
  }

  auto zeilen = grund;
  zeilen[0] = "irgendein Programm";
  zeilen[1040 + zeile_app - 1] = "3\r2\r";
  Projekt p;
  ASSERT_TRUE(Projekt_lesen(Verbinden(zeilen), p));
  EXPECT_EQ(p.App_eigenschaften(0, +App_bereich), "2");
  EXPECT_EQ(p.App_eigenschaften(0, +App_rueckmeldung), "640");
}

TEST(Projektdatei, AFileOpensHoweverItIsCut) {
  Projekt voll = Volles_projekt("910");
  for (int i = 4; i < eingangsereignisse; ++i) voll.Ein_leer[i] = 0;
  for (int i = 4; i < uhrereignisse; ++i) voll.Uhr_leer[i] = 0;
  const std::string bytes = Projekt_schreiben(voll);
  const std::size_t zeile3 = bytes.find("ETB");
  for (std::size_t n = zeile3; n < bytes.size(); n += 12007) {
    Projekt p;
    ASSERT_TRUE(Projekt_lesen(std::string_view(bytes).substr(0, n), p)) << n;
  }
  // A last line that is not closed counts; what follows keeps its reset value.
  const std::size_t kennung = bytes.find("0123456701234567");
  Projekt p;
  ASSERT_TRUE(Projekt_lesen(std::string_view(bytes).substr(0, kennung + 4), p));
  EXPECT_EQ(p.Projekt_kennung, "0123");
  EXPECT_EQ(Geaendert({}, p), "Datei_version=910 Notizen=" + voll.Notizen + " Projekt_kennung=0123");
  for (const std::string_view kurz : {"", "\r\n", "910", "910\r\n", "x\r\n\n910\r\n", "x\r\n910 \r\n"}) {
    Projekt q = Neues_projekt();
    EXPECT_FALSE(Projekt_lesen(kurz, q));
  }
}

TEST(Kamera, LineIsCutAtItsMarkersAndBuiltBack) {
  Projekt p = Neues_projekt();
  p.Kamera_text[1] = "Tor@01#Nord@02#10.0.0.1@03#ohne Port@05#@09#";
  p.Kamera_text[4] = "Rest@01#";
  const Projekt vorher = p;
  Kamera_zerlegen(p);
  EXPECT_EQ(Geaendert(vorher, p),
            "Kamera_titel(1)=Tor Kamera_untertitel(1)=Nord Kamera_ip(1)=10.0.0.1 Kamera_controlport(1)=ohne "
            "Port Kamera_aktiv(1)=")
      << "a marker that is missing gives the reset value";
  p.Kamera_titel[2] = "Hof";
  Kamera_zusammensetzen(p);
  EXPECT_EQ(p.Kamera_text[0], "X");
  EXPECT_EQ(p.Kamera_text[2], "Hof@01#@02#@03#@04#@05#@06#@07#@08#0@09#0@10#0@11#0@12#0@13#0@14#");
  EXPECT_EQ(p.Kamera_text[4], "Rest@01#");
}

// ---- the commands on the open project ---------------------------------------------------------------------

class Befehle : public testing::Test {
 protected:
  Befehle() {
    projekt = Projekt{};
    sitzung = Sitzung{};
    einstellungen = Einstellungen{};
  }
  Laden Oeffnen(const std::string& name) {
    projekt.Projekt_name = ordner / name;
    return Projekt_laden();
  }

  Testordner ordner;
  Meldungsskript skript;
};

TEST_F(Befehle, SavesAndLoadsUnderOneName) {
  projekt = Volles_projekt("910");
  projekt.Projekt_name = ordner / "haus";
  ASSERT_EQ(Projekt_speichern(), Speichern::gespeichert);
  const std::string bytes = Projekt_schreiben(projekt);
  EXPECT_TRUE(Dateibytes(ordner / "haus.zav") == bytes);
  EXPECT_EQ(einstellungen.last_file[0], ordner / "haus");

  einstellungen = Einstellungen{};
  projekt.Notizen = "ungespeichert";
  sitzung.Projekt_geaendert = 1;
  sitzung.Master_neu_pruefen = 0;
  ASSERT_EQ(Oeffnen("haus.zav"), Laden::geladen);
  EXPECT_TRUE(Projekt_schreiben(projekt) == bytes);
  EXPECT_EQ(projekt.Projekt_name, ordner / "haus");
  EXPECT_TRUE(sitzung.Projekt_geaendert == 0 && sitzung.Master_neu_pruefen == 1 && sitzung.Marke == "ETB");
  EXPECT_EQ(einstellungen.last_file[0], ordner / "haus");
  EXPECT_EQ(skript.zeiger(), Zeiger::normal);
}

TEST_F(Befehle, SavingTellsWhatItMust) {
  projekt = Neues_projekt();
  skript.erwarte(
      {"Der Speicherort ist unvollständig. Speichern Sie diese Datei bitte mit 'Projekt speichern unter...'.",
       "Unvollständige Dateiinformation", Knoepfe::OK, Symbol::Information});
  EXPECT_EQ(Projekt_speichern(), Speichern::ohne_namen);
  EXPECT_EQ(sitzung.Speicherfehler, 1);

  projekt.Projekt_name = ordner / "kein/haus";
  skript.erwarte(
      {"Datei oder Ordner nicht gefunden. Die Datei mit diesem Namen ist möglicherweise schreibgeschützt. "
       "Speichern Sie sie mit 'Projekt speichern unter...' mit einem anderen Namen oder in einen anderen "
       "Ordner.",
       "ZAVlink: Fehler 2", Knoepfe::OK, Symbol::Stopp});
  EXPECT_EQ(Projekt_speichern(), Speichern::nicht_angelegt);
  EXPECT_EQ(projekt.Projekt_name, "Namenlos");
  EXPECT_EQ(skript.pieptoene(), 1);

  // A disk that is full while writing: no box, but the caller learns it.
  std::filesystem::create_symlink("/dev/full", ordner / "voll.zav");
  projekt.Projekt_name = ordner / "voll";
  EXPECT_EQ(Projekt_speichern(), Speichern::nicht_geschrieben);
  EXPECT_EQ(sitzung.Dateifehler, ENOSPC);
  EXPECT_EQ(projekt.Projekt_name, ordner / "voll");
}

TEST_F(Befehle, LoadingTellsWhatItMust) {
  struct {
    const char *bytes, *version, *genannt;
  } const faelle[] = {{"nur eine Zeile\r\n", "", ""},
                      {"x\r\n92\xFC\r\n", "92ü", "Die Dateiversion ist: 92ü"},
                      {"x\r\n9100\r\n", "9100", ""}};
  for (const auto& f : faelle) {
    Datei_anlegen(ordner / "haus.zav", f.bytes);
    projekt.Notizen = "von vorher";
    skript.erwarte({std::string("Öffnen nicht möglich: diese Datei wurde evtl. mit einer neueren Version von "
                                "ZAVlink erstellt und gespeichert.\r\n\r\n") +
                        f.genannt,
                    "Info", Knoepfe::OK, Symbol::Information});
    EXPECT_EQ(Oeffnen("haus.zav"), Laden::unbekannt);
    EXPECT_EQ(projekt.Datei_version, f.version);
    EXPECT_EQ(projekt.Projekt_name + projekt.Notizen, "Namenlos");
  }
  skript.erwarte({"Datei oder Ordner nicht gefunden", "ZAVlink: Fehler 2", Knoepfe::OK, Symbol::Stopp});
  EXPECT_EQ(Oeffnen("fehlt.zav"), Laden::nicht_geoeffnet);
  EXPECT_EQ(projekt.Projekt_name, "Namenlos");
  EXPECT_EQ(skript.pieptoene(), 4);
  EXPECT_EQ(einstellungen.last_file[0], "---");

  // The dialog was cancelled: the project stays.
  projekt.Notizen = "bleibt";
  projekt.Projekt_name = "";
  sitzung.Projekt_name_vorher = "/vorher";
  EXPECT_EQ(Projekt_laden(), Laden::abgebrochen);
  EXPECT_EQ(projekt.Projekt_name, "/vorher");
  EXPECT_EQ(projekt.Notizen, "bleibt");
}

TEST_F(Befehle, Generation800IsAnnouncedAndItsDimmersCorrectedWithoutTheMarker) {
  Projekt p = Neues_projekt("800");
  p.Ein_leer[2] = 1;
  static constexpr i16 paare[][3] = {{1, 1, 1}, {1, 0, 1},   {17, 17, 17}, {17, 3, 4},
                                     {0, 2, 1}, {0, 18, 17}, {5, 7, 7}};
  for (int j = 0; j < 7; ++j) p.Ein_dimmer(2, j, 0) = paare[j][0], p.Ein_dimmer(2, j, 1) = paare[j][1];
  const Meldung hinweis{
      "Diese Datei wurde mit ZAVlink 8 erstellt und wird weiterhin so gespeichert. Wenn Sie die neuen "
      "Funktionen von ZAVlink-Version 9.102 nutzen möchten, wählen Sie 'Speichern unter' und den Dateityp 9. "
      "Achtung: Das Betriebssystem des ZAVmasters muss auf die Version 9 aufgerüstet werden.",
      "Öffnen mit der neuen Version von ZAVlink", Knoepfe::OK, Symbol::Information};
  auto zeilen = Zeilen(Projekt_schreiben(p));
  for (const char* marke : {"ETB", ""}) {
    zeilen[2] = marke;
    Datei_anlegen(ordner / "haus.zav", Verbinden(zeilen));
    skript.erwarte(hinweis);
    ASSERT_EQ(Oeffnen("haus.zav"), Laden::geladen);
    const bool alt = marke[0] == '\0';
    for (int j = 0; j < 7; ++j) EXPECT_EQ(projekt.Ein_dimmer(2, j, 1), paare[j][alt ? 2 : 1]) << j;
    EXPECT_EQ(projekt.Ein_funktext[2], alt);
    EXPECT_EQ(sitzung.Marke, marke);
  }
}

TEST_F(Befehle, LastFilesKeepTheNewestFirst) {
  const auto eintragen = [](const char* name) {
    projekt.Projekt_name = name;
    Letzte_dateien_eintragen();
    std::string liste;
    for (const str& e : einstellungen.last_file.alle()) liste += e + " ";
    return liste;
  };
  for (const char* name : {"a", "b", "c"}) eintragen(name);
  EXPECT_EQ(eintragen("a"), "a c b --- ");
  EXPECT_EQ(eintragen("a"), "a c b --- ");
  eintragen("d");
  EXPECT_EQ(eintragen("b"), "b d a c ");
  EXPECT_EQ(eintragen("e"), "e b d a ");
}

}  // namespace
