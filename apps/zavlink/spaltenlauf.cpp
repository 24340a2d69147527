#include "zavlink/spaltenlauf.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

namespace zav::fenster {

void Spaltenlauf::anfuegen(QWidget* w) {
  if (qobject_cast<QLineEdit*>(w) == nullptr && qobject_cast<QPushButton*>(w) == nullptr &&
      qobject_cast<QCheckBox*>(w) == nullptr) {
    return;
  }
  zellen_.emplace_back(w);
  w->installEventFilter(this);
}

bool Spaltenlauf::eventFilter(QObject* o, QEvent* e) {
  if (e->type() != QEvent::KeyPress) return false;
  const auto* const taste = static_cast<QKeyEvent*>(e);
  const bool ab = taste->key() == Qt::Key_Down;
  if ((!ab && taste->key() != Qt::Key_Up) || taste->modifiers() != Qt::NoModifier) return false;
  const auto frei = [](const QPointer<QWidget>& w) {
    return w != nullptr && w->isVisible() && w->isEnabled() && (w->focusPolicy() & Qt::TabFocus) != 0;
  };
  const auto hier = std::ranges::find(zellen_, o, [](const QPointer<QWidget>& w) { return w.data(); });
  if (hier == zellen_.end()) return false;
  // By Tab: what stands in a field is selected, ready to be typed over.
  if (ab) {
    const auto ziel = std::find_if(hier + 1, zellen_.end(), frei);
    if (ziel != zellen_.end()) (*ziel)->setFocus(Qt::TabFocusReason);
  } else {
    const auto ziel = std::find_if(std::make_reverse_iterator(hier), zellen_.rend(), frei);
    if (ziel != zellen_.rend()) (*ziel)->setFocus(Qt::BacktabFocusReason);
  }
  return true;
}

}  // namespace zav::fenster
