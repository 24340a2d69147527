#include "zavlink/bilderwahl.h"

#include <QPainter>
#include <algorithm>

#include "editor/bilderseite.h"
#include "zavlink/apparatbild.h"
#include "zavlink/farben.h"
#include "zavlink/kartenfeld.h"
#include "zavlink/qt_text.h"

namespace zav::fenster {

namespace {

class Bilderwahl final : public Kartenfeld {
 public:
  Bilderwahl(Bilderseite& form, QWidget* eltern) : Kartenfeld(form.Bilder, eltern), form_(form) {}

  QString zelltext(int i) const override { return Q(auswahl().eintrag(i).hinweis); }

 protected:
  int spalten() const override { return auswahl().anzahl() > 40 ? 11 : auswahl().anzahl() > 16 ? 8 : 5; }
  QSize zellmass() const override { return {96, 92}; }
  // The plates stand out by themselves.
  void grund_malen(QPainter&, const QRectF&, int) override {}
  void zelle_malen(QPainter& p, const QRectF& r, int i) override {
    const double mass = std::min(r.width(), r.height()) - 14;
    Apparat_malen(p, QRectF(r.center().x() - mass / 2, r.center().y() - mass / 2, mass, mass),
                  {.typ = form_.typ(i)});
  }

 private:
  const Bilderseite& form_;
};

}  // namespace

QWidget* Bilderwahl_bauen(const Anordnung& a, Auffrischer& auf, QWidget* eltern, Gebautes& ergebnis) {
  auto& form = dynamic_cast<Bilderseite&>(*a.kinder.at(0).element->formular());
  return Karte_mit_zeile(*new Bilderwahl(form, eltern), auf, ergebnis);
}

}  // namespace zav::fenster
