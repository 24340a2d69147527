// Radio senders and receivers: the definition dialog, what marks a receiver, its tables, and programming it
// over a real line.
#include <gtest/gtest.h>

#include "enocean/enocean_definition.h"
#include "enocean/enocean_send.h"
#include "enocean/sender.h"
#include "projektvergleich.h"
#include "pruefstand.h"
#include "testmaster.h"

namespace zav {
namespace {

class Enocean : public Pruefstand {
 protected:
  static void sender(int platz, const char* id, int r, int adresse, int wert = 0) {
    apparat(0, platz, 84, adresse);
    projekt.App_enocean_id[platz] = id;
    projekt.App_enocean_empf[platz] = static_cast<i16>(r);
    projekt.App_enocean_wert[platz] = static_cast<i16>(wert);
  }
  static void eingebaut(int r, bool geaendert) {
    projekt.Enocean_empf_da[r] = 1;
    projekt.Enocean_empf_geaendert[r] = geaendert ? 1 : 0;
  }
  void ok_mit_meldung(Enocean_Definition& f, const std::string& text) {
    d.erwarte({.text = text});
    f.Command1.druecken();
    EXPECT_TRUE(f.offen()) << text;
  }
  static Meldung warnung(const std::string& text) {
    return {text, "Warnung", Knoepfe::Ja_Nein_Abbrechen, Symbol::Warnung};
  }

  Testmaster sim;
};

// ---- the definition

TEST_F(Enocean, DefinitionIsCheckedInOrderAndWrittenOnOk) {
  Enocean_Definition f(37);
  ok_mit_meldung(f, "Es muss eine ID definiert werden");
  f.ID_Text.eingeben("01a2b3g");
  EXPECT_EQ(f.ID_Text.text(), "01A2B3G");
  ok_mit_meldung(f, "Es muss ein Empfänger definiert werden");
  f.Option1.waehlen(15);
  ok_mit_meldung(f, "Die ID muss 8 Zeichen lang sein");
  f.ID_Text.eingeben("01a2b3gü");
  ok_mit_meldung(f, "Die ID ist nicht korrekt (falsches Zahlenformat)");
  f.ID_Text.eingeben("01a2b3c4");
  f.Key_Text.eingeben("K7");
  f.Check1[15].haken(true);
  f.Text2[15].eingeben("Estrich");
  const Projekt vorher = projekt;
  f.Command1.druecken();
  EXPECT_FALSE(f.offen());
  EXPECT_EQ(Geaendert(vorher),
            "App_enocean_id(37)=01A2B3C4 App_enocean_schluessel(37)=K7 App_enocean_empf(37)=15 "
            "Enocean_empf_da(15)=1 Enocean_empf_ort(15)=Estrich");
  EXPECT_EQ(sitzung.Projekt_geaendert, 1);
  EXPECT_NE(f.Text1.text().find("Empfänger-Nr.: 15\r\nK7  01A2B3C4: "), std::string::npos);
  // The same once more asks nothing.
  Enocean_Definition g(37);
  g.Command1.druecken();
  EXPECT_FALSE(g.offen());
}

TEST_F(Enocean, ChangedIdAndMovedReceiverAsk) {
  sender(3, "AAAAAAAA", 2, 10);
  sender(9, "BBBBBBBB", 4, 11);
  Enocean_Definition f(3);
  f.ID_Text.eingeben("BBBBBBBB");
  const Meldung andere = warnung(
      "Wenn Sie diese ID ändern, müssen Sie auch den entsprechenden Sender ersetzen. Soll diese ID geändert "
      "werden?");
  const Meldung schieben = warnung(
      "Diese ID existiert zur Zeit im Empfänger 4. Soll diese auf den neuen Empfänger 7 verschoben werden?");
  d.erwarte(andere, Antwort::Nein);
  f.Command1.druecken();
  f.Option1.waehlen(7);
  d.erwarte(andere, Antwort::Ja);
  d.erwarte(schieben, Antwort::Abbrechen);
  f.Command1.druecken();
  EXPECT_EQ(projekt.App_enocean_id[9], "BBBBBBBB");
  d.erwarte(andere, Antwort::Ja);
  d.erwarte(schieben, Antwort::Ja);
  f.Command1.druecken();
  EXPECT_FALSE(f.offen());
  EXPECT_EQ(projekt.App_enocean_id[9], "");
  EXPECT_EQ(projekt.App_enocean_empf[9], 255);
  EXPECT_EQ(projekt.App_enocean_empf[3], 7);

  // The own place counts as a place that holds the ID; nothing of it is lost by a No.
  Enocean_Definition g(3);
  g.Option1.waehlen(1);
  d.erwarte_text(
      "Diese ID existiert zur Zeit im Empfänger 7. Soll diese auf den neuen Empfänger 1 verschoben werden?",
      Antwort::Nein);
  g.Command1.druecken();
  EXPECT_EQ(projekt.App_enocean_id[3], "BBBBBBBB");
  g.Command2.druecken();
  // The same ID on the same receiver, at another place: no search, no question.
  Enocean_Definition h(20);
  h.ID_Text.eingeben("BBBBBBBB");
  h.Option1.waehlen(7);
  h.Command1.druecken();
  EXPECT_FALSE(h.offen());
}

TEST_F(Enocean, ThirtyThirdSenderOfAReceiverIsRefused) {
  for (int i = 0; i < 32; ++i) sender(100 + i, "ABCDEF00", 6, i);
  Enocean_Definition f(5);
  f.ID_Text.eingeben("00000001");
  f.Option1.waehlen(6);
  ok_mit_meldung(f, "Es können maximal 32 Sender-IDs zu einem Empfänger zugewiesen werden");
  f.Option1.waehlen(5);
  f.Command1.druecken();
  EXPECT_EQ(projekt.App_enocean_empf[5], 5);
}

TEST_F(Enocean, ReconcilingFlagsReceiversThatChanged) {
  for (const int d_ : {0, 1, 2, 3, 4}) sender(d_, "AAAAAAAA", d_, d_);
  projekt.App_enocean_empf[4] = 99;  // of a damaged file
  Enocean_schatten_nehmen();
  projekt.App_text[0] = "77";         // another address
  projekt.App_enocean_empf[1] = 12;   // moved
  projekt.App_enocean_empf[2] = 255;  // gone
  projekt.App_enocean_id[4] = "BBBBBBBB";
  Enocean_abgleichen();
  std::string geaendert;
  for (const u8 f : projekt.Enocean_empf_geaendert.alle()) geaendert += static_cast<char>('0' + f);
  EXPECT_EQ(geaendert, "1110000000001000");
  // What has been programmed since is not flagged again for the same change.
  projekt.Enocean_empf_geaendert = {};
  Enocean_abgleichen();
  EXPECT_EQ(projekt.Enocean_empf_geaendert, (Feld<u8, 16>{}));
}

TEST_F(Enocean, LookUpShowsWhatTheReceiversHeard) {
  Zeitraffer_setzen(20);
  sim.verbinden();
  eingebaut(2, false);
  eingebaut(3, false);
  sim.funk(2, 0x0189ABCD, 40);
  sim.funk(5, 0x00112233, 150);
  Enocean_Definition f(8);
  const auto zeile = [&f](int r) { return *f.Label3[r].titel + " " + *f.Label4[r].titel; };
  f.Command5.druecken();
  EXPECT_EQ(zeile(2), "0189ABCD 40");
  EXPECT_EQ(f.ProgressBar[2].wert, 40.0);
  EXPECT_EQ(zeile(3), "00000000 ---") << "has heard nothing";
  EXPECT_EQ(zeile(5), "--- ---") << "was not asked";
  EXPECT_FALSE(f.Label3[5].frei) << "nothing to take over";
  EXPECT_EQ(f.ID_Text.text(), "");
  f.Label3[2].anklicken();
  EXPECT_EQ(f.ID_Text.text(), "0189ABCD");
  EXPECT_EQ(f.Option1.position(), 2);
  EXPECT_FALSE(f.Label5[2].sichtbar);

  f.Check2.haken(true);
  f.Check3.haken(true);
  EXPECT_EQ(sitzung.Enocean_details, 1);
  f.Command5.druecken();
  EXPECT_EQ(zeile(5) + " " + *f.Label5[5].titel, "00112233 150 01 04 00 00 00 00");
  EXPECT_EQ(f.ProgressBar[5].wert, 100.0);

  sim.fehler_setzen({"stumm@x2x9"});
  d.erwarte({.text = "Kommunikation nicht möglich. Versuchen Sie es bitte noch einmal."});
  f.Command5.druecken();
  EXPECT_EQ(zeile(5), "--- ---");
  EXPECT_TRUE(f.Command5.frei);
}

// ---- programming

TEST_F(Enocean, TablesHoldTheSendersInOrderOfPlaces) {
  eingebaut(0, true);
  eingebaut(1, false);
  eingebaut(15, true);
  projekt.Enocean_empf_geaendert[7] = 1;  // not built in
  sender(900, "FFFFFFFF", 15, 255, 0x1FE);
  sender(17, "01234567", 15, 16, -1);
  sender(18, "89ABCDEF", 1, 3);
  const auto t = Enocean_tabellen(projekt, false);
  ASSERT_EQ(t.tabellen.size(), 2U);
  EXPECT_EQ(t.tabellen[0].text, std::string(512, '0'));
  EXPECT_EQ(t.tabellen[1].nummer, 15);
  EXPECT_EQ(t.tabellen[1].text, "0123456710FF0000FFFFFFFFFFFE0000" + std::string(480, '0'));
  // 01+23+45+67 = D0, +10 +FF = 1DF; 4 x FF = 3FC, +FF +FE = 5F9; together 7D8
  EXPECT_EQ(t.tabellen[1].pruefsummen, (std::array<std::string, 4>{"07D8", "0000", "0000", "0000"}));
  EXPECT_EQ(Enocean_tabellen(projekt, true).tabellen.size(), 3U);

  // 32 senders fill a table, one more does not fit, and neither does one without address or ID.
  for (int i = 0; i < 32; ++i) sender(2000 + i, "ABABABAB", 0, i);
  const auto voll = Enocean_tabellen(projekt, false);
  EXPECT_EQ(voll.mangel, "");
  EXPECT_EQ(voll.tabellen[0].text.substr(496), "ABABABAB1F000000");
  sender(3000, "ABABABAB", 0, 1);
  EXPECT_NE(Enocean_tabellen(projekt, false).mangel, "");
  projekt.App_enocean_empf[3000] = 255;
  projekt.App_text[900] = "";
  EXPECT_NE(Enocean_tabellen(projekt, false).mangel, "");
  projekt.App_text[900] = "1";
  projekt.App_enocean_id[900] = "";
  d.erwarte({"Der Funksender  ( - ) hat keine gültige ID. Bitte die EnOcean-Definition prüfen.", "Fehler",
             Knoepfe::OK, Symbol::Stopp});
  Enocean_Send f;
  f.Command1.druecken();
  EXPECT_EQ(projekt.Enocean_empf_geaendert[15], 1);
}

TEST_F(Enocean, ChangedReceiversAreProgrammedAndChecked) {
  sim.verbinden();
  eingebaut(0, true);
  eingebaut(1, false);
  sender(40, "01234567", 0, 16, 5);
  sender(41, "89ABCDEF", 1, 3);
  Enocean_Send f;
  std::vector<std::string> schritte;
  f.Label1.beobachter = [&] { schritte.push_back(f.Label1.titel); };
  d.bei_doevents = [&] { EXPECT_FALSE(f.Command5.frei); };
  d.erwarte({.text = "Alle Empfänger sind jetzt aktualisiert."});
  f.Command1.druecken();
  EXPECT_TRUE(f.Command5.frei);
  EXPECT_EQ(f.ProgressBar1.wert, 100.0);
  const auto tabelle = sim.empfaengertabelle(0);
  EXPECT_EQ(simulator::Bytes(tabelle.begin(), tabelle.begin() + 9),
            (simulator::Bytes{0x01, 0x23, 0x45, 0x67, 16, 5, 0, 0, 0}));
  EXPECT_EQ(sim.empfaengertabelle(1)[0], 0);
  EXPECT_EQ(projekt.Enocean_empf_geaendert[0], 0);
  ASSERT_EQ(schritte.size(), 67U);
  EXPECT_EQ(schritte[1], "Empfänger-Nr. 0 Meldung 9 von 505 in Arbeit...");
  EXPECT_EQ(schritte[63], "Empfänger-Nr. 0 Meldung 505 von 505 in Arbeit...");
  EXPECT_EQ(schritte[64], "Empfänger-Nr. 0 initialisieren...");
  EXPECT_EQ(schritte[65], "Daten von Empfänger-Nr. 0  überprüfen...");

  // A page that does not hold is named; the run goes on, and the flag is clear.
  sim.empfaengerseite_defekt(1, 0);
  f.Check1.haken(true);
  d.erwarte({.text = "Prüfsumme falsch in EnOcean-Empfänger 1!"});
  d.erwarte({.text = "Alle Empfänger sind jetzt aktualisiert."});
  f.Command1.druecken();
  EXPECT_EQ(projekt.Enocean_empf_geaendert[1], 0);
}

}  // namespace
}  // namespace zav
