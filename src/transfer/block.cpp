#include "transfer/block.h"

#include <array>
#include <cstring>

namespace zav {

namespace {

using Ziffernpaar = std::array<char, 2>;

constexpr std::array<Ziffernpaar, 256> ziffernpaare = [] {
  constexpr char ziffern[] = "0123456789ABCDEF";
  std::array<Ziffernpaar, 256> tafel{};
  for (std::size_t i = 0; i < tafel.size(); ++i) tafel[i] = {ziffern[i >> 4], ziffern[i & 15]};
  return tafel;
}();

}  // namespace

void Hex_anfuegen(std::span<const u8> bytes, std::string& ziel) {
  const std::size_t anfang = ziel.size();
  ziel.resize(anfang + 2 * bytes.size());
  char* p = ziel.data() + anfang;
  for (const u8 b : bytes) {
    std::memcpy(p, ziffernpaare[b].data(), 2);
    p += 2;
  }
}

}  // namespace zav
