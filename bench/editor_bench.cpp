// The installation editor in the largest project: every Kombination full, every address taken, every event in
// use.
#include <benchmark/benchmark.h>

#include "editor/dialog_kombination.h"
#include "editor/einmask8.h"
#include "form/drehbuch.h"
#include "store/katalog.h"

namespace zav {
namespace {

void Voll() {
  Projekt_reset();
  for (int k = 0; k < kombinationen; ++k) {
    projekt.Komb_typ[k] = 1;
    projekt.Komb_text[k] = "Geschoss " + std::to_string(k / 16);
    projekt.Komb_text2[k] = "Zimmer bei der Tür " + std::to_string(k);
    projekt.Komb_layout[k] = 15;
    for (int d = plaetze * k; d < plaetze * (k + 1); ++d) {
      projekt.App_typ[d] = 14;
      projekt.App_text[d] = std::to_string(d % adressen);
      projekt.App_text2[d] = "1";
    }
  }
  for (str& t : projekt.Dev_text.alle()) t = "Licht an der Decke";
  for (str& t : projekt.Relais_text.alle()) t = "Leuchte im Zimmer bei der Tür";
  for (u8& e : projekt.Ein_leer.alle()) e = 1;
}

// The yardstick: what the front end may take for one frame is 16 ms; a pass over all places is what a choice
// costs at the least when it looks at all of them.
void Alle_plaetze(benchmark::State& state) {
  Voll();
  for (auto _ : state) {
    int n = 0;
    for (int d = 0; d < apparate; ++d) n += Apparat_adressen(projekt, d) ? 1 : 0;
    benchmark::DoNotOptimize(n);
  }
}
BENCHMARK(Alle_plaetze)->Unit(benchmark::kMicrosecond);

void Platz_waehlen(benchmark::State& state) {
  const Drehbuch d;
  Voll();
  Einmask8 maske;
  std::size_t p = 0;
  for (auto _ : state) maske.Image3[++p % plaetze].druecken();
}
BENCHMARK(Platz_waehlen)->Unit(benchmark::kMicrosecond);

void Kombination_waehlen(benchmark::State& state) {
  const Drehbuch d;
  Voll();
  Einmask8 maske;
  int k = 0;
  for (auto _ : state) maske.TreeView1.waehlen(std::to_string(++k % kombinationen) + "key1547852");
}
BENCHMARK(Kombination_waehlen)->Unit(benchmark::kMicrosecond);

void Adressdialog_oeffnen(benchmark::State& state) {
  const Drehbuch d;
  Voll();
  for (auto _ : state) {
    Dialog_Kombination dialog("7", 1);
    benchmark::DoNotOptimize(dialog.Zellen.anzahl());
  }
}
BENCHMARK(Adressdialog_oeffnen)->Unit(benchmark::kMicrosecond);

void Editor_oeffnen_und_schliessen(benchmark::State& state) {
  const Drehbuch d;
  Voll();
  for (auto _ : state) {
    Einmask8 maske;
    maske.Cancel.druecken();
  }
}
BENCHMARK(Editor_oeffnen_und_schliessen)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zav
