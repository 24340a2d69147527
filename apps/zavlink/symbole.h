// The program's icons: one family of two-tone line drawings on a grid of 24, drawn from paths, so that they are
// sharp at every scale and follow the light or dark palette.
#pragma once

#include <QIcon>
#include <string>

namespace zav::fenster {

// The icon of that name; an empty icon for an unknown one.
QIcon Symbolbild(const std::string& name);

}  // namespace zav::fenster
