// Who holds which bus address.
#pragma once

#include <array>

#include "store/projekt.h"

namespace zav {

// True for a slot that holds a Kombination.
bool Kombination_belegt(int k);
// The first slot without one; `kombinationen` when there is none.
int Kombination_erste_freie();

// The 256 addresses as they are taken now. Addresses that thermostats leave free are freed after all devices
// are drawn in, so one stays free even where another device has already moved in.
class Adressplan {
 public:
  Adressplan();
  bool belegt(int adresse) const { return apparat(adresse) >= 0; }
  // The device (16 x Kombination + place) that holds the address, -1 = free. Of two the later one.
  int apparat(int adresse) const { return apparate_.at(static_cast<std::size_t>(adresse)); }

 private:
  std::array<int, adressen> apparate_;
};

// Is the address in the run of another device than d? The free ones of thermostats do not count as theirs.
bool Adresse_fremd(int adresse, int d);

}  // namespace zav
