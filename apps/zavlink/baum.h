// The building tree with search-as-you-type over it.
#pragma once

#include <QLineEdit>
#include <QTreeWidget>

#include "form/steuerelement.h"

namespace zav::fenster {

class Baumfeld final : public QWidget {
  Q_OBJECT
 public:
  Baumfeld(Baum& baum, QWidget* eltern);
  // Brings the widget to the state of the control.
  void auffrischen();

 private:
  void filtern(const QString& text);
  Baum& baum_;
  QLineEdit* suche_;
  QTreeWidget* zweige_;
};

}  // namespace zav::fenster
