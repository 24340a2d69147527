#include "zavlink/apparaterahmen.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "editor/einmask8.h"
#include "store/katalog.h"
#include "zavlink/apparatbild.h"
#include "zavlink/farben.h"
#include "zavlink/qt_text.h"
#include "zavlink/zellenfeld.h"

namespace zav::fenster {

namespace {

constexpr double platz_kleinst = 64, platz_groesst = 176;
constexpr double abstand = 6;
constexpr double rahmenrand = 12;

class Apparaterahmen final : public Zellenfeld {
 public:
  Apparaterahmen(Einmask8& form, Auffrischer& auf, Gebautes& g, QWidget* eltern)
      : Zellenfeld(eltern), form_(form), auf_(auf), gebautes_(g) {
    setAccessibleName("Apparate der Kombination");
  }

  QSize sizeHint() const override { return {46 * raster, 72 * raster}; }
  QSize minimumSizeHint() const override { return {36 * raster, 36 * raster}; }

  int zellenzahl() const override { return form_.kombination() < 0 ? 0 : plaetze; }
  QRectF zelle(int i) const override { return da(i) ? ort(i) : QRectF(); }
  QString zelltext(int i) const override { return "Platz " + QString::number(i + 1) + ": " + titel(i); }
  QString tipptext(int i) const override { return titel(i); }
  bool zelle_gewaehlt(int i) const override { return i == form_.platz(); }
  int zeiger() const override { return form_.platz(); }
  void zelle_nehmen(int i) override {
    if (i < 0 || !da(i)) return;
    Handeln([this, i] { form_.Image3.at(static_cast<std::size_t>(i)).druecken(); });
  }

  void beschreiben() {
    zeiger_melden();
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    if (form_.kombination() < 0) {
      p.setPen(palette().color(QPalette::PlaceholderText));
      p.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                 "Links eine Kombination wählen\noder eine neue anlegen.");
      return;
    }
    // The frame is as large as its plates.
    QRectF rahmen;
    for (int i = 0; i < plaetze; ++i) {
      if (da(i)) rahmen = rahmen.united(ort(i));
    }
    const bool dunkel = Ist_dunkel(palette());
    p.setPen(QPen(palette().color(QPalette::Mid), 1));
    p.setBrush(dunkel ? QColor(70, 76, 84) : QColor(232, 234, 237));
    p.drawRoundedRect(rahmen.adjusted(-rahmenrand, -rahmenrand, rahmenrand, rahmenrand), 8, 8);
    for (int i = 0; i < plaetze; ++i) {
      if (!da(i)) continue;
      Apparat_malen(p, ort(i), bild(i));
      if (i != form_.platz()) continue;
      p.setBrush(Qt::NoBrush);
      p.setPen(QPen(palette().color(QPalette::Highlight), hasFocus() ? 4 : 3));
      p.drawRoundedRect(ort(i).adjusted(-2, -2, 2, 2), 7, 7);
    }
  }

  void mouseDoubleClickEvent(QMouseEvent* e) override {
    if (zelle_bei(e->position()) >= 0) weiter();
  }
  void contextMenuEvent(QContextMenuEvent* e) override {
    const bool maus = e->reason() == QContextMenuEvent::Mouse;
    const int i = maus ? zelle_bei(e->pos()) : form_.platz();
    if (i < 0) return;
    setFocus();
    Kontextmenue_zeigen(form_.Image3.at(static_cast<std::size_t>(i)), gebautes_, auf_,
                        maus ? e->globalPos() : mapToGlobal(ort(i).center().toPoint()));
  }
  void keyPressEvent(QKeyEvent* e) override {
    if (Taste* const befehl = befehl_der_taste(e)) return Handeln([befehl] { druecken(*befehl); });
    int spalte = 0;
    int zeile = 0;
    switch (e->key()) {
      case Qt::Key_Left: spalte = -1; break;
      case Qt::Key_Right: spalte = 1; break;
      case Qt::Key_Up: zeile = -1; break;
      case Qt::Key_Down: zeile = 1; break;
      case Qt::Key_Return:
      case Qt::Key_Enter:
      case Qt::Key_Space:
        if (form_.platz() >= 0) weiter();
        return;
      default: QWidget::keyPressEvent(e); return;
    }
    const int platz = std::max(0, form_.platz());
    const int neue_spalte = platz % 4 + spalte;
    const int neu = 4 * (platz / 4 + zeile) + neue_spalte;
    if (neue_spalte >= 0 && neue_spalte < 4 && neu >= 0 && neu < plaetze) zelle_nehmen(neu);
  }
  void focusInEvent(QFocusEvent* e) override {
    QWidget::focusInEvent(e);
    beschreiben();
  }

 private:
  // Strg+X, Strg+C, Strg+V, Entf.
  Taste* befehl_der_taste(const QKeyEvent* e) {
    if (e->matches(QKeySequence::Cut)) return &form_.Command11;
    if (e->matches(QKeySequence::Copy)) return &form_.Command12;
    if (e->matches(QKeySequence::Paste)) return &form_.Command4;
    if (e->matches(QKeySequence::Delete)) return &form_.Command3;
    return nullptr;
  }
  // The next step at the chosen place: a device, its address, its first text.
  void weiter() {
    const int d = apparat(form_.platz());
    if (leer(form_.platz())) return Handeln([this] { druecken(form_.mnuChoose); });
    const str& anzahl = projekt.App_text2[d];
    if (projekt.App_text[d].empty() && !anzahl.empty() && anzahl != "0")
      return Handeln([this] { druecken(form_.Command2); });
    const auto text =
        std::ranges::find_if(form_.TTxt, [](const Textfeld& t) { return *t.sichtbar && *t.frei; });
    if (text != form_.TTxt.end()) gebautes_.widgets.at(&*text)->setFocus(Qt::TabFocusReason);
  }
  static void druecken(Taste& t) {
    if (t.frei && t.sichtbar) t.druecken();
  }

  bool da(int i) const { return form_.Image3.at(static_cast<std::size_t>(i)).sichtbar; }
  int apparat(int i) const { return plaetze * form_.kombination() + i; }
  int typ(int i) const { return projekt.App_typ[apparat(i)]; }
  bool leer(int i) const { return typ(i) == apparat_leer || Apparat_art(typ(i)) == nullptr; }
  QString titel(int i) const {
    return leer(i) ? QStringLiteral("Leerer Platz: Doppelklick oder Enter wählt einen Apparat")
                   : Q(*form_.Image3.at(static_cast<std::size_t>(i)).titel);
  }

  QRectF ort(int i) const {
    const Layout* const layout = Layout_von(projekt.Komb_layout[form_.kombination()]);
    const int spalten = layout == nullptr ? 4 : layout->spalten;
    const int zeilen = layout == nullptr ? 4 : layout->zeilen;
    const double mass = std::clamp(
        std::min((width() - 2 * rahmenrand - 4) / spalten, (height() - 2 * rahmenrand - 4) / zeilen) -
            abstand,
        platz_kleinst, platz_groesst);
    const double links = (width() - spalten * (mass + abstand) + abstand) / 2;
    const int zeile = i / 4;
    return {links + i % 4 * (mass + abstand), rahmenrand + 2 + zeile * (mass + abstand), mass, mass};
  }
  Apparatbild bild(int i) const {
    Apparatbild b{.typ = typ(i)};
    for (int n = 0; n < 8; ++n) {
      const int slot = Apparat_textslot(projekt, apparat(i), n);
      auto& taste = b.tasten.at(static_cast<std::size_t>(n));
      taste.text = slot < 0 ? QString() : Q(projekt.Dev_text[slot]);
      taste.belegt = form_.Taste_belegt(i, n);
    }
    if (const auto lauf = Apparat_adressen(projekt, apparat(i)); lauf && lauf->anzahl > 0) {
      b.adresse = "i" + QString::number(lauf->von);
      if (lauf->anzahl > 1) b.adresse += " - i" + QString::number(lauf->von + lauf->anzahl - 1);
    }
    return b;
  }

  Einmask8& form_;
  Auffrischer& auf_;
  Gebautes& gebautes_;
};

}  // namespace

QWidget* Apparaterahmen_bauen(const Anordnung& a, Auffrischer& auf, QWidget* eltern, Gebautes& ergebnis) {
  auto& form = dynamic_cast<Einmask8&>(*a.kinder.at(0).element->formular());
  auto* const w = new Apparaterahmen(form, auf, ergebnis, eltern);
  w->setProperty("eigenes_menue", true);
  for (Taste& platz : form.Image3) {
    ergebnis.widgets[&platz] = w;
    auf.binden(platz, [w] { w->beschreiben(); });
  }
  // Texts and events of the page beside it show on the keys.
  for (Textfeld& t : form.TTxt) auf.binden(t, [w] { w->update(); });
  for (Taste& t : form.Command15) auf.binden(t, [w] { w->update(); });
  auf.binden(form.Frame1, [w] { w->update(); });
  return w;
}

}  // namespace zav::fenster
