// The simulated master of one call: serves on loopback and makes itself the interface of this run.
#pragma once

#include <memory>

namespace zav {

class Simulierter_master {
 public:
  // Throws std::runtime_error when no port can be opened.
  Simulierter_master();
  ~Simulierter_master();

 private:
  struct Teile;
  std::unique_ptr<Teile> teile_;
};

}  // namespace zav
