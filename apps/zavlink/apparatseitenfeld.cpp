#include "zavlink/apparatseitenfeld.h"

#include <QGridLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>
#include <vector>

#include "editor/einmask8.h"
#include "zavlink/farben.h"
#include "zavlink/qt_text.h"

namespace zav::fenster {

namespace {

constexpr int spalte_ereignis = 4;  // behind key name, text, LED name and LED list

// Puts the lines of the page into a grid whenever the device has changed.
class Apparatseitenfeld final : public QScrollArea {
 public:
  Apparatseitenfeld(Einmask8& form, const Gebautes& g, QWidget* eltern)
      : QScrollArea(eltern), form_(form), gebautes_(g) {
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(new QWidget);
    gitter_ = new QGridLayout(widget());
    gitter_->setContentsMargins(0, 0, raster, 0);
    gitter_->setHorizontalSpacing(raster);
    gitter_->setVerticalSpacing(raster / 2);
    gitter_->setColumnStretch(1, 1);
  }

  QSize sizeHint() const override { return {72 * raster, 46 * raster}; }
  // Wide enough for most devices, so that the frame beside it does not move from one to the next.
  QSize minimumSizeHint() const override {
    return {
        std::max(68 * raster, widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width()),
        24 * raster};
  }

  void ordnen() {
    bestellt_ = false;
    const std::vector<Einmask8::Tastenzeile> zeilen = form_.Tastenzeilen();
    std::vector<const Steuerelement*> neu;
    for (const auto& z : zeilen) {
      neu.insert(neu.end(), {z.ueberschrift, z.name, z.text, z.led_name, z.led});
      neu.insert(neu.end(), z.ereignisse.begin(), z.ereignisse.end());
      neu.push_back(nullptr);
    }
    std::ranges::for_each(zeilen, [this](const auto& z) { beschreiben(z); });
    if (neu == gezeigt_) return;
    gezeigt_ = std::move(neu);
    leeren();
    int reihe = 0;
    QWidget* vorher = nullptr;
    for (const auto& z : zeilen) {
      if (z.ueberschrift != nullptr) gitter_->addWidget(von(z.ueberschrift), reihe++, 0, 1, -1);
      if (z.name != nullptr) gitter_->addWidget(von(z.name), reihe, 0);
      if (z.text != nullptr) gitter_->addWidget(von(z.text), reihe, 1);
      if (z.led != nullptr) {
        gitter_->addWidget(von(z.led_name), reihe, 2);
        gitter_->addWidget(von(z.led), reihe, 3);
      }
      int spalte = spalte_ereignis;
      for (const Taste* t : z.ereignisse) gitter_->addWidget(von(t), reihe, spalte++);
      for (const Steuerelement* e : std::vector<const Steuerelement*>{z.text, z.led}) tabulator(vorher, e);
      for (const Taste* t : z.ereignisse) tabulator(vorher, t);
      ++reihe;
    }
    gitter_->setRowStretch(reihe, 1);
    letzte_reihe_ = reihe;
    updateGeometry();
  }
  // Several controls change at once: the page is put in order when all have.
  void bestellen() {
    if (bestellt_) return;
    bestellt_ = true;
    QTimer::singleShot(0, this, [this] { ordnen(); });
  }

 private:
  QWidget* von(const Steuerelement* e) const { return gebautes_.widgets.at(e); }
  void tabulator(QWidget*& vorher, const Steuerelement* e) {
    if (e == nullptr) return;
    if (vorher != nullptr) setTabOrder(vorher, von(e));
    vorher = von(e);
  }
  // Which key a list or a button belongs to, for those who hear the page.
  void beschreiben(const Einmask8::Tastenzeile& z) {
    const auto nennen = [&](const Steuerelement& e) {
      const QString taste = z.name == nullptr ? QString() : Q(*z.name->titel) + ". ";
      von(&e)->setAccessibleDescription(taste + Q(*e.hinweis));
    };
    if (z.led != nullptr) nennen(*z.led);
    for (const Taste* t : z.ereignisse) nennen(*t);
  }
  void leeren() {
    gitter_->setRowStretch(letzte_reihe_, 0);
    while (QLayoutItem* const teil = gitter_->takeAt(0)) delete teil;
  }

  Einmask8& form_;
  const Gebautes& gebautes_;
  QGridLayout* gitter_;
  std::vector<const Steuerelement*> gezeigt_;
  int letzte_reihe_ = 0;
  bool bestellt_ = false;
};

}  // namespace

QWidget* Apparatseitenfeld_bauen(const Anordnung& a, Auffrischer& auf, QWidget* eltern, Gebautes& ergebnis) {
  auto& form = dynamic_cast<Einmask8&>(*a.kinder.at(0).element->formular());
  auto* const w = new Apparatseitenfeld(form, ergebnis, eltern);
  for (const Anordnung& k : a.kinder) {
    ergebnis.widgets[k.element] = Bauen(*k.element, auf, w->widget());
    auf.binden(*k.element, [w] { w->bestellen(); });
  }
  w->ordnen();
  return w;
}

}  // namespace zav::fenster
