// The device as a whole: master and bootloader behind the same lines, and what the two of them have to say
// without being asked.
#pragma once

#include <string>

#include "simulator/master.h"
#include "simulator/startlader.h"

namespace zav::simulator {

class Geraet {
 public:
  explicit Geraet(std::string version) : master(std::move(version)) {}

  // One byte of a line at time jetzt (s).
  void empfangen(Zustand& z, char c, double jetzt, Ausgabe& aus);
  // Power off and on: the bootloader comes first. bleiben: it waits for ever.
  void einschalten(bool bleiben, double jetzt);

  double naechste() const { return lader.naechste(); }
  void zeit(double jetzt);

  Master master;
  Startlader lader;
  std::string an_alle;  // text for every line; whoever sends it clears it
};

}  // namespace zav::simulator
