// A map of cells: 16 x 16 addresses, or pages of pictures to choose from. The keyboard moves over it.
#pragma once

#include <QWidget>

#include "form/steuerelement.h"

namespace zav::fenster {

class Kartenfeld final : public QWidget {
  Q_OBJECT
 public:
  Kartenfeld(Auswahl& auswahl, QWidget* eltern);
  void auffrischen();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* e) override;
  void mousePressEvent(QMouseEvent* e) override;
  void mouseMoveEvent(QMouseEvent* e) override;
  void keyPressEvent(QKeyEvent* e) override;
  void focusInEvent(QFocusEvent* e) override;
  bool event(QEvent* e) override;

 private:
  int spalten() const;
  int zeilen() const;
  QRectF zelle(int i) const;
  int zelle_bei(QPointF p) const;  // -1: none
  void nehmen(int i);

  Auswahl& auswahl_;
  int zeiger_ = 0;  // cell of the keyboard
};

}  // namespace zav::fenster
