// A camera as one line of the project file: fourteen fields, each closed by its marker "@01#" to "@14#".
#pragma once

#include "store/projekt.h"

namespace zav {

// Cuts the lines of the four cameras into the arrays Kamera_*. A line "X" is no camera; a field whose marker
// is missing keeps its value.
void Kamera_zerlegen(Projekt& p);

// Builds the line of every defined camera from its fields: one whose line is not "X", or with a field that
// holds more than "" or "0".
void Kamera_zusammensetzen(Projekt& p);

}  // namespace zav
