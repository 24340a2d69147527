#include "transfer/block.h"

namespace zav {

namespace {

constexpr char Ziffer(unsigned n) { return static_cast<char>('0' + n + (n > 9) * ('A' - '0' - 10)); }

}  // namespace

// Plain arithmetic without a table: the compiler turns the loop into vector code.
void Hex_anfuegen(std::span<const u8> bytes, std::string& ziel) {
  const std::size_t anfang = ziel.size();
  ziel.resize(anfang + 2 * bytes.size());
  char* const ziffern = ziel.data() + anfang;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    ziffern[2 * i] = Ziffer(bytes[i] >> 4U);
    ziffern[2 * i + 1] = Ziffer(bytes[i] & 0xFU);
  }
}

}  // namespace zav
