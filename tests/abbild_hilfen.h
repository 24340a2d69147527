// The image of the open project, line by line, and whether a master holds it.
#pragma once

#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "platform/einstellungen.h"
#include "platform/uhrwerk.h"
#include "simulator/hex.h"
#include "simulator/simulator.h"
#include "transfer/plan.h"

namespace zav {

struct Bildzeile {
  std::string befehl;
  std::uint32_t von = 0;  // address of a window
  std::string ziffern;
};

// Of one seed, so that two images of a project are equal.
inline std::vector<Bildzeile> Bild(bool nur_geaenderte) {
  Zufall_saeen(7);
  std::istringstream text(Abbild(projekt, einstellungen, {.nur_geaenderte = nur_geaenderte}));
  std::vector<Bildzeile> zeilen;
  for (Bildzeile z; text >> z.befehl; zeilen.push_back(z)) {
    std::string bis;
    if (z.befehl == "W") text >> std::hex >> z.von >> bis;
    text >> z.ziffern;
  }
  return zeilen;
}

inline bool Haelt(const simulator::Simulator& sim, const Bildzeile& z) {
  if (z.befehl != "W") return sim.block(z.befehl) == z.ziffern;
  return simulator::hex(sim.speicher(z.von, z.ziffern.size() / 2)) == z.ziffern;
}

}  // namespace zav
