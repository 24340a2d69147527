#include "zavlink/kartenfeld.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "zavlink/bindung.h"
#include "zavlink/farben.h"
#include "zavlink/qt_text.h"

namespace zav::fenster {

namespace {
constexpr int kleinste_breite = 36;
constexpr int kleinste_hoehe = 24;
}  // namespace

Kartenfeld::Kartenfeld(Auswahl& auswahl, QWidget* eltern) : QWidget(eltern), auswahl_(auswahl) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Kartenfeld::auffrischen() {
  zeiger_ = std::clamp(auswahl_.position() >= 0 ? auswahl_.position() : zeiger_, 0, std::max(0, auswahl_.anzahl() - 1));
  updateGeometry();
  update();
}

// The full address map is square; smaller sets of cells stay readable.
int Kartenfeld::spalten() const { return auswahl_.anzahl() >= 128 ? 16 : auswahl_.anzahl() > 24 ? 8 : 4; }
int Kartenfeld::zeilen() const { return std::max(1, (auswahl_.anzahl() + spalten() - 1) / spalten()); }

QSize Kartenfeld::sizeHint() const {
  int breite = kleinste_breite;
  for (const auto& e : auswahl_.eintraege()) breite = std::max(breite, std::min(150, fontMetrics().horizontalAdvance(Q(e.text)) + 12));
  return {spalten() * breite, zeilen() * (kleinste_hoehe + 4)};
}
QSize Kartenfeld::minimumSizeHint() const { return {spalten() * kleinste_breite, zeilen() * kleinste_hoehe}; }

QRectF Kartenfeld::zelle(int i) const {
  const double b = width() / static_cast<double>(spalten());
  const double h = height() / static_cast<double>(zeilen());
  return QRectF(i % spalten() * b, i / spalten() * h, b, h).adjusted(1, 1, -1, -1);
}

int Kartenfeld::zelle_bei(QPointF p) const {
  if (!rect().contains(p.toPoint())) return -1;
  const int spalte = std::min(spalten() - 1, static_cast<int>(p.x() * spalten() / width()));
  const int zeile = std::min(zeilen() - 1, static_cast<int>(p.y() * zeilen() / height()));
  const int i = zeile * spalten() + spalte;
  return i < auswahl_.anzahl() ? i : -1;
}

void Kartenfeld::nehmen(int i) {
  if (i < 0) return;
  zeiger_ = i;
  update();
  if (auswahl_.eintrag(i).frei) Handeln([&] { auswahl_.waehlen(i); });
}

void Kartenfeld::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  for (int i = 0; i < auswahl_.anzahl(); ++i) {
    const auto& e = auswahl_.eintrag(i);
    const QRectF r = zelle(i);
    const bool farbig = e.farbe != Farbe::normal;
    p.setPen(Qt::NoPen);
    p.setBrush(farbig ? Farbe_qt(e.farbe) : palette().button().color());
    p.drawRoundedRect(r, 3, 3);
    if (i == auswahl_.position() || (hasFocus() && i == zeiger_)) {
      p.setBrush(Qt::NoBrush);
      p.setPen(QPen(palette().highlight().color(), 2));
      p.drawRoundedRect(r.adjusted(1, 1, -1, -1), 3, 3);
    }
    p.setPen(!isEnabled() || !e.frei ? palette().color(QPalette::Disabled, QPalette::ButtonText)
             : farbig                ? Farbe_schrift()
                                     : palette().buttonText().color());
    p.drawText(r.adjusted(3, 0, -3, 0), Qt::AlignCenter | Qt::TextWordWrap, Q(e.text));
  }
}

void Kartenfeld::mousePressEvent(QMouseEvent* e) {
  if (e->button() == Qt::LeftButton) nehmen(zelle_bei(e->position()));
}

void Kartenfeld::mouseMoveEvent(QMouseEvent* e) {
  setCursor(zelle_bei(e->position()) >= 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void Kartenfeld::keyPressEvent(QKeyEvent* e) {
  int ziel = zeiger_;
  switch (e->key()) {
    case Qt::Key_Left: ziel -= 1; break;
    case Qt::Key_Right: ziel += 1; break;
    case Qt::Key_Up: ziel -= spalten(); break;
    case Qt::Key_Down: ziel += spalten(); break;
    case Qt::Key_Home: ziel = 0; break;
    case Qt::Key_End: ziel = auswahl_.anzahl() - 1; break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter: nehmen(zeiger_); return;
    default: QWidget::keyPressEvent(e); return;
  }
  if (ziel >= 0 && ziel < auswahl_.anzahl()) zeiger_ = ziel;
  setAccessibleDescription(Q(auswahl_.eintrag(zeiger_).text + " " + auswahl_.eintrag(zeiger_).hinweis));
  QToolTip::showText(mapToGlobal(zelle(zeiger_).center().toPoint()), Q(auswahl_.eintrag(zeiger_).hinweis), this);
  update();
}

void Kartenfeld::focusInEvent(QFocusEvent* e) {
  QWidget::focusInEvent(e);
  update();
}

bool Kartenfeld::event(QEvent* e) {
  if (e->type() == QEvent::ToolTip) {
    auto* const hilfe = static_cast<QHelpEvent*>(e);
    const int i = zelle_bei(hilfe->pos());
    if (i >= 0) {
      QToolTip::showText(hilfe->globalPos(), Q(auswahl_.eintrag(i).hinweis), this, zelle(i).toRect());
    } else {
      QToolTip::hideText();
    }
    return true;
  }
  return QWidget::event(e);
}

}  // namespace zav::fenster
