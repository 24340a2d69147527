// The installation editor, for the verbs that reach another window through it.
#pragma once

#include "arbeitsplatz.h"
#include "editor/einmask8.h"
#include "installateur.h"

namespace zav::beispiel {

// With the device on show; opens it where another window is open.
Einmask8& editor(const Apparat& a);

}  // namespace zav::beispiel
