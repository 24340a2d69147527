// Programming the radio receivers: their tables as bytes, and the run that writes and checks them.
//
// A receiver's table has 32 entries of 8 bytes, written in four pages of 64 bytes. An entry as digits:
//
//   1 to 8    ID of the sender
//   9, 10     first bus address of the device
//   11, 12    low byte of the sender's parameter
//   13 to 16  "0000"
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "store/projekt.h"

namespace zav {

inline constexpr std::size_t empfaengerseiten = 4;

struct Empfaengertabelle {
  int nummer = 0;                                           // of the receiver
  std::string text{};                                       // 512 digits
  std::array<std::string, empfaengerseiten> pruefsummen{};  // of the pages: sum of the bytes, four digits
};

struct Empfaengertabellen {
  std::vector<Empfaengertabelle> tabellen;
  std::string mangel;  // German sentence why a table cannot be built, "" when all could
};

// A receiver is built in, and flagged or asked for with all.
bool Enocean_zu_programmieren(const Projekt& p, int r, bool alle);

// Tables of the receivers that are to be programmed.
Empfaengertabellen Enocean_tabellen(const Projekt& p, bool alle);

// What a run reports on its way.
class Enocean_anzeige {
 public:
  virtual ~Enocean_anzeige() = default;
  virtual void Meldung_zeigen(const std::string& /*text*/) {}
  virtual void Fortschritt_zeigen(double /*prozent*/) {}
};

enum class Enocean_ergebnis {
  aktualisiert,
  pruefsumme_falsch,  // written to the end, but a page did not hold what it should
  gescheitert,  // the tables could not be built, or the line failed: receivers not checked keep their flags
};

// Writes the tables of the project's receivers, has them taken up, and checks every page; clears the flag of
// each receiver behind its check. Every outcome has shown its box.
Enocean_ergebnis Enocean_programmieren(bool alle, Enocean_anzeige& anzeige);

}  // namespace zav
