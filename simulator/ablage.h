// What the master keeps without power, and the file that holds it across runs.
//
// The file is text, one line each, ended by LF:
//   ZAVmaster-Speicher 1
//   S <page, 3 digits> <528 bytes>      a page that was written; a page without a line is erased
//   B <command> <digits>                last parameter block, LS flags, or clock setting, by command letters
//   E <receiver, 1 digit> <256 bytes>   table of a radio receiver that is not all zero
//   Ende <sum of all characters above modulo 2^32, 8 digits>
#pragma once

#include <array>
#include <map>
#include <string>

#include "simulator/empfaenger.h"
#include "simulator/speicher.h"

namespace zav::simulator {

struct Bestand {
  Speicher speicher;
  std::map<std::string, std::string> bloecke;  // digits last received, by command
  std::array<Empfaenger, Empfaenger::anzahl> empfaenger;

  // Erases what an initialised master no longer holds: memory and parameter blocks. The receivers have
  // theirs.
  void loeschen();
};

// Replaces the content of b by the file's. A file that is missing or empty leaves b alone.
// Throws std::runtime_error with a German text when the file cannot be read or is damaged; b is then
// unchanged.
void Bestand_laden(const std::string& datei, Bestand& b);

// Writes by way of a sibling file and one rename. Throws std::runtime_error with a German text; the file is
// then the old one.
void Bestand_speichern(const std::string& datei, const Bestand& b);

}  // namespace zav::simulator
