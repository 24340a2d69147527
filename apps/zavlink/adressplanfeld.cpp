#include "zavlink/adressplanfeld.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "zavlink/farben.h"
#include "zavlink/kartenfeld.h"
#include "zavlink/qt_text.h"

namespace zav::fenster {

namespace {

class Adressplanfeld final : public Kartenfeld {
 public:
  using Kartenfeld::Kartenfeld;

 protected:
  int spalten() const override { return 16; }
  QSize zellmass() const override { return {76, 36}; }
  void zelle_malen(QPainter& p, const QRectF& r, int i) override {
    // "12   Küche - Erdgeschoss"
    const QString text = Q(auswahl().eintrag(i).text);
    const QRectF innen = r.adjusted(5, 2, -4, -2);
    QFont schrift = font();
    schrift.setBold(true);
    p.setFont(schrift);
    p.setPen(schriftfarbe(i));
    p.drawText(innen, Qt::AlignLeft | Qt::AlignTop, text.section(' ', 0, 0));
    schrift.setBold(false);
    schrift.setPointSizeF(schrift.pointSizeF() * 0.8);
    p.setFont(schrift);
    const QString raum = text.section(' ', 1).trimmed();
    p.drawText(innen, Qt::AlignLeft | Qt::AlignBottom,
               QFontMetricsF(schrift).elidedText(raum, Qt::ElideRight, innen.width()));
  }
};

}  // namespace

QWidget* Adressplanfeld_bauen(const Anordnung& a, Auffrischer& auf, QWidget* eltern, Gebautes& ergebnis) {
  auto& zellen = static_cast<Auswahl&>(*a.kinder.at(0).element);
  auto* const w = new QWidget(eltern);
  auto* const spalte = new QVBoxLayout(w);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->setSpacing(raster);
  auto* const karte = new Adressplanfeld(zellen, w);
  auto* const zeile = new QLabel(QStringLiteral(" "), w);
  spalte->addWidget(karte, 1);
  spalte->addWidget(zeile);
  QObject::connect(karte, &Kartenfeld::gezeigt, zeile, [&zellen, zeile](int i) {
    if (i < 0) return zeile->setText(QStringLiteral(" "));
    const auto& e = zellen.eintrag(i);
    zeile->setText("Adresse i" + Q(e.text) + "   (" + Q(e.hinweis) + ")");
  });
  ergebnis.widgets[&zellen] = karte;
  auf.binden(zellen, [&zellen, karte] {
    Gemeinsames(*karte, zellen);
    karte->auffrischen();
  });
  return w;
}

}  // namespace zav::fenster
