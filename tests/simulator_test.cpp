// The simulated master, seen from the other end of the line.
#include "simulator/simulator.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <iterator>
#include <sstream>

#include "hilfen.h"
#include "simulator/fd.h"

namespace zav::simulator {
namespace {

using namespace std::chrono_literals;

// One end of a wire to the master, by TCP or terminal.
class Draht {
 public:
  explicit Draht(const Simulator& sim) : fd(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    a.sin_port = htons(static_cast<std::uint16_t>(sim.tcp_port()));
    EXPECT_EQ(::connect(fd.nummer(), reinterpret_cast<sockaddr*>(&a), sizeof a), 0);
  }
  explicit Draht(const std::string& geraet) : fd(::open(geraet.c_str(), O_RDWR | O_NOCTTY)) {
    EXPECT_TRUE(fd);
  }

  void roh(std::string_view bytes) {
    while (!bytes.empty()) {
      const auto n = ::write(fd.nummer(), bytes.data(), bytes.size());
      ASSERT_GT(n, 0);
      bytes.remove_prefix(static_cast<std::size_t>(n));
    }
  }
  // Reads until the text ends so; what has come by then when nothing more comes for two seconds or the line
  // closes.
  std::string bis(std::string_view ende) {
    std::string text;
    while (!text.ends_with(ende) && bereit(2000)) {
      char c;
      if (::read(fd.nummer(), &c, 1) != 1) return text + "<zu>";
      text += c;
    }
    return text;
  }
  // Payload of the reply to a message; a reply whose checksum is wrong comes back whole.
  std::string fragen(std::string_view nachricht) {
    roh(rahmen(nachricht));
    const std::string antwort = bis("\r");
    const std::string nutzlast = antwort.substr(0, antwort.size() < 3 ? 0 : antwort.size() - 3);
    return antwort == rahmen(nutzlast) ? nutzlast : antwort;
  }
  bool bereit(int ms) {
    pollfd p{fd.nummer(), POLLIN, 0};
    return ::poll(&p, 1, ms) == 1;
  }
  bool stumm() { return !bereit(60); }

 private:
  Fd fd;
};

class Zavmaster : public ::testing::Test {
 protected:
  explicit Zavmaster(Optionen o = {.pty = true}) : sim(std::move(o)), draht((sim.start(), sim)) {}
  std::string frage(std::string_view nachricht) { return draht.fragen(nachricht); }
  // Messages with the code each is refused with.
  void verweigert(std::initializer_list<std::pair<std::string_view, std::string_view>> faelle) {
    for (const auto& [nachricht, code] : faelle) EXPECT_EQ(draht.fragen(nachricht), code) << nachricht;
  }

  Simulator sim;
  Draht draht;
};

TEST_F(Zavmaster, AntwortetNurAufGanzeUndRichtigeMeldungen) {
  EXPECT_EQ(frage("i"), "F00");
  EXPECT_EQ(frage("V"), "REV 09.04 ");
  draht.roh("V5");
  EXPECT_TRUE(draht.stumm());
  draht.roh("6\r");
  EXPECT_EQ(draht.bis("\r"), rahmen("REV 09.04 "));

  const std::pair<std::string_view, std::string_view> falsch[] = {
      {"V57\r", "F07"},    {"V5g\r", "F05"}, {"V5a\r", "F05"}, {"K4B\r", "F01"},
      {"\r", "F01"},       {"L4C\r", "F01"}, {"V\r", "F01"},   {"\xFF\xFE\x01\n\r", "F01"},
      {"i69i69\r", "F07"},
  };
  for (const auto& [roh, antwort] : falsch) {
    draht.roh(roh);
    EXPECT_EQ(draht.bis("\r"), rahmen(antwort)) << roh;
  }
  verweigert({{"LD0g", "F05"}, {"LD0100", "F01"}, {"LD02", "F06"}, {"LS08", "F06"}});

  draht.roh("halbe Mel%i69\r");
  EXPECT_EQ(draht.bis("\r"), rahmen("F00"));
  draht.roh(std::string(300'000, 'A'));
  EXPECT_EQ(draht.bis("\r"), rahmen("F02"));
  draht.roh("\r");
  EXPECT_EQ(frage("i"), "F00");
}

TEST_F(Zavmaster, PrueftDasFensterUndHaeltDenSpeicher) {
  verweigert({{"R", "F06"},
              {"W00", "F06"},
              {"D400000400001", "F06"},
              {"D000807000800", "F60"},
              {"D000A10000A10", "F61"},
              {"D000800000A10", "F62"},
              {"D000800000C00", "F63"},
              {"D00080000080", "F01"},
              {"D0008000008070", "F01"},
              {"D00080000080a", "F05"}});

  EXPECT_EQ(frage("D000800000A0F"), "F00");  // a whole page
  EXPECT_EQ(frage("W" + std::string(1056, '5')), "F00");
  verweigert({{"W" + std::string(1054, '5'), "F01"}, {"W" + std::string(1058, '5'), "F64"}});
  EXPECT_EQ(frage("D000802000803"), "F00");
  EXPECT_EQ(frage("WA1FF"), "F00");
  EXPECT_EQ(frage("D000800000807"), "F00");
  EXPECT_EQ(frage("R"), "5555A1FF55555555");
  EXPECT_EQ(sim.speicher(0x802, 2), (Bytes{0xA1, 0xFF}));
  EXPECT_EQ(sim.speicher(0xC00, 1), Bytes{0});

  Draht terminal(sim.pty_name());  // the same master behind the other line
  EXPECT_EQ(terminal.fragen("R"), "5555A1FF55555555");
}

TEST_F(Zavmaster, NimmtParameterbloeckeUndUhrNurInIhrerLaenge) {
  for (const auto& [befehl, bytes] :
       {std::pair{"A", 128}, {"Q", 256}, {"T", 96}, {"P", 256}, {"H", 128}, {"M", 6}, {"LS", 1}}) {
    const std::string ziffern(static_cast<std::size_t>(2 * bytes), '0');
    EXPECT_EQ(frage(befehl + ziffern), "F00");
    EXPECT_EQ(frage(befehl + ziffern.substr(2)), "F01");
    EXPECT_EQ(sim.block(befehl), ziffern);
  }
  EXPECT_EQ(frage("A" + std::string(1058, '0')), "F65");
  EXPECT_EQ(frage("LS05"), "F00");
  EXPECT_EQ(sim.nachhol_flags(), 5U);

  EXPECT_EQ(frage("U5958231631122600"), "F00");
  for (const auto* falsch :
       {"U6000000001012600", "U0060000001012600", "U0000240001012600", "U0000002001012600",
        "U0000000701012600", "U0000000000012600", "U0000000001132600", "U0000000001012601"})
    EXPECT_EQ(frage(falsch), "F06") << falsch;
  EXPECT_EQ(frage("U000000000101260A"), "F05");
  EXPECT_EQ(sim.uhr(), "5958231631122600");
}

TEST_F(Zavmaster, EntsperrtBeimNeustartUndMeldetIhnEinmal) {
  EXPECT_EQ(frage("LD01"), "F00");
  draht.roh("*i");  // both bare
  EXPECT_EQ(draht.bis(rahmen("F99")), rahmen("F00") + rahmen("F99"));
  EXPECT_FALSE(sim.gesperrt());
  EXPECT_EQ(frage("i"), "F00");
}

TEST_F(Zavmaster, ZeigtEreignisseBisZumStern) {
  sim.ereignis({7, 2});  // nobody looks
  EXPECT_EQ(frage("I"), "F00");
  sim.ereignis({255, 4, Tastenaktion::loesen});
  EXPECT_EQ(draht.bis("\r"), "K255 T4 -/-\r");
  EXPECT_EQ(frage("Y04020201"), "F00");
  EXPECT_EQ(draht.bis("-/-\r"), "K001 T1 ---\rK001 T1 -/-\r");
  EXPECT_EQ(sim.ereignisse(), (std::vector<Ereignis>{{1, 1, Tastenaktion::kurz}}));
  draht.roh("*");  // what it lists then stands in terminal_test
  EXPECT_TRUE(draht.bis("Teilnehmer\r").ends_with("\r6 Teilnehmer\r"));
  sim.ereignis({1, 1});
  EXPECT_TRUE(draht.stumm());
  EXPECT_EQ(frage("i"), "F99");

  verweigert({{"Y040201", "F68"},
              {"Y0402010100", "F68"},
              {"Y04030101", "F80"},
              {"Y06000101", "F80"},
              {"Y04020301", "F06"},
              {"Y04020100", "F06"},
              {"Y04020105", "F06"},
              {"Yabcd0101", "F05"}});

  // The display ends with its user, on both lines.
  Draht tcp(sim);
  EXPECT_EQ(tcp.fragen("I"), "F00");
  Draht neu(sim);
  EXPECT_EQ(Draht(sim.pty_name()).fragen("I"), "F00");
  Draht terminal(sim.pty_name());
  EXPECT_EQ(terminal.fragen("Y04000101"), "F00");
  EXPECT_TRUE(terminal.stumm());
  EXPECT_TRUE(neu.stumm());
}

// How a receiver is programmed from end to end stands in enocean_test.
TEST_F(Zavmaster, UebernimmtDieTabelleEinesFunkempfaengersErstAufBefehl) {
  const auto x = [&](std::string_view laenge, std::string daten) {
    daten.resize(16, '0');
    EXPECT_EQ(frage("X011F" + std::string(laenge) + daten), "F00");
  };
  sim.empfaengerseite_defekt(15, 2);
  for (const int seite : {1, 2}) {
    x("02", "4143");
    for (int k = 0; k < 16; ++k) x("06", "4150FF000000");
    x("05", "4154" + hex(seite * 64, 4) + "40");
  }
  EXPECT_EQ(sim.empfaengertabelle(15)[64], 0);
  x("02", "4149");
  EXPECT_EQ(sim.empfaengertabelle(15)[64], 0xFF);
  EXPECT_EQ(sim.empfaengertabelle(14)[64], 0);
  for (const auto& [seite, summe] : {std::pair{0, "0000"}, {1, "0FF0"}, {2, "0EF1"}}) {
    x("05", "4174" + hex(seite * 64, 4) + "40");
    EXPECT_EQ(frage("&"), "F00");
    EXPECT_EQ(frage("x").substr(10, 4), "0000");
    x("02", "4152");
    EXPECT_EQ(frage("x").substr(0, 14), "011F084152" + std::string(summe)) << seite;
  }
  x("02", "4156");
  EXPECT_EQ(frage("x").substr(10, 6), "01040F");  // eight senders a page, less the one that did not hold

  verweigert({{"X0101024157", "F66"},
              {"X010102415700000000000000", "F68"},
              {"X0800024157000000000000", "F80"},
              {"X0000024157000000000000", "F80"},
              {"X0101094157000000000000", "F81"},
              {"X01010241x7000000000000", "F05"}});
  EXPECT_EQ(sim.telegramme().back(), (Telegramm{0x11F, 2, {'A', 'V'}}));
}

TEST_F(Zavmaster, BautFehlerNachRegelEin) {
  const auto antwort = [&](std::string_view nachricht) {
    draht.roh(rahmen(nachricht));
    return draht.bis("\r");
  };
  frage("D000800000800");
  sim.fehler_setzen({"F07@W2x2", "kurz=2@V", "lang@i", "muell@R"});
  std::string antworten;
  for (const auto* w : {"W01", "W02", "W03", "W04"}) antworten += frage(w) + " ";
  EXPECT_EQ(antworten, "F00 F07 F07 F00 ");
  EXPECT_EQ(sim.speicher(0x800, 1), Bytes{4});
  EXPECT_EQ(antwort("R"), "###" + rahmen("04"));
  draht.roh(rahmen("i"));
  EXPECT_EQ(draht.bis("Z"), rahmen("F00") + "Z");
  draht.roh(rahmen("V"));
  EXPECT_EQ(draht.bis("2"), "REV 09.04 2");
  EXPECT_TRUE(draht.stumm());

  sim.fehler_setzen({"stumm@1", "verloren@2", "trenn@LD"});
  draht.roh(rahmen("W05") + rahmen("W06") + rahmen("R"));
  EXPECT_EQ(draht.bis("\r"), rahmen("06"));
  EXPECT_EQ(antwort("LD01"), "<zu>");
  EXPECT_FALSE(sim.gesperrt());
  EXPECT_EQ(Draht(sim).fragen("i"), "F00");

  // A terminal that is torn off comes back under the name that pty_name() tells.
  sim.fehler_setzen({"trenn@1"});
  Draht terminal(sim.pty_name());
  terminal.roh(rahmen("i"));
  EXPECT_EQ(terminal.bis("\r"), "<zu>");
  EXPECT_EQ(Draht(sim.pty_name()).fragen("i"), "F00");
}

TEST(Fehlerregel, LiestIhreGrammatikUndLehntAllesAndereAb) {
  const auto r = Fehlerregel_lesen("kurz=4@LD12x9");
  EXPECT_EQ(r, (Fehlerregel{Fehlerart::kurz, "", 4, "LD", 12, 9}));
  EXPECT_EQ(Fehlerregel_lesen("stumm@x3").befehl, "x");
  EXPECT_EQ(Fehlerregel_lesen("stumm@Wx2").mal, 2);
  EXPECT_EQ(Fehlerregel_lesen("F60").code, "F60");
  for (const auto* falsch :
       {"", "F00", "F7", "f07", "laut", "stumm=1", "kurz=0", "kurz=", "kurz=2x", "F07@", "F07@K3", "F07@W0",
        "F07@Wx0", "F07@W3x", "F07@99999999", "F07@3W", "muell=5000"})
    EXPECT_THROW(Fehlerregel_lesen(falsch), std::invalid_argument) << falsch;
}

TEST_F(Zavmaster, VerliertBeimSchnellenNeuverbindenNichts) {
  for (int n = 1; n <= 200; ++n) {
    Draht(sim).roh(rahmen("D00080000080" + hex(n % 8, 1)));  // gone before the reply
    EXPECT_EQ(Draht(sim).fragen("R").size(), 2U * (n % 8 + 1));
  }
}

TEST_F(Zavmaster, LaedtDasBetriebssystemNurAusGutenSaetzen) {
  const std::string aufforderung = "*: Quit Bootloader and start ZAVmaster-1024\r\n";
  const std::string_view datei =
      "S00600004844521B\r\nS1130000285F245F2212226A000424290008237C2A\r\nS20501000A559A\r\nS9030000FC\r\n";
  sim.startladen();
  draht.bis(aufforderung);
  draht.roh("a");
  EXPECT_TRUE(draht.bis(aufforderung).starts_with("Erasing"));
  std::string verdorben(datei);
  verdorben[30] ^= 1;
  for (const auto& [text, falsche] : {std::pair{verdorben, 1U}, {std::string(datei), 0U}}) {
    draht.roh("*");
    EXPECT_TRUE(draht.bis(aufforderung).starts_with("No operating system"));
    draht.roh("b");
    draht.bis("receive\r\n");
    draht.roh(text);
    EXPECT_TRUE(draht.bis(aufforderung).starts_with(falsche ? ".?.." : "....")) << text;
    EXPECT_EQ(sim.firmware().falsche, falsche);
    EXPECT_EQ(sim.firmware().gueltig, falsche == 0);
  }
  EXPECT_EQ(sim.firmware().bytes, 17U);
}

TEST(Ablage, BehaeltDenSpeicherUndLehntBeschaedigtesAb) {
  const Testordner ordner;
  const std::string datei = ordner / "speicher";
  const auto aufsetzen = [&] { return std::make_unique<Simulator>(Optionen{.speicher = datei}); };
  {
    const auto sim = aufsetzen();
    sim->start();
    Draht draht(*sim);
    for (const auto* nachricht : {"D3FFE0F3FFE0F", "WA5", "M010203040506"})
      EXPECT_EQ(draht.fragen(nachricht), "F00");
    sim->empfaengerseite_setzen(3, 1, {9});
  }
  EXPECT_EQ(aufsetzen()->speicher(0x3FFE0F, 1), Bytes{0xA5});
  EXPECT_EQ(aufsetzen()->block("M"), "010203040506");
  EXPECT_EQ(aufsetzen()->empfaengertabelle(3)[64], 9);

  const std::string gut = Dateibytes(datei);
  for (std::size_t k = 0; k < gut.size(); k += 37) {
    Datei_anlegen(datei, gut.substr(0, k + 1));
    EXPECT_THROW(aufsetzen(), std::runtime_error) << k;
    std::string anders = gut;
    anders[k] ^= 4;
    Datei_anlegen(datei, anders);
    EXPECT_THROW(aufsetzen(), std::runtime_error) << k;
    EXPECT_EQ(ordner.eintraege(), 1U);
  }
  EXPECT_THROW(Simulator({.speicher = ordner / "fehlt/speicher"}), std::runtime_error);
  EXPECT_THROW(Simulator({.speicher = "/dev/full"}), std::runtime_error);
}

// A loaded machine may be later than the line, never earlier.
TEST(Geschwindigkeit, HaeltBeideRichtungenBeiderLeitungen) {
  constexpr long baud = 57600;
  Simulator sim({.pty = true, .baud = baud});
  sim.start();
  Draht tcp(sim), terminal(sim.pty_name());
  for (Draht* draht : {&tcp, &terminal}) {
    const auto beginn = std::chrono::steady_clock::now();
    EXPECT_EQ(draht->fragen("D00800000820F"), "F00");
    EXPECT_EQ(draht->fragen("W" + std::string(1056, '7')), "F00");
    EXPECT_EQ(draht->fragen("R"), std::string(1056, '7'));
    constexpr int bytes = 16 + 6 + 1060 + 6 + 4 + 1059;
    EXPECT_GE(std::chrono::steady_clock::now() - beginn,
              std::chrono::duration<double>(bytes * 10.0 / baud * 0.999));
  }
  // Sent and gone: what was sent arrives all the same.
  Draht(sim).roh(rahmen("LD01"));
  EXPECT_TRUE(sim.warten([&] { return sim.gesperrt(); }));
  Draht(sim.pty_name()).roh(rahmen("LD00"));
  EXPECT_TRUE(sim.warten([&] { return !sim.gesperrt(); }));
}

TEST(Aufruf, SagtWasFalschIst) {
  const auto lesen = [](const std::string& aufruf) {
    std::istringstream worte(aufruf);
    return Aufruf_lesen({std::istream_iterator<std::string>(worte), {}});
  };
  const auto gut = lesen("--pty --baud 115200 --fehler F07@W3 stumm@20 --tcp 4001 --version REV_08.01");
  ASSERT_TRUE(gut.optionen);
  EXPECT_EQ(gut.optionen->tcp, 4001);
  EXPECT_EQ(gut.optionen->fehler.size(), 2U);
  EXPECT_FALSE(lesen("--pty").optionen->tcp);
  EXPECT_EQ(lesen("--hilfe").status, 0);
  EXPECT_FALSE(lesen("--hilfe").optionen);
  EXPECT_EQ(Aufruf_lesen({"--speicher", ""}).status, 2);
  for (const std::string falsch : {"--tcp", "--tcp 65536", "--tcp 1x", "--baud 0", "--laut", "zuviel",
                                   "--version 12345678901", "--fehler F07@K", "--fehler"}) {
    const auto a = lesen(falsch);
    const std::string wort = falsch.substr(0, falsch.find(' '));
    EXPECT_EQ(a.status, 2) << falsch;
    EXPECT_NE(a.text.find(wort == "--fehler" ? "" : wort), std::string::npos);
  }
}

}  // namespace
}  // namespace zav::simulator
