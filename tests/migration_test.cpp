#include <gtest/gtest.h>

#include <random>
#include <string>

#include "hilfen.h"
#include "platform/einstellungen.h"
#include "projektvergleich.h"
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
std::string Altdatei(const std::string& version) {
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
  for (const char* code : {"0", "1", "2", "3", "4", "5", "6", "7", "12", "03", "-1", "3 "}) b.z(code);
  b.n(500);
  b.z("1").z("0").n(510);       // dimmer 0 of input event 0: corrected to 1, 1
  b.z("2").n(15).n(15).z("3");  // timers of the input and the clock event
  b.z("Treppe").n(15).n(47).z("00.05.00");
  b.z("3").n(511).n(511).z("44");
  b.n(511).z("2").n(512).z("3").n(1023).n(24).n(127).z("1").n(256);
  b.z("6").n(511).n(512);
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

  // What the file has brought into a fresh project.
  std::string Gelesen() const {
    Projekt frisch;
    frisch.Projekt_name = ordner / "haus";
    frisch.Projekt_kennung = projekt.Projekt_kennung;  // drawn anew at each opening
    return Geaendert(frisch);
  }

  Testordner ordner;
  Meldungsskript skript;
  static constexpr const char* titel = "Datei mit alter Version sichern?";
};

TEST_F(Migration, Generations600To710ReadTheirLinesAndCodes) {
  const std::string umgesetzt =
      "Ein_relais(0,1)=2 Ein_relais(0,2)=1 Ein_relais(0,3)=4 Ein_relais(0,4)=3 Ein_relais(0,5)=5 "
      "Ein_relais(0,6-7)=7 Ein_relais(0,8)=12 Ein_relais(0,9)=3 Ein_relais(0,10)=-1";
  const std::string uhrregeln =
      " Uhr_astro(0)=3 Uhr_tag(0)=1 Uhr_f1(0)=00.30.00 Uhr_f7(0)=1 Seq_taeglich(5)=6 Seq_flag(0)=1";
  struct {
    std::string version, freigabe, endung, ein, uhr, tev, regeln;
  } const faelle[] = {
      {"710", "ZAVlink 7.100", ".71x",
       "Ein_relais(0,1)=1 Ein_relais(0,2)=2 Ein_relais(0,3)=3 Ein_relais(0,4)=4 Ein_relais(0,5)=5 "
       "Ein_relais(0,6)=6 Ein_relais(0,7)=7 Ein_relais(0,8)=12 Ein_relais(0,9)=3 Ein_relais(0,10)=-1",
       "6", "3", uhrregeln},
      {"700", "ZAVlink 7.001", ".70x", umgesetzt, "11", "5", uhrregeln},
      {"600", "ZAVlink 6.xxx", ".6av", umgesetzt, "11", "5", " Seq_taeglich(5)=6"},
  };
  for (const auto& fall : faelle) {
    sitzung.Marke = "ETB";
    skript.erwarte(Frage(fall.freigabe, fall.endung, titel), Antwort::Nein);
    ASSERT_EQ(Oeffnen(Altdatei(fall.version)), Laden::geladen);
    EXPECT_EQ(ordner.eintraege(), 1u) << "no copy was wanted";
    EXPECT_EQ(sitzung.Projekt_geaendert, 0);
    // The correction of the dimmers holds for every older file: it marks its event.
    EXPECT_EQ(Gelesen(),
              "Datei_version=" + fall.version +
                  " Notizen=Notiz\r\n2 Grp_text(0)=Gruppe Grp_typ(0-254)=4 Grp_typ(255)=0 Ein_text(0)=Taste "
                  "Ein_leer(0)=1 Ein_funktext(0)=1 Ein_led(0)=3 Uhr_leer(0)=1 Uhr_funktext(0)=1 "
                  "Uhr_zeit(0)=06.30.00 Tev_leer(0)=1 Relais_text(0)=Lampe Timer_text(0)=Treppe "
                  "Timer_zeit(47)=00.05.00 " +
                  fall.ein + " Ein_timer(0,0)=2 Ein_dimmer(0,0,0-1)=1 Uhr_relais(0,0)=" + fall.uhr +
                  " Uhr_timer(0,15)=3 Tev_relais(0,0)=" + fall.tev +
                  " Tev_dimmer(0,127,3)=44 Relais_neustart(511)=2 Dimmer_neustart(127)=100 "
                  "Dimmer_modus(127)=1 Ein_param(0,0)=0 Ein_param(1,0)=0 Ein_param(2,0)=0 Ein_param(3,0)=0 "
                  "Ein_param(4,0)=0 Ein_param(5,0)=0 Ein_param(6,0)=0 Ein_param(7,0)=0 Store_p1=121 "
                  "Store_p2=111 Store_p3=112 Store_p4=301 Store_p5=7" +
                  fall.regeln + " Seq_manuell=1 Seq_neustart=1");
  }
}

TEST_F(Migration, TheCopyIsMadeBeforeOrTheFileIsNotRead) {
  const std::string bytes = Altdatei("710");
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
  EXPECT_EQ(sitzung.Projekt_geaendert, 0);
  EXPECT_EQ(
      Gelesen(),
      "Datei_version=500 Grp_text(63)=G63 Grp_typ(0-62)=3 Grp_typ(63)=6 Ein_text(255)=E255 Ein_leer(0)=1 "
      "Ein_leer(255)=1 Ein_funktext(0)=1 Ein_funktext(255)=1 Ein_led(255)=5 Uhr_leer(0-1)=1 "
      "Uhr_funktext(0-1)=1 Tev_leer(4)=1 Tev_leer(7-8)=1 Tev_leer(11)=1 Tev_leer(28)=1 Tev_leer(31)=1 "
      "Tev_funktext(4)=1 Tev_funktext(7-8)=1 Tev_funktext(11)=1 Tev_funktext(28)=1 Tev_funktext(31)=1 "
      "Relais_text(127)=R127 Dimmer_text(31)=D31 Timer_text(0)=Timer 0 Timer_text(2)=Timer 2 "
      "Timer_text(3)=Timer 3 Timer_text(4)=Timer 4 Timer_text(5)=Timer 5 Timer_text(6)=Timer 6 "
      "Timer_text(7)=Timer 7 Timer_zeit(0)=00.05.30 Timer_zeit(6)=00.00.00 Timer_zeit(9)=00.00.00 "
      "Timer_zeit(12)=00.00.00 Timer_zeit(15)=00.00.00 Timer_zeit(18)=00.00.00 Timer_zeit(21)=00.00.00 "
      "Ein_relais(0,0)=2 Ein_relais(0,5)=14 Ein_relais(255,127)=1 Ein_timer(0,1-2)=1 Ein_timer(0,7)=1 "
      "Ein_dimmer(255,31,3)=50 Uhr_relais(0,0)=17 Uhr_dimmer(1,31,3)=1 Uhr_dimmer(2,31,3)=-1 "
      "Tev_relais(4,1-2)=1 Tev_relais(7,1-2)=2 Tev_relais(8,3)=1 Tev_relais(11,3)=2 Tev_relais(28,4)=1 "
      "Tev_relais(31,4)=2 Relais_neustart_a(127)=1 Dimmer_neustart(31)=2 Ein_param(0,0)=30 Ein_param(0,1)=5 "
      "Ein_param(2,0)=0 Ein_param(3,0)=0 Ein_param(4,0)=0 Ein_param(5,0)=0 Ein_param(6,0)=0 Ein_param(7,0)=0 "
      "Store_p1=1 Store_p2=2 Store_p3=3 Store_p4=4 Store_p5=5 Seq_neustart=1")
      << "old code 6 is read as 7: timer 1";
}

// Lines of every sort, most of them empty.
TEST(Altdateien, AreTheSameCellByCellAfterTheyWereSaved) {
  std::mt19937 zufall(11);
  for (const char* version : {"710", "700", "600", "500"}) {
    std::string bytes = std::string("alt\r\n") + version + "\r\n\r\n\r\n\r\nNotiz\r\n";
    for (int i = 0; i < 150000; ++i) {
      if (zufall() % 3 == 0) bytes += std::to_string(zufall() % 21);
      bytes += "\r\n";
    }
    Projekt p, q;
    ASSERT_TRUE(Projekt_lesen(bytes, p));
    p.Datei_version = "910";
    ASSERT_TRUE(Projekt_lesen(Projekt_schreiben(p), q));
    EXPECT_EQ(Geaendert(p, q), "") << version;
  }
}

}  // namespace
