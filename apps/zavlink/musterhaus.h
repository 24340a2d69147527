// The house in which windows are shown: the loaded project with its file, the last files beside it, a day,
// and a simulated master that holds the project and in whose rooms somebody presses keys. The same on every
// computer.
#pragma once

#include <QTimer>
#include <memory>

#include "simulator/simulator.h"

namespace zav::fenster {

class Musterhaus {
 public:
  // Puts itself into project name, settings and date. Keys are pressed as long as the event loop turns.
  Musterhaus();

 private:
  void taste_druecken();

  std::unique_ptr<simulator::Simulator> master_;
  QTimer bewohner_;
  int taste_ = 0;
};

// The stamp by which a master knows a project, as it stands in its memory.
simulator::Bytes Kennung_bytes();
inline constexpr std::uint32_t kennung_adresse = 0x800;

// Makes a running simulated master the interface of this process.
void Verbinden(const simulator::Simulator& master);

}  // namespace zav::fenster
