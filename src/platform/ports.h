// Which device file a COM number stands for, and what serial devices there are.
#pragma once

#include <string>
#include <vector>

namespace zav {

struct Serielles_geraet {
  std::string datei;         // "/dev/ttyUSB0"
  std::string beschreibung;  // as the device names itself, "" when it does not
};

// The serial devices of this computer: USB adapters, USB modems, then built-in ports, each kind by number.
std::vector<Serielles_geraet> Serielle_geraete();

// Device file of port 0 to 7 (COM 1 to 8): the setting com1 to com8 where it is filled, else the n-th of the
// devices present. Port sio_direkt gives einstellungen.Com_geraet. "" when there is none.
std::string Portgeraet(int port);

}  // namespace zav
