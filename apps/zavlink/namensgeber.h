// What screen readers say of controls that have no caption of their own.
#pragma once

#include "zavlink/renderer.h"

namespace zav::fenster {

// Names to be read aloud for controls without a caption: the label or captioned control before them in their
// row, the heading of their column, else the title of their group. They follow when a label's text changes.
// `titel` is the window's, for what has nothing of that.
void Namen_geben(const Anordnung& a, Auffrischer& auffrischer, const Gebautes& g, const QString& titel);

}  // namespace zav::fenster
