#include "zavlink/baum.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "zavlink/bindung.h"
#include "zavlink/farben.h"
#include "zavlink/qt_text.h"
#include "zavlink/symbole.h"

namespace zav::fenster {

Baumfeld::Baumfeld(Baum& baum, QWidget* eltern)
    : QWidget(eltern), baum_(baum), suche_(new QLineEdit(this)), zweige_(new QTreeWidget(this)) {
  suche_->setPlaceholderText("Suchen...");
  suche_->setClearButtonEnabled(true);
  suche_->setAccessibleName("Im Baum suchen");
  zweige_->setHeaderHidden(true);
  zweige_->setUniformRowHeights(true);
  zweige_->setMinimumWidth(26 * raster);
  auto* const spalte = new QVBoxLayout(this);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->setSpacing(raster);
  spalte->addWidget(suche_);
  spalte->addWidget(zweige_, 1);
  setFocusProxy(zweige_);
  connect(suche_, &QLineEdit::textChanged, this, &Baumfeld::filtern);
  connect(zweige_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* zweig) {
    if (zweig == nullptr) return;
    const std::string schluessel = S(zweig->data(0, Qt::UserRole).toString());
    Handeln([&] { baum_.waehlen(schluessel); });
  });
}

void Baumfeld::auffrischen() {
  const QSignalBlocker stumm(zweige_);
  const auto& knoten = baum_.knoten();
  std::vector<QTreeWidgetItem*> zweige;
  QTreeWidgetItem* gewaehlt = nullptr;
  zweige_->clear();
  for (const Baum::Knoten& k : knoten) {
    auto* const zweig = k.eltern < 0 ? new QTreeWidgetItem(zweige_)
                                     : new QTreeWidgetItem(zweige.at(static_cast<std::size_t>(k.eltern)));
    zweig->setText(0, Q(k.text));
    zweig->setData(0, Qt::UserRole, Q(k.schluessel));
    if (!k.bild.empty()) zweig->setIcon(0, Symbolbild(k.bild));
    if (k.schluessel == baum_.gewaehlt()) gewaehlt = zweig;
    zweige.push_back(zweig);
  }
  for (std::size_t i = 0; i < knoten.size(); ++i) zweige[i]->setExpanded(knoten[i].offen || knoten[i].eltern < 0);
  filtern(suche_->text());
  if (gewaehlt != nullptr) zweige_->setCurrentItem(gewaehlt);
}

void Baumfeld::filtern(const QString& text) {
  // A branch shows when it or anything below it matches; below a match everything shows.
  const std::function<bool(QTreeWidgetItem*, bool)> zeigen = [&](QTreeWidgetItem* zweig, bool oben) {
    const bool selbst = oben || zweig->text(0).contains(text, Qt::CaseInsensitive);
    bool sichtbar = selbst;
    for (int i = 0; i < zweig->childCount(); ++i) sichtbar = zeigen(zweig->child(i), selbst) || sichtbar;
    zweig->setHidden(!sichtbar);
    return sichtbar;
  };
  for (int i = 0; i < zweige_->topLevelItemCount(); ++i) zeigen(zweige_->topLevelItem(i), text.isEmpty());
}

}  // namespace zav::fenster
