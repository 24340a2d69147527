// A pseudo-terminal that behaves like a serial adapter: raw from the start, alive while nobody has it open,
// and what arrives with nobody listening is lost.
#pragma once

#include <string>

#include "simulator/fd.h"

namespace zav::simulator {

class Pseudoterminal {
 public:
  // Makes the device. The descriptor of the master's side goes to the caller. Throws std::runtime_error
  // (German).
  Fd oeffnen();
  void schliessen();

  const std::string& name() const { return geraet; }
  // Readable when somebody has opened or closed the device; -1 when the system cannot tell.
  int melder() const { return wache.nummer(); }

  // Asks what has happened since the last time. True when the last user has gone or a first one has come;
  // bytes that nobody has read are gone then.
  bool benutzer_gewechselt();

 private:
  Fd benutzerseite;  // held open, so that the settings stay and the other side never hangs up
  Fd wache;
  int benutzer = 0;  // that have the device open
  std::string geraet;
};

}  // namespace zav::simulator
