// The program's icons: one family of two-tone line drawings on a grid of 24, drawn from paths, so that they
// are sharp at every scale and follow the light or dark palette.
#pragma once

#include <QIcon>
#include <QRectF>
#include <string>
#include <string_view>

class QPainter;

namespace zav::fenster {

// The icon of that name; an empty icon for an unknown one. "apparat-N" and "layout-N" are pictures of the
// catalogue. On a colour of meaning its lines are dark, as texts are. It follows a change of the palette;
// where it is kept as a pixmap, that must be asked for anew.
QIcon Symbolbild(const std::string& name, bool auf_farbe = false);
// Paints a symbol in two given tones; nothing for an unknown name.
void Symbol_malen(QPainter& p, const QRectF& r, std::string_view name, const QColor& linie,
                  const QColor& akzent);

}  // namespace zav::fenster
