// The master's bootloader: a prompt of plain lines and single letters. It prompts once a second until it
// hears something; after a power-on that nobody takes up it starts the master by itself.
//
//   "a"  erases the operating system, then prompts again
//   "b"  receives S-records, each checked by its own sum: "." good, "?" bad; a closing record brings the
//   prompt back
//   "*"  starts the master, when there is an operating system
#pragma once

#include <cstddef>
#include <limits>
#include <string>

namespace zav::simulator {

struct Firmware {
  std::size_t saetze = 0;  // records received since "b", bad ones included
  std::size_t falsche = 0;
  std::size_t bytes = 0;  // data bytes of good records
  bool gueltig = true;    // the master can be started
};

class Startlader {
 public:
  static constexpr double nie = std::numeric_limits<double>::infinity();

  // Takes over at time jetzt (s). bleiben: wait for ever, else start the master after a few prompts without
  // an answer.
  void einschalten(bool bleiben, double jetzt);
  bool laeuft() const { return lage != Lage::aus; }

  // One byte at time jetzt; what all lines shall see is appended to aus. Ends (laeuft() false) with "*".
  void empfangen(char c, double jetzt, std::string& aus);
  // Time of the next thing that happens by itself.
  double naechste() const { return wecker; }
  void zeit(double jetzt, std::string& aus);

  Firmware firmware;

 private:
  enum class Lage { aus, wirbt, wartet, loescht, empfaengt };

  void satz_nehmen(std::string& aus);

  Lage lage = Lage::aus;
  double wecker = nie;
  int aufrufe_noch = 0;  // prompts until the master starts by itself; 0 = never
  std::string satz;
};

}  // namespace zav::simulator
