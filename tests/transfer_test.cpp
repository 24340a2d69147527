// Whole transfers to the simulated master, over a real socket and a real pseudo-terminal. Faults of the line
// are put on every exchange in jeder_austausch_test.
#include <gtest/gtest.h>

#include <algorithm>

#include "abbild_hilfen.h"
#include "hilfen.h"
#include "platform/uhrwerk.h"
#include "store/sitzung.h"
#include "testmaster.h"
#include "transfer/uebertragung.h"

namespace zav {
namespace {

class Mitschrift : public Beobachter {
 public:
  void Protokoll_leeren() override { protokoll.clear(); }
  void Protokoll(std::string_view text) override { protokoll += text; }
  void Fortschritt_zeigen(const Fortschritt& f) override {
    EXPECT_TRUE(f == Fortschritt{} || f.gesamt >= stand.gesamt) << f.gesamt << " after " << stand.gesamt;
    stand = f;
  }
  void Korrigiert_zeigen(int anzahl) override { korrigiert = anzahl; }
  void Version_zeigen(std::string_view v) override { version = v; }
  void Befehle_freigeben(bool f) override { frei = f; }

  std::string protokoll;
  Fortschritt stand;
  int korrigiert = -1;
  std::string version;
  bool frei = true;
};

const Meldung neustartfrage{
    "Im ZAVmaster einen Neustart durchführen? 'Ja', wenn Schaltzeiten und Timer aktualisiert werden sollen. "
    "'Nein', wenn nur Ausgangsverknüpfungen geändert wurden.",
    "Neustart ZAVmaster?", Knoepfe::Ja_Nein_Abbrechen, Symbol::Frage};
const Meldung loeschfrage{"Der ZAVmaster enthält anschliessend keine Daten mehr! Möchten Sie fortfahren?",
                          "ZAVlink", Knoepfe::Ja_Nein, Symbol::Warnung, 2};
Meldung Fehlerbox(const std::string& text) { return {text, "Fehler", Knoepfe::OK, Symbol::Stopp}; }

class Transfer : public ::testing::Test {
 protected:
  Transfer() {
    sim.verbinden();
    Heute_setzen({2026, 5, 4});
    Zeitraffer_setzen(40);
    sitzung = {};
    projekt = {};
    projekt.Projekt_name = "C:\\Projekte/Einfamilienhaus am See, Neubau";
    projekt.Projekt_kennung = "00112233AABBCCDD";
    projekt.Datei_version = "910";
    for (int n = 0; n < 20; ++n) {
      projekt.Ein_relais(50 * n, 25 * n) = static_cast<i16>(1 + n % 7);
      projekt.Ein_dimmer(50 * n, n, 2) = static_cast<i16>(5 * n);
      projekt.Ein_leer[50 * n] = projekt.Ein_funktext[50 * n] = 1;
    }
    projekt.Uhr_relais(130, 7) = 8;
    projekt.Uhr_timer(130, 3) = 1;
    projekt.Uhr_leer[130] = projekt.Uhr_funktext[130] = 1;
    projekt.Uhr_zeit[130] = "Untergang + Zufall";
    projekt.Uhr_astro[130] = Zeit_untergang_zufall;
    projekt.Uhr_f5[130] = "00.10.00";
    projekt.Tev_dimmer(63, 127, 2) = 1;
    projekt.Tev_leer[63] = projekt.Tev_funktext[63] = 1;
    projekt.Ein_led[0] = 17;
    projekt.Grp_led = decltype(projekt.Grp_led)(i16{0});
    projekt.Grp_led[0] = projekt.Grp_led[77] = 1;
  }
  ~Transfer() override {
    Zeitraffer_setzen(1);
    projekt = {};
    einstellungen = {};
    leitung = {};
  }

  // The master knows this project already.
  void Synchron() { sim.speicher_setzen(0x800, {0x00, 0x11, 0x22, 0x33, 0xAA, 0xBB, 0xCC, 0xDD}); }

  Sendeergebnis Senden() {
    Zufall_saeen(7);
    return u.Senden_starten();
  }
  void Sendet_alles() {
    skript.erwarte(neustartfrage, Antwort::Nein);
    EXPECT_EQ(Senden(), Sendeergebnis::gesendet);
  }

  void Speicher_ist_abbild(const std::vector<Bildzeile>& bild) const {
    for (const Bildzeile& z : bild) EXPECT_TRUE(Haelt(sim, z)) << z.befehl << " " << z.von;
  }
  static bool Nichts_vorgemerkt() {
    const auto leer = [](const auto& feld) {
      return std::ranges::all_of(feld.alle(), [](auto w) { return w == 0; });
    };
    return projekt.Uhr_tabelle_geaendert == 0 && leer(projekt.Ein_funktext) && leer(projekt.Uhr_funktext) &&
           leer(projekt.Tev_funktext) && leer(projekt.Grp_led);
  }

  Testordner ordner;
  Meldungsskript skript;
  Testmaster sim;
  Mitschrift mitschrift;
  Uebertragung u{mitschrift};
};

TEST_F(Transfer, ZuerstAllesDannNurWasSichAendert) {
  sim.verbinden(Verbindung::com);
  Synchron();
  projekt.Uhr_tabelle_geaendert = 1;
  for (auto f : {projekt.Ein_funktext.alle(), projekt.Uhr_funktext.alle(), projekt.Tev_funktext.alle()}) {
    std::ranges::fill(f, u8{1});
  }
  std::ranges::fill(projekt.Grp_led.alle(), i16{1});
  const auto alles = Bild(false);
  Sendet_alles();
  Speicher_ist_abbild(alles);
  EXPECT_TRUE(Nichts_vorgemerkt());
  EXPECT_EQ(mitschrift.stand.aktuell, 100);
  EXPECT_NE(mitschrift.protokoll.find("Eingangsereignisse Dimmer: 1024\r\n"), std::string::npos);

  sim.mitschrift_leeren();
  Sendet_alles();
  std::string befehle;
  for (const auto& m : sim.mitschrift()) befehle += m.substr(0, m.starts_with("D") ? 7 : 1) + " ";
  EXPECT_EQ(befehle, "% i V D000800 R A Q T P H M D006000 W D362000 W L D000800 W ");
  EXPECT_EQ(mitschrift.protokoll,
            "Code holen: 00112233AABBCCDD\r\r\n"
            "A: Initialisierungswerte Aktoren\r\n"
            "Q: Initialisierungswerte Dimmer\r\n"
            "T: Zeitwerte der Timer\r\n"
            "P: An-/Abschnittparameter der Dimmer\r\n"
            "H: Normal-/Thermo-Parameter\r\n"
            "M: Storen-Parameter\r\n"
            "W: Wetter-Parameter\r\n"
            "Sommer-/Winterzeit, Sequenzer\r\n"
            "Schaltzeiten genau/Astro/Zufall\r\n"
            "Eingangsereignisse Switch: 0\r\n"
            "Eingangsereignisse Dimmer: 0\r\n"
            "Uhr-Ereignisse Switch: 0\r\n"
            "Uhr-Ereignisse Dimmer: 0\r\n"
            "Timer-Ereignisse Switch: 0\r\n"
            "Timer-Ereignisse Dimmer: 0\r\n"
            "Tasten-LEDs: 0\r\n"
            "Code senden: 1\r\n");
  EXPECT_EQ(sitzung.Master_version, "REV 09.04 ");
  EXPECT_EQ(sitzung.Projekt_gesendet, 1);
  EXPECT_TRUE(mitschrift.frei);
}

TEST_F(Transfer, NurEinGespeichertesProjektGehtAnEinenPassendenMaster) {
  for (const auto& [datei, master] :
       {std::pair{"910", "REV 09.04"}, {"900", "REV 09.0x"}, {"800", "REV 08.01"}})
    EXPECT_TRUE(Version_passt(datei, master)) << datei << " " << master;
  for (const auto& [datei, master] :
       {std::pair{"910", "REV 09.10"}, {"910", "REV 08.01"}, {"800", "REV 09.04"}, {"710", "REV 09.04"}})
    EXPECT_FALSE(Version_passt(datei, master)) << datei << " " << master;

  projekt.Projekt_name = "Namenlos";
  skript.erwarte({"Sie sollten das aktuelle Projekt vorher speichern.", "Information", Knoepfe::OK,
                  Symbol::Information});
  EXPECT_EQ(Senden(), Sendeergebnis::nicht_gespeichert);
  EXPECT_TRUE(sim.zaehler().empty());
  projekt.Projekt_name = "Haus";
  projekt.Datei_version = "";
  skript.erwarte(Fehlerbox("Bitte die Konfiguration vorher speichern"));
  EXPECT_EQ(Senden(), Sendeergebnis::falsche_version);
  EXPECT_EQ(sim.anzahl("D"), 0U);
  EXPECT_TRUE(mitschrift.frei);
}

TEST_F(Transfer, ZuBreiteWerte) {
  Synchron();
  projekt.Store_p1 = 656;
  EXPECT_EQ(Senden(), Sendeergebnis::zu_breit);
  EXPECT_EQ(sim.anzahl("H"), 1U);
  EXPECT_EQ(sim.anzahl("M"), 0U);
  projekt.Dimmer_neustart[1] = 300;
  skript.erwarte({"Ungültige Daten!", "Senden", Knoepfe::OK, Symbol::Stopp});
  skript.erwarte(Fehlerbox("F01: Unbekannter Befehl oder letztes Zeichen nicht <CR>"));
  EXPECT_EQ(Senden(), Sendeergebnis::gescheitert);
  EXPECT_EQ(sim.mitschrift().back(), "Q0000");
  EXPECT_EQ(mitschrift.stand, Fortschritt{});
}

TEST_F(Transfer, SperrenUndNeustart) {
  Synchron();
  u.Check1 = true;
  skript.erwarte(neustartfrage, Antwort::Ja);
  skript.erwarte({"F99: Neustart im ZAVmaster war erfolgreich", "Info", Knoepfe::OK, Symbol::Information});
  EXPECT_EQ(Senden(), Sendeergebnis::gesendet);
  EXPECT_EQ(sim.neustarts(), 1);
  EXPECT_FALSE(sim.gesperrt());
  const auto m = sim.mitschrift();
  EXPECT_EQ(m.front(), "i") << "a network needs no refresh of the line";
  const auto ld = std::ranges::find(m, "LD01");
  ASSERT_TRUE(ld != m.end() && ld > m.begin());
  EXPECT_TRUE((ld - 2)->starts_with("D362000"));
  EXPECT_EQ(*(ld + 1), "LS07");
  EXPECT_LT(std::ranges::find(m, "D00080000081F"), std::ranges::find(m, "LD00"));
}

TEST_F(Transfer, InitialisierenUndSenden) {
  sim.speicher_setzen(0x8000, simulator::Bytes(100, 0xAB));
  projekt.Ein_funktext[1] = 1;  // no function: need not go after an erase
  skript.erwarte(loeschfrage, Antwort::Nein);
  EXPECT_FALSE(u.Initialisieren());
  EXPECT_EQ(sim.speicher(0x8000, 1)[0], 0xAB);

  skript.erwarte(loeschfrage, Antwort::Ja);
  skript.erwarte({"Senden ist jetzt möglich", "Info", Knoepfe::OK, Symbol::Information});
  EXPECT_TRUE(u.Initialisieren());
  EXPECT_EQ(sim.speicher(0x8000, 1)[0], 0);
  EXPECT_EQ(mitschrift.stand.aktuell, 100);
  EXPECT_EQ(mitschrift.version, "REV 09.04 ");
  EXPECT_EQ(projekt.Ein_funktext[1], 0);
  EXPECT_EQ(projekt.Ein_funktext[50], 1);
  EXPECT_EQ(projekt.Uhr_tabelle_geaendert, 1);
  EXPECT_EQ(projekt.Grp_led[200], 1);
  EXPECT_EQ(sitzung.Master_neu_pruefen, 0);

  const auto alles = Bild(true);
  Sendet_alles();
  Speicher_ist_abbild(alles);
  EXPECT_EQ(u.Nach_initialisierung, 0);
  Sendet_alles();  // the stamp of the first one holds
}

TEST_F(Transfer, EinFehlerImFlashHindertNichtAmSenden) {
  sim.flash_defekt();
  skript.erwarte(loeschfrage, Antwort::Ja);
  skript.erwarte({"Fehler im Flash, trotzdem senden?", "Info", Knoepfe::OK, Symbol::Stopp});
  EXPECT_TRUE(u.Initialisieren());
  EXPECT_EQ(u.Transfer_status, Transferstand::flash_fehler);
  EXPECT_EQ(u.Nach_initialisierung, 1);
}

}  // namespace
}  // namespace zav
