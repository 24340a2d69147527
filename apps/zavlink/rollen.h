// Parts of a window that scroll where the screen is too small for them.
#pragma once

#include <QBoxLayout>
#include <QScrollArea>

namespace zav::fenster {

// Lets a part scroll in its place.
QScrollArea& Rollen_lassen(QBoxLayout& l, QWidget& teil);
// Scrolls what lies around a place of a widget until it is in sight.
void In_sicht_bringen(const QWidget& w, const QRect& stelle);

}  // namespace zav::fenster
