#include "zavlink/hauptansicht.h"

#include <QPainter>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "zavlink/farben.h"

namespace zav::fenster {

namespace {

constexpr int seitenrand = 2 * raster;
constexpr int blattrand = 3 * raster;

// An area of its own tone with a line at one edge.
class Feld final : public QWidget {
 public:
  Feld(QWidget* eltern, QPalette::ColorRole ton, Qt::Edge linie) : QWidget(eltern), linie_(linie) {
    setBackgroundRole(ton);
    setAutoFillBackground(true);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const QRect r = rect();
    QPainter(this).fillRect(
        linie_ == Qt::RightEdge ? QRect(r.right(), 0, 1, r.height()) : QRect(0, 0, r.width(), 1),
        palette().color(QPalette::Midlight));
  }

 private:
  Qt::Edge linie_;
};

class Tafel final : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(palette().color(QPalette::Midlight));
    p.setBrush(palette().color(QPalette::Base));
    p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), raster, raster);
  }
};

// Puts the tree below a node into a widget, with margins.
void Fuellen(QWidget& w, QWidget* teil, int waagrecht, int senkrecht) {
  auto* const l = new QVBoxLayout(&w);
  l->setContentsMargins(waagrecht, senkrecht, waagrecht, senkrecht);
  l->addWidget(teil);
}

}  // namespace

QWidget* Hauptansicht_bauen(const Anordnung& a, Auffrischer& auf, QWidget* eltern, Gebautes& g) {
  const Anordnung& befehle = a.kinder.at(0);
  auto* const w = new QWidget(eltern);
  auto* const spalte = new QVBoxLayout(w);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->setSpacing(0);

  // One of the two at a time, in one place: the window keeps its size.
  auto* const stapel = new QStackedWidget(w);
  auto* const ansicht = new QWidget(stapel);
  auto* const reihe = new QHBoxLayout(ansicht);
  reihe->setContentsMargins(0, 0, 0, 0);
  reihe->setSpacing(0);
  auto* const seite = new Feld(ansicht, QPalette::Base, Qt::RightEdge);
  Fuellen(*seite, Teil_bauen(befehle.kinder.at(0), auf, seite, g), seitenrand, seitenrand);
  auto* const blatt = new QWidget(ansicht);
  Fuellen(*blatt, Teil_bauen(befehle.kinder.at(1), auf, blatt, g), blattrand, seitenrand);
  reihe->addWidget(seite);
  reihe->addWidget(blatt, 1);
  auto* const terminal = new QWidget(stapel);
  terminal->setProperty(handbuchstelle, "Terminal");
  Fuellen(*terminal, Teil_bauen(a.kinder.at(1), auf, terminal, g), blattrand, seitenrand);
  stapel->addWidget(ansicht);
  stapel->addWidget(terminal);
  g.widgets[befehle.element] = ansicht;
  auf.binden(*befehle.element, [=, rahmen = befehle.element] {
    stapel->setCurrentWidget(rahmen->sichtbar ? ansicht : terminal);
  });

  auto* const fuss = new Feld(w, QPalette::Window, Qt::TopEdge);
  Fuellen(*fuss, Teil_bauen(a.kinder.at(2), auf, fuss, g), seitenrand, raster);

  spalte->addWidget(stapel, 1);
  spalte->addWidget(fuss);
  g.randlos = true;
  return w;
}

QWidget* Tafel_bauen(const Anordnung& a, Auffrischer& auf, QWidget* eltern, Gebautes& g) {
  auto* const w = new Tafel(eltern);
  Fuellen(*w, Teil_bauen(a.kinder.at(0), auf, w, g), gruppenabstand, gruppenabstand - raster / 2);
  w->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  return w;
}

}  // namespace zav::fenster
