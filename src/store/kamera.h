// A camera as one line of the project file: fourteen fields, each closed by its marker "@01#" to "@14#".
#pragma once

#include <array>

#include "store/projekt.h"

namespace zav {

inline constexpr const char* keine_kamera = "X";  // line of a camera that is not defined

// The fields of a camera in the order of their markers. Never renumber.
inline constexpr std::array kamerafelder{
    &Projekt::Kamera_titel,       &Projekt::Kamera_untertitel,  &Projekt::Kamera_ip,
    &Projekt::Kamera_port,        &Projekt::Kamera_controlport, &Projekt::Kamera_stream_von,
    &Projekt::Kamera_modell,      &Projekt::Kamera_res8,        &Projekt::Kamera_aktiv,
    &Projekt::Kamera_usecase,     &Projekt::Kamera_taste1,      &Projekt::Kamera_taste2,
    &Projekt::Kamera_tastentext1, &Projekt::Kamera_tastentext2};

// Cuts the lines of the four cameras into the arrays Kamera_*. A line "X" is no camera; a field whose marker
// is missing keeps its value.
void Kamera_zerlegen(Projekt& p);

// Builds the line of every defined camera from its fields: one whose line is not "X", or with a field that
// holds more than "" or "0".
void Kamera_zusammensetzen(Projekt& p);

}  // namespace zav
