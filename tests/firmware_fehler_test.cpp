// Every exchange of a firmware update fails once, on both ways: the bootloader stands behind a real
// pseudo-terminal, or behind a real device server in front of one, and misbehaves at one exchange in turn.
// After each fault stands what the user must know, and a good second run puts the whole operating system into
// the master. A device server that floods ends no run either.
#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <atomic>
#include <functional>
#include <iostream>
#include <mutex>
#include <optional>
#include <set>

#include "firmware_hilfen.h"
#include "link/leitung.h"
#include "platform/einstellungen.h"
#include "platform/nsio.h"
#include "platform/uhrwerk.h"
#include "service/firmware.h"
#include "simulator/startlader.h"

namespace zav {
namespace {

using Uhr = std::chrono::steady_clock;

constexpr double tempo_oeffnen = 10;  // of the tool, until the line is open
constexpr double tempo = 300;         // and behind
constexpr double lader_tempo = 20;    // of the bootloader: its prompts come one by one
constexpr int saetze = 40;

enum Austausch { einschalten, loeschen, empfangen, satz, schlusssatz, starten, anzahl, keiner };
constexpr std::array<const char*, anzahl> austausche{"power-on",        "a", "b", "a record",
                                                     "the last record", "*"};
constexpr int gestoerter_satz = 6;

// A bootloader on a pseudo-terminal whose exchange `k` fails by `art`: "stumm" and "F.." are not carried out,
// of "verloren" and "kurz" the reply does not come whole, of "lang" and "muell" there is more; "trenn" pulls
// the device out.
class Launischer_startlader {
 public:
  Launischer_startlader(Austausch k, std::string art) : k_(k), art_(std::move(art)) {
    faden_ = std::thread([this] { Laufen(); });
  }
  ~Launischer_startlader() {
    ende_ = true;
    faden_.join();
  }
  Launischer_startlader(const Launischer_startlader&) = delete;
  Launischer_startlader& operator=(const Launischer_startlader&) = delete;

  std::string geraet() {
    const std::scoped_lock sperre(m_);
    return pty_->name;
  }
  // The device plugged in again; from here on it behaves.
  void Heilen() {
    const std::scoped_lock sperre(m_);
    if (!pty_) pty_.emplace();
    k_ = keiner;
  }
  // Power off and on.
  void Aus_ein() {
    const std::scoped_lock sperre(m_);
    empfaengt_ = geloescht_ = false;
    zeile_.clear();
    lader_.einschalten(true, Jetzt());
  }
  bool ganz(int n) {
    const std::scoped_lock sperre(m_);
    const simulator::Firmware& f = lader_.firmware;
    return f.gueltig && f.falsche == 0 && f.bytes == static_cast<std::size_t>(16 * n) && !lader_.laeuft();
  }

  std::atomic<bool> gestoert = false;

 private:
  static double Jetzt() {
    return std::chrono::duration<double>(Uhr::now().time_since_epoch()).count() * lader_tempo;
  }

  void Laufen() {
    while (!ende_) {
      int fd = -1;
      {
        const std::scoped_lock sperre(m_);
        std::string aus;
        lader_.zeit(Jetzt(), aus);
        if (!aus.empty()) Ausfuehren(geloescht_ ? loeschen : einschalten, "", std::move(aus));
        fd = pty_ ? pty_->master : -1;
      }
      pollfd p{.fd = fd, .events = POLLIN, .revents = 0};
      char puffer[256];
      const ssize_t n = poll(&p, 1, 2) > 0 ? read(fd, puffer, sizeof puffer) : 0;
      const std::scoped_lock sperre(m_);
      for (ssize_t i = 0; i < n; ++i) Hoeren(puffer[i]);
    }
  }
  // Takes records whole, so that one can be lost.
  void Hoeren(char c) {
    if (c == '*') {
      empfaengt_ = false;
      Ausfuehren(starten, "*", "");
    } else if (!empfaengt_) {
      Ausfuehren(c == 'a' ? loeschen : c == 'b' ? empfangen : keiner, std::string(1, c), "");
    } else if (zeile_ += c; c == '\n') {
      const bool letzte = zeile_.starts_with("S9");
      Ausfuehren(letzte                         ? schlusssatz
                 : ++saetze_ == gestoerter_satz ? satz
                                                : keiner,
                 std::exchange(zeile_, ""), "");
      if (letzte) empfaengt_ = false;
    }
  }
  void Ausfuehren(Austausch k, const std::string& bytes, std::string aus) {
    if (!pty_) return;
    // The reply to the erase is the prompt that comes at its end.
    const bool antwort = k != loeschen || bytes.empty();
    const bool dran = k == k_ && !gestoert;
    if (dran && art_ == "trenn") {
      gestoert = true;
      pty_.reset();
      return;
    }
    if (dran && (art_ == "stumm" || art_[0] == 'F')) {
      gestoert = true;
      return Senden(art_ == "stumm" ? "" : art_ + "XX\r");
    }
    for (const char c : bytes) lader_.empfangen(c, Jetzt(), aus);
    if (k == loeschen) geloescht_ = true;
    if (k == empfangen) {
      empfaengt_ = true;
      saetze_ = 0;
    }
    if (dran && antwort) {
      gestoert = true;
      if (art_ == "verloren") aus.clear();
      if (art_ == "kurz") aus.resize(aus.size() / 2);
      if (art_ == "lang") aus += "F00A6\r\n##";
      if (art_ == "muell") aus.insert(0, "\xFF\x01#~");
    }
    Senden(aus);
  }
  void Senden(std::string_view bytes) {
    const ssize_t n = bytes.empty() ? 0 : write(pty_->master, bytes.data(), bytes.size());
    EXPECT_EQ(n, static_cast<ssize_t>(bytes.size()));
  }

  std::mutex m_;
  std::optional<Pty> pty_{std::in_place};
  simulator::Startlader lader_;
  Austausch k_;
  std::string art_;
  std::string zeile_;
  bool empfaengt_ = false, geloescht_ = false;
  int saetze_ = 0;
  std::atomic<bool> ende_ = false;
  std::thread faden_;
};

class Firmware_fehler : public ::testing::TestWithParam<Updateweg>, public Melder, public Updatebeobachter {
 protected:
  Firmware_fehler() : vorher_(Melder_setzen(this)) {
    leitung = {};
    einstellungen = {};
    Datei_anlegen(datei, Firmwaredatei(saetze));
  }
  ~Firmware_fehler() override {
    Zeitraffer_setzen(1);
    Melder_setzen(vorher_);
  }

  Antwort Melden(const Meldung& m) override {
    boxen.push_back(m.text);
    return Antwort::Ja;
  }
  void DoEvents() override {
    if (aufgeben && aufgeben()) update.Abbruch = true;
  }
  // Free means that the tool waits for the master's power.
  void Abbruch_freigeben(bool f) override {
    frei = f;
    if (!f) return;
    Zeitraffer_setzen(tempo);
    lader->Aus_ein();
  }

  void Anschliessen() {
    einstellungen.Com_geraet = lader->geraet();
    if (GetParam() == Updateweg::com) return;
    server.reset();
    server.emplace(ordner, lader->geraet());
    einstellungen.Host_ip = server->adresse;
  }
  Updateergebnis Lauf() {
    Zeitraffer_setzen(tempo_oeffnen);
    boxen.clear();
    const Updateergebnis e = update.Ausfuehren(GetParam(), datei);
    EXPECT_FALSE(frei);
    return e;
  }

  Testordner ordner;
  const std::string datei = ordner / "ZAVMAStER_0905.s19";
  Firmware_update update{*this};
  std::optional<Launischer_startlader> lader;
  std::optional<Geraeteserver> server;
  std::vector<std::string> boxen;
  std::function<bool()> aufgeben;
  bool frei = false;

 private:
  Melder* vorher_;
};

const std::string neustart = "ZAVmaster jetzt neu starten\r\n";
const std::string unterbrochen = "Die Verbindung zum ZAVmaster ist unterbrochen.";
const std::string ohne_system = " Der ZAVmaster hat jetzt kein Betriebssystem: bitte den Update wiederholen.";
const std::string unvollstaendig = "Die Update-Datei konnte nicht vollständig gesendet werden." + ohne_system;

using Ende = std::pair<Updateergebnis, std::vector<std::string>>;

// What may stand behind a fault. While the tool waits for the prompt it waits for ever, and the user leaves;
// behind that nothing checks the master's echo.
std::set<Ende> Erwartet(Updateweg weg, Austausch k, const std::string& art) {
  const Ende fertig{Updateergebnis::fertig, {neustart}};
  const Ende halb{Updateergebnis::unvollstaendig, {neustart, unvollstaendig}};
  if (art == "trenn") {
    if (k == einschalten) return {{Updateergebnis::leitung_weg, {unterbrochen}}};
    if (k == loeschen) return {{Updateergebnis::leitung_weg, {unterbrochen + ohne_system}}};
    if (k > satz) return {fertig};
    // A network takes some bytes for a line that is gone.
    return weg == Updateweg::com ? std::set{halb} : std::set{halb, fertig};
  }
  if (k == loeschen && art != "lang" && art != "muell") return {{Updateergebnis::abgebrochen, {}}};
  return {fertig};
}

TEST_P(Firmware_fehler, AnJedemAustausch) {
  if (GetParam() == Updateweg::ethernet) BRAUCHT_SER2NET();
  int eingespielt = 0;
  int ueberlebt = 0;
  int code = 0;
  for (int k = einschalten; k < anzahl; ++k) {
    const auto austausch = static_cast<Austausch>(k);
    int nummer = k;
    for (std::string art : {"stumm", "trenn", "verloren", "kurz", "lang", "muell", "F"}) {
      // A device server takes its time to start: there, two kinds at each exchange and two of the others by
      // turns.
      if (GetParam() == Updateweg::ethernet && nummer++ > k + 1 && nummer % 3 != 0) continue;
      if (art == "F") art = "F" + std::to_string(101 + code++ * 16 % 99).substr(1);
      SCOPED_TRACE(art + " at " + austausche.at(static_cast<std::size_t>(k)));
      lader.emplace(austausch, art);
      const std::set<Ende> soll = Erwartet(GetParam(), austausch, art);
      if (soll.begin()->first == Updateergebnis::abgebrochen) {
        aufgeben = [&] { return lader->gestoert && update.geloescht; };
      }
      Anschliessen();
      const Updateergebnis e = Lauf();
      aufgeben = nullptr;
      EXPECT_TRUE(lader->gestoert);
      EXPECT_TRUE(soll.contains({e, boxen})) << static_cast<int>(e) << " " << ::testing::PrintToString(boxen);
      EXPECT_EQ(update.geloescht, k != einschalten || e == Updateergebnis::fertig);
      ++eingespielt;

      lader->Heilen();
      if (art == "trenn") Anschliessen();
      EXPECT_EQ(Lauf(), Updateergebnis::fertig);
      EXPECT_EQ(boxen, std::vector{neustart});
      EXPECT_TRUE(lader->ganz(saetze));
      if (HasFailure()) return;
      ++ueberlebt;
    }
  }
  std::cout << "firmware update " << (GetParam() == Updateweg::com ? "(COM): " : "(device server): ")
            << eingespielt << " faults injected, " << ueberlebt << " survived\n";
}

// Says without end what it was told to, takes nothing, and asks for options that nobody knows.
TEST(Flut, EinesGeraeteserversEndetJedenSchritt) {
  const std::string adresse =
      "127.9." + std::to_string(getpid() / 250 % 250 + 1) + "." + std::to_string(getpid() % 250 + 1);
  const int lauscher = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in ort{};
  ort.sin_family = AF_INET;
  ort.sin_port = htons(4001);
  ASSERT_EQ(inet_pton(AF_INET, adresse.c_str(), &ort.sin_addr), 1);
  ASSERT_EQ(bind(lauscher, reinterpret_cast<sockaddr*>(&ort), sizeof ort), 0) << adresse;
  ASSERT_EQ(listen(lauscher, 1), 0);
  std::thread server([lauscher] {
    std::string text = "\xFF\xFD\x2C";  // its port may be controlled
    for (int option = 60; option < 200; ++option) text += std::string("\xFF\xFD") + static_cast<char>(option);
    for (int n = 0; n < 500; ++n) text += " *: Quit Bootloader and start ZAVmaster-1024\r\n";
    for (int lauf = 0; lauf < 2; ++lauf) {
      const int fd = accept(lauscher, nullptr, nullptr);
      while (send(fd, text.data(), text.size(), MSG_NOSIGNAL) > 0) {
      }
      close(fd);
    }
  });
  Zeitraffer_setzen(tempo);
  nsio_init();
  const int port = nsio_open(adresse, 1, 3000 * static_cast<int>(tempo));
  ASSERT_GT(port, 0);
  for (int n = 0; n < 8; ++n) EXPECT_LE(nsio_warten(port, 20), 65536);
  EXPECT_EQ(nsio_leeren(port), 0);
  nsio_end();

  struct Niemand : Melder {
    Antwort Melden(const Meldung& m) override {
      texte += m.text;
      return Antwort::Ja;
    }
    std::string texte;
  } melder;
  Melder* const vorher = Melder_setzen(&melder);
  Testordner ordner;
  Datei_anlegen(ordner / "ZAVMAStER_1.s19", Firmwaredatei(saetze));
  einstellungen.Host_ip = adresse;
  Zeitraffer_setzen(tempo_oeffnen);
  Updatebeobachter beobachter;
  Firmware_update update(beobachter);
  EXPECT_EQ(update.Ausfuehren(Updateweg::ethernet, ordner / "ZAVMAStER_1.s19"), Updateergebnis::fertig);
  EXPECT_EQ(melder.texte, neustart);
  Melder_setzen(vorher);
  server.join();
  close(lauscher);
  einstellungen = {};
  Zeitraffer_setzen(1);
}

INSTANTIATE_TEST_SUITE_P(Wege, Firmware_fehler, ::testing::Values(Updateweg::com, Updateweg::ethernet));

}  // namespace
}  // namespace zav
