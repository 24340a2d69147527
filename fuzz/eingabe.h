// The bytes that the fuzzer gives, taken piece by piece; beyond their end come zeros and empty texts.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace zav {

class Eingabe {
 public:
  Eingabe(const std::uint8_t* bytes, std::size_t n) : rest_(reinterpret_cast<const char*>(bytes), n) {}

  bool leer() const { return rest_.empty(); }
  std::size_t byte() {
    const auto b = text(1);
    return b.empty() ? 0 : static_cast<unsigned char>(b[0]);
  }
  std::size_t wort() { return byte() << 8 | byte(); }
  std::string_view text(std::size_t n) {
    const auto t = rest_.substr(0, n);
    rest_.remove_prefix(t.size());
    return t;
  }
  std::string_view alles() { return text(rest_.size()); }

 private:
  std::string_view rest_;
};

// What must hold whatever the input.
inline void Verlangen(bool wahr, const char* was) {
  if (wahr) return;
  std::fprintf(stderr, "does not hold: %s\n", was);
  std::abort();
}

}  // namespace zav
