#include "zavlink/programm.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>
#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "basis/melder.h"
#include "link/leitung.h"
#include "shell/haupt.h"
#include "shell/sitzungslauf.h"
#include "simulierter_master.h"
#include "zav/version.h"
#include "zavlink/aussehen.h"
#include "zavlink/formfenster.h"
#include "zavlink/qt_oberflaeche.h"
#include "zavlink/qt_text.h"
#include "zavlink/symbole.h"

namespace zav::fenster {

namespace {

struct Aufruf {
  std::string datei;
  bool simulator = false;
  Thema thema = Thema::wie_arbeitsplatz;
};

constexpr const char* hilfetext =
    "zavlink richtet die Gebäudesteuerung ZAVnet ein und wartet sie.\n"
    "\n"
    "Aufruf: zavlink [OPTION ...] [DATEI]\n"
    "\n"
    "Argumente:\n"
    "  DATEI        Projekt, das geöffnet wird\n"
    "\n"
    "Optionen:\n"
    "  --simulator  mit einem simulierten ZAVmaster als Schnittstelle, mit eigenen Einstellungen\n"
    "  --hell       helle Darstellung (sonst die des Arbeitsplatzes)\n"
    "  --dunkel     dunkle Darstellung\n"
    "  --hilfe      diese Hilfe zeigen\n"
    "  --version    die Version zeigen\n"
    "\n"
    "Beispiel: zavlink --simulator haus.zav\n";

// Help and version, which need no screen. False when the arguments ask for neither.
bool Ohne_fenster(const std::vector<std::string_view>& argumente) {
  const auto verlangt = [&argumente](std::initializer_list<std::string_view> namen) {
    return std::ranges::find_first_of(argumente, namen) != argumente.end();
  };
  if (verlangt({"--hilfe", "--help", "-h"})) {
    std::cout << hilfetext << std::flush;
  } else if (verlangt({"--version", "-v"})) {
    std::cout << "zavlink " << version << std::endl;
  } else {
    return false;
  }
  return true;
}

// Nothing for a wrong use, which has been told.
std::optional<Aufruf> Lesen(const QStringList& argumente) {
  Aufruf a;
  for (const QString& argument : argumente) {
    if (argument == "--simulator") {
      a.simulator = true;
    } else if (argument == "--hell") {
      a.thema = Thema::hell;
    } else if (argument == "--dunkel") {
      a.thema = Thema::dunkel;
    } else if (argument.startsWith('-') || !a.datei.empty()) {
      std::cerr << (argument.startsWith('-') ? "Unbekannte Option: " : "Zu viele Argumente: ") << S(argument)
                << "\nzavlink --hilfe zeigt alle Optionen.\n";
      return std::nullopt;
    } else {
      a.datei = S(QFileInfo(argument).absoluteFilePath());
    }
  }
  return a;
}

// The manual lies beside the program when installed, in the build tree once its target has been built. A
// window's place in it is a file of its own, since many desktops drop the "#" behind the name of a file that
// they open.
void Handbuch_zeigen(const std::string& form) {
  const QDir programm(QApplication::applicationDirPath());
  QString gefunden;
  for (const char* ort : {"../share/zavlink/handbuch/", "../../handbuch/"}) {
    for (const QString& seite : {"f1/" + Q(form) + ".html", QString("index.html")}) {
      const QFileInfo datei(programm.filePath(ort + seite));
      if (!datei.exists()) continue;
      gefunden = datei.canonicalFilePath();
      if (QDesktopServices::openUrl(QUrl::fromLocalFile(gefunden))) return;
    }
  }
  Melden(
      gefunden.isEmpty()
          ? "Das Handbuch ist auf diesem Computer nicht vorhanden. Es gehört zum Paket zavlink; im Quellbaum "
            "entsteht es mit 'cmake --build build/dev --target handbuch', sein Text steht in docs/handbuch."
          : "Das Handbuch lässt sich nicht anzeigen, weil kein Webbrowser eingerichtet ist. Es liegt in " +
                S(gefunden) + ".",
      "Handbuch", Symbol::Information);
}

// A trial keeps its settings to itself: the simulated interface must not become the user's.
void Einstellungen_trennen() {
  const QString ordner =
      QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/ZAVlink/Simulator";
  QDir().mkpath(ordner);
  qputenv("XDG_CONFIG_HOME", ordner.toUtf8());
}

}  // namespace

int Programm(int argc, char** argv) {
  if (Ohne_fenster({argv + 1, argv + argc})) return 0;
  QApplication programm(argc, argv);
  QApplication::setApplicationName("zavlink");
  QApplication::setApplicationVersion(Q(version));
  QGuiApplication::setDesktopFileName("net.zavnet.zavlink");
  QApplication::setQuitOnLastWindowClosed(false);  // the greeting closes before the main window opens
  const std::optional<Aufruf> aufruf = Lesen(QApplication::arguments().mid(1));
  if (!aufruf) return 2;
  Aussehen_setzen(aufruf->thema);
  QApplication::setWindowIcon(QIcon::fromTheme("zavlink", Symbolbild("haus")));
  handbuch_oeffnen = Handbuch_zeigen;
  if (aufruf->simulator) Einstellungen_trennen();

  Qt_oberflaeche oberflaeche;
  Oberflaeche_setzen(&oberflaeche);
  std::unique_ptr<Simulierter_master> master;
  if (Sitzung_beginnen(aufruf->datei)) {
    if (aufruf->simulator) {
      master = std::make_unique<Simulierter_master>();
      Com_art_setzen();
    }
    Haupt haupt;
    oberflaeche.Zeigen(haupt);
  }
  Oberflaeche_setzen(nullptr);
  return 0;
}

}  // namespace zav::fenster
