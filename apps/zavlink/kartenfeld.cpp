#include "zavlink/kartenfeld.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "zavlink/bindung.h"
#include "zavlink/farben.h"
#include "zavlink/qt_text.h"

namespace zav::fenster {

namespace {
constexpr double rundung = 4;
}  // namespace

Kartenfeld::Kartenfeld(Auswahl& auswahl, QWidget* eltern) : Zellenfeld(eltern), auswahl_(auswahl) {}

void Kartenfeld::binden(Auffrischer& auf) {
  auf.binden(auswahl_, [this] {
    Gemeinsames(*this, auswahl_);
    auffrischen();
  });
}

void Kartenfeld::auffrischen() {
  // A cell that the form has refused keeps the keyboard.
  if (auswahl_.position() != gezeigte_) {
    gezeigte_ = auswahl_.position();
    if (gezeigte_ >= 0) zeiger_ = gezeigte_;
  }
  zeiger_ = std::clamp(zeiger_, 0, std::max(0, auswahl_.anzahl() - 1));
  zeiger_melden();
  updateGeometry();
  update();
}

QString Kartenfeld::zelltext(int i) const {
  const auto& e = auswahl_.eintrag(i);
  return Q(e.hinweis.empty() ? e.text : e.text + ", " + e.hinweis);
}

int Kartenfeld::spalten() const { return auswahl_.anzahl() >= 128 ? 16 : auswahl_.anzahl() > 24 ? 8 : 4; }
int Kartenfeld::zeilen() const { return std::max(1, (auswahl_.anzahl() + spalten() - 1) / spalten()); }

QSize Kartenfeld::zellmass() const {
  int breite = 36;
  for (const auto& e : auswahl_.eintraege())
    breite = std::max(breite, std::min(150, fontMetrics().horizontalAdvance(Q(e.text)) + 12));
  return {breite, 28};
}

QSize Kartenfeld::sizeHint() const {
  return {spalten() * zellmass().width(), zeilen() * zellmass().height()};
}
QSize Kartenfeld::minimumSizeHint() const {
  return {spalten() * std::min(zellmass().width(), 60), zeilen() * std::min(zellmass().height(), 56)};
}

QRectF Kartenfeld::zelle(int i) const {
  const double b = width() / static_cast<double>(spalten());
  const double h = height() / static_cast<double>(zeilen());
  const double links = i % spalten() * b;
  const double oben = i / spalten() * h;  // NOLINT(bugprone-integer-division): the row
  return {links, oben, b, h};
}

void Kartenfeld::zelle_nehmen(int i) {
  if (i < 0) return;
  zeigen(i);
  if (auswahl_.eintrag(i).frei) Handeln(auswahl_, [&] { auswahl_.waehlen(i); });
}

void Kartenfeld::zeigen(int i) {
  zeiger_ = i;
  zeiger_melden();
  Q_EMIT gezeigt(i);
  update();
}

QColor Kartenfeld::schriftfarbe(int i) const {
  const auto& e = auswahl_.eintrag(i);
  if (!isEnabled() || !e.frei) return palette().color(QPalette::Disabled, QPalette::ButtonText);
  return e.farbe != Farbe::normal ? Farbe_schrift() : palette().color(QPalette::ButtonText);
}

void Kartenfeld::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  for (int i = 0; i < auswahl_.anzahl(); ++i) {
    const QRectF r = zelle(i).adjusted(1, 1, -1, -1);
    grund_malen(p, r, i);
    zelle_malen(p, r, i);
  }
  if (auswahl_.anzahl() > 0) ringe_malen(p);
}

void Kartenfeld::grund_malen(QPainter& p, const QRectF& r, int i) {
  const auto& e = auswahl_.eintrag(i);
  p.setPen(Qt::NoPen);
  p.setBrush(e.farbe != Farbe::normal ? Farbe_qt(e.farbe) : palette().color(QPalette::Button));
  p.drawRoundedRect(r, rundung, rundung);
}

void Kartenfeld::ringe_malen(QPainter& p) {
  const QColor farbe = palette().color(QPalette::Highlight);
  if (ueber_ >= 0) ring_malen(p, zelle(ueber_), farbe, 1);
  if (auswahl_.position() >= 0) ring_malen(p, zelle(auswahl_.position()), farbe, 2.5);
  if (hasFocus()) ring_malen(p, zelle(zeiger_), farbe, 2.5);
}

void Kartenfeld::ring_malen(QPainter& p, const QRectF& r, const QColor& farbe, double staerke) const {
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(farbe, staerke));
  p.drawRoundedRect(r.adjusted(2, 2, -2, -2), rundung, rundung);
}

void Kartenfeld::zelle_malen(QPainter& p, const QRectF& r, int i) {
  p.setPen(schriftfarbe(i));
  p.drawText(r.adjusted(3, 0, -3, 0), Qt::AlignCenter | Qt::TextWordWrap, Q(auswahl_.eintrag(i).text));
}

void Kartenfeld::mouseMoveEvent(QMouseEvent* e) {
  const int i = zelle_bei(e->position());
  if (i == ueber_) return;
  ueber_ = i;
  setCursor(i >= 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
  Q_EMIT gezeigt(i);
  update();
}

void Kartenfeld::leaveEvent(QEvent* e) {
  QWidget::leaveEvent(e);
  ueber_ = -1;
  Q_EMIT gezeigt(hasFocus() ? zeiger_ : -1);
  update();
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
    case Qt::Key_Enter: zelle_nehmen(zeiger_); return;
    default: QWidget::keyPressEvent(e); return;
  }
  if (ziel >= 0 && ziel < auswahl_.anzahl()) zeigen(ziel);
}

void Kartenfeld::focusInEvent(QFocusEvent* e) {
  QWidget::focusInEvent(e);
  if (zeiger_ < auswahl_.anzahl()) zeigen(zeiger_);
}

QWidget* Karte_mit_zeile(Kartenfeld& karte, Auffrischer& auf, Gebautes& ergebnis) {
  auto* const w = new QWidget(karte.parentWidget());
  auto* const spalte = new QVBoxLayout(w);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->setSpacing(raster);
  auto* const zeile = new QLabel(QStringLiteral(" "), w);
  zeile->setTextFormat(Qt::PlainText);
  QFont schrift = zeile->font();
  schrift.setBold(true);
  zeile->setFont(schrift);
  spalte->addWidget(&karte, 1);
  spalte->addWidget(zeile);
  QObject::connect(&karte, &Kartenfeld::gezeigt, zeile, [&karte, zeile](int i) {
    zeile->setText(i < 0 ? QStringLiteral(" ") : karte.zeilentext(i));
  });
  ergebnis.widgets[&karte.auswahl()] = &karte;
  karte.binden(auf);
  return w;
}

}  // namespace zav::fenster
