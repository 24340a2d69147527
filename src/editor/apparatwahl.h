// The pages to choose a kind of device from: those on the bus, and radio senders. A picture's number is its
// kind.
#pragma once

#include "editor/bilderseite.h"

namespace zav {

class Apparatwahl_Feller final : public Bilderseite {
 public:
  Apparatwahl_Feller();
};

class Apparatwahl_Enocean final : public Bilderseite {
 public:
  Apparatwahl_Enocean();
};

}  // namespace zav
