#include "zavlink/zugang.h"

#include <QAccessibleWidget>
#include <QVariant>

namespace zav::fenster {

namespace {

constexpr const char* merkmal = "zugangsrolle";

class Gemaltes final : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;
};

QAccessibleInterface* Fabrik(const QString& /*klasse*/, QObject* o) {
  auto* const w = qobject_cast<QWidget*>(o);
  const QVariant rolle = w != nullptr ? w->property(merkmal) : QVariant();
  return rolle.isValid() ? new Gemaltes(w, static_cast<QAccessible::Role>(rolle.toInt())) : nullptr;
}

}  // namespace

void Rolle_setzen(QWidget& w, QAccessible::Role rolle) {
  [[maybe_unused]] static const bool bestellt = [] {
    QAccessible::installFactory(Fabrik);
    return true;
  }();
  w.setProperty(merkmal, static_cast<int>(rolle));
}

void Beschreiben(QWidget& w, const QString& text) {
  if (w.accessibleDescription() == text) return;
  w.setAccessibleDescription(text);
  QAccessibleEvent neu(&w, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&neu);
}

}  // namespace zav::fenster
