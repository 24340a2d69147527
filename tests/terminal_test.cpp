// The live view of the bus: against the simulated master, and against a line that plays a script.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "gegenstelle.h"
#include "pruefstand.h"
#include "service/terminal.h"
#include "testmaster.h"

namespace zav {
namespace {

// Keeps what is shown; a test acts at each line or text.
class Schirm : public Terminalanzeige {
 public:
  void Text_zeigen(const std::string& text) override {
    texte += text;
    if (bei_text) bei_text(text);
  }
  void Zeile_zeigen(const std::string& zeile) override {
    zeilen.push_back(zeile);
    if (bei_zeile) bei_zeile(zeile);
  }

  std::string texte;
  std::vector<std::string> zeilen;
  std::function<void(const std::string&)> bei_text, bei_zeile;
};

class Terminaltest : public Pruefstand, public testing::WithParamInterface<Verbindung> {
 protected:
  // Leaves the terminal when that many lines stand there.
  void Verlassen_nach(std::size_t zeilen) {
    s.bei_zeile = [this, zeilen](const std::string&) {
      if (s.zeilen.size() >= zeilen) sitzung.Abbruch = 1;
    };
  }

  Schirm s;
  Terminal t{s};
};

const std::string gut = "F00A6\r";

TEST(Durchlass, AnyFilledCriterionLetsALinePassLetterForLetter) {
  Schirm s;
  Terminal t(s);
  EXPECT_TRUE(t.Passiert("K001 T1 -/-"));
  EXPECT_TRUE(t.Passiert(" "));
  t.Filter[6] = "K000";
  EXPECT_TRUE(t.Passiert("K000 T1 -/-"));
  EXPECT_FALSE(t.Passiert("K001 T1 -/-"));
  EXPECT_FALSE(t.Passiert("k000 T1 -/-"));
  EXPECT_FALSE(t.Passiert(" "));
  t.Filter[0] = "T1 -/-";
  EXPECT_TRUE(t.Passiert("K001 T1 -/-"));
  EXPECT_FALSE(t.Passiert("K001 T1 ---"));
}

TEST_P(Terminaltest, PiecesBecomeLinesAndLeavingSendsNothing) {
  Gegenstelle g(GetParam());
  g.antworte("I49\r", {gut + "K00", "0 T1", " ---\r\n\r\x01K001 T2 -/-\rK000 T1 -/-\rhalb"}).los();
  Verlassen_nach(4);
  EXPECT_EQ(t.Terminal_lauf(Terminalmodus::protokoll), Terminalende::verlassen);
  EXPECT_EQ(s.zeilen, (std::vector<std::string>{"K000 T1 ---", " ", "K001 T2 -/-", "K000 T1 -/-"}));
  EXPECT_TRUE(s.texte.starts_with("Protokollieren...\r\nAb sofort werden alle Ereignisse"));
  EXPECT_TRUE(s.texte.ends_with("auf Kopieren klicken.\r\n\r\n\rF00\r\r\n"));
}

TEST_P(Terminaltest, OnlyTheNetworkIsRefreshed) {
  Zeitraffer_setzen(100);  // 20 s in 200 ms
  Gegenstelle g(GetParam());
  const bool netz = GetParam() == Verbindung::tcp;
  g.antworte("I49\r", gut);
  if (netz) g.antworte("%", "").antworte("%", "");
  g.los();
  int auffrischungen = 0;
  const auto ende = std::chrono::steady_clock::now() + std::chrono::milliseconds(500);
  s.bei_text = [&](const std::string& text) { auffrischungen += text == "---> Ethernet Refresh\r\n"; };
  d.bei_doevents = [&] {
    if (netz ? auffrischungen == 2 : std::chrono::steady_clock::now() > ende) sitzung.Abbruch = 1;
  };
  EXPECT_EQ(t.Terminal_lauf(Terminalmodus::protokoll), Terminalende::verlassen);
  EXPECT_EQ(auffrischungen, netz ? 2 : 0);
}

TEST_P(Terminaltest, RefusalAndBrokenLineEndTheRunWithTheirReason) {
  {
    Gegenstelle g(GetParam());
    g.antworte("I49\r", "F01A7\r").los();
    EXPECT_EQ(t.Terminal_lauf(Terminalmodus::liste), Terminalende::abgelehnt);
    EXPECT_EQ(s.texte,
              "Neustart ZAVmaster...\r\nF01: Unbekannter Befehl oder letztes Zeichen nicht <CR>\r\n");
  }
  Gegenstelle g(GetParam());
  g.antworte("I49\r", gut + "K000 T1 ---\r").verschwinde("%").los();
  s.bei_zeile = [](const std::string&) { Byte_senden('%'); };
  EXPECT_EQ(t.Terminal_lauf(Terminalmodus::protokoll), Terminalende::leitung_weg);
  EXPECT_EQ(s.zeilen.size(), 1U);
  EXPECT_TRUE(s.texte.ends_with("---> Verbindung zum ZAVmaster unterbrochen\r\n"));
}

INSTANTIATE_TEST_SUITE_P(Leitungen, Terminaltest, ::testing::Values(Verbindung::com, Verbindung::tcp),
                         [](const auto& i) { return i.param == Verbindung::com ? "Com" : "Tcp"; });

class Terminal_am_master : public Terminaltest {
 protected:
  Terminal_am_master() { sim.verbinden(GetParam()); }
  Testmaster sim;
};

TEST_P(Terminal_am_master, ListsEveryParticipantAfterARestart) {
  Verlassen_nach(7);
  EXPECT_EQ(t.Terminal_lauf(Terminalmodus::liste), Terminalende::verlassen);
  EXPECT_EQ(s.zeilen, (std::vector<std::string>{"K000 ZAVin", "K001 ZAVin", "O0 ZAVswitch", "O1 ZAVmotor",
                                                "D0 ZAVdimmer", "I252 Wetterstation", "6 Teilnehmer"}));
  EXPECT_EQ(sim.neustarts(), 1);
}

TEST_P(Terminal_am_master, FiltersAndStampsCountFromTheNextLineOn) {
  s.bei_text = [&](const std::string& text) {
    if (!text.ends_with("F00\r\r\n")) return;
    for (const int adresse : {0, 1, 0}) sim.ereignis({.adresse = adresse, .taste = 1});
  };
  s.bei_zeile = [&](const std::string&) {
    t.Filter[2] = "K000";
    t.Check2 = true;
    if (s.zeilen.size() == 2) sitzung.Abbruch = 1;
  };
  EXPECT_EQ(t.Terminal_lauf(Terminalmodus::protokoll), Terminalende::verlassen);
  EXPECT_EQ(s.zeilen, (std::vector<std::string>{"K000 T1 ---", "K000 T1 ---  04.05.2026"}));
  // The event display is still on in the master: what it sends now must not disturb the next command.
  sim.ereignis({.adresse = 9, .taste = 1});
  Port_oeffnen();
  leitung.Sende_text = "V";
  Meldung_senden(leitung.Sende_text, 2, true, 13);
  EXPECT_EQ(leitung.Empfang_text, "REV 09.04 \r");
  Port_schliessen();
}

INSTANTIATE_TEST_SUITE_P(Leitungen, Terminal_am_master, ::testing::Values(Verbindung::com, Verbindung::tcp),
                         [](const auto& i) { return i.param == Verbindung::com ? "Com" : "Tcp"; });

}  // namespace
}  // namespace zav
