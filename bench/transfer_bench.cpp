// What a transfer costs besides the line. Both sides of each ratio are measured in the same run; the counters
// give the ratio.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstring>
#include <random>

#include "transfer/plan.h"
#include "transfer/zeitbloecke.h"

namespace {

using namespace zav;
using Uhr = std::chrono::steady_clock;

double Sekunden(auto&& arbeit) {
  const auto beginn = Uhr::now();
  arbeit();
  return std::chrono::duration<double>(Uhr::now() - beginn).count();
}

// Every cell of every matrix in use.
Projekt Volles_projekt() {
  Projekt p;
  std::mt19937 zahl(1);
  const auto fuellen = [&](auto& feld, unsigned unter) {
    for (auto& zelle : feld.alle()) zelle = static_cast<std::remove_reference_t<decltype(zelle)>>(zahl() % unter);
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

}  // namespace
