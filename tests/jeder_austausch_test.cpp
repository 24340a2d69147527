// Every exchange fails once: whole transfers, erases, clock settings and radio receivers at the simulated
// master, over a real socket and a real pseudo-terminal, with each fault put on each message in turn. After a
// fault stands the box of its rule, what has gone is no longer flagged and everything else still is, and a
// second run brings the master's memory to the image of the project. With ZAV_GRUENDLICH in the environment
// no fault is left out at any exchange, on either line, which takes minutes.
#include <gtest/gtest.h>
#include <sys/socket.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <numeric>
#include <thread>

#include "abbild_hilfen.h"
#include "basis/zahl.h"
#include "enocean/programmieren.h"
#include "gegenstelle.h"
#include "hilfen.h"
#include "link/statuscode.h"
#include "platform/uhrwerk.h"
#include "store/sitzung.h"
#include "testmaster.h"
#include "transfer/uebertragung.h"
#include "transfer/uhr_stellen.h"

namespace zav {
namespace {

// Speeds of the clock. A reply that comes has real time of a third of a second or more at each of them.
constexpr double tempo_begruessung = 2000;  // until the version has come: the wait for the receiver is short
constexpr double tempo_bloecke = 40;
constexpr double tempo_stille = 100'000;  // once it is certain that no reply will come
constexpr i16 antwort_sekunden = 700;

const bool gruendlich = std::getenv("ZAV_GRUENDLICH") != nullptr;

std::string Code(int nr) { return (nr < 10 ? "F0" : "F") + std::to_string(nr); }

// The kinds of fault, and in a thorough run each status code too.
std::vector<std::string> Mit_allen_codes(std::vector<std::string> arten) {
  for (int nr = 1; gruendlich && nr <= 99; ++nr) {
    if (std::ranges::count(arten, Code(nr)) == 0) arten.push_back(Code(nr));
  }
  return arten;
}

// Answers every box, keeps it, and makes the clock race when the reply being waited for will not come.
class Benutzer : public Melder, public Beobachter {
 public:
  Benutzer() : vorher_(Melder_setzen(this)) {}
  ~Benutzer() override { Melder_setzen(vorher_); }
  Benutzer(const Benutzer&) = delete;
  Benutzer& operator=(const Benutzer&) = delete;

  Antwort Melden(const Meldung& m) override {
    boxen.push_back(m.text);
    if (m.text.starts_with("Der ZAVmaster enthält")) return Antwort::Ja;
    return m.knoepfe == Knoepfe::Ja_Nein_Abbrechen ? Antwort::Nein : Antwort::OK;
  }
  void Zeiger_setzen(Zeiger z) override { zeiger = z; }
  void DoEvents() override {
    if (stumm && stumm()) Zeitraffer_setzen(tempo_stille);
  }
  void Version_zeigen(std::string_view) override { Zeitraffer_setzen(tempo_bloecke); }
  void Befehle_freigeben(bool f) override { frei = f; }
  void Korrigiert_zeigen(int anzahl) override { korrigiert = anzahl; }

  std::vector<std::string> boxen;
  std::function<bool()> stumm;
  Zeiger zeiger = Zeiger::normal;
  bool frei = true;
  int korrigiert = 0;

 private:
  Melder* vorher_;
};

const std::string neustartfrage =
    "Im ZAVmaster einen Neustart durchführen? 'Ja', wenn Schaltzeiten und Timer aktualisiert werden sollen. "
    "'Nein', wenn nur Ausgangsverknüpfungen geändert wurden.";
const std::string uhrfrage = "Im ZAVmaster einen Neustart durchführen (nur so werden Änderungen wirksam)?";
const std::string timeout = "Timeout, keine Verbindung mit ZAVmaster!";
const std::string keine_antwort = "F98: Keine Antwort vom ZAVmaster";
const std::string unsinn = "Fxx: Undefinierbarer Fehler";
const std::string bereit = "Senden ist jetzt möglich";
const std::string loeschfrage =
    "Der ZAVmaster enthält anschliessend keine Daten mehr! Möchten Sie fortfahren?";

// What a fault is good for, by the rule of the tool.
struct Folge {
  Sendeergebnis ergebnis = Sendeergebnis::gesendet;
  std::string box = neustartfrage;  // "" = none
  std::size_t bis = 0;              // first exchange that counts as failed
};

// The rows that still have to go.
struct Vormerkung {
  decltype(Projekt::Ein_funktext) ein = projekt.Ein_funktext;
  decltype(Projekt::Uhr_funktext) uhr = projekt.Uhr_funktext;
  decltype(Projekt::Tev_funktext) tev = projekt.Tev_funktext;
  decltype(Projekt::Grp_led) grp = projekt.Grp_led;
  decltype(Projekt::Uhr_tabelle_geaendert) tabelle = projekt.Uhr_tabelle_geaendert;

  bool operator==(const Vormerkung&) const = default;
  void einsetzen() const {
    projekt.Ein_funktext = ein;
    projekt.Uhr_funktext = uhr;
    projekt.Tev_funktext = tev;
    projekt.Grp_led = grp;
    projekt.Uhr_tabelle_geaendert = tabelle;
  }
};

bool Verstummt(const std::string& art) {
  return art == "stumm" || art == "verloren" || art == "kurz" || art == "trenn";
}

class Jeder_austausch : public ::testing::TestWithParam<Verbindung> {
 protected:
  Jeder_austausch() {
    Heute_setzen({2026, 5, 4});
    Zufall_saeen(7);
    sitzung = {};
    projekt = {};
    projekt.Projekt_name = "C:\\Haus am See";
    projekt.Projekt_kennung = "00112233AABBCCDD";
    projekt.Datei_version = "910";
    projekt.Grp_led = decltype(projekt.Grp_led)(i16{0});
    for (const int e : {0, 517}) {
      projekt.Ein_relais(e, e / 2) = 5;
      projekt.Ein_dimmer(e, 7, 2) = 40;
      projekt.Ein_leer[e] = projekt.Ein_funktext[e] = 1;
    }
    projekt.Uhr_relais(200, 7) = 8;
    projekt.Uhr_timer(200, 3) = 1;
    projekt.Uhr_leer[200] = projekt.Uhr_funktext[200] = 1;
    projekt.Uhr_zeit[200] = "07.30.00";
    projekt.Tev_dimmer(63, 127, 2) = 1;
    projekt.Tev_leer[63] = projekt.Tev_funktext[63] = 1;
    projekt.Grp_led[0] = projekt.Grp_led[255] = 1;
    projekt.Ein_led[1020] = 17;
    u.Check1 = true;
    vorher = projekt;
    anfang = vorgemerkt = {};
    Anschliessen();
  }
  ~Jeder_austausch() override {
    anfang.einsetzen();
    EXPECT_TRUE(projekt == vorher) << "more than flags has changed";
    Zeitraffer_setzen(1);
    projekt = {};
    einstellungen = {};
    leitung = {};
  }

  void Anschliessen() {
    sim.verbinden(GetParam());
    leitung.Antwort_zeit = antwort_sekunden;
  }
  // Messages that the master has answered or swallowed so far.
  std::size_t Meldungen() const {
    std::size_t n = 0;
    for (const auto& [befehl, anzahl] : sim.zaehler()) n += anzahl;
    return n;
  }

  // Runs one operation with fault `art` from exchange n (from 1) on, `mal` times. The boxes stand in b.boxen.
  template <class Vorgang>
  auto Mit_fehler(const std::string& art, std::size_t n, int mal, bool stille, Vorgang vorgang) {
    Anschliessen();
    sim.fehler_setzen({art + "@" + std::to_string(n) + "x" + std::to_string(mal)});
    const std::size_t vorher = Meldungen();
    b.stumm = stille ? [=, this] { return Meldungen() >= vorher + n; } : std::function<bool()>();
    ++eingespielt;
    const auto ergebnis = Ohne_fehler(vorgang);
    sim.fehler_setzen({});
    b.stumm = nullptr;
    EXPECT_TRUE(b.frei);
    EXPECT_EQ(b.zeiger, Zeiger::normal);
    return ergebnis;
  }
  template <class Vorgang>
  auto Ohne_fehler(Vorgang vorgang) {
    Anschliessen();
    b.boxen.clear();
    Zeitraffer_setzen(tempo_begruessung);
    return vorgang();
  }
  auto Senden() {
    return [this] {
      Zufall_saeen(7);
      return u.Senden_starten();
    };
  }

  // The messages of a run without faults.
  template <class Vorgang>
  std::vector<std::string> Ablauf(Vorgang vorgang) {
    sim.mitschrift_leeren();
    Ohne_fehler(vorgang);
    auto m = sim.mitschrift();
    std::erase(m, "%");
    return m;
  }

  // The same of a transfer, whose image is kept.
  std::vector<std::string> Ablauf_der_uebertragung() {
    bild = Bild(true);
    Master_unberuehrt();
    return Ablauf(Senden());
  }

  void Master_unberuehrt() {
    vorgemerkt.einsetzen();
    sim.speicher_setzen(0x800, {0x00, 0x11, 0x22, 0x33, 0xAA, 0xBB, 0xCC, 0xDD});
    for (const auto& z : bild) {
      if (z.befehl == "W" && z.von > 0x1000) {
        sim.speicher_setzen(z.von, simulator::Bytes(z.ziffern.size() / 2, 0xEE));
      }
    }
  }

  bool Master_haelt_bild() const {
    return std::ranges::all_of(bild, [this](const Bildzeile& z) { return Haelt(sim, z); });
  }

  // Takes back the flag of the row whose last page the exchange has brought.
  static void Gesendet(const std::vector<std::string>& ablauf, std::size_t k, Vormerkung& v) {
    if (ablauf[k][0] != 'W') return;
    const std::uint32_t von = *Hex_zahl(ablauf[k - 1].substr(1, 6));
    const bool zweite = (von & 0x400) != 0;
    if (von >= 0x3C0000) {
      v.grp[static_cast<int>((von - 0x3C0000) / 0x400)] = 0;
    } else if (von >= 0x362800) {
      if (von == 0x362800 + 371 * 0x400) v.tabelle = 0;
    } else if (von >= 0x248000 && von < 0x2C8000 && zweite) {
      v.uhr[static_cast<int>((von - 0x248000) / 0x800)] = 0;
    } else if (von >= 0x208000 && von < 0x228000 && zweite) {
      v.tev[static_cast<int>((von - 0x208000) / 0x800)] = 0;
    } else if (von >= 0x8000 && von < 0x208000 && zweite) {
      v.ein[static_cast<int>((von - 0x8000) / 0x800)] = 0;
    }
  }

  // The rule: what the tool makes of a fault on the exchange with index k of a transfer.
  static Folge Erwartet(const std::vector<std::string>& ablauf, std::size_t k, const std::string& art,
                        int mal) {
    const auto befehl = [&](std::size_t i) { return i < ablauf.size() ? ablauf[i][0] : ' '; };
    const bool daten = befehl(k) == 'V' || befehl(k) == 'R';
    const Folge heil{.bis = ablauf.size()};
    const Folge fremd{Sendeergebnis::nicht_synchron,
                      "PC und ZAVmaster sind nicht synchronisiert. Bitte zuerst Initialisieren.", k};
    if (Verstummt(art) || (art[0] == 'F' && daten)) {
      return befehl(k) == 'V' ? Folge{Sendeergebnis::keine_antwort, "", k}
                              : Folge{Sendeergebnis::gescheitert, keine_antwort, k};
    }
    if (art == "F07" && mal < 10) return heil;
    if (art[0] == 'F') return {Sendeergebnis::gescheitert, std::string(Uebertragungstext(art)), k};
    if (art == "lang") {
      // The port is opened anew after these, which drops what is there.
      if (daten || befehl(k) == 'i' || k + 1 == ablauf.size()) return heil;
      return befehl(k + 1) == 'R' ? fremd : Folge{Sendeergebnis::gescheitert, unsinn, k + 1};
    }
    if (befehl(k) == 'V') {
      return {Sendeergebnis::falsche_version,
              "Version ZAVmaster ist nicht kompatibel zur PC-Software ZAVlink!", k};
    }
    return befehl(k) == 'R' ? fremd : Folge{Sendeergebnis::gescheitert, unsinn, k};
  }

  void Transfer_pruefen(const std::vector<std::string>& ablauf, std::size_t k, const std::string& art,
                        int mal = 1) {
    SCOPED_TRACE(art + " x" + std::to_string(mal) + " at " + std::to_string(k + 1) + " " +
                 ablauf[k].substr(0, 13));
    Master_unberuehrt();
    u.Nach_initialisierung = 0;
    const Folge soll = Erwartet(ablauf, k, art, mal);
    const bool stille = Verstummt(art) || ((ablauf[k][0] == 'V' || ablauf[k][0] == 'R') && art[0] == 'F');
    sim.mitschrift_leeren();
    EXPECT_EQ(Mit_fehler(art, k + 1, mal, stille, Senden()), soll.ergebnis);
    EXPECT_EQ(b.boxen, soll.box.empty() ? std::vector<std::string>() : std::vector{soll.box});
    EXPECT_EQ(b.korrigiert, art == "F07" && !stille ? mal : 0);
    // Before each new try, and on a serial line before everything.
    EXPECT_EQ(std::ranges::count(sim.mitschrift(), "%"),
              std::min(b.korrigiert, 9) + (GetParam() == Verbindung::com));
    Vormerkung rest = vorgemerkt;
    for (std::size_t i = 0; i < soll.bis; ++i) Gesendet(ablauf, i, rest);
    EXPECT_TRUE(Vormerkung() == rest) << "flags";

    EXPECT_EQ(Ohne_fehler(Senden()), Sendeergebnis::gesendet);
    EXPECT_EQ(b.boxen, std::vector{neustartfrage});
    EXPECT_TRUE(Master_haelt_bild());
    EXPECT_FALSE(sim.gesperrt());
    for (std::size_t i = soll.bis; i < ablauf.size(); ++i) Gesendet(ablauf, i, rest);
    EXPECT_TRUE(Vormerkung() == rest) << "flags after the good run";
  }
  void Bericht(const char* was) const {
    std::cout << was << (GetParam() == Verbindung::com ? " (pty): " : " (TCP): ") << eingespielt
              << " faults injected" << (HasFailure() ? "" : ", all survived") << "\n";
  }

  Testordner ordner;
  Testmaster sim;
  Benutzer b;
  Uebertragung u{b};
  Projekt vorher;
  Vormerkung anfang, vorgemerkt;
  std::vector<Bildzeile> bild = {};
  int eingespielt = 0;
};

TEST_P(Jeder_austausch, DerUebertragung) {
  const auto ablauf = Ablauf_der_uebertragung();
  ASSERT_EQ(ablauf.size(), 39U);
  for (std::size_t k = 0; k < ablauf.size(); ++k) {
    // All kinds on the network; on the serial line those that differ there, and one of the others by turns.
    static constexpr const char* arten[] = {"stumm", "trenn", "F07",  "muell",
                                            "lang",  "F05",   "kurz", "verloren"};
    for (std::size_t i = 0; i < std::size(arten); ++i) {
      const bool dran = gruendlich || i < 3 || i % 5 == k % 5 || (i < 7 && GetParam() == Verbindung::tcp);
      if (dran) Transfer_pruefen(ablauf, k, arten[i]);
    }
    if (gruendlich || k % 8 == 3) {
      Transfer_pruefen(ablauf, k, "F07", 9);
      Transfer_pruefen(ablauf, k, "F07", 10);
    }
    if (HasFailure()) break;
  }
  Bericht("transfer");
}

TEST_P(Jeder_austausch, JederCodeDesMasters) {
  const auto ablauf = Ablauf_der_uebertragung();
  // The sign of life, a direct block, a window, a page.
  std::vector<std::size_t> stellen{0, 5, 24, 25};
  if (gruendlich) {
    stellen.resize(ablauf.size());
    std::iota(stellen.begin(), stellen.end(), 0);
  }
  for (int code = 1; code <= 99; ++code) {
    if (code == 7) continue;
    const std::string art = Code(code);
    const bool bekannt = Uebertragungstext(art) != unsinn;
    for (const std::size_t k : stellen) {
      const bool dran = k == stellen[static_cast<std::size_t>(code) % stellen.size()];
      if (gruendlich || dran || (bekannt && GetParam() == Verbindung::tcp)) Transfer_pruefen(ablauf, k, art);
    }
  }
  Bericht("status codes");
}

// The table of a year is one section of 372 pages under one flag.
TEST_P(Jeder_austausch, DerSchaltzeiten) {
  vorgemerkt = {.ein = {}, .uhr = {}, .tev = {}, .grp = decltype(projekt.Grp_led)(i16{0}), .tabelle = 1};
  vorgemerkt.einsetzen();
  const auto ablauf = Ablauf_der_uebertragung();
  const auto erste = static_cast<std::size_t>(
      std::ranges::find_if(ablauf, [](const auto& m) { return m.starts_with("D362800"); }) - ablauf.begin());
  ASSERT_GE(ablauf.size(), erste + 744);
  static constexpr const char* arten[] = {"stumm", "lang", "F03", "F07", "trenn"};
  std::size_t i = 0;
  for (const std::size_t k : {erste, erste + 1, erste + 400, erste + 742, erste + 743}) {
    Transfer_pruefen(ablauf, k, arten[i++ % 5]);
    Transfer_pruefen(ablauf, k, arten[(i + 2) % 5]);
  }
  Bericht("switching times");
}

TEST_P(Jeder_austausch, DesLoeschens) {
  u.Check1 = false;
  bild = Bild(true);
  const auto loeschen = [this] { return u.Initialisieren(); };
  Vormerkung alles = vorgemerkt;
  std::ranges::fill(alles.grp.alle(), i16{1});
  alles.tabelle = 1;
  for (const std::size_t k : {0U, 1U}) {
    for (const std::string& art :
         Mit_allen_codes({"stumm", "verloren", "kurz", "lang", "muell", "trenn", "F01", "F07", "F99"})) {
      SCOPED_TRACE(art + " at " + (k == 0 ? "V" : "EI"));
      Master_unberuehrt();
      u.Nach_initialisierung = 0;
      // The report's last byte is not waited for, and surplus ones are dropped; noise goes to the log.
      const bool heil = art == "lang" || (k == 1 && (art == "kurz" || art == "muell"));
      const bool falsch = k == 0 && art == "muell";
      EXPECT_EQ(Mit_fehler(art, k + 1, 1, !heil && !falsch, loeschen), heil);
      ASSERT_EQ(b.boxen.size(), 2U);
      EXPECT_EQ(b.boxen[0], loeschfrage);
      EXPECT_EQ(b.boxen[1], heil     ? bereit
                            : falsch ? "Version ZAVmaster (###REV 09) ist nicht kompatibel zur PC-Software "
                                       "ZAVlink-Version 9.102"
                                     : timeout);
      EXPECT_EQ(u.Nach_initialisierung, heil);
      EXPECT_TRUE(Vormerkung() == alles);
      if (art == "F07" || art == "verloren") {
        EXPECT_TRUE(Ohne_fehler(loeschen));
        EXPECT_EQ(b.boxen, (std::vector{loeschfrage, bereit}));
        EXPECT_EQ(sim.speicher(bild.back().von, 8), simulator::Bytes(8));
        bild = Bild(true);
        EXPECT_EQ(Ohne_fehler(Senden()), Sendeergebnis::gesendet);
        EXPECT_TRUE(Master_haelt_bild());
      }
    }
  }
  Bericht("erase");
}

// A master that talks for ever, where the report of an erase should end or behind it.
TEST(Flut, EndetDasLoeschen) {
  einstellungen.Com_art = 1;
  einstellungen.Host_ip = "127.0.0.1";
  einstellungen.Host_port = 0;
  const int lauscher = Lauscher(einstellungen.Host_port);
  Com_art_setzen();
  std::thread master([lauscher] {
    for (const std::string ende : {"", "F00"}) {
      const int fd = accept(lauscher, nullptr, nullptr);
      std::string text = "REV 09.04 00\r" + ende + std::string(65536, 'x');
      while (send(fd, text.data(), text.size(), MSG_NOSIGNAL) > 0) text.assign(65536, 'x');
      close(fd);
    }
  });
  projekt.Datei_version = "910";
  {
    Benutzer b;
    Uebertragung u(b);
    EXPECT_FALSE(u.Initialisieren());
    EXPECT_EQ(b.boxen, (std::vector{loeschfrage, timeout}));
    b.boxen.clear();
    EXPECT_TRUE(u.Initialisieren());
    EXPECT_EQ(b.boxen, (std::vector{loeschfrage, bereit}));
  }
  master.join();
  close(lauscher);
  projekt = {};
  einstellungen = {};
}

TEST_P(Jeder_austausch, DerUhr) {
  Uhrstellung uhr{
      .Akt_zeit_text = "08:15:30", .Akt_datum_text = "04.05.2026", .Akt_wochentag = 0, .Richt_modus = 1};
  uhr.Sowi_datum = Sowi_daten_berechnen(2026);
  const auto stellen = [&] { return Uhr_stellen(uhr); };
  const auto ablauf = Ablauf(stellen);
  ASSERT_EQ(ablauf.size(), 4U);  // i U D W
  for (std::size_t k = 0; k < ablauf.size(); ++k) {
    for (const std::string& art : Mit_allen_codes(
             {"stumm", "verloren", "kurz", "lang", "muell", "trenn", "F01", "F04", "F44", "F07", "F99"})) {
      for (const int mal : art == "F07" ? std::vector{1, 9, 10} : std::vector{1}) {
        SCOPED_TRACE(art + " x" + std::to_string(mal) + " at " + ablauf[k].substr(0, 1));
        sim.speicher_setzen(0x362000, simulator::Bytes(41, 0xEE));
        const bool heil = (art == "F07" && mal < 10) || (art == "lang" && k == 3);
        const std::string box = heil                              ? uhrfrage
                                : Verstummt(art)                  ? keine_antwort
                                : art == "lang" || art == "muell" ? unsinn
                                                                  : std::string(Uebertragungstext(art));
        EXPECT_EQ(Mit_fehler(art, k + 1, mal, Verstummt(art), stellen), heil);
        EXPECT_EQ(b.boxen, std::vector{box});
        EXPECT_TRUE(Ohne_fehler(stellen));
        EXPECT_EQ(b.boxen, std::vector{uhrfrage});
        EXPECT_EQ(sim.uhr(), "3015081004052600");
        EXPECT_EQ(sim.speicher(0x362000, 3), (simulator::Bytes{1, 0x26, 0x22}));
      }
    }
  }
  Bericht("clock");
}

// A radio receiver: its four pages are written, taken up, and checked.
TEST_P(Jeder_austausch, DesFunkempfaengers) {
  constexpr int r = 3;
  const auto vormerken = [](bool geaendert) { projekt.Enocean_empf_geaendert[r] = geaendert ? 1 : 0; };
  vorher.Enocean_empf_da[r] = 1;
  vorher.App_enocean_empf[40] = r;
  vorher.App_enocean_id[40] = "01234567";
  vorher.App_typ[40] = 84;
  vorher.App_text[40] = "16";
  vorher.App_text2[40] = "1";
  projekt = vorher;
  anfang.einsetzen();
  Enocean_anzeige anzeige;
  const auto programmieren = [&] { return Enocean_programmieren(false, anzeige); };
  vormerken(true);
  const auto ablauf = Ablauf(programmieren);
  ASSERT_EQ(ablauf.size(), 89U);  // 4 x 18 to write, one to take up, 4 x 4 to check
  const auto arten = Mit_allen_codes({"stumm", "muell", "F80", "trenn", "lang", "F07", "kurz", "verloren"});
  for (std::size_t k = 0; k < ablauf.size(); ++k) {
    for (std::size_t i = 0; i < arten.size(); ++i) {
      // On the serial line each exchange opens the port anew.
      const bool dran = i == k % 8 || (i == (k + 3) % 8 && GetParam() == Verbindung::tcp);
      if (!dran && !gruendlich) continue;
      const std::string& art = arten[i];
      SCOPED_TRACE(art + " at " + std::to_string(k + 1) + " " + ablauf[k]);
      vormerken(true);
      const bool zahlen = ablauf[k] == "x";
      const bool heil = art == "lang" || (art == "F07" && !zahlen);
      const bool verfaelscht = zahlen && art == "muell";
      const bool stille = Verstummt(art) || (zahlen && art[0] == 'F');
      const auto ergebnis = Mit_fehler(art, k + 1, 1, stille, programmieren);
      EXPECT_EQ(ergebnis, heil          ? Enocean_ergebnis::aktualisiert
                          : verfaelscht ? Enocean_ergebnis::pruefsumme_falsch
                                        : Enocean_ergebnis::gescheitert);
      EXPECT_EQ(projekt.Enocean_empf_geaendert[r], !heil && !verfaelscht);
      ASSERT_FALSE(b.boxen.empty());
      EXPECT_TRUE(heil || verfaelscht || b.boxen.back().ends_with(" bei der Kommunikation."))
          << b.boxen.back();

      vormerken(true);
      EXPECT_EQ(Ohne_fehler(programmieren), Enocean_ergebnis::aktualisiert);
      EXPECT_EQ(b.boxen, std::vector<std::string>{"Alle Empfänger sind jetzt aktualisiert."});
      const auto tabelle = sim.empfaengertabelle(r);
      EXPECT_EQ(simulator::Bytes(tabelle.begin(), tabelle.begin() + 9),
                (simulator::Bytes{0x01, 0x23, 0x45, 0x67, 16, 0, 0, 0, 0}));
    }
  }
  Bericht("radio receiver");
}

INSTANTIATE_TEST_SUITE_P(, Jeder_austausch, ::testing::Values(Verbindung::tcp, Verbindung::com),
                         [](const auto& art) { return art.param == Verbindung::com ? "Pty" : "Tcp"; });

}  // namespace
}  // namespace zav
