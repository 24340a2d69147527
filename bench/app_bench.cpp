// What the app's descriptor of the largest project costs. Its storeys are sorted in n log n steps; the other
// side of the ratio is the sort by exchanging neighbours, 255 times over the whole list, that gives the same
// order.
#include <benchmark/benchmark.h>

#include <string>
#include <utility>
#include <vector>

#include "app/deskriptor.h"
#include "basis/text.h"
#include "messen.h"
#include "store/projekt.h"

namespace {

using namespace zav;

// Every Kombination in use, all 1024 events placed, each a button with everything a button can have.
Projekt Groesstes_projekt() {
  Projekt p;
  const std::string lang = "Grösse & \"Länge\" <nach> Müllers Geschmack -- dahinter noch mehr";
  for (int k = 0; k < kombinationen; ++k) {
    p.Komb_typ[k] = 1;
    p.Komb_text[k] = "Geschoss " + std::to_string((k * 97) % kombinationen) + lang;
    p.Komb_text2[k] = lang;
    p.App_typ[plaetze * k] = 14;
    p.App_text[plaetze * k] = std::to_string(k);
    p.App_text2[plaetze * k] = "1";
    for (int n = 0; n < 4; ++n) p.Dev_text[8 * plaetze * k + n] = lang;
  }
  for (int e = 0; e < eingangsereignisse; ++e) {
    const auto s = p.App_eigenschaften.zeile(e);
    for (str& feld : s) feld = lang;
    s[App_geraet] = "3";
    s[App_bereich] = "2";
    s[App_als_szene] = "0";
    s[App_mit_icon] = s[App_mit_rueckmeldung] = s[App_mit_bestaetigung] = s[App_eigener_text] = "1";
    s[App_rueckmeldung] = "511";
    s[App_frage_art] = "3";
  }
  return p;
}

std::vector<int> Nachbartausch(const Projekt& p) {
  std::vector<int> liste(kombinationen);
  for (int k = 0; k < kombinationen; ++k) liste[static_cast<std::size_t>(k)] = k;
  for (int runde = 1; runde < kombinationen; ++runde) {
    for (std::size_t i = 0; i + 1 < liste.size(); ++i) {
      if (Klein(p.Komb_text[liste[i + 1]]) < Klein(p.Komb_text[liste[i]])) std::swap(liste[i], liste[i + 1]);
    }
  }
  return liste;
}

void Deskriptor(benchmark::State& state) {
  const Projekt p = Groesstes_projekt();
  double bauen = 0;
  double tauschen = 0;
  std::size_t bytes = 0;
  for (auto _ : state) {
    bauen += Sekunden([&] { bytes = App_xml_bauen(p).size(); });
    tauschen += Sekunden([&] { benchmark::DoNotOptimize(Nachbartausch(p)); });
  }
  const auto laeufe = static_cast<double>(state.iterations());
  state.counters["bytes"] = static_cast<double>(bytes);
  state.counters["build_ms"] = 1000 * bauen / laeufe;
  state.counters["share_of_50_ms"] = bauen / laeufe / 0.05;
  state.counters["build_of_neighbour_sort"] = bauen / tauschen;
}
BENCHMARK(Deskriptor)->Unit(benchmark::kMillisecond);

}  // namespace
