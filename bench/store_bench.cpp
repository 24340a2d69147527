// Loading and saving the largest legal project, each beside the least that any program could do with the same
// bytes.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "messen.h"
#include "platform/einstellungen.h"
#include "store/projekt.h"
#include "store/projektdatei.h"

extern char** environ;

namespace {

using namespace zav;

// All events and Kombinationen in use. In `dicht` every cell of the matrices holds a value, else every 16th.
Projekt Groesstes_projekt(bool dicht) {
  Projekt p;
  p.Datei_version = "910";
  for (auto flaggen : {p.Ein_leer.alle(), p.Uhr_leer.alle(), p.Tev_leer.alle()}) {
    std::fill(flaggen.begin(), flaggen.end(), u8{1});
  }
  const auto fuellen = [dicht](auto matrix) {
    for (std::size_t i = 0; i < matrix.size(); i += dicht ? 1 : 16) {
      matrix[i] = static_cast<i16>(1 + (i * 2654435761U >> 7) % 20);
    }
  };
  for (auto matrix : {p.Ein_relais.alle(), p.Ein_dimmer.alle(), p.Uhr_relais.alle(), p.Uhr_dimmer.alle(),
                      p.Tev_relais.alle(), p.Tev_dimmer.alle()}) {
    fuellen(matrix);
  }
  fuellen(p.Ein_timer.alle());
  fuellen(p.Uhr_timer.alle());
  for (auto& text : p.Komb_text.alle()) text = "Erdgeschoss";
  for (auto& text : p.Ein_text.alle()) text = "Küche Taster Fenster";
  return p;
}

class Ordner {
 public:
  Ordner() {
    std::string muster = std::filesystem::temp_directory_path() / "zav-bench-XXXXXX";
    pfad_ = ::mkdtemp(muster.data());
    ::setenv("XDG_CONFIG_HOME", pfad_.c_str(), 1);
  }
  ~Ordner() { std::filesystem::remove_all(pfad_); }
  std::string operator/(const char* name) const { return pfad_ / name; }

 private:
  std::filesystem::path pfad_;
};

double Mittlerer(std::vector<double>& werte) {
  std::nth_element(werte.begin(), werte.begin() + static_cast<std::ptrdiff_t>(werte.size() / 2), werte.end());
  return werte[werte.size() / 2];
}

// Runs both sides in turn; the counters are the medians in ms and their ratio.
void Vergleichen(benchmark::State& state, const std::function<void()>& wir,
                 const std::function<void()>& schranke) {
  std::vector<double> zeiten, schranken;
  for (auto _ : state) {
    schranken.push_back(Sekunden(schranke));
    zeiten.push_back(Sekunden(wir));
    state.SetIterationTime(zeiten.back());
  }
  const double zeit = Mittlerer(zeiten);
  const double grenze = Mittlerer(schranken);
  state.counters["ms"] = zeit * 1e3;
  state.counters["schranke_ms"] = grenze * 1e3;
  state.counters["verhaeltnis"] = zeit / grenze;
}

void Abbrechen_wenn(bool fehler) {
  if (fehler) std::abort();
}

void Zeilen_zaehlen(const std::string& pfad) {
  std::string wc = "wc", l = "-l", name = pfad;
  char* const worte[] = {wc.data(), l.data(), name.data(), nullptr};
  posix_spawn_file_actions_t umleitung;
  posix_spawn_file_actions_init(&umleitung);
  posix_spawn_file_actions_addopen(&umleitung, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t kind = 0;
  Abbrechen_wenn(::posix_spawnp(&kind, "wc", &umleitung, nullptr, worte, environ) != 0);
  int ende = 0;
  ::waitpid(kind, &ende, 0);
  posix_spawn_file_actions_destroy(&umleitung);
  Abbrechen_wenn(ende != 0);
}

void Bytes_schreiben(const std::string& pfad, const std::string& bytes) {
  const int d = ::open(pfad.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  Abbrechen_wenn(::write(d, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()));
  Abbrechen_wenn(::fsync(d) != 0 || ::close(d) != 0);
}

void Laden_gegen_wc(benchmark::State& state) {
  const Ordner ordner;
  projekt = Groesstes_projekt(state.range(0) != 0);
  projekt.Projekt_name = ordner / "gross";
  Abbrechen_wenn(Projekt_speichern() != Speichern::gespeichert);
  const std::string pfad = ordner / "gross.zav";
  Vergleichen(
      state,
      [&] {
        projekt.Projekt_name = pfad;
        Abbrechen_wenn(Projekt_laden() != Laden::geladen);
      },
      [&] { Zeilen_zaehlen(pfad); });
  state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(pfad));
}

void Speichern_gegen_fsync(benchmark::State& state) {
  const Ordner ordner;
  projekt = Groesstes_projekt(state.range(0) != 0);
  projekt.Projekt_name = ordner / "gross";
  const std::string bytes = Projekt_schreiben(projekt);
  Vergleichen(
      state, [&] { Abbrechen_wenn(Projekt_speichern() != Speichern::gespeichert); },
      [&] { Bytes_schreiben(ordner / "vergleich", bytes); });
}

// The conversions alone, without files.
void Lesen_allein(benchmark::State& state) {
  const std::string bytes = Projekt_schreiben(Groesstes_projekt(state.range(0) != 0));
  for (auto _ : state) {
    Projekt p;
    benchmark::DoNotOptimize(Projekt_lesen(bytes, p));
  }
}

void Schreiben_allein(benchmark::State& state) {
  const Projekt p = Groesstes_projekt(state.range(0) != 0);
  for (auto _ : state) benchmark::DoNotOptimize(Projekt_schreiben(p));
}

BENCHMARK(Laden_gegen_wc)->ArgName("dicht")->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Speichern_gegen_fsync)
    ->ArgName("dicht")
    ->Arg(0)
    ->Arg(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Lesen_allein)->ArgName("dicht")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(Schreiben_allein)->ArgName("dicht")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
