// Keeps a window on its screen while it grows by itself.
#pragma once

#include <QWidget>

namespace zav::fenster {

// A window whose contents want more room is moved up and left as far as its lower right corner, with the
// buttons, would leave the screen. The upper left corner never does.
class Schirmhalter final : public QObject {
 public:
  explicit Schirmhalter(QWidget& fenster) : QObject(&fenster), fenster_(fenster) {
    fenster.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* o, QEvent* e) override;

 private:
  void halten();
  QWidget& fenster_;
};

}  // namespace zav::fenster
