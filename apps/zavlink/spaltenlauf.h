// Arrow keys in tables of fields: up and down stay in the column.
#pragma once

#include <QPointer>
#include <QWidget>
#include <vector>

namespace zav::fenster {

// The fields, boxes and keys of one column of a grid, from above. Up and down lead to the next of them that
// can take the keyboard; at the ends nothing happens.
class Spaltenlauf final : public QObject {
 public:
  explicit Spaltenlauf(QObject* eltern) : QObject(eltern) {}
  // A widget that keeps its arrow keys for itself is left out.
  void anfuegen(QWidget* w);

 protected:
  bool eventFilter(QObject* o, QEvent* e) override;

 private:
  std::vector<QPointer<QWidget>> zellen_;
};

}  // namespace zav::fenster
