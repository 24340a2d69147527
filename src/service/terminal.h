// The live view of the bus: the listing of all participants after a restart of the master, and the log of
// every input event as it happens. Lines are the master's own and are shown as they come.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "basis/feld.h"

namespace zav {

enum class Terminalmodus { protokoll = 0, liste = 1 };

class Terminalanzeige {
 public:
  virtual ~Terminalanzeige() = default;

  // Text of the program to append: headings, help, the reply to the handshake. With its line ends.
  virtual void Text_zeigen(const std::string& text) = 0;
  // A line of the master that has passed, with its stamps, without line end.
  virtual void Zeile_zeigen(const std::string& zeile) = 0;
};

enum class Terminalende {
  verlassen,        // sitzung.Abbruch
  nicht_geoeffnet,  // box
  abgelehnt,        // the master did not answer "F00"; the reason has been shown
  leitung_weg,      // the line has broken down; a line has told of it
};

class Terminal {
 public:
  static constexpr std::size_t filter_anzahl = 8;

  explicit Terminal(Terminalanzeige& anzeige) : anzeige_(anzeige) {}

  // Looked at with every line: they may change while the terminal runs.
  std::array<str, filter_anzahl> Filter;  // pass criteria; with none filled every line passes
  bool Check1 = false;                    // add the computer's time
  bool Check2 = false;                    // add the computer's date

  // Runs until sitzung.Abbruch is 1, which a handler sets in a turn of the front end. Waits in the kernel.
  Terminalende Terminal_lauf(Terminalmodus modus);

  // Whether a line passes: it holds at least one of the filled criteria, letter for letter.
  bool Passiert(std::string_view zeile) const;

 private:
  Terminalende Verbunden(Terminalmodus modus);
  void Zeile_fertig();
  std::string Stempel() const;

  Terminalanzeige& anzeige_;
  std::string zeile_;  // being received, in the line's code page
};

}  // namespace zav
