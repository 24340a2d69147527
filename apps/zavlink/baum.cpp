#include "zavlink/baum.h"

#include <QSignalBlocker>
#include <algorithm>

#include "zavlink/bindung.h"
#include "zavlink/farben.h"
#include "zavlink/qt_text.h"
#include "zavlink/symbole.h"

namespace zav::fenster {

Baumfeld::Baumfeld(Baum& baum, QWidget* eltern) : QTreeWidget(eltern), baum_(baum) {
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setIndentation(2 * raster);
  setMinimumWidth(24 * raster);
  connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* zweig) {
    if (zweig == nullptr) return;
    const std::string schluessel = S(zweig->data(0, Qt::UserRole).toString());
    Handeln(baum_, [&] { baum_.waehlen(schluessel); });
  });
}

QSize Baumfeld::sizeHint() const { return {30 * raster, 40 * raster}; }

bool Baumfeld::gleiche_knoten() const {
  return std::ranges::equal(gezeigt_, baum_.knoten(), [](const Baum::Knoten& a, const Baum::Knoten& b) {
    return a.schluessel == b.schluessel && a.text == b.text && a.eltern == b.eltern && a.bild == b.bild;
  });
}

void Baumfeld::neu_fuellen() {
  gezeigt_ = baum_.knoten();
  zweige_.clear();
  clear();
  std::vector<int> blaetter(gezeigt_.size(),
                            0);  // leaves so far below each node: they stand before its branches
  std::vector<bool> hat_kinder(gezeigt_.size(), false);
  for (const Baum::Knoten& k : gezeigt_) {
    if (k.eltern >= 0) hat_kinder.at(static_cast<std::size_t>(k.eltern)) = true;
  }
  for (const Baum::Knoten& k : gezeigt_) {
    auto* const zweig = new QTreeWidgetItem;
    if (k.eltern < 0) {
      addTopLevelItem(zweig);
    } else {
      const auto eltern = static_cast<std::size_t>(k.eltern);
      QTreeWidgetItem* const ast = zweige_.at(eltern);
      if (hat_kinder.at(zweige_.size())) ast->addChild(zweig);
      else ast->insertChild(blaetter.at(eltern)++, zweig);
    }
    zweig->setText(0, Q(k.text));
    zweig->setToolTip(0, Tipp(Q(k.text)));
    zweig->setData(0, Qt::UserRole, Q(k.schluessel));
    if (!k.bild.empty()) zweig->setIcon(0, Symbolbild(k.bild));
    zweige_.push_back(zweig);
  }
  for (std::size_t i = 0; i < gezeigt_.size(); ++i)
    zweige_[i]->setExpanded(gezeigt_[i].offen || gezeigt_[i].eltern < 0);
}

void Baumfeld::auffrischen() {
  const QSignalBlocker stumm(this);
  if (!gleiche_knoten()) neu_fuellen();
  const int i = baum_.finden(baum_.gewaehlt());
  setCurrentItem(i < 0 ? nullptr : zweige_.at(static_cast<std::size_t>(i)));
}

}  // namespace zav::fenster
