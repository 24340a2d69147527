// The tree of a building.
#pragma once

#include <QTreeWidget>
#include <vector>

#include "form/steuerelement.h"

namespace zav::fenster {

class Baumfeld final : public QTreeWidget {
  Q_OBJECT
 public:
  Baumfeld(Baum& baum, QWidget* eltern);
  // Brings the widget to the state of the control.
  void auffrischen();
  QSize sizeHint() const override;

 private:
  bool gleiche_knoten() const;
  void neu_fuellen();
  Baum& baum_;
  std::vector<Baum::Knoten> gezeigt_;
  std::vector<QTreeWidgetItem*> zweige_;
};

}  // namespace zav::fenster
