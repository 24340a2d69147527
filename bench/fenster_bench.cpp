// How long a window takes from the command to its first picture, in the example house and in a project that
// is full to its last field. Offscreen: the figures leave out what the desktop adds.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <fstream>
#include <iterator>
#include <string>

#include "form/oberflaeche.h"
#include "store/projekt.h"
#include "store/projektdatei.h"
#include "zavlink/aussehen.h"
#include "zavlink/formenschau.h"
#include "zavlink/formfenster.h"
#include "zavlink/qt_oberflaeche.h"

namespace {

using namespace zav;
using namespace zav::fenster;

void Beispielhaus() {
  std::ifstream datei(EINFAMILIENHAUS_DATEI, std::ios::binary);
  projekt = Projekt{};
  Projekt_lesen(std::string(std::istreambuf_iterator<char>(datei), {}), projekt);
}

// Every Kombination with sixteen devices, every address taken, every event with functions on all outputs.
void Volles_projekt() {
  Beispielhaus();
  for (int k = 0; k < 126; ++k) {
    projekt.Komb_typ[k] = 1;
    projekt.Komb_layout[k] = 15;
    projekt.Komb_text[k] = "Stockwerk " + std::to_string(k / 12);
    projekt.Komb_text2[k] = "Raum mit langem Namen " + std::to_string(k);
    for (int p = 0; p < 16; ++p) {
      const int d = 16 * k + p;
      projekt.App_typ[d] = 30;
      projekt.App_text[d] = std::to_string(2 * d % 256);
      projekt.App_text2[d] = "2";
    }
  }
  for (auto& text : projekt.Dev_text.alle()) text = "Taste im vollen Haus";
  for (int e = 0; e < 1024; ++e) {
    projekt.Ein_leer[e] = 1;
    for (auto& code : projekt.Ein_relais.zeile(e)) code = 1;
  }
}

void Oeffnen(benchmark::State& runde, const Schaustueck& stueck) {
  for (auto _ : runde) {
    const auto form = stueck.bauen();
    Formfenster fenster(*form, nullptr);
    fenster.show();
    QApplication::processEvents();
    benchmark::DoNotOptimize(fenster.grab());
  }
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication programm(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  Aussehen_setzen(Thema::hell);
  Qt_oberflaeche oberflaeche;
  Oberflaeche_setzen(&oberflaeche);
  benchmark::Initialize(&argc, argv);
  Volles_projekt();
  for (const Schaustueck& s : Formenschau()) {
    benchmark::RegisterBenchmark(("voll/" + s.name).c_str(), [s](benchmark::State& r) {
      Oeffnen(r, s);
    })->Unit(benchmark::kMillisecond);
  }
  benchmark::RunSpecifiedBenchmarks();
}
