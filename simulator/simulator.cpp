#include "simulator/simulator.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/prctl.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <condition_variable>
#include <csignal>
#include <cstring>
#include <ctime>
#include <mutex>
#include <stdexcept>
#include <thread>

#include "simulator/anschluss.h"
#include "simulator/pseudoterminal.h"

namespace zav::simulator {

namespace {

constexpr double nie = Startlader::nie;  // no time at all
constexpr double speicherpause = 0.5;    // s without a change until the memory file is written

// Seconds that a byte takes: start bit, eight data bits, stop bit. 0 for a line that is not held.
double byte_zeit(long baud) { return baud > 0 ? 10.0 / static_cast<double>(baud) : 0; }

double jetzt() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

Fd horchen(int port) {
  Fd fd(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  const int ja = 1;
  sockaddr_in adresse{};
  adresse.sin_family = AF_INET;
  adresse.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  adresse.sin_port = htons(static_cast<std::uint16_t>(port));
  if (!fd || ::setsockopt(fd.nummer(), SOL_SOCKET, SO_REUSEADDR, &ja, sizeof ja) != 0 ||
      ::bind(fd.nummer(), reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse) != 0 ||
      ::listen(fd.nummer(), 16) != 0)
    throw std::runtime_error("TCP-Port " + std::to_string(port) +
                             " kann nicht geöffnet werden: " + std::strerror(errno));
  return fd;
}

int port_von(const Fd& fd) {
  sockaddr_in adresse{};
  socklen_t laenge = sizeof adresse;
  ::getsockname(fd.nummer(), reinterpret_cast<sockaddr*>(&adresse), &laenge);
  return ntohs(adresse.sin_port);
}

}  // namespace

struct Simulator::Kern {
  explicit Kern(Optionen o)
      : optionen(std::move(o)),
        geraet(optionen.version),
        tcp(byte_zeit(optionen.baud)),
        pty(byte_zeit(optionen.baud)) {}

  const Optionen optionen;
  mutable std::mutex schloss;  // held whenever the device or a line is touched; not while waiting
  mutable std::condition_variable geschehen;
  Geraet geraet;
  Fd wecker, horcher;
  Anschluss tcp, pty;
  Pseudoterminal terminal;
  bool ende = false;
  double speichern_um = nie;
  std::thread faden;

  void laufen();
  void runde(const std::array<pollfd, 5>& p);
  std::array<pollfd, 5> warteliste() const;
  double naechste() const;
  void annehmen();
  void wechsel();
  void lesen(Anschluss& a);
  void auslaufen(Anschluss& a);
  void bedienen(Anschluss& a);
  void auflegen(Anschluss& a);
  void trennen(Anschluss& a);
  void verteilen();
  void speichern();
  void wecken() const {
    const std::uint64_t eins = 1;
    [[maybe_unused]] const auto n = ::write(wecker.nummer(), &eins, sizeof eins);
  }
  // Runs f on the device and lets the thread see what came of it.
  template <class F>
  void stellen(F f) {
    {
      const std::lock_guard sperre(schloss);
      f(geraet);
    }
    wecken();
  }
  template <class F>
  auto sehen(F f) const {
    const std::lock_guard sperre(schloss);
    return f(geraet);
  }
};

std::array<pollfd, 5> Simulator::Kern::warteliste() const {
  const auto leitung = [](const Anschluss& a) {
    return pollfd{a.nummer(), a.offen() ? a.interesse() : short{0}, 0};
  };
  // The watch comes behind its terminal: when bytes of a new user are seen, the close of the old one is seen
  // too.
  return {pollfd{wecker.nummer(), POLLIN, 0}, leitung(tcp), pollfd{horcher.nummer(), POLLIN, 0}, leitung(pty),
          pollfd{terminal.melder(), POLLIN, 0}};
}

double Simulator::Kern::naechste() const {
  return std::min({tcp.naechste(), pty.naechste(), geraet.naechste(), speichern_um});
}

void Simulator::Kern::laufen() {
  sigset_t alle;
  sigfillset(&alle);
  pthread_sigmask(SIG_BLOCK, &alle, nullptr);  // also turns a broken socket into an error of its write
  if (optionen.baud > 0) ::prctl(PR_SET_TIMERSLACK, 1UL);

  std::unique_lock sperre(schloss);
  while (!ende) {
    auto p = warteliste();
    const double um = naechste();
    timespec frist{};
    if (um != nie) {
      const double rest = std::max(0.0, um - jetzt());
      frist.tv_sec = static_cast<time_t>(rest);
      frist.tv_nsec = static_cast<long>((rest - std::floor(rest)) * 1e9);
    }
    sperre.unlock();
    const int n = ::ppoll(p.data(), p.size(), um == nie ? nullptr : &frist, nullptr);
    sperre.lock();
    if (n < 0)
      for (auto& x : p) x.revents = 0;
    runde(p);
    geschehen.notify_all();
  }
  if (geraet.master.geaendert || speichern_um != nie) speichern();
}

void Simulator::Kern::runde(const std::array<pollfd, 5>& p) {
  if (p[0].revents != 0) {
    std::uint64_t zahl = 0;
    [[maybe_unused]] const auto n = ::read(wecker.nummer(), &zahl, sizeof zahl);
  }
  if (p[4].revents != 0) wechsel();
  for (auto [a, ereignisse] : {std::pair{&tcp, p[1].revents}, std::pair{&pty, p[3].revents}})
    if (a->offen() && (ereignisse & (POLLIN | POLLHUP | POLLERR)) != 0) lesen(*a);
    else bedienen(*a);
  if (p[2].revents != 0) annehmen();
  geraet.zeit(jetzt());
  verteilen();
  if (geraet.master.geaendert) {
    geraet.master.geaendert = false;
    if (!optionen.speicher.empty()) speichern_um = jetzt() + speicherpause;
  }
  if (speichern_um <= jetzt()) speichern();
}

void Simulator::Kern::lesen(Anschluss& a) {
  const bool da = a.lesen(jetzt()) >= 0;
  if (!da) a.eilen(true);
  bedienen(a);
  if (!da) auflegen(a);
}

// The user has gone; what was sent counts all the same.
void Simulator::Kern::auslaufen(Anschluss& a) {
  a.eilen(true);
  while (a.offen() && a.lesen(jetzt()) > 0) bedienen(a);
  bedienen(a);
}

// Carries out what has come through the line, and lets out what is due.
void Simulator::Kern::bedienen(Anschluss& a) {
  if (!a.offen()) return;
  const double t = jetzt();
  Ausgabe aus;
  a.zustellen(t, [&](char c, double um) {
    geraet.empfangen(a.zustand, c, um, aus);
    if (optionen.baud > 0 && !aus.bytes.empty()) a.senden(std::exchange(aus.bytes, {}), um, t);
    return !aus.trennen;
  });
  if (!aus.bytes.empty()) a.senden(aus.bytes, t, t);
  if (aus.trennen) return trennen(a);
  if (!a.schreiben(t)) auflegen(a);
}

void Simulator::Kern::auflegen(Anschluss& a) {
  if (&a == &tcp) a.schliessen();
}

// A fault closes the connection. A terminal goes the way of an adapter that was pulled out, and comes back as
// a new one.
void Simulator::Kern::trennen(Anschluss& a) {
  a.schliessen();
  if (&a != &pty) return;
  try {
    a.oeffnen(terminal.oeffnen());
    if (optionen.melden) optionen.melden("PTY " + terminal.name());
  } catch (const std::runtime_error& fehler) {
    if (optionen.melden) optionen.melden(fehler.what());
  }
}

void Simulator::Kern::annehmen() {
  for (;;) {
    Fd neu(::accept4(horcher.nummer(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!neu) return;
    if (tcp.offen()) auslaufen(tcp);
    const int ja = 1;
    ::setsockopt(neu.nummer(), IPPROTO_TCP, TCP_NODELAY, &ja, sizeof ja);
    tcp.oeffnen(std::move(neu));
  }
}

// What the last user of the terminal sent counts; what he has not read is gone.
void Simulator::Kern::wechsel() {
  if (!terminal.benutzer_gewechselt()) return;
  pty.eilen(true);
  bedienen(pty);
  pty.eilen(false);
  pty.zustand = {};
  pty.ausgang_leeren();
}

// Hands out what the device says without being asked.
void Simulator::Kern::verteilen() {
  const double t = jetzt();
  for (Anschluss* a : {&tcp, &pty}) {
    if (!a->offen()) continue;
    if (!geraet.an_alle.empty()) a->senden(geraet.an_alle, t, t, true);
    if (a->zustand.anzeige)
      for (const auto& z : geraet.master.anzeigezeilen) a->senden(z, t, t, true);
  }
  geraet.an_alle.clear();
  geraet.master.anzeigezeilen.clear();
}

void Simulator::Kern::speichern() {
  speichern_um = nie;
  geraet.master.geaendert = false;
  if (optionen.speicher.empty()) return;
  try {
    Bestand_speichern(optionen.speicher, geraet.master.bestand);
  } catch (const std::runtime_error& fehler) {
    if (optionen.melden) optionen.melden(fehler.what());
  }
}

Simulator::Simulator(Optionen optionen) : kern(std::make_unique<Kern>(std::move(optionen))) {
  Master& m = kern->geraet.master;
  if (const auto& datei = kern->optionen.speicher; !datei.empty()) {
    Bestand_laden(datei, m.bestand);
    Bestand_speichern(datei,
                      m.bestand);  // a place that cannot be written shows now, not when data are at stake
  }
  m.fehler.setzen(kern->optionen.fehler);
  m.mitschreiben = kern->optionen.mitschreiben;
  kern->wecker = Fd(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
  if (!kern->wecker) throw std::runtime_error(std::string("Simulator: ") + std::strerror(errno));
  if (kern->optionen.tcp) kern->horcher = horchen(*kern->optionen.tcp);
  if (kern->optionen.pty) kern->pty.oeffnen(kern->terminal.oeffnen());
  if (kern->optionen.startladen) kern->geraet.einschalten(true, jetzt());
}

Simulator::~Simulator() { stop(); }

void Simulator::start() {
  if (!kern->faden.joinable()) kern->faden = std::thread([k = kern.get()] { k->laufen(); });
}

void Simulator::stop() {
  if (!kern->faden.joinable()) return;
  kern->stellen([&](Geraet&) { kern->ende = true; });
  kern->faden.join();
  const std::lock_guard sperre(kern->schloss);
  kern->tcp.schliessen();
  kern->pty.schliessen();
  kern->terminal.schliessen();
  kern->horcher.schliessen();
}

int Simulator::tcp_port() const {
  return kern->sehen([&](const Geraet&) { return kern->horcher ? port_von(kern->horcher) : 0; });
}

std::string Simulator::pty_name() const {
  return kern->sehen([&](const Geraet&) { return kern->terminal.name(); });
}

bool Simulator::warten(const std::function<bool()>& fertig, std::chrono::milliseconds zeit) const {
  const auto bis = std::chrono::steady_clock::now() + zeit;
  while (!fertig()) {
    std::unique_lock sperre(kern->schloss);
    if (std::chrono::steady_clock::now() >= bis) return false;
    // What happens between the question and the wait is noticed a little later.
    kern->geschehen.wait_until(
        sperre, std::min(bis, std::chrono::steady_clock::now() + std::chrono::milliseconds(20)));
  }
  return true;
}

Bytes Simulator::speicher(std::uint32_t adresse, std::size_t n) const {
  return kern->sehen([&](const Geraet& g) { return g.master.bestand.speicher.lesen(adresse, n); });
}

std::string Simulator::block(const std::string& befehl) const {
  return kern->sehen([&](const Geraet& g) {
    const auto b = g.master.bestand.bloecke.find(befehl);
    return b == g.master.bestand.bloecke.end() ? std::string() : b->second;
  });
}

unsigned Simulator::nachhol_flags() const { return hex_zahl(block("LS")).value_or(0); }
std::string Simulator::uhr() const { return block("U"); }

bool Simulator::gesperrt() const {
  return kern->sehen([](const Geraet& g) { return g.master.gesperrt; });
}

Empfaenger::Tabelle Simulator::empfaengertabelle(int r) const {
  return kern->sehen(
      [&](const Geraet& g) { return g.master.bestand.empfaenger.at(static_cast<std::size_t>(r)).tabelle(); });
}

std::map<std::string, std::size_t> Simulator::zaehler() const {
  return kern->sehen([](const Geraet& g) { return g.master.zaehler; });
}

std::size_t Simulator::anzahl(const std::string& befehl) const {
  return kern->sehen([&](const Geraet& g) {
    const auto z = g.master.zaehler.find(befehl);
    return z == g.master.zaehler.end() ? 0 : z->second;
  });
}

std::vector<std::string> Simulator::mitschrift() const {
  return kern->sehen(
      [](const Geraet& g) { return std::vector(g.master.mitschrift.begin(), g.master.mitschrift.end()); });
}

void Simulator::mitschrift_leeren() {
  kern->stellen([](Geraet& g) { g.master.mitschrift.clear(); });
}

std::vector<Ereignis> Simulator::ereignisse() const {
  return kern->sehen(
      [](const Geraet& g) { return std::vector(g.master.ereignisse.begin(), g.master.ereignisse.end()); });
}

std::vector<Telegramm> Simulator::telegramme() const {
  return kern->sehen(
      [](const Geraet& g) { return std::vector(g.master.telegramme.begin(), g.master.telegramme.end()); });
}

int Simulator::neustarts() const {
  return kern->sehen([](const Geraet& g) { return g.master.neustarts; });
}

Firmware Simulator::firmware() const {
  return kern->sehen([](const Geraet& g) { return g.lader.firmware; });
}

void Simulator::wetter_setzen(const Wetter& w) {
  kern->stellen([&](Geraet& g) { g.master.wetter = w; });
}

void Simulator::ereignis(const Ereignis& e) {
  kern->stellen([&](Geraet& g) { g.master.ereignis(e); });
}

void Simulator::zeile(const std::string& text) {
  kern->stellen([&](Geraet& g) { g.master.anzeigezeilen.push_back(text + '\r'); });
}

void Simulator::teilnehmer_setzen(std::vector<std::string> zeilen) {
  kern->stellen([&](Geraet& g) { g.master.teilnehmer = std::move(zeilen); });
}

void Simulator::funk(int r, std::uint32_t id, int pegel) {
  kern->stellen(
      [&](Geraet& g) { g.master.bestand.empfaenger.at(static_cast<std::size_t>(r)).funk(id, pegel); });
}

void Simulator::empfaengerseite_setzen(int r, int seite, const Bytes& bytes) {
  kern->stellen([&](Geraet& g) {
    g.master.bestand.empfaenger.at(static_cast<std::size_t>(r))
        .seite_setzen(static_cast<std::size_t>(seite), bytes);
    g.master.geaendert = true;
  });
}

void Simulator::empfaengerseite_defekt(int r, int seite, bool defekt) {
  kern->stellen([&](Geraet& g) {
    g.master.bestand.empfaenger.at(static_cast<std::size_t>(r))
        .seite_defekt.at(static_cast<std::size_t>(seite)) = defekt;
  });
}

void Simulator::speicher_setzen(std::uint32_t adresse, const Bytes& bytes) {
  kern->stellen([&](Geraet& g) {
    g.master.bestand.speicher.schreiben(adresse, bytes);
    g.master.geaendert = true;
  });
}

void Simulator::version_setzen(const std::string& text) {
  kern->stellen([&](Geraet& g) { g.master.version = text; });
}

void Simulator::flash_defekt(bool defekt) {
  kern->stellen([&](Geraet& g) { g.master.flash_defekt = defekt; });
}

void Simulator::fehler_setzen(const std::vector<std::string>& regeln) {
  std::vector<Fehlerregel> gelesen;
  gelesen.reserve(regeln.size());
  for (const auto& r : regeln) gelesen.push_back(Fehlerregel_lesen(r));
  kern->stellen([&](Geraet& g) { g.master.fehler.setzen(std::move(gelesen)); });
}

void Simulator::aus_ein() {
  kern->stellen([](Geraet& g) { g.einschalten(false, jetzt()); });
}

void Simulator::startladen() {
  kern->stellen([](Geraet& g) { g.einschalten(true, jetzt()); });
}

}  // namespace zav::simulator
