#include "zavlink/tagesskala.h"

#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "time/uhr_astro.h"
#include "zavlink/farben.h"
#include "zavlink/qt_text.h"
#include "zavlink/symbole.h"

namespace zav::fenster {

namespace {

class Tagesskala final : public QWidget {
 public:
  Tagesskala(const Uhr_Astro& form, QWidget* eltern) : QWidget(eltern), form_(form) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName("Schaltzeit auf der Skala eines Tages");
  }
  QSize sizeHint() const override { return {76 * raster, hoehe}; }
  QSize minimumSizeHint() const override { return {50 * raster, hoehe}; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF flaeche = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    p.setPen(QPen(palette().color(QPalette::Mid), 1));
    p.setBrush(palette().color(QPalette::Base));
    p.drawRoundedRect(flaeche, 6, 6);
    if (form_.bild()) tag_malen(p, *form_.bild());
    stunden_malen(p);
    if (form_.bild()) {
      for (const Tagesbild::Marke& m : form_.bild()->marken) marke_malen(p, m);
    }
  }

 private:
  static constexpr int hoehe = 128;
  static constexpr double rand = 28;
  static constexpr double achse = 40;  // of the hours, from above
  static constexpr double balken_oben = 72, balken_hoehe = 20;

  double x(double ort) const {
    return rand + (ort - skala_anfang) / (skala_ende - skala_anfang) * (width() - 2 * rand);
  }

  static const Tagesbild::Marke* finden(const Tagesbild& b, Tagesbild::Rolle rolle) {
    const auto m = std::ranges::find(b.marken, rolle, &Tagesbild::Marke::rolle);
    return m == b.marken.end() ? nullptr : &*m;
  }

  // Night and day as a soft strip above the axis, the band of the random shift below it.
  void tag_malen(QPainter& p, const Tagesbild& b) const {
    const auto* const auf = finden(b, Tagesbild::Rolle::aufgang);
    const auto* const unter = finden(b, Tagesbild::Rolle::untergang);
    if (auf != nullptr && unter != nullptr) {
      p.setPen(Qt::NoPen);
      p.setBrush(QColor(255, 214, 92, 110));
      p.drawRect(QRectF(x(auf->ort), achse - 8, x(unter->ort) - x(auf->ort), 8));
    }
    const auto* const untere = finden(b, Tagesbild::Rolle::untere_limite);
    const auto* const obere = finden(b, Tagesbild::Rolle::obere_limite);
    if (untere != nullptr || obere != nullptr) {
      const double von = untere != nullptr ? x(untere->ort) : x(skala_anfang);
      const double bis = obere != nullptr ? x(obere->ort) : x(skala_ende);
      p.setPen(Qt::NoPen);
      p.setBrush(Farbe_qt(Farbe::frei));
      p.setOpacity(0.55);
      p.drawRect(QRectF(von, balken_oben, bis - von, balken_hoehe));
      p.setOpacity(1);
    }
    if (b.band) {
      QColor farbe = palette().color(QPalette::Highlight);
      farbe.setAlpha(110);
      p.setPen(Qt::NoPen);
      p.setBrush(farbe);
      p.drawRect(QRectF(x(b.band->von), balken_oben + 4, std::max(2.0, x(b.band->bis) - x(b.band->von)),
                        balken_hoehe - 8));
    }
  }

  void stunden_malen(QPainter& p) const {
    p.setPen(QPen(palette().color(QPalette::Text), 1));
    p.drawLine(QPointF(x(skala_anfang), achse), QPointF(x(skala_ende), achse));
    for (int h = 0; h <= 24; ++h) {
      const double ort = x(skala_anfang + h * skala_stunde);
      p.drawLine(QPointF(ort, achse), QPointF(ort, achse + (h % 4 == 0 ? 8 : 4)));
      if (h % 4 == 0) p.drawText(QRectF(ort - 20, achse + 9, 40, 16), Qt::AlignHCenter, QString::number(h));
    }
  }

  void marke_malen(QPainter& p, const Tagesbild::Marke& m) const {
    const double ort = x(m.ort);
    const QColor schrift = palette().color(QPalette::Text);
    const double halb = fontMetrics().horizontalAdvance(Q(m.text)) / 2.0 + 2;
    const double mitte = std::clamp(ort, halb + 4, width() - halb - 4);
    switch (m.rolle) {
      case Tagesbild::Rolle::aufgang:
      case Tagesbild::Rolle::untergang:
        p.setPen(QPen(QColor(214, 150, 0), 2));
        p.drawLine(QPointF(ort, achse - 14), QPointF(ort, achse + 4));
        Symbol_malen(p, QRectF(mitte - halb - 9, 6, 16, 16), "sonne", schrift, QColor(214, 150, 0));
        p.setPen(schrift);
        p.drawText(QRectF(mitte - halb + 9, 6, 2 * halb, 16), Qt::AlignLeft | Qt::AlignVCenter, Q(m.text));
        break;
      case Tagesbild::Rolle::untere_limite:
      case Tagesbild::Rolle::obere_limite: {
        const bool links = m.rolle == Tagesbild::Rolle::untere_limite;
        const double haken = links ? 6 : -6;
        p.setPen(QPen(QColor(64, 150, 64), 2));
        p.drawPolyline(QPolygonF({QPointF(ort + haken, balken_oben), QPointF(ort, balken_oben),
                                  QPointF(ort, balken_oben + balken_hoehe),
                                  QPointF(ort + haken, balken_oben + balken_hoehe)}));
        p.setPen(schrift);
        // Each limit's time stands outside, so that narrow limits stay readable.
        const double aussen = std::clamp(links ? ort - 2 * halb + 4 : ort - 4, 4.0, width() - 2 * halb - 4);
        p.drawText(QRectF(aussen, balken_oben + balken_hoehe + 4, 2 * halb, 16), Qt::AlignCenter, Q(m.text));
        break;
      }
      case Tagesbild::Rolle::schaltzeit: {
        const QColor farbe = palette().color(QPalette::Highlight);
        p.setPen(QPen(farbe, 2.5));
        p.drawLine(QPointF(ort, achse + 4), QPointF(ort, balken_oben + balken_hoehe + 2));
        p.setBrush(farbe);
        p.setPen(Qt::NoPen);
        p.drawPolygon(
            QPolygonF({QPointF(ort, achse), QPointF(ort - 5, achse - 8), QPointF(ort + 5, achse - 8)}));
        QFont fett = font();
        fett.setBold(true);
        const double breite = QFontMetricsF(fett).horizontalAdvance(Q(m.text)) + 12;
        const QRectF feld(std::clamp(ort + 5, 4.0, width() - breite - 4), balken_oben + 1, breite,
                          balken_hoehe - 2);
        p.drawRoundedRect(feld, 4, 4);
        p.setPen(palette().color(QPalette::HighlightedText));
        p.setFont(fett);
        p.drawText(feld, Qt::AlignCenter, Q(m.text));
        p.setFont(font());
        break;
      }
    }
  }

  const Uhr_Astro& form_;
};

}  // namespace

QWidget* Tagesskala_bauen(const Anordnung& a, Auffrischer& auf, QWidget* eltern, Gebautes& ergebnis) {
  Steuerelement& worte = *a.kinder.at(0).element;
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
    skala->setAccessibleDescription(Q(*worte.titel));
    skala->update();
  });
  return w;
}

}  // namespace zav::fenster
