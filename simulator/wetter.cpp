#include "simulator/wetter.h"

#include <algorithm>
#include <cmath>

#include "simulator/hex.h"

namespace zav::simulator {

namespace {

std::string feld(double wert, int stellen) {
  const double groesster = stellen == 2 ? 0xFF : 0xFFFF;
  return hex(static_cast<std::uint64_t>(std::lround(std::clamp(wert, 0.0, groesster))), stellen);
}

}  // namespace

std::string Wetter_text(const Wetter& w) {
  if (w.station == Station::fehlt) return std::string(24, '0');
  if (w.station == Station::ohne_daten) return "8" + std::string(23, '0');
  std::string text = "1";
  text += w.regen ? '1' : '0';
  text += w.gueltig ? '8' : '0';
  text += "000";
  text += feld(w.aussen * 10 + 2730, 4) + feld(w.sued, 2) + feld(w.west, 2) + feld(w.ost, 2) +
          feld(w.licht, 2) + feld(w.innen, 2) + feld(w.wind * 10, 4);
  return text;
}

}  // namespace zav::simulator
