// Pictures of devices and of layouts, drawn from the catalogue: plates with their keys, LEDs and the sign of
// the kind.
#pragma once

#include <QPainter>
#include <QString>
#include <array>

namespace zav::fenster {

struct Apparatbild {
  struct Taste {
    QString text{};
    bool belegt = false;
  };
  int typ = 0;                    // kind of the catalogue, 0 = an empty place
  std::array<Taste, 8> tasten{};  // by key slot
  QString adresse{};
};

// Paints a device into a rectangle, in the colours of a wall plate: the same in light and dark themes.
void Apparat_malen(QPainter& p, const QRectF& r, const Apparatbild& bild);

// Paints the frame of a layout with its empty places.
void Layout_malen(QPainter& p, const QRectF& r, int nummer, const QColor& linie, const QColor& akzent);

}  // namespace zav::fenster
