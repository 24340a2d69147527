// What the user waits for in the window program, with a project that is full to its last field: its start,
// the opening of each window, and the longest time for which a window does not listen while somebody clicks
// and types through it.
//
// Offscreen: the figures leave out what the desktop adds. All are processor time, of the window's thread or
// of the whole program at its start: what passes on a computer that has nothing else to do.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "fenster_bedienen.h"
#include "form/oberflaeche.h"
#include "messen.h"
#include "store/projekt.h"
#include "store/projektdatei.h"
#include "zavlink/aussehen.h"
#include "zavlink/formenschau.h"
#include "zavlink/formfenster.h"
#include "zavlink/programm.h"
#include "zavlink/qt_text.h"

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
  for (int k = 0; k < kombinationen; ++k) {
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

// Runs what the event loop has to do, to the last picture; gives the seconds since `beginn`.
double Fertigwerden(Formfenster& f, double beginn) {
  f.nachholen();
  QApplication::sendPostedEvents();
  for (int runde = 0; runde < 3; ++runde) QApplication::processEvents();
  return Arbeitszeit() - beginn;
}

// The worst of what has been measured, and where.
struct Laengste {
  double zeit = 0;
  std::string wo;
  void merken(double dauer, const std::string& was) {
    if (dauer > zeit) *this = {dauer, was};
  }
};
Laengste oeffnung, halt;  // of all windows

void Laengste_zeigen(benchmark::State& runde, const Laengste& l) {
  for (auto _ : runde) runde.SetIterationTime(l.zeit);
  runde.SetLabel(l.wo);
}

// ---- opening a window -------------------------------------------------------------------------------------

void Fenster_oeffnen(benchmark::State& runde, const Schaustueck& stueck) {
  double summe = 0;
  for (auto _ : runde) {
    const double beginn = Arbeitszeit();
    const auto form = stueck.bauen();
    Formfenster fenster(*form, nullptr);
    fenster.show();
    const double dauer = Fertigwerden(fenster, beginn);
    runde.SetIterationTime(dauer);
    summe += dauer;
  }
  oeffnung.merken(summe / static_cast<double>(runde.iterations()), stueck.name);
}

// ---- clicking and typing through it -----------------------------------------------------------------------

// An act with all that follows from it, until the window listens again.
void Messen(Laengste& l, Formfenster& f, const std::string& was, const std::function<void()>& tat) {
  const double beginn = Arbeitszeit();
  tat();
  l.merken(Fertigwerden(f, beginn), was);
}

// Commands of the main window that serve a running line until somebody ends them.
bool Endlos(const std::string& name) { return name == "neustartlist" || name == "protokoll"; }

// Every field and list, then every command but those that leave, then the way out.
Laengste Durchgehen(Formfenster& f) {
  Laengste l;
  std::vector<QAbstractButton*> auswege;
  for (Steuerelement* const e : f.formular().elemente()) {
    const auto stelle = f.gebautes().widgets.find(e);
    if (stelle == f.gebautes().widgets.end()) {
      auto* const aktion = f.findChild<QAction*>(Q(e->name()));
      if (aktion == nullptr || !aktion->isEnabled() || Endlos(e->name())) continue;
      if (e->name() != "mnuBeenden") Messen(l, f, e->name(), [&] { aktion->trigger(); });
      continue;
    }
    QWidget* const w = stelle->second;
    auto* const knopf = qobject_cast<QAbstractButton*>(w);
    if (!w->isVisible() || !w->isEnabled()) continue;
    if (e->art == Art::Taste && knopf != nullptr) {
      const auto& t = static_cast<const Taste&>(*e);
      if (t.abbruch || t.standard || e->name() == "Closen") auswege.push_back(knopf);
      else Messen(l, f, e->name(), [&] { knopf->click(); });
      if (!f.formular().offen()) break;
    } else {
      for (int mal = 0; mal < 2; ++mal) Messen(l, f, e->name(), [&] { Bedienen(*w); });
    }
  }
  for (QAbstractButton* const knopf : auswege) {
    if (f.formular().offen() && knopf->isEnabled())
      Messen(l, f, S(knopf->objectName()), [&] { knopf->click(); });
  }
  return l;
}

void Klicken_und_tippen(benchmark::State& runde, const Schaustueck& stueck) {
  static const Projekt voll = projekt;
  for (auto _ : runde) {
    projekt = voll;
    const auto form = stueck.bauen();
    Formfenster fenster(*form, nullptr);
    fenster.show();
    Fertigwerden(fenster, 0);
    const Laengste l = Durchgehen(fenster);
    runde.SetIterationTime(l.zeit);
    runde.SetLabel(l.wo);
    halt.merken(l.zeit, stueck.name + ": " + l.wo);
  }
  projekt = voll;
}

// ---- the start of the program -----------------------------------------------------------------------------

// In the child: ends the process as soon as the main window has been painted and waits for the user.
class Startwaechter final : public QObject {
 public:
  bool eventFilter(QObject* wen, QEvent* e) override {
    if (e->type() == QEvent::Paint && wen->objectName() == "Haupt")
      QTimer::singleShot(0, [] { _exit(EXIT_SUCCESS); });
    return false;
  }
};

void Auf_hauptfenster_warten() {
  if (qEnvironmentVariableIsSet("FENSTER_BENCH_START")) qApp->installEventFilter(new Startwaechter);
}
Q_COREAPP_STARTUP_FUNCTION(Auf_hauptfenster_warten)

// From the command to the usable main window, the project opened, as a process of its own.
void Starten(benchmark::State& runde, const char* programm, const std::string& datei) {
  double beste = 1e9;
  for (auto _ : runde) {
    const pid_t kind = fork();
    if (kind == 0) {
      setenv("FENSTER_BENCH_START", "1", 1);
      execl(programm, programm, datei.c_str(), nullptr);
      _exit(127);
    }
    int ende = 0;
    rusage verbrauch{};
    wait4(kind, &ende, 0, &verbrauch);
    if (ende != 0) return runde.SkipWithError("zavlink did not come up");
    const auto sekunden = [](const timeval& t) {
      return static_cast<double>(t.tv_sec) + 1e-6 * static_cast<double>(t.tv_usec);
    };
    const double dauer = sekunden(verbrauch.ru_utime) + sekunden(verbrauch.ru_stime);
    runde.SetIterationTime(dauer);
    beste = std::min(beste, dauer);
  }
  runde.counters["ms"] = 1000 * beste;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  if (qEnvironmentVariableIsSet("FENSTER_BENCH_START")) return Programm(argc, argv);

  // Settings and project of this run; nothing of the user's is touched.
  const std::filesystem::path ordner =
      std::filesystem::temp_directory_path() / ("fenster_bench." + std::to_string(getpid()));
  std::filesystem::create_directories(ordner);
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(ordner.string()));
  Stille_oberflaeche oberflaeche;
  Oberflaeche_setzen(&oberflaeche);
  Volles_projekt();
  projekt.Projekt_name = (ordner / "voll").string();
  if (Projekt_speichern() != Speichern::gespeichert) return EXIT_FAILURE;

  const QApplication programm(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  Aussehen_setzen(Thema::hell);
  benchmark::Initialize(&argc, argv);
  const auto anmelden = [](const std::string& name, auto messung) {
    return benchmark::RegisterBenchmark(name.c_str(), messung)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
  };
  const std::string datei = projekt.Projekt_name + ".zav";
  anmelden("Starten", [&](benchmark::State& r) { Starten(r, argv[0], datei); })->Iterations(10);
  for (const Schaustueck& s : Formenschau()) {
    if (s.vorgang.beginnen) continue;
    anmelden("Fenster_oeffnen/" + s.name, [s](benchmark::State& r) { Fenster_oeffnen(r, s); })->Iterations(5);
    anmelden("Klicken_und_tippen/" + s.name, [s](benchmark::State& r) {
      Klicken_und_tippen(r, s);
    })->Iterations(1);
  }
  anmelden("Laengste_oeffnung", [](benchmark::State& r) { Laengste_zeigen(r, oeffnung); })->Iterations(1);
  anmelden("Laengster_halt", [](benchmark::State& r) { Laengste_zeigen(r, halt); })->Iterations(1);
  benchmark::RunSpecifiedBenchmarks();
  std::filesystem::remove_all(ordner);
}
