// What the weather station reports, and how the master puts it into words of the line.
#pragma once

#include <string>

namespace zav::simulator {

enum class Station { fehlt, ohne_daten, da };

struct Wetter {
  Station station = Station::da;
  bool gueltig = true;  // false: the station calls its own values bad
  bool regen = false;
  double aussen = 12.5;  // °C
  double innen = 21;     // °C, whole degrees on the line
  int sued = 18;         // kLux
  int west = 7;          // kLux
  int ost = 31;          // kLux
  int licht = 240;       // Lux
  double wind = 3.4;     // m/s
};

// 24 characters: state, rain, quality, three unused, then hexadecimal: outside temperature in tenths above
// -273.0 °C (4), sun south, west, east, daylight, inside temperature (2 each), wind in tenths (4).
std::string Wetter_text(const Wetter& w);

}  // namespace zav::simulator
