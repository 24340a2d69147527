// The forms' colours and the program's own palette as Qt sees them.
#pragma once

#include <QColor>
#include <QPalette>
#include <QWidget>

#include "form/farbe.h"

namespace zav::fenster {

QColor Farbe_qt(Farbe f);
// Text on any colour of meaning: dark, in a dark theme too.
QColor Farbe_schrift();

// Background of a widget by the form's colour; Farbe::normal gives the widget its own look back.
void Einfaerben(QWidget& w, Farbe f);

// The program's own palette.
QPalette Palette(bool dunkel);
bool Ist_dunkel(const QPalette& p);

// Measures of the grid, in device-independent pixels.
inline constexpr int raster = 8;
inline constexpr int gruppenabstand = 16;

}  // namespace zav::fenster
