#include "form/oberflaeche.h"

#include <stdexcept>
#include <utility>

namespace zav {

namespace {
Oberflaeche* aktuelle = nullptr;
}

Oberflaeche& oberflaeche() {
  if (aktuelle == nullptr) throw std::logic_error("no surface in place");
  return *aktuelle;
}

Oberflaeche* Oberflaeche_setzen(Oberflaeche* o) {
  Melder_setzen(o);
  return std::exchange(aktuelle, o);
}

}  // namespace zav
