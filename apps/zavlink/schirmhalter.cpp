#include "zavlink/schirmhalter.h"

#include <QEvent>
#include <QScreen>
#include <QTimer>
#include <algorithm>

namespace zav::fenster {

bool Schirmhalter::eventFilter(QObject* /*o*/, QEvent* e) {
  // A user who drags an edge beyond the screen asks for no layout.
  if (e->type() == QEvent::LayoutRequest && fenster_.isVisible()) {
    QTimer::singleShot(0, this, [this] { halten(); });
  }
  return false;
}

void Schirmhalter::halten() {
  const QRect platz = fenster_.screen()->availableGeometry();
  const QRect r = fenster_.frameGeometry();
  const QPoint zuviel(std::max(0, r.right() - platz.right()), std::max(0, r.bottom() - platz.bottom()));
  if (zuviel.isNull()) return;
  fenster_.move(std::max(platz.left(), r.left() - zuviel.x()), std::max(platz.top(), r.top() - zuviel.y()));
}

}  // namespace zav::fenster
