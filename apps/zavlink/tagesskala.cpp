#include "zavlink/tagesskala.h"

#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "time/uhr_astro.h"
#include "zavlink/farben.h"
#include "zavlink/qt_text.h"
#include "zavlink/symbole.h"
#include "zavlink/zugang.h"

namespace zav::fenster {

namespace {

using Rolle = Tagesbild::Rolle;

const Tagesbild::Marke* Finden(const Tagesbild& b, Rolle rolle) {
  const auto m = std::ranges::find(b.marken, rolle, &Tagesbild::Marke::rolle);
  return m == b.marken.end() ? nullptr : &*m;
}

const QColor sonnenfarbe(214, 150, 0);
const QColor limitenfarbe(64, 150, 64);

// From above: the hours, the day between sunrise and sunset, the sun's times, the limits, the switching time
// with the band of its random shift.
class Tagesskala final : public QWidget {
 public:
  Tagesskala(const Uhr_Astro& form, QWidget* eltern) : QWidget(eltern), form_(form) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName("Schaltzeit auf der Skala eines Tages");
    Rolle_setzen(*this, QAccessible::Chart);
  }
  QSize sizeHint() const override { return {90 * raster, hoehe()}; }
  QSize minimumSizeHint() const override { return {50 * raster, hoehe()}; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(palette().color(QPalette::Mid), 1));
    p.setBrush(palette().color(QPalette::Base));
    p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    stunden_malen(p);
    if (!form_.bild()) return;
    const Tagesbild& bild = *form_.bild();
    // The fine line runs behind the times that it passes.
    p.setPen(QPen(palette().color(QPalette::Highlight), 1.4, bild.ergebnis ? Qt::SolidLine : Qt::DashLine));
    const double berechnet = x(bild.marken.back().ort);
    p.drawLine(QPointF(berechnet, achse()), QPointF(berechnet, schaltzeit_oben() + schrift() + 6));
    if (mit_sonne()) {
      sonne_malen(p, bild);
      limiten_malen(p, bild);
    }
    schaltzeit_malen(p, bild);
  }

 private:
  static constexpr double rand = 28;
  static constexpr double leiste = 8;  // height of the day's strip

  bool mit_sonne() const { return form_.bild() && Finden(*form_.bild(), Rolle::aufgang) != nullptr; }
  double schrift() const { return fontMetrics().height(); }
  double achse() const { return schrift() + 12; }
  double sonne_oben() const { return achse() + leiste + 4; }
  double limiten_oben() const { return sonne_oben() + schrift() + 10; }
  double schaltzeit_oben() const { return mit_sonne() ? limiten_oben() + schrift() + 12 : sonne_oben() + 6; }
  int hoehe() const { return static_cast<int>(schaltzeit_oben() + schrift() + 6 + 1.5 * raster); }
  double x(double ort) const {
    return rand + (ort - skala_anfang) / (skala_ende - skala_anfang) * (width() - 2 * rand);
  }

  void stunden_malen(QPainter& p) const {
    p.fillRect(QRectF(x(skala_anfang), achse(), x(skala_ende) - x(skala_anfang), leiste),
               palette().color(QPalette::Midlight));
    p.setPen(QPen(palette().color(QPalette::Text), 1));
    for (int h = 0; h <= 24; ++h) {
      const double ort = x(skala_anfang + h * skala_stunde);
      p.drawLine(QPointF(ort, achse() - (h % 4 == 0 ? 6 : 3)), QPointF(ort, achse()));
      if (h % 4 == 0) p.drawText(QRectF(ort - 20, 3, 40, schrift()), Qt::AlignCenter, QString::number(h));
    }
  }

  void sonne_malen(QPainter& p, const Tagesbild& b) const {
    const double auf = x(Finden(b, Rolle::aufgang)->ort);
    const double unter = x(Finden(b, Rolle::untergang)->ort);
    p.fillRect(QRectF(auf, achse(), unter - auf, leiste), QColor(255, 214, 92));
    for (const Rolle rolle : {Rolle::aufgang, Rolle::untergang}) {
      const auto& m = *Finden(b, rolle);
      p.setPen(QPen(sonnenfarbe, 2));
      p.drawLine(QPointF(x(m.ort), achse() - 2), QPointF(x(m.ort), sonne_oben() + 2));
      const double bild = schrift() + 2;
      const QRectF text = neben(m, x(m.ort) + bild / 2, sonne_oben() + 2, Qt::AlignHCenter);
      const QRectF zeichen(text.left() - bild, text.top() - 1, bild, bild);
      p.fillRect(text.united(zeichen), palette().color(QPalette::Base));
      Symbol_malen(p, zeichen, "sonne", palette().color(QPalette::Text), sonnenfarbe);
      p.setPen(palette().color(QPalette::Text));
      p.drawText(text, Qt::AlignCenter, Q(m.text));
    }
  }

  // Where a mark's time stands: centred at a place, or ending or beginning there; always within the picture.
  QRectF neben(const Tagesbild::Marke& m, double ort, double oben, Qt::Alignment lage) const {
    const double breite = fontMetrics().horizontalAdvance(Q(m.text)) + 8;
    const double links = lage == Qt::AlignHCenter ? ort - breite / 2
                         : lage == Qt::AlignRight ? ort - breite
                                                  : ort;
    return {std::clamp(links, 4.0 + schrift(), width() - breite - 4 - schrift()), oben, breite, schrift()};
  }

  // Each limit's time stands outside, so that narrow limits stay readable.
  void limiten_malen(QPainter& p, const Tagesbild& b) const {
    const auto* const untere = Finden(b, Rolle::untere_limite);
    const auto* const obere = Finden(b, Rolle::obere_limite);
    if (untere == nullptr && obere == nullptr) return;
    const double oben = limiten_oben(), unten = oben + schrift() + 2;
    const double von = untere != nullptr ? x(untere->ort) : x(skala_anfang);
    const double bis = obere != nullptr ? x(obere->ort) : x(skala_ende);
    QColor flaeche = limitenfarbe;
    flaeche.setAlpha(56);
    if (bis > von) p.fillRect(QRectF(von, oben, bis - von, unten - oben), flaeche);
    const auto klammer = [&](const Tagesbild::Marke* m, double haken, Qt::Alignment lage) {
      if (m == nullptr) return;
      const double ort = x(m->ort);
      p.setBrush(Qt::NoBrush);
      p.setPen(QPen(limitenfarbe, 2));
      p.drawPolyline(QPolygonF({QPointF(ort + haken, oben), QPointF(ort, oben), QPointF(ort, unten),
                                QPointF(ort + haken, unten)}));
      p.setPen(palette().color(QPalette::Text));
      p.drawText(neben(*m, ort - haken / 2, oben + 1, lage), Qt::AlignCenter, Q(m->text));
    };
    klammer(untere, 6, Qt::AlignRight);
    klammer(obere, -6, Qt::AlignLeft);
  }

  // The band that the shift can reach, and in full colour what the limits make of it.
  void schaltzeit_malen(QPainter& p, const Tagesbild& b) const {
    const double oben = schaltzeit_oben(), h = schrift() + 6;
    const QColor farbe = palette().color(QPalette::Highlight);
    QColor blass = farbe;
    blass.setAlpha(80);
    if (b.band) p.fillRect(QRectF(x(b.band->von), oben + 3, x(b.band->bis) - x(b.band->von), h - 6), blass);
    if (!b.ergebnis) return;
    const double von = x(b.ergebnis->von), bis = x(b.ergebnis->bis);
    p.setPen(Qt::NoPen);
    p.setBrush(farbe);
    p.drawRoundedRect(QRectF(von - 2, oben + 1, bis - von + 4, h - 2), 2, 2);
    QFont fett = font();
    fett.setBold(true);
    const bool spanne = b.ergebnis->text_von != b.ergebnis->text_bis;
    const QString text = Q(b.ergebnis->text_von) + (spanne ? " bis " + Q(b.ergebnis->text_bis) : QString());
    const double breite = QFontMetricsF(fett).horizontalAdvance(text) + 12;
    const bool rechts = bis + breite + 12 < width();
    p.setFont(fett);
    p.setPen(palette().color(QPalette::Text));
    p.drawText(QRectF(rechts ? bis + 4 : von - breite - 4, oben, breite, h), Qt::AlignCenter, text);
  }

  const Uhr_Astro& form_;
};

}  // namespace

QWidget* Tagesskala_bauen(const Anordnung& a, Auffrischer& auf, QWidget* eltern, Gebautes& ergebnis) {
  Steuerelement& worte = *Platzierte(a).at(0);
  const auto& form = dynamic_cast<const Uhr_Astro&>(*worte.formular());
  auto* const w = new QWidget(eltern);
  auto* const spalte = new QVBoxLayout(w);
  spalte->setContentsMargins(0, raster, 0, 0);
  spalte->setSpacing(raster);
  auto* const skala = new Tagesskala(form, w);
  spalte->addWidget(skala);
  for (const Anordnung& k : a.kinder) spalte->addWidget(Teil_bauen(k, auf, w, ergebnis));
  spalte->addStretch(1);
  auf.binden(worte, [skala, &worte] {
    Beschreiben(*skala, Q(*worte.titel));
    skala->updateGeometry();
    skala->update();
  });
  return w;
}

}  // namespace zav::fenster
