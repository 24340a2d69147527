#include "zavlink/zellenfeld.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>
#include <QHelpEvent>
#include <QPointer>
#include <QToolTip>

#include "zavlink/qt_text.h"
#include "zavlink/rollen.h"

namespace zav::fenster {

namespace {

class Zelle final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  Zelle(Zellenfeld& feld, int i) : feld_(&feld), i_(i) {}

  bool isValid() const override { return feld_ != nullptr && i_ < feld_->zellenzahl(); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(feld_); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text t) const override {
    return t == QAccessible::Name && isValid() ? feld_->zelltext(i_) : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    const QRect r = isValid() ? feld_->zelle(i_).toRect() : QRect();
    return r.isEmpty() ? QRect() : QRect(feld_->mapToGlobal(r.topLeft()), r.size());
  }
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QAccessible::State state() const override {
    QAccessible::State z;
    if (!isValid()) return z;
    z.focusable = z.selectable = true;
    z.invisible = feld_->zelle(i_).isEmpty();
    z.disabled = !feld_->isEnabled();
    z.selected = feld_->zelle_gewaehlt(i_);
    z.focused = feld_->hasFocus() && feld_->zeiger() == i_;
    return z;
  }
  void* interface_cast(QAccessible::InterfaceType t) override {
    return t == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& tat) override {
    if (tat == pressAction() && isValid() && feld_->isEnabled()) feld_->zelle_nehmen(i_);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QPointer<Zellenfeld> feld_;
  const int i_;
};

class Feldzugang final : public QAccessibleWidget {
 public:
  explicit Feldzugang(Zellenfeld* feld) : QAccessibleWidget(feld, QAccessible::List) {}
  ~Feldzugang() override {
    for (const QAccessible::Id id : std::as_const(zellen_)) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return feld().zellenzahl(); }
  QAccessibleInterface* child(int i) const override {
    if (i < 0 || i >= childCount()) return nullptr;
    auto stelle = zellen_.constFind(i);
    if (stelle == zellen_.constEnd()) {
      stelle = zellen_.insert(i, QAccessible::registerAccessibleInterface(new Zelle(feld(), i)));
    }
    return QAccessible::accessibleInterface(*stelle);
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const QPoint p = feld().mapFromGlobal(QPoint(x, y));
    for (int i = 0; i < childCount(); ++i) {
      if (feld().zelle(i).contains(p)) return child(i);
    }
    return nullptr;
  }
  int indexOfChild(const QAccessibleInterface* zelle) const override {
    return zellen_.key(QAccessible::uniqueId(const_cast<QAccessibleInterface*>(zelle)), -1);
  }
  QAccessibleInterface* focusChild() const override {
    return feld().hasFocus() ? child(feld().zeiger()) : nullptr;
  }

 private:
  Zellenfeld& feld() const { return *static_cast<Zellenfeld*>(widget()); }
  mutable QHash<int, QAccessible::Id> zellen_;  // those that were asked for
};

QAccessibleInterface* Zugang_bauen(const QString&, QObject* o) {
  auto* const feld = qobject_cast<Zellenfeld*>(o);
  return feld == nullptr ? nullptr : new Feldzugang(feld);
}

}  // namespace

Zellenfeld::Zellenfeld(QWidget* eltern) : QWidget(eltern) {
  static const bool angemeldet = (QAccessible::installFactory(Zugang_bauen), true);
  Q_UNUSED(angemeldet);
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

int Zellenfeld::zelle_bei(QPointF p) const {
  for (int i = 0; i < zellenzahl(); ++i) {
    if (zelle(i).contains(p)) return i;
  }
  return -1;
}

void Zellenfeld::mousePressEvent(QMouseEvent* e) {
  if (e->button() == Qt::LeftButton) zelle_nehmen(zelle_bei(e->position()));
}

void Zellenfeld::focusOutEvent(QFocusEvent* e) {
  QWidget::focusOutEvent(e);
  update();
}

bool Zellenfeld::event(QEvent* e) {
  if (e->type() != QEvent::ToolTip) return QWidget::event(e);
  auto* const hilfe = static_cast<QHelpEvent*>(e);
  const int i = zelle_bei(hilfe->pos());
  if (i < 0) QToolTip::hideText();
  else QToolTip::showText(hilfe->globalPos(), Tipp(tipptext(i)), this, zelle(i).toRect());
  return true;
}

void Zellenfeld::zeiger_melden() {
  const int i = zeiger();
  if (i < 0 || i >= zellenzahl()) return;
  setAccessibleDescription(zelltext(i));
  if (hasFocus()) In_sicht_bringen(*this, zelle(i).toRect());
  if (!hasFocus() || !QAccessible::isActive()) return;
  QAccessibleEvent hier(this, QAccessible::Focus);
  hier.setChild(i);
  QAccessible::updateAccessibility(&hier);
}

}  // namespace zav::fenster
