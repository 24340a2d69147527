// A painted widget of cells to move over and to take: what screen readers are told of them, cell by cell.
#pragma once

#include <QWidget>

namespace zav::fenster {

class Zellenfeld : public QWidget {
  Q_OBJECT
 public:
  explicit Zellenfeld(QWidget* eltern);

  // Cells are counted from 0; one that is not there has an empty place.
  virtual int zellenzahl() const = 0;
  virtual QRectF zelle(int i) const = 0;
  virtual QString zelltext(int i) const = 0;
  virtual bool zelle_gewaehlt(int i) const = 0;
  // The cell of the keyboard, -1 = none.
  virtual int zeiger() const = 0;
  // What a click on the cell does; -1: beside all cells.
  virtual void zelle_nehmen(int i) = 0;
  // What the tip over the cell tells.
  virtual QString tipptext(int i) const { return zelltext(i); }

 protected:
  int zelle_bei(QPointF p) const;  // -1: none
  // Says where the keyboard has come to: after every step, and when the focus comes.
  void zeiger_melden();

  void mousePressEvent(QMouseEvent* e) override;
  void focusOutEvent(QFocusEvent* e) override;
  bool event(QEvent* e) override;
};

}  // namespace zav::fenster
