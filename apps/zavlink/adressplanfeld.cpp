#include "zavlink/adressplanfeld.h"

#include <QPainter>
#include <algorithm>

#include "editor/dialog_kombination.h"
#include "zavlink/farben.h"
#include "zavlink/kartenfeld.h"
#include "zavlink/qt_text.h"

namespace zav::fenster {

namespace {

constexpr int breite_karte = 16;

class Adressplanfeld final : public Kartenfeld {
 public:
  Adressplanfeld(const Dialog_Kombination& form, Auswahl& zellen, QWidget* eltern)
      : Kartenfeld(zellen, eltern), form_(form) {}

  // "Adresse i12   Küche - Erdgeschoss   (besetzt)"
  QString zelltext(int i) const override {
    const auto& e = auswahl().eintrag(i);
    return "Adresse i" + Q(e.text) + "   (" + Q(e.hinweis) + ")";
  }
  // The run that the device would take from this cell on, in words.
  QString zeilentext(int i) const override {
    if (form_.anzahl() < 2 || ist_gegenwaertige(i)) return zelltext(i);
    const QString von = "i" + QString::number(i) + " - i" + QString::number(i + form_.anzahl() - 1);
    return zelltext(i) +
           (form_.Passt_ab(i) ? "      frei für den Apparat: " : "      reicht nicht für den Apparat: ") +
           von;
  }

 protected:
  int spalten() const override { return breite_karte; }
  QSize zellmass() const override { return {76, 36}; }
  void zelle_malen(QPainter& p, const QRectF& r, int i) override {
    const QString text = Q(auswahl().eintrag(i).text);
    const QRectF innen = r.adjusted(5, 2, -4, -2);
    QFont schrift = font();
    schrift.setBold(true);
    p.setFont(schrift);
    p.setPen(schriftfarbe(i));
    p.drawText(innen, Qt::AlignLeft | Qt::AlignTop, text.section(' ', 0, 0));
    // The room; its storey is told below the map.
    const QString raum = text.section(' ', 1).trimmed().section(" - ", 0, -2);
    if (raum.isEmpty()) return;
    schrift.setBold(false);
    schrift.setPointSizeF(schrift.pointSizeF() * 0.8);
    p.setFont(schrift);
    p.drawText(innen, Qt::AlignLeft | Qt::AlignBottom,
               QFontMetricsF(schrift).elidedText(raum, Qt::ElideRight, innen.width()));
  }
  // Around all cells that the device would take: from one row on to the next where it must.
  void ringe_malen(QPainter& p) override {
    const int von = ueber() >= 0 ? ueber() : zeiger();
    // Dark in a dark theme too: the cells are light in both.
    static const QColor passt(16, 82, 144), passt_nicht(176, 32, 32);
    const QColor farbe = form_.Passt_ab(von) || ist_gegenwaertige(von) ? passt : passt_nicht;
    const int bis = std::min(von + std::max(1, form_.anzahl()), zellenzahl());
    for (int a = von; a < bis;) {
      const int ende = std::min(bis, (a / breite_karte + 1) * breite_karte);
      ring_malen(p, zelle(a).united(zelle(ende - 1)), farbe, 2.5);
      a = ende;
    }
  }

 private:
  bool ist_gegenwaertige(int i) const {
    return i == auswahl().position() && auswahl().eintrag(i).farbe == Farbe::aktuell;
  }

  const Dialog_Kombination& form_;
};

}  // namespace

QWidget* Adressplanfeld_bauen(const Anordnung& a, Auffrischer& auf, QWidget* eltern, Gebautes& ergebnis) {
  auto& zellen = static_cast<Auswahl&>(*a.kinder.at(0).element);
  const auto& form = dynamic_cast<const Dialog_Kombination&>(*zellen.formular());
  return Karte_mit_zeile(*new Adressplanfeld(form, zellen, eltern), auf, ergebnis);
}

}  // namespace zav::fenster
