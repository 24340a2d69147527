// What a transfer costs besides the line. Both sides of each ratio are measured in the same run; the counters
// give the ratio.
#include <benchmark/benchmark.h>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <random>

#include "link/leitung.h"
#include "link/protokoll.h"
#include "messen.h"
#include "platform/einstellungen.h"
#include "platform/uhrwerk.h"
#include "simulator/simulator.h"
#include "transfer/plan.h"
#include "transfer/uebertragung.h"
#include "transfer/zeitbloecke.h"

namespace {

using namespace zav;

// Every cell of every matrix in use.
Projekt Volles_projekt() {
  Projekt p;
  std::mt19937 zahl(1);
  const auto fuellen = [&](auto& feld, unsigned unter) {
    for (auto& zelle : feld.alle())
      zelle = static_cast<std::remove_reference_t<decltype(zelle)>>(zahl() % unter);
  };
  fuellen(p.Ein_relais, 8);
  fuellen(p.Tev_relais, 7);
  fuellen(p.Uhr_relais, 21);
  fuellen(p.Ein_timer, 4);
  fuellen(p.Uhr_timer, 4);
  fuellen(p.Ein_dimmer, 18);
  fuellen(p.Uhr_dimmer, 16);
  fuellen(p.Tev_dimmer, 16);
  fuellen(p.Ein_led, 640);
  p.Projekt_kennung = "0123456789ABCDEF";
  return p;
}

// A house: a few functions on each key.
Projekt Haus() {
  Projekt p;
  std::mt19937 zahl(1);
  for (int e = 0; e < eingangsereignisse; ++e) {
    for (int n = 0; n < 4; ++n) p.Ein_relais(e, zahl() % relaisausgaenge) = static_cast<i16>(1 + zahl() % 6);
    p.Ein_led[e] = static_cast<i16>(zahl() % 642);
  }
  p.Projekt_kennung = "0123456789ABCDEF";
  return p;
}

// The image as it goes over the wire: the text of every block.
class Sammler : public Plangaenger {
 public:
  explicit Sammler(std::string& ziel) : ziel_(ziel) {}
  bool Zeile(const Abschnitt&, int, const Block& b) override {
    Hex_anfuegen(b.bytes(), ziel_);
    return true;
  }

 private:
  std::string& ziel_;
};

void Uebersetzen(benchmark::State& state, const Projekt& p) {
  const Einstellungen e;
  const Uhr_tafel Uhr_work{schaltet_nicht};
  std::string bild;
  Sammler zuerst(bild);
  Plan_gehen({p, e, Uhr_work}, {.nur_geaenderte = false}, zuerst);
  std::string kopie(bild.size(), '\0');
  double packen = 0;
  double kopieren = 0;
  for (auto _ : state) {
    packen += Sekunden([&] {
      bild.clear();
      Sammler sammler(bild);
      Plan_gehen({p, e, Uhr_work}, {.nur_geaenderte = false}, sammler);
      benchmark::DoNotOptimize(bild.data());
    });
    kopieren += Sekunden([&] {
      std::memcpy(kopie.data(), bild.data(), bild.size());
      benchmark::DoNotOptimize(kopie.data());
      benchmark::ClobberMemory();
    });
  }
  state.counters["bytes"] = static_cast<double>(bild.size());
  state.counters["mal_memcpy"] = packen / kopieren;
}

void Uebersetzen_voll(benchmark::State& state) { Uebersetzen(state, Volles_projekt()); }
BENCHMARK(Uebersetzen_voll)->Unit(benchmark::kMillisecond);
void Uebersetzen_haus(benchmark::State& state) { Uebersetzen(state, Haus()); }
BENCHMARK(Uebersetzen_haus)->Unit(benchmark::kMillisecond);

// 12 x 31 x 256 switching times, every row with the dearest rule.
void Schaltzeiten_eines_jahres(benchmark::State& state) {
  Projekt p;
  for (int e = 0; e < uhrereignisse; ++e) {
    p.Uhr_astro[e] = Zeit_untergang_zufall;
    p.Uhr_zeit[e] = "Untergang + Zufall";
    p.Uhr_tag[e] = 1;
    p.Uhr_f1[e] = "00.10.00";
    p.Uhr_f2[e] = "15.00.00";
    p.Uhr_f3[e] = "22.00.00";
    p.Uhr_f4[e] = p.Uhr_f5[e] = "00.30.00";
  }
  for (auto _ : state) benchmark::DoNotOptimize(Uhr_tafel_heute(p));
}
BENCHMARK(Schaltzeiten_eines_jahres)->Unit(benchmark::kMillisecond);

// ---- on the line ------------------------------------------------------------------------------------------

// Notes when the handshake, with its fixed wait, is over.
class Stoppuhr : public Beobachter {
 public:
  void Version_zeigen(std::string_view) override { beginn = Uhr::now(); }
  Uhr::time_point beginn;
};

void Verbindung_waehlen(const simulator::Simulator& sim, bool seriell) {
  einstellungen.Com_art = seriell ? 0 : 1;
  einstellungen.Com_geraet = sim.pty_name();
  einstellungen.Host_ip = "127.0.0.1";
  einstellungen.Host_port = sim.tcp_port();
  Com_art_setzen();
}

void Vormerken(int ereignisse, bool alles) {
  projekt.Uhr_tabelle_geaendert = alles ? 1 : 0;
  for (int e = 0; e < ereignisse; ++e) projekt.Ein_funktext[e] = 1;
  for (auto& f : projekt.Uhr_funktext.alle()) f = alles;
  for (auto& f : projekt.Tev_funktext.alle()) f = alles;
  for (auto& f : projekt.Grp_led.alle()) f = alles;
}

// Seconds from the master's version to the closed port; negative when the transfer failed.
double Uebertragen() {
  Stoppuhr uhr;
  Uebertragung u(uhr);
  u.Nach_initialisierung = 1;
  const bool gut = u.Senden_starten() == Sendeergebnis::gesendet;
  return gut ? Sekunden_seit(uhr.beginn) : -1;
}

// What went over the line after the version was asked, ready to be sent again.
std::vector<std::string> Meldungen(const simulator::Simulator& sim) {
  std::vector<std::string> alle = sim.mitschrift();
  alle.erase(alle.begin(), std::find(alle.begin(), alle.end(), "V") + 1);
  for (auto& m : alle) m += Pruefsumme(m) + "\r";
  return alle;
}
std::size_t Antwortlaenge(const std::string& meldung) { return meldung.front() == 'R' ? 19 : 6; }

int Nackt_oeffnen(const simulator::Simulator& sim, bool seriell) {
  if (seriell) {
    const int fd = open(sim.pty_name().c_str(), O_RDWR | O_NOCTTY);
    termios t{};
    tcgetattr(fd, &t);
    cfmakeraw(&t);
    tcsetattr(fd, TCSANOW, &t);
    return fd;
  }
  const int fd = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in ziel{};
  ziel.sin_family = AF_INET;
  ziel.sin_port = htons(static_cast<std::uint16_t>(sim.tcp_port()));
  ziel.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  connect(fd, reinterpret_cast<const sockaddr*>(&ziel), sizeof ziel);
  const int ein = 1;
  setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &ein, sizeof ein);
  return fd;
}

// The least that plays these messages in stop-and-wait order: write, wait for the whole reply, next.
void Nackt_spielen(const std::vector<std::string>& meldungen, int fd) {
  char puffer[64];
  for (const auto& m : meldungen) {
    for (std::size_t n = 0; n < m.size();)
      n += static_cast<std::size_t>(write(fd, m.data() + n, m.size() - n));
    for (std::size_t n = 0; n < Antwortlaenge(m);) {
      pollfd p{fd, POLLIN, 0};
      poll(&p, 1, -1);
      n += static_cast<std::size_t>(read(fd, puffer, sizeof puffer));
    }
  }
}

// A full transfer against the bare loop, the best of each: what else runs on the computer falls on either
// side.
void Transfer(benchmark::State& state, bool seriell) {
  simulator::Simulator sim({.pty = true});
  sim.start();
  Verbindung_waehlen(sim, seriell);
  projekt = Volles_projekt();
  projekt.Projekt_name = "Messung";
  projekt.Datei_version = "910";
  double mit = 1e9;
  double ohne = 1e9;
  for (auto _ : state) {
    Vormerken(eingangsereignisse, true);
    sim.mitschrift_leeren();
    const double dauer = Uebertragen();
    if (dauer < 0) return state.SkipWithError("transfer failed");
    mit = std::min(mit, dauer);
    const auto meldungen = Meldungen(sim);
    const int fd = Nackt_oeffnen(sim, seriell);
    ohne = std::min(ohne, Sekunden([&] { Nackt_spielen(meldungen, fd); }));
    close(fd);
    state.counters["meldungen"] = static_cast<double>(meldungen.size());
  }
  state.counters["mal_nackt"] = mit / ohne;
}
void Transfer_tcp(benchmark::State& state) { Transfer(state, false); }
BENCHMARK(Transfer_tcp)->Iterations(8)->Unit(benchmark::kMillisecond);
void Transfer_pty(benchmark::State& state) { Transfer(state, true); }
BENCHMARK(Transfer_pty)->Iterations(8)->Unit(benchmark::kMillisecond);

// Forty rows over a line held to 115200 baud, against the time that the bytes alone take: ten bits each.
void Transfer_115200(benchmark::State& state) {
  constexpr long baud = 115200;
  simulator::Simulator sim({.pty = true, .baud = baud});
  sim.start();
  Verbindung_waehlen(sim, true);
  projekt = Haus();
  projekt.Projekt_name = "Messung";
  projekt.Datei_version = "910";
  double gemessen = 0;
  double boden = 0;
  double cpu = 0;
  for (auto _ : state) {
    Vormerken(40, false);
    sim.mitschrift_leeren();
    const double vorher = Arbeitszeit();
    const double dauer = Uebertragen();
    if (dauer < 0) return state.SkipWithError("transfer failed");
    cpu += Arbeitszeit() - vorher;
    gemessen += dauer;
    for (const auto& m : Meldungen(sim))
      boden += 10.0 * static_cast<double>(m.size() + Antwortlaenge(m)) / baud;
  }
  state.counters["boden_zu_gemessen"] = boden / gemessen;
  state.counters["cpu_anteil"] = cpu / gemessen;
}
BENCHMARK(Transfer_115200)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
