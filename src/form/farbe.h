// The colours of all editors, by what they mean. Text on them is always dark.
#pragma once

#include <cstdint>

namespace zav {

enum class Farbe : std::uint8_t {
  normal,   // whatever the front end's own colour is
  belegt,   // in use: a key, a group, an address that holds something; also a field that failed a check
  frei,     // free to take; also a field that passed a check
  aktuell,  // the current one; also a field being complained about
  uhr1,     // Schaltuhr 1
  uhr2,     // Schaltuhr 2
};

struct Rgb {
  std::uint8_t r, g, b;
};

// Value of a colour; Farbe::normal has none and gives white.
constexpr Rgb Farbwert(Farbe f) {
  switch (f) {
    case Farbe::belegt: return {255, 192, 192};
    case Farbe::frei: return {192, 255, 192};
    case Farbe::aktuell:
    case Farbe::uhr1: return {255, 255, 0};
    case Farbe::uhr2: return {0, 255, 255};
    case Farbe::normal: break;
  }
  return {255, 255, 255};
}

}  // namespace zav
