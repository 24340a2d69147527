// A radio receiver on the bus: a table of 256 bytes (32 senders of 8 bytes), written in four pages of 64
// bytes by telegrams of two letters, and the last radio telegram that it heard.
//
//   letters  length  data behind the letters         does
//   A C      2                                       prepares the page buffer
//   A P      6       four table bytes                puts them into the buffer
//   A T      5       offset (2), length of page (1)  writes the buffer to the page
//   A I      2                                       takes up the table that was written
//   A t      5       offset, length of page          makes the page's checksum the answer
//   A R      2                                       sends the answer to the master
//   A W      2                                       answers ID (4) and level (2) of what was heard last
//   A V      2                                       answers version and data (6)
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "simulator/hex.h"

namespace zav::simulator {

struct Telegramm {
  std::uint32_t adresse = 0;  // 11 bits
  std::uint8_t laenge = 0;    // bytes of data that count, 1 to 8
  std::array<std::uint8_t, 8> daten{};

  bool operator==(const Telegramm&) const = default;
};

class Empfaenger {
 public:
  static constexpr int anzahl = 16;
  static constexpr std::size_t tabellengroesse = 256, seitengroesse = 64;
  using Tabelle = std::array<std::uint8_t, tabellengroesse>;

  // Bus address of receiver r: 0x0101 for 0 to 0x011F for 15.
  static constexpr std::uint32_t busadresse(int r) { return 0x101 + 2 * static_cast<std::uint32_t>(r); }

  // Takes a telegram; gives what the receiver sends back at once. Telegrams that it does not know, or whose
  // length is not the one of its letters, leave it as it is.
  std::optional<Telegramm> empfangen(const Telegramm& t);

  // A radio telegram of sender id. pegel as the tool shows it: 0 best to 199 weakest.
  void funk(std::uint32_t id, int pegel);

  const Tabelle& tabelle() const { return gueltig; }
  void seite_setzen(std::size_t seite, std::span<const std::uint8_t> bytes);
  void tabelle_setzen(const Tabelle& t) { geschrieben = gueltig = t; }

  std::array<bool, tabellengroesse / seitengroesse>
      seite_defekt{};  // true: what is written to this page does not hold

 private:
  Tabelle geschrieben{}, gueltig{};
  Bytes puffer;
  std::array<std::uint8_t, 6> antwort{};
  std::array<std::uint8_t, 6> gehoert{0, 0, 0, 0, 0xFF, 0xFF};  // ID, level word; FFFF = nothing heard yet
};

}  // namespace zav::simulator
