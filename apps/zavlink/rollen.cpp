#include "zavlink/rollen.h"

#include "zavlink/farben.h"

namespace zav::fenster {

QScrollArea& Rollen_lassen(QBoxLayout& l, QWidget& teil) {
  auto* const rollen = new QScrollArea(l.parentWidget());
  rollen->setFrameShape(QFrame::NoFrame);
  rollen->setFocusPolicy(Qt::NoFocus);
  rollen->setWidgetResizable(true);
  delete l.replaceWidget(&teil, rollen);
  rollen->setWidget(&teil);
  return *rollen;
}

void In_sicht_bringen(const QWidget& w, const QRect& stelle) {
  for (QWidget* um = w.parentWidget(); um != nullptr; um = um->parentWidget()) {
    auto* const rollen = qobject_cast<QScrollArea*>(um);
    if (rollen == nullptr) continue;
    const QPoint mitte = w.mapTo(rollen->widget(), stelle.center());
    rollen->ensureVisible(mitte.x(), mitte.y(), stelle.width() / 2 + raster, stelle.height() / 2 + raster);
  }
}

}  // namespace zav::fenster
