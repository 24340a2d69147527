#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hilfen.h"
#include "platform/einstellungen.h"
#include "store/altdaten.h"
#include "store/projekt.h"
#include "store/projektdatei.h"
#include "store/sitzung.h"

using namespace zav;

namespace {

// A file built line by line.
struct Zeilenbau {
  std::string bytes;
  Zeilenbau& z(std::string_view text) {
    (bytes += text) += "\r\n";
    return *this;
  }
  Zeilenbau& n(int anzahl, std::string_view text = "") {
    while (anzahl-- > 0) z(text);
    return *this;
  }
};

// Generations 600 to 710 with one event of each kind in use. The last lines are set, so that a line too many
// or too few anywhere shows.
std::string Altdatei(const std::string& version, const std::vector<const char*>& ein_codes,
                     const char* tev_code, const char* uhr_code) {
  Zeilenbau b;
  b.z("ZAVlink-Version alt")
      .z(version)
      .n(3)
      .z("Notiz\xFD\xFA"
         "2");
  b.z("Gruppe").n(255).z("Taste").n(1023);
  if (version != "600") {
    b.z("3").z("1").z("0").z("1").n(4 * 255, "0");
    b.z("00.30.00").n(5 * 256 - 1);
    b.z("1").n(5, "0");
  }
  b.z("1").z("0").n(2 * 1023, "0").z("1").z("1").n(2 * 255, "0").z("1").z("0").n(2 * 63, "0");
  b.z("Lampe").n(511).n(128).n(256).z("06.30.00").n(255).n(6);
  for (const char* code : ein_codes) b.z(code);
  b.n(512 - static_cast<int>(ein_codes.size()));
  b.z("1").z("0").n(510);       // dimmer 0 of input event 0: corrected to 1, 1
  b.z("2").n(15).n(15).z("3");  // timers of the input and the clock event
  b.z("Treppe").n(15).n(47).z("00.05.00");
  b.z(tev_code).n(511).n(511).z("44");
  b.n(511).z("2").n(512).z("3").n(1023).n(24).n(127).z("1").n(256);
  b.z(uhr_code).n(511).n(512);
  b.n(17).z("6").n(127, "0").z("100").n(255, "4").z("");
  b.z("1").z("0").z("1").z("121").z("111").z("112").z("301").z("7");
  return b.bytes;
}

Meldung Frage(const std::string& freigabe, const std::string& endung, const char* titel) {
  return {"Diese Datei wurde mit " + freigabe +
              " erstellt und gespeichert. Sie wird nun in der neuen ZAVlink-Version 9.102 geöffnet. Wenn Sie "
              "'Ja' wählen, wird sie vorher unter dem gleichem Namen mit der Erweiterung " +
              endung + " gespeichert (empfohlen)?",
          titel, Knoepfe::Ja_Nein, Symbol::Frage};
}

class Migration : public testing::Test {
 protected:
  Migration() {
    projekt = Projekt{};
    sitzung = Sitzung{};
    einstellungen = Einstellungen{};
  }
  Laden Oeffnen(const std::string& bytes) {
    Datei_anlegen(ordner / "haus.zav", bytes);
    projekt.Projekt_name = ordner / "haus.zav";
    return Projekt_laden();
  }

  Testordner ordner;
  Meldungsskript skript;
  static constexpr const char* titel = "Datei mit alter Version sichern?";
};

TEST_F(Migration, Generations600To710ReadTheirLinesAndCodes) {
  struct {
    const char* version;
    const char* freigabe;
    const char* endung;
    std::vector<i16> ein;
    i16 tev, uhr;
  } const faelle[] = {
      {"710", "ZAVlink 7.100", ".71x", {0, 1, 2, 3, 4, 5, 6, 7, 12, 3, -1, 0}, 3, 6},
      {"700", "ZAVlink 7.001", ".70x", {0, 2, 1, 4, 3, 5, 7, 7, 12, 3, -1, 0}, 5, 11},
      {"600", "ZAVlink 6.xxx", ".6av", {0, 2, 1, 4, 3, 5, 7, 7, 12, 3, -1, 0}, 5, 11},
  };
  for (const auto& fall : faelle) {
    SCOPED_TRACE(fall.version);
    const std::string bytes =
        Altdatei(fall.version, {"0", "1", "2", "3", "4", "5", "6", "7", "12", "03", "-1", "3 "}, "3", "6");
    sitzung.Marke = "ETB";
    skript.erwarte(Frage(fall.freigabe, fall.endung, titel), Antwort::Nein);
    ASSERT_EQ(Oeffnen(bytes), Laden::geladen);
    EXPECT_EQ(projekt.Datei_version, fall.version);
    EXPECT_EQ(projekt.Projekt_name, ordner / "haus");
    EXPECT_EQ(ordner.eintraege(), 1u) << "no copy was wanted";
    EXPECT_EQ(projekt.Notizen, "Notiz\r\n2");
    EXPECT_EQ(projekt.Grp_text[0] + projekt.Ein_text[0] + projekt.Relais_text[0], "GruppeTasteLampe");
    for (std::size_t j = 0; j < fall.ein.size(); ++j) EXPECT_EQ(projekt.Ein_relais(0, j), fall.ein[j]) << j;
    EXPECT_EQ(projekt.Tev_relais(0, 0), fall.tev);
    EXPECT_EQ(projekt.Uhr_relais(0, 0), fall.uhr);
    EXPECT_EQ(projekt.Tev_dimmer(0, 127, 3), 44);
    EXPECT_EQ(projekt.Ein_timer(0, 0), 2);
    EXPECT_EQ(projekt.Uhr_timer(0, 15), 3);
    EXPECT_EQ(projekt.Ein_dimmer(0, 0, 1), 1) << "the correction holds for every older file";
    EXPECT_EQ(projekt.Ein_funktext[0], 1);
    EXPECT_EQ(projekt.Uhr_funktext[0], 1);
    EXPECT_EQ(projekt.Tev_leer[0], 1);
    EXPECT_EQ(projekt.Timer_zeit[47], "00.05.00");
    EXPECT_EQ(projekt.Ein_led[0], 3);
    EXPECT_EQ(projekt.Ein_led[1], 640);
    EXPECT_EQ(projekt.Dimmer_neustart[127], 100);
    EXPECT_EQ(projekt.Grp_typ[254], 4);
    EXPECT_EQ(projekt.Grp_typ[255], 0);
    EXPECT_EQ(projekt.Seq_taeglich[5], 6);
    EXPECT_EQ(projekt.Store_p5, 7);
    const bool hat_uhrregeln = fall.version != std::string("600");
    EXPECT_EQ(projekt.Uhr_astro[0], hat_uhrregeln ? 3 : 0);
    EXPECT_EQ(projekt.Uhr_f1[0], hat_uhrregeln ? "00.30.00" : "");
    EXPECT_EQ(projekt.Seq_flag[0], hat_uhrregeln ? 1 : 0);
    EXPECT_EQ(sitzung.Projekt_geaendert, 0);
  }
}

TEST_F(Migration, TheCopyIsMadeBeforeOrTheFileIsNotRead) {
  const std::string bytes = Altdatei("710", {"1"}, "", "");
  skript.erwarte(Frage("ZAVlink 7.100", ".71x", titel), Antwort::Ja);
  ASSERT_EQ(Oeffnen(bytes), Laden::geladen);
  EXPECT_TRUE(Dateibytes(ordner / "haus.70x") == bytes) << "named .71x, made as .70x";
  EXPECT_TRUE(Dateibytes(ordner / "haus.zav") == bytes);

  std::filesystem::remove(ordner / "haus.70x");
  std::filesystem::create_directory(ordner / "haus.70x");
  skript.erwarte(Frage("ZAVlink 7.100", ".71x", titel), Antwort::Ja);
  skript.erwarte(
      {"Der Name gehört einem Ordner. Möglicherweise existiert die Sicherungsdatei .71x bereits und ist "
       "schreibgeschützt. Heben Sie bitte den Schreibschutz auf oder sichern Sie die Datei manuell.",
       "ZAVlink: Fehler 21", Knoepfe::OK, Symbol::Stopp});
  EXPECT_EQ(Oeffnen(bytes), Laden::nicht_gesichert);
  EXPECT_EQ(projekt.Projekt_name, ordner / "haus");
  EXPECT_EQ(projekt.Relais_text[0], "");
}

TEST_F(Migration, Generation500BecomesTimersAndFlags) {
  Zeilenbau b;
  b.z("ZAVlink 5").z("500").n(3).z("");
  b.n(63).z("G63").n(255).z("E255").n(127).z("R127").n(31).z("D31").n(256).n(256).n(6);
  // Input event 0: old codes; 7 and what lies beyond the old table up to 13 are timer codes.
  b.z("1").z("6").z("7").z("8").z("13").z("14").n(122);
  b.n(128 * 254).n(127).z("2");
  b.n(128).n(128 * 254).n(127).z("50");  // dimmers: input event 255, dimmer 31, parameter 3
  b.n(128).n(127).z("1").n(255).z("5");
  b.z("30").z("5").z("").z("1").n(2).n(18);  // timer 0: 00.05.30, timer 1 not in use
  b.n(32).n(64);
  b.z("11").n(127).n(128 * 255);
  b.n(128).n(127).z("1").n(127).z("-1").n(128 *
                                          253);  // a negative parameter does not make a clock event used
  b.n(18).n(31, "0").z("2").n(63, "3").z("6");
  b.z("0").z("0").z("1").z("1").z("2").z("3").z("4").z("5");
  // The code 14 has no meaning today, but it stands.
  skript.erwarte(Frage("ZAVlink 5.xxx", ".5av", "Datei mit älterer Verion sichern?"), Antwort::Nein);
  sitzung.Projekt_geaendert = 1;
  ASSERT_EQ(Oeffnen(b.bytes), Laden::geladen);
  const Projekt& p = projekt;

  EXPECT_EQ(p.Grp_text[63] + p.Ein_text[255] + p.Relais_text[127] + p.Dimmer_text[31], "G63E255R127D31");
  EXPECT_EQ(p.Store_p5, 5);
  EXPECT_EQ(p.Ein_led[255], 5);
  EXPECT_EQ(p.Dimmer_neustart[31], 2);
  EXPECT_EQ(p.Grp_typ[63], 6);
  EXPECT_EQ(p.Grp_typ[64], 5) << "beyond the small system: reset value";
  EXPECT_EQ(p.Ein_led[300], 640);

  const auto codes = p.Ein_relais.zeile(0).first(6);
  EXPECT_EQ(std::vector<i16>(codes.begin(), codes.end()), (std::vector<i16>{2, 0, 0, 0, 0, 14}));
  EXPECT_EQ(p.Ein_timer(0, 0), 0);
  for (const int t : {1, 2, 7}) EXPECT_EQ(p.Ein_timer(0, t), 1);
  // Old code 6 is read as 7: timer 1.
  for (const auto& [ereignis, relais, code] :
       {std::array{4, 1, 1}, {7, 1, 2}, {8, 3, 1}, {11, 3, 2}, {28, 4, 1}, {31, 4, 2}}) {
    EXPECT_EQ(p.Tev_relais(ereignis, relais), code) << ereignis;
  }
  for (int t = 0; t < 64; ++t) {
    const bool benutzt = t == 4 || t == 7 || t == 8 || t == 11 || t == 28 || t == 31;
    EXPECT_EQ(p.Tev_leer[t], benutzt) << t;
    EXPECT_EQ(p.Tev_funktext[t], benutzt) << t;
  }
  EXPECT_EQ(p.Ein_relais(255, 127), 1);
  EXPECT_EQ(p.Ein_dimmer(255, 31, 3), 50);
  EXPECT_EQ(p.Ein_leer[0] + p.Ein_leer[255], 2);
  EXPECT_EQ(p.Ein_leer[1] + p.Ein_leer[254], 0);
  EXPECT_TRUE(p.Uhr_relais(0, 0) == 17 && p.Uhr_dimmer(1, 31, 3) == 1);
  EXPECT_TRUE(p.Uhr_leer[0] == 1 && p.Uhr_leer[1] == 1 && p.Uhr_leer[2] == 0);
  EXPECT_EQ(p.Timer_zeit[0] + p.Timer_text[0], "00.05.30Timer 0");
  EXPECT_EQ(p.Timer_text[1] + p.Timer_zeit[3] + p.Timer_zeit[6], "00.00.00");
  EXPECT_EQ(sitzung.Projekt_geaendert, 0);
}

}  // namespace
