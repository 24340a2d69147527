// Every window of the program over the loaded project, in a state worth seeing: for the pictures of the manual and for
// the test that walks all forms.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "form/formular.h"

namespace zav::fenster {

struct Schaustueck {
  std::string name;  // of the picture
  std::function<std::unique_ptr<Formular>()> bauen;
};

// Forms read the project when they are built: load it before.
std::vector<Schaustueck> Formenschau();

}  // namespace zav::fenster
