#include "zavlink/namensgeber.h"

#include <QStringList>
#include <utility>

#include "zavlink/qt_text.h"

namespace zav::fenster {

namespace {

class Namensgeber {
 public:
  Namensgeber(Auffrischer& auf, const Gebautes& g, QString titel)
      : auf_(auf), gebautes_(g), gruppe_(std::move(titel)) {}

  void gehen(const Anordnung& a) {
    const QString gruppe = gruppe_;
    if (a.art == Anordnung::Art::Gruppe) {
      const QString titel = Ohne_kuerzel(Q(a.element != nullptr ? *a.element->titel : a.titel));
      if (!titel.isEmpty()) gruppe_ = titel;
    }
    if (a.art == Anordnung::Art::Reiter) benennen(*a.element, nullptr, nullptr);
    Steuerelement* davor = nullptr;
    for (std::size_t i = 0; i < a.kinder.size(); ++i) {
      const Anordnung& k = a.kinder[i];
      const bool zellen = a.art == Anordnung::Art::Raster;
      const auto spalten = static_cast<std::size_t>(a.spalten);
      if (zellen && i % spalten == 0) davor = nullptr;
      if (k.art != Anordnung::Art::Element) {
        gehen(k);
        continue;
      }
      if (k.element->art == Art::Schild || !k.element->titel->empty()) {
        davor = k.element;
        continue;
      }
      Steuerelement* const kopf = zellen ? ueberschrift(a, i % spalten) : nullptr;
      benennen(*k.element, davor, kopf);
    }
    gruppe_ = gruppe;
  }

 private:
  static Steuerelement* ueberschrift(const Anordnung& raster, std::size_t spalte) {
    const Anordnung& oben = raster.kinder.at(spalte);
    return oben.art == Anordnung::Art::Element && oben.element->art == Art::Schild ? oben.element : nullptr;
  }

  void benennen(Steuerelement& e, Steuerelement* davor, Steuerelement* kopf) {
    const auto w = gebautes_.widgets.find(&e);
    if (w == gebautes_.widgets.end()) return;
    const auto nennen = [&e, davor, kopf, gruppe = gruppe_, feld = w->second] {
      if (!e.titel->empty()) return;
      QStringList teile;
      for (const Steuerelement* t : {davor, kopf}) {
        if (t != nullptr && !t->titel->empty()) teile << Ohne_kuerzel(Q(*t->titel));
      }
      // A key that is only a picture says what it does.
      if (!e.hinweis->empty() && (e.art == Art::Taste || teile.isEmpty())) teile << Q(*e.hinweis);
      if (teile.isEmpty()) teile << gruppe;
      feld->setAccessibleName(teile.join(", "));
    };
    auf_.binden(e, nennen);
    for (Steuerelement* t : {davor, kopf}) {
      if (t != nullptr) auf_.binden(*t, nennen);
    }
  }

  Auffrischer& auf_;
  const Gebautes& gebautes_;
  QString gruppe_;
};

}  // namespace

void Namen_geben(const Anordnung& a, Auffrischer& auf, const Gebautes& g, const QString& titel) {
  Namensgeber(auf, g, titel).gehen(a);
}

}  // namespace zav::fenster
