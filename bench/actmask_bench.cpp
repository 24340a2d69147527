// How long a choice in the function editor takes until everything it shows is right again, in a project where
// every output of the event is in use; and the event search where everything hits.
#include "editor/actmask.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>

#include "editor/ereignissuche.h"

namespace zav {
namespace {

void Alles_belegen() {
  Projekt_reset();
  std::ranges::fill(projekt.Ein_relais.alle(), i16{1});
  std::ranges::fill(projekt.Ein_dimmer.alle(), i16{1});
  std::ranges::fill(projekt.Ein_timer.alle(), 1);
}

// What no tab state can do without: one look at every function of an event that has none.
void Zeile_lesen(benchmark::State& state) {
  Projekt_reset();
  for (auto _ : state) benchmark::DoNotOptimize(Hat_funktionen(Ereignisart::Eingang, 1023));
}
BENCHMARK(Zeile_lesen);

void Reiter(benchmark::State& state) {
  Alles_belegen();
  Actmask m(1023, "");
  for (auto _ : state) benchmark::DoNotOptimize(m.Reiter_auffrischen());
}
BENCHMARK(Reiter);

void Funktion_waehlen(benchmark::State& state) {
  Alles_belegen();
  Actmask m(1023, "");
  int code = 0;
  for (auto _ : state) m.Combo1[0].waehlen(1 + (code++ & 1));
}
BENCHMARK(Funktion_waehlen);

void Gruppe_waehlen(benchmark::State& state) {
  Alles_belegen();
  Actmask m(1023, "");
  int gruppe = 0;
  for (auto _ : state) m.Baugruppe.waehlen(++gruppe % relaisgruppen);
}
BENCHMARK(Gruppe_waehlen);

void Oeffnen_und_OK(benchmark::State& state) {
  Alles_belegen();
  for (auto _ : state) {
    Actmask m(1023, "");
    m.Command5.druecken();
  }
}
BENCHMARK(Oeffnen_und_OK)->Unit(benchmark::kMicrosecond);

// Every event acts on the output: 1024 keys on 256 devices, 256 switching times, 64 timer steps.
void Suchen(benchmark::State& state) {
  Alles_belegen();
  std::ranges::fill(projekt.Uhr_relais.alle(), i16{1});
  std::ranges::fill(projekt.Tev_relais.alle(), i16{1});
  for (int a = 0; a < adressen; ++a) {
    projekt.App_typ[a] = 14;
    projekt.App_text[a] = std::to_string(a);
    projekt.App_text2[a] = "1";
  }
  for (auto _ : state) benchmark::DoNotOptimize(Ereignisse_suchen({Ziel::Art::Relais, 511}));
}
BENCHMARK(Suchen)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zav
