#include "basis/zahl.h"

#include <charconv>
#include <cmath>

namespace zav {

std::optional<std::int32_t> Zahl_lesen(std::string_view text) {
  std::int32_t wert = 0;
  const char* const ende = text.data() + text.size();
  const auto [stelle, fehler] = std::from_chars(text.data(), ende, wert);
  if (fehler != std::errc{} || stelle != ende) return std::nullopt;
  return wert;
}

std::optional<std::int32_t> Zahl_lesen(std::string_view text, std::int32_t von, std::int32_t bis) {
  const auto wert = Zahl_lesen(text);
  return wert && *wert >= von && *wert <= bis ? wert : std::nullopt;
}

std::string Hex_text(std::int64_t v) {
  static constexpr char ziffern[] = "0123456789ABCDEF";
  auto rest = v < 0 ? static_cast<std::uint32_t>(v) : static_cast<std::uint64_t>(v);
  char puffer[16];
  char* p = puffer + sizeof puffer;
  do {
    *--p = ziffern[rest & 0xF];
    rest >>= 4;
  } while (rest != 0);
  return {p, puffer + sizeof puffer};
}

std::optional<std::uint32_t> Hex_zahl(std::string_view text) {
  if (text.empty() || text.size() > 8) return std::nullopt;
  std::uint32_t wert = 0;
  const char* const ende = text.data() + text.size();
  const auto [stelle, fehler] = std::from_chars(text.data(), ende, wert, 16);
  if (fehler != std::errc{} || stelle != ende) return std::nullopt;
  return wert;
}

// The default rounding mode of the floating-point unit is nearest, halves to even.
std::int64_t Runden(double v) { return std::llrint(v); }

std::string Stellen(std::int64_t v, int breite) {
  std::string text = std::to_string(v < 0 ? -v : v);
  if (static_cast<int>(text.size()) < breite)
    text.insert(0, static_cast<std::size_t>(breite) - text.size(), '0');
  return v < 0 ? "-" + text : text;
}

}  // namespace zav
