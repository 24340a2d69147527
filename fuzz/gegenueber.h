// In place of the sockets: the other end of the line in this process. A target sets `gegenueber` and fills
// `da` with what is on its way to the tool.
#pragma once

#include <string>
#include <string_view>

namespace zav {

struct Gegenueber {
  virtual ~Gegenueber() = default;
  virtual void hoeren(std::string_view bytes) = 0;
  // The tool opens the line anew: what was on its way is gone.
  virtual void geoeffnet() { da.clear(); }

  std::string da;
  bool weg = false;
};

extern Gegenueber* gegenueber;

}  // namespace zav
