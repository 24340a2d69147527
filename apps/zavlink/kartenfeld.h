// A map of cells to choose from by mouse or keyboard. The cells' look is the subclass's; the plain map shows
// their texts.
#pragma once

#include "zavlink/renderer.h"
#include "zavlink/zellenfeld.h"

namespace zav::fenster {

class Kartenfeld : public Zellenfeld {
  Q_OBJECT
 public:
  Kartenfeld(Auswahl& auswahl, QWidget* eltern);
  // Keeps the map at the state of its control.
  void binden(Auffrischer& auffrischer);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  const Auswahl& auswahl() const { return auswahl_; }
  int zellenzahl() const override { return auswahl_.anzahl(); }
  QRectF zelle(int i) const override;
  QString zelltext(int i) const override;
  bool zelle_gewaehlt(int i) const override { return i == auswahl_.position(); }
  int zeiger() const override { return zeiger_; }
  void zelle_nehmen(int i) override;
  // What the line below the map tells about a cell.
  virtual QString zeilentext(int i) const { return zelltext(i); }

 Q_SIGNALS:
  // The cell under the pointer or the keyboard, -1 = none.
  void gezeigt(int zelle);

 protected:
  virtual int spalten() const;
  virtual QSize zellmass() const;
  // One cell within its rectangle, and what lies under it: the colour of meaning.
  virtual void zelle_malen(QPainter& p, const QRectF& r, int i);
  virtual void grund_malen(QPainter& p, const QRectF& r, int i);
  // Rings around the cells of the choice, of the pointer and of the keyboard.
  virtual void ringe_malen(QPainter& p);
  void ring_malen(QPainter& p, const QRectF& r, const QColor& farbe, double staerke) const;

  int ueber() const { return ueber_; }  // the cell under the pointer, -1 = none
  // Text colour of a cell, readable on its background.
  QColor schriftfarbe(int i) const;

  void paintEvent(QPaintEvent* e) override;
  void mouseMoveEvent(QMouseEvent* e) override;
  void leaveEvent(QEvent* e) override;
  void keyPressEvent(QKeyEvent* e) override;
  void focusInEvent(QFocusEvent* e) override;

 private:
  int zeilen() const;
  void zeigen(int i);
  void auffrischen();

  Auswahl& auswahl_;
  int zeiger_ = 0;
  int gezeigte_ = -1;  // position that the widget has been brought to
  int ueber_ = -1;
};

// A map, bound, with a line below it that tells about the cell in hand; the map is added to `ergebnis`.
QWidget* Karte_mit_zeile(Kartenfeld& karte, Auffrischer& auffrischer, Gebautes& ergebnis);

}  // namespace zav::fenster
