// Makes a picture of every window: zavlink_bilder PROJECT FOLDER [NAME...]. Run it with
// QT_QPA_PLATFORM=offscreen.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <functional>

#include "store/projekt.h"
#include "store/projektdatei.h"
#include "zavlink/aussehen.h"
#include "zavlink/formenschau.h"
#include "zavlink/formfenster.h"
#include "zavlink/musterhaus.h"
#include "zavlink/qt_oberflaeche.h"
#include "zavlink/qt_text.h"

namespace {

using namespace zav;
using namespace zav::fenster;

// The 256 colours that a window uses most, for a small file.
QImage Wenige_farben(const QImage& bild) {
  QHash<QRgb, int> haeufigkeit;
  for (int y = 0; y < bild.height(); ++y) {
    const auto* const zeile = reinterpret_cast<const QRgb*>(bild.constScanLine(y));
    for (int x = 0; x < bild.width(); ++x) ++haeufigkeit[zeile[x]];
  }
  QList<QRgb> farben = haeufigkeit.keys();
  std::ranges::sort(farben, std::greater<>(), [&](QRgb f) { return haeufigkeit.value(f); });
  farben.resize(std::min<qsizetype>(farben.size(), 256));
  return bild.convertToFormat(QImage::Format_Indexed8, farben, Qt::ThresholdDither | Qt::AvoidDither);
}

// Few colours are enough for a window, and keep the repository small.
void Ablegen(QWidget& fenster, const std::string& name, const QDir& ordner) {
  const QImage bild = Wenige_farben(fenster.grab().toImage().convertToFormat(QImage::Format_RGB32));
  const QString datei = ordner.filePath(Q(name) + ".png");
  if (!bild.save(datei, "PNG", 0)) std::fprintf(stderr, "%s: nicht geschrieben\n", qPrintable(datei));
  std::printf("%-28s %4d x %4d\n", name.c_str(), bild.width(), bild.height());
}

// A real box, taken while it waits for its answer.
void Meldung_aufnehmen(const QDir& ordner) {
  Qt_oberflaeche boxen;
  QTimer::singleShot(0, [&] {
    QWidget* const kasten = QApplication::activeModalWidget();
    QApplication::processEvents();
    Ablegen(*kasten, "meldung", ordner);
    kasten->close();
  });
  boxen.Melden({.text = "Der Apparat wird endgültig gelöscht. Wollen Sie das?",
                .titel = "Warnung",
                .knoepfe = Knoepfe::Ja_Nein,
                .symbol = Symbol::Warnung,
                .standard = 2});
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication programm(argc, argv);
  QStringList argumente = QApplication::arguments().mid(1);
  const bool dunkel = argumente.removeAll("--dunkel") > 0;
  if (argumente.size() < 2) {
    std::fprintf(stderr, "zavlink_bilder [--dunkel] PROJEKT ORDNER [NAME...]\n");
    return 2;
  }
  QApplication::setQuitOnLastWindowClosed(false);
  Aussehen_setzen(dunkel ? Thema::dunkel : Thema::hell);
  Stille_oberflaeche oberflaeche;
  Oberflaeche_setzen(&oberflaeche);
  QFile datei(argumente.at(0));
  if (!datei.open(QIODevice::ReadOnly) || !Projekt_lesen(datei.readAll().toStdString(), projekt)) {
    std::fprintf(stderr, "%s: kein Projekt\n", qPrintable(datei.fileName()));
    return 1;
  }
  const Musterhaus haus;
  const QDir ordner(argumente.at(1));
  ordner.mkpath(".");
  const QStringList namen = argumente.mid(2);
  for (const Schaustueck& s : Formenschau()) {
    if (!namen.isEmpty() && !namen.contains(Q(s.name))) continue;
    const auto aufnehmen = [&](Formfenster& f) { Ablegen(f, s.name, ordner); };
    if (!Vorfuehren(s, oberflaeche, aufnehmen)) std::fprintf(stderr, "%s: nichts zu sehen\n", s.name.c_str());
  }
  if (namen.isEmpty() || namen.contains("meldung")) Meldung_aufnehmen(ordner);
}
