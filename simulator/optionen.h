// How a simulated master is set up, and the command line that says so.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "simulator/fehlerregel.h"

namespace zav::simulator {

struct Optionen {
  std::optional<int> tcp = 0;         // port on 127.0.0.1, 0 = any free one; nothing = no TCP
  bool pty = false;                   // a pseudo-terminal too
  std::string version = "REV 09.04";  // at most ten characters
  std::string speicher{};             // file that keeps the memory; "" = none
  std::vector<Fehlerregel> fehler{};
  long baud = 0;             // bits a second of both lines; 0 = as fast as it goes
  bool startladen = false;   // begins in the bootloader and stays there
  bool mitschreiben = true;  // keep messages, telegrams, events for mitschrift() and its like
  std::function<void(const std::string&)>
      melden{};  // German one-line reports, from the thread of the simulator
};

// What zavmaster's command line asks for. When it is wrong or --hilfe, nothing, and exit status and text
// stand in ergebnis.
struct Aufruf {
  std::optional<Optionen> optionen;
  int status = 0;    // 0 help, 2 wrong use
  std::string text;  // German
};
Aufruf Aufruf_lesen(const std::vector<std::string>& argumente);

}  // namespace zav::simulator
