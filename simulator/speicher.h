// The master's data memory: 4096 pages of 528 bytes. An address holds the page in its upper bits and the
// place within the page in its low ten, so each page occupies 1024 addresses of which the last 496 do not
// exist.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>

#include "simulator/hex.h"

namespace zav::simulator {

class Speicher {
 public:
  static constexpr std::uint32_t seitengroesse = 528;
  static constexpr std::uint32_t seitenabstand = 1024;
  static constexpr std::uint32_t seitenzahl = 4096;
  static constexpr std::uint32_t adressen = seitenzahl * seitenabstand;

  using Seite = std::array<std::uint8_t, seitengroesse>;

  // n bytes from adresse on. Erased bytes, and addresses that do not exist, read as 0.
  Bytes lesen(std::uint32_t adresse, std::size_t n) const;
  // Bytes at addresses that do not exist are dropped.
  void schreiben(std::uint32_t adresse, std::span<const std::uint8_t> bytes);
  void loeschen();

  // The page when anything was ever written to it, else nullptr.
  const Seite* seite(std::uint32_t nummer) const { return seiten[nummer].get(); }

 private:
  std::array<std::unique_ptr<Seite>, seitenzahl> seiten;
};

}  // namespace zav::simulator
