// Which device file a COM number stands for, and what serial devices there are.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace zav {

struct Serielles_geraet {
  std::string datei;         // "/dev/ttyUSB0"
  std::string beschreibung;  // as the device names itself, "" when it does not
  bool zugaenglich = false;  // this user may read and write it

  bool operator==(const Serielles_geraet&) const = default;
};

// The serial devices of this computer: USB adapters, USB modems, then built-in ports, each kind by number.
std::vector<Serielles_geraet> Serielle_geraete();

// How the device is called in a list: its own description, else what its name tells.
std::string Bezeichnung(const Serielles_geraet& g);

// Device file of port 0 to 7 (COM 1 to 8): the setting com1 to com8 where it is filled, else the n-th of the
// devices present. Port sio_direkt gives einstellungen.Com_geraet. "" when there is none.
std::string Portgeraet(int port);

// What stands behind COM 1 to 8, in that order; `datei` is "" where nothing does.
std::array<Serielles_geraet, 8> Comports();

// The port 0 to 7 that stands for a device file; -1 when none does.
int Portnummer(const std::string& datei);

// Sees from its construction on that device files come, go or are given their rights.
class Geraetewache {
 public:
  Geraetewache();
  ~Geraetewache();
  Geraetewache(const Geraetewache&) = delete;
  Geraetewache& operator=(const Geraetewache&) = delete;

  // Waits in the kernel for the next change, at most ms milliseconds. False when none came.
  bool Warten(int ms) const;

 private:
  int fd_;  // negative where the system cannot watch: then every wait lasts its full time
};

// Where device files are looked for, "/dev" unless a test lends another folder.
void Geraeteordner_setzen(const std::string& ordner);

}  // namespace zav
