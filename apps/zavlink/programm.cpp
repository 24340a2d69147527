#include "zavlink/programm.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>
#include <memory>

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

Aufruf Lesen(const QApplication& programm) {
  QCommandLineParser parser;
  parser.setApplicationDescription("ZAVlink: Konfiguration und Service des ZAVnet-Bussystems.");
  const QCommandLineOption hilfe({"h", "help", "hilfe"}, "Zeigt diese Hilfe.");
  const QCommandLineOption versionsfrage({"v", "version"}, "Zeigt die Version.");
  const QCommandLineOption simulator("simulator",
                                     "Startet mit einem simulierten ZAVmaster als Schnittstelle.");
  const QCommandLineOption hell("hell", "Helle Darstellung.");
  const QCommandLineOption dunkel("dunkel", "Dunkle Darstellung.");
  parser.addOptions({hilfe, versionsfrage, simulator, hell, dunkel});
  parser.addPositionalArgument("DATEI", "Projekt, das geöffnet wird.", "[DATEI]");
  parser.process(programm);
  if (parser.isSet(hilfe)) parser.showHelp();
  if (parser.isSet(versionsfrage)) parser.showVersion();
  if (parser.positionalArguments().size() > 1) parser.showHelp(2);
  Aufruf a;
  if (!parser.positionalArguments().isEmpty()) {
    a.datei = S(QFileInfo(parser.positionalArguments().first()).absoluteFilePath());
  }
  a.simulator = parser.isSet(simulator);
  if (parser.isSet(hell)) a.thema = Thema::hell;
  if (parser.isSet(dunkel)) a.thema = Thema::dunkel;
  return a;
}

// The manual lies beside the program when installed, in the build tree while it is being developed.
void Handbuch_zeigen(const std::string& form) {
  const QDir programm(QApplication::applicationDirPath());
  for (const char* ort : {"../share/zavlink/handbuch/index.html", "../../handbuch/index.html"}) {
    const QFileInfo datei(programm.filePath(ort));
    if (!datei.exists()) continue;
    QUrl adresse = QUrl::fromLocalFile(datei.canonicalFilePath());
    adresse.setFragment(Q(form));
    if (QDesktopServices::openUrl(adresse)) return;
  }
  Melden("Das Handbuch ist auf diesem Computer nicht vorhanden.", "Handbuch", Symbol::Information);
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
  QApplication programm(argc, argv);
  QApplication::setApplicationName("zavlink");
  QApplication::setApplicationDisplayName("ZAVlink");
  QApplication::setApplicationVersion(Q(version));
  QGuiApplication::setDesktopFileName("net.zavnet.zavlink");
  QApplication::setQuitOnLastWindowClosed(false);  // the greeting closes before the main window opens
  const Aufruf aufruf = Lesen(programm);
  Aussehen_setzen(aufruf.thema);
  QApplication::setWindowIcon(QIcon::fromTheme("zavlink", Symbolbild("haus")));
  handbuch_oeffnen = Handbuch_zeigen;
  if (aufruf.simulator) Einstellungen_trennen();

  Qt_oberflaeche oberflaeche;
  Oberflaeche_setzen(&oberflaeche);
  std::unique_ptr<Simulierter_master> master;
  if (Sitzung_beginnen(aufruf.datei)) {
    if (aufruf.simulator) {
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
