// A map of cells to choose from by mouse or keyboard. The cells' look is the subclass's; the plain map shows
// their texts.
#pragma once

#include <QWidget>

#include "form/steuerelement.h"

namespace zav::fenster {

class Kartenfeld : public QWidget {
  Q_OBJECT
 public:
  Kartenfeld(Auswahl& auswahl, QWidget* eltern);
  void auffrischen();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  // The cell under the pointer or the keyboard, -1 = none.
  void gezeigt(int zelle);

 protected:
  virtual int spalten() const;
  virtual QSize zellmass() const;
  // One cell within its rectangle; frame and colour of meaning are drawn already.
  virtual void zelle_malen(QPainter& p, const QRectF& r, int i);

  const Auswahl& auswahl() const { return auswahl_; }
  // Text colour of a cell, readable on its background.
  QColor schriftfarbe(int i) const;

  void paintEvent(QPaintEvent* e) override;
  void mousePressEvent(QMouseEvent* e) override;
  void mouseMoveEvent(QMouseEvent* e) override;
  void leaveEvent(QEvent* e) override;
  void keyPressEvent(QKeyEvent* e) override;
  void focusInEvent(QFocusEvent* e) override;
  void focusOutEvent(QFocusEvent* e) override;
  bool event(QEvent* e) override;

 private:
  int zeilen() const;
  QRectF zelle(int i) const;
  int zelle_bei(QPointF p) const;  // -1: none
  void nehmen(int i);
  void zeigen(int i);

  Auswahl& auswahl_;
  int zeiger_ = 0;  // cell of the keyboard
  int ueber_ = -1;  // cell under the pointer
};

}  // namespace zav::fenster
