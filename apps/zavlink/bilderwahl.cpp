#include "zavlink/bilderwahl.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "basis/zahl.h"
#include "editor/import.h"
#include "store/katalog.h"
#include "zavlink/apparatbild.h"
#include "zavlink/farben.h"
#include "zavlink/kartenfeld.h"
#include "zavlink/qt_text.h"

namespace zav::fenster {

namespace {

// The kind that a cell stands for. The flat editor's cells hold numbers of its own.
int Apparat_der_zelle(const Anordnung& a, const std::string& text) {
  const int nummer = Zahl_lesen(text, 0, 999).value_or(0);
  if (a.titel != "tasterbilder") return nummer;
  const auto art = Importart_von(nummer);
  return art ? art->typ : 0;
}

class Bilderwahl final : public Kartenfeld {
 public:
  Bilderwahl(Auswahl& auswahl, std::vector<int> typen, QWidget* eltern)
      : Kartenfeld(auswahl, eltern), typen_(std::move(typen)) {}

  QString zelltext(int i) const override { return Q(auswahl().eintrag(i).hinweis); }

 protected:
  int spalten() const override { return auswahl().anzahl() > 40 ? 11 : auswahl().anzahl() > 16 ? 8 : 5; }
  QSize zellmass() const override { return {96, 92}; }
  // The plates stand out by themselves.
  void grund_malen(QPainter&, const QRectF&, int) override {}
  void zelle_malen(QPainter& p, const QRectF& r, int i) override {
    const double mass = std::min(r.width(), r.height()) - 14;
    Apparat_malen(p, QRectF(r.center().x() - mass / 2, r.center().y() - mass / 2, mass, mass),
                  {.typ = typen_.at(static_cast<std::size_t>(i))});
  }

 private:
  std::vector<int> typen_;
};

}  // namespace

QWidget* Bilderwahl_bauen(const Anordnung& a, Auffrischer& auf, QWidget* eltern, Gebautes& ergebnis) {
  auto& bilder = static_cast<Auswahl&>(*a.kinder.at(0).element);
  std::vector<int> typen;
  for (const auto& e : bilder.eintraege()) typen.push_back(Apparat_der_zelle(a, e.text));
  auto* const w = new QWidget(eltern);
  auto* const spalte = new QVBoxLayout(w);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->setSpacing(raster);
  auto* const karte = new Bilderwahl(bilder, std::move(typen), w);
  auto* const zeile = new QLabel(QStringLiteral(" "), w);
  zeile->setTextFormat(Qt::PlainText);
  QFont schrift = zeile->font();
  schrift.setBold(true);
  zeile->setFont(schrift);
  spalte->addWidget(karte, 1);
  spalte->addWidget(zeile);
  QObject::connect(karte, &Kartenfeld::gezeigt, zeile, [&bilder, zeile](int i) {
    zeile->setText(i < 0 ? QStringLiteral(" ") : Q(bilder.eintrag(i).hinweis));
  });
  ergebnis.widgets[&bilder] = karte;
  auf.binden(bilder, [&bilder, karte] {
    Gemeinsames(*karte, bilder);
    karte->auffrischen();
  });
  return w;
}

}  // namespace zav::fenster
