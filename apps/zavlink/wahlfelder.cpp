#include "zavlink/wahlfelder.h"

#include <QAbstractItemView>
#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QListWidget>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabBar>
#include <QToolButton>
#include <QWheelEvent>
#include <algorithm>

#include "zavlink/farben.h"
#include "zavlink/kartenfeld.h"
#include "zavlink/qt_text.h"
#include "zavlink/symbole.h"

namespace zav::fenster {

namespace {

// Widest of the texts; of a long list only the longest are measured.
int Breite(const QWidget& w, const Auswahl& a) {
  std::size_t laengste = 0;
  for (const auto& e : a.eintraege()) laengste = std::max(laengste, e.text.size());
  int breite = 0;
  for (const auto& e : a.eintraege()) {
    if (a.anzahl() > 64 && e.text.size() + 2 < laengste) continue;
    breite = std::max(breite, w.fontMetrics().horizontalAdvance(Q(e.text)));
  }
  return breite;
}

// A drop-down list as wide as its widest entry, within limits; the wheel is left to the page unless it has
// the keyboard.
class Klappfeld final : public QComboBox {
 public:
  explicit Klappfeld(QWidget* eltern) : QComboBox(eltern) {
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setMaxVisibleItems(20);
    setFocusPolicy(Qt::StrongFocus);
  }
  void breite_setzen(int texte) {
    if (texte == texte_) return;
    texte_ = texte;
    view()->setMinimumWidth(std::min(texte + 5 * raster, 90 * raster));
    updateGeometry();
  }
  QSize sizeHint() const override {
    return {std::clamp(texte_ + rand, kleinste, groesste), QComboBox::sizeHint().height()};
  }
  QSize minimumSizeHint() const override {
    return {std::clamp(texte_ + rand, kleinste, 20 * raster), QComboBox::minimumSizeHint().height()};
  }

 protected:
  void wheelEvent(QWheelEvent* e) override {
    if (hasFocus()) QComboBox::wheelEvent(e);
    else e->ignore();
  }

 private:
  static constexpr int rand = 5 * raster;  // arrow and margins
  static constexpr int kleinste = 9 * raster;
  static constexpr int groesste = 40 * raster;
  int texte_ = 0;
};

QWidget* Klappliste_bauen(Auswahl& a, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new Klappfeld(eltern);
  QObject::connect(w, &QComboBox::activated, w, [&a](int i) { Handeln(a, [&a, i] { a.waehlen(i); }); });
  auf.binden(a, [&a, w] {
    const QSignalBlocker stumm(w);
    Gemeinsames(*w, a);
    bool gleich = w->count() == a.anzahl();
    for (int i = 0; gleich && i < a.anzahl(); ++i) gleich = w->itemText(i) == Q(a.eintrag(i).text);
    if (!gleich) {
      QStringList texte;
      texte.reserve(a.anzahl());
      for (const auto& e : a.eintraege()) texte << Q(e.text);
      w->clear();
      w->addItems(texte);
      w->breite_setzen(Breite(*w, a));
    }
    w->setCurrentIndex(a.position());
    Einfaerben(*w, a.farbe);
  });
  return w;
}

// A list as wide as its lines.
class Listenfeld final : public QListWidget {
 public:
  Listenfeld(const Auswahl& a, QWidget* eltern) : QListWidget(eltern), a_(a) {
    setUniformItemSizes(true);
    setMinimumHeight(10 * raster);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  }
  QSize sizeHint() const override {
    return {Breite(*this, a_) + 4 * raster, QListWidget::sizeHint().height()};
  }

 private:
  const Auswahl& a_;
};

QWidget* Liste_bauen(Auswahl& a, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new Listenfeld(a, eltern);
  QObject::connect(w, &QListWidget::currentRowChanged, w, [&a](int i) {
    if (i >= 0) Handeln(a, [&a, i] { a.waehlen(i); });
  });
  // A click on the chosen line counts where the form listens for clicks.
  QObject::connect(w, &QListWidget::itemClicked, w, [&a, w](QListWidgetItem* zeile) {
    if (a.wenn_angeklickt && w->row(zeile) == a.position()) Handeln(a, [&] { a.waehlen(w->row(zeile)); });
  });
  auf.binden(a, [&a, w] {
    const QSignalBlocker stumm(w);
    Gemeinsames(*w, a);
    while (w->count() > a.anzahl()) delete w->takeItem(w->count() - 1);
    while (w->count() < a.anzahl()) w->addItem(QString());
    for (int i = 0; i < a.anzahl(); ++i) {
      auto* const zeile = w->item(i);
      const auto& e = a.eintrag(i);
      zeile->setText(Q(e.text));
      zeile->setToolTip(Tipp(Q(e.hinweis)));
      zeile->setFlags(e.frei ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
      zeile->setData(Qt::BackgroundRole, e.farbe == Farbe::normal ? QVariant() : Farbe_qt(e.farbe));
      zeile->setData(Qt::ForegroundRole, e.farbe == Farbe::normal ? QVariant() : Farbe_schrift());
    }
    w->setCurrentRow(a.position());
  });
  return w;
}

// Keeps the buttons of a group, one an entry, at the state of their control; a used entry has a dot. Gives
// the widget that holds them.
QWidget* Gruppe_binden(Auswahl& a, Auffrischer& auf, QButtonGroup& gruppe) {
  auto* const w = static_cast<QWidget*>(gruppe.parent());
  QObject::connect(&gruppe, &QButtonGroup::idClicked, w,
                   [&a](int i) { Handeln(a, [&a, i] { a.waehlen(i); }); });
  auf.binden(a, [&a, w, &gruppe] {
    Gemeinsames(*w, a);
    gruppe.setExclusive(false);  // so that none may be chosen
    for (int i = 0; i < a.anzahl() && gruppe.button(i) != nullptr; ++i) {
      auto* const knopf = gruppe.button(i);
      const QSignalBlocker stumm(knopf);
      const auto& e = a.eintrag(i);
      knopf->setText(Q(e.text) + (e.farbe == Farbe::belegt ? QStringLiteral("•") : QString()));
      knopf->setToolTip(Tipp(Q(e.hinweis)));
      knopf->setEnabled(a.frei && e.frei);
      knopf->setChecked(i == a.position());
      Einfaerben(*knopf, e.farbe);
    }
    gruppe.setExclusive(true);
  });
  return w;
}

QWidget* Optionen_bauen(Auswahl& a, Auffrischer& auf, QWidget* eltern) {
  static constexpr qsizetype eine_zeile = 44;  // characters of all texts that still stand side by side
  auto* const w = new QWidget(eltern);
  qsizetype zeichen = 0;
  for (const auto& e : a.eintraege()) zeichen += Q(e.text).size();
  const bool nebeneinander = a.anzahl() <= 3 && zeichen <= eine_zeile;
  auto* const reihe = new QBoxLayout(nebeneinander ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, w);
  reihe->setContentsMargins(0, 0, 0, 0);
  reihe->setSpacing(nebeneinander ? gruppenabstand : raster / 2);
  auto* const gruppe = new QButtonGroup(w);
  for (int i = 0; i < a.anzahl(); ++i) {
    auto* const knopf = new QRadioButton(w);
    gruppe->addButton(knopf, i);
    reihe->addWidget(knopf);
  }
  if (nebeneinander) reihe->addStretch(1);
  return Gruppe_binden(a, auf, *gruppe);
}

QWidget* Reiter_bauen(Auswahl& a, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QTabBar(eltern);
  w->setExpanding(false);
  w->setDrawBase(false);
  w->setUsesScrollButtons(true);
  QObject::connect(w, &QTabBar::currentChanged, w, [&a](int i) {
    if (i >= 0 && i != a.position()) Handeln(a, [&a, i] { a.waehlen(i); });
  });
  auf.binden(a, [&a, w] {
    const QSignalBlocker stumm(w);
    Gemeinsames(*w, a);
    while (w->count() > a.anzahl()) w->removeTab(w->count() - 1);
    while (w->count() < a.anzahl()) w->addTab(QString());
    for (int i = 0; i < a.anzahl(); ++i) {
      const auto& e = a.eintrag(i);
      w->setTabText(i, Q(e.text));
      w->setTabToolTip(i, Tipp(Q(e.hinweis)));
      w->setTabEnabled(i, e.frei);
      w->setTabIcon(
          i, e.farbe == Farbe::normal ? QIcon() : Symbolbild(e.farbe == Farbe::belegt ? "belegt" : "punkt"));
    }
    w->setCurrentIndex(a.position());
  });
  return w;
}

// A strip of small buttons, sixteen a row: relay and dimmer groups, clocks.
QWidget* Leiste_bauen(Auswahl& a, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QWidget(eltern);
  auto* const gitter = new QGridLayout(w);
  gitter->setContentsMargins(0, 0, 0, 0);
  gitter->setSpacing(2);
  auto* const gruppe = new QButtonGroup(w);
  const bool breit = a.anzahl() >= leiste_breit;
  for (int i = 0; i < a.anzahl(); ++i) {
    auto* const knopf = new QToolButton(w);
    knopf->setCheckable(true);
    knopf->setProperty("leiste", true);
    knopf->setFocusPolicy(Qt::StrongFocus);
    knopf->setSizePolicy(breit ? QSizePolicy::Expanding : QSizePolicy::Preferred, QSizePolicy::Fixed);
    knopf->setMinimumSize(4 * raster + 4, 3 * raster + 2);
    gruppe->addButton(knopf, i);
    gitter->addWidget(knopf, i / 16, i % 16);
  }
  if (!breit) gitter->setColumnStretch(16, 1);
  return Gruppe_binden(a, auf, *gruppe);
}

}  // namespace

QWidget* Wahlfeld_bauen(Auswahl& a, Auffrischer& auf, QWidget* eltern) {
  switch (a.form) {
    case Auswahl::Form::Klappliste: return Klappliste_bauen(a, auf, eltern);
    case Auswahl::Form::Liste: return Liste_bauen(a, auf, eltern);
    case Auswahl::Form::Optionen: return Optionen_bauen(a, auf, eltern);
    case Auswahl::Form::Reiter: return Reiter_bauen(a, auf, eltern);
    case Auswahl::Form::Leiste: return Leiste_bauen(a, auf, eltern);
    case Auswahl::Form::Raster: break;
  }
  auto* const w = new Kartenfeld(a, eltern);
  w->binden(auf);
  return w;
}

}  // namespace zav::fenster
