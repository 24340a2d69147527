#include "simulator/hex.h"

#include <algorithm>

namespace zav::simulator {

namespace {

constexpr std::string_view ziffern = "0123456789ABCDEF";

// 0 to 15, or -1 for a character that is no digit.
constexpr int ziffer(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

std::string hex(std::uint64_t wert, int stellen) {
  std::string text(static_cast<std::size_t>(stellen), '0');
  for (auto z = text.rbegin(); z != text.rend(); ++z, wert >>= 4) *z = ziffern[wert & 15];
  return text;
}

std::string hex(std::span<const std::uint8_t> bytes) {
  std::string text;
  text.reserve(bytes.size() * 2);
  for (const auto b : bytes) {
    text += ziffern[b >> 4];
    text += ziffern[b & 15];
  }
  return text;
}

bool ist_hex(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return ziffer(c) >= 0; });
}

std::optional<std::uint32_t> hex_zahl(std::string_view text) {
  if (text.empty() || text.size() > 8 || !ist_hex(text)) return std::nullopt;
  std::uint32_t wert = 0;
  for (const char c : text) wert = wert << 4 | static_cast<std::uint32_t>(ziffer(c));
  return wert;
}

Bytes hex_bytes(std::string_view text) {
  Bytes bytes(text.size() / 2);
  for (std::size_t k = 0; k < bytes.size(); ++k)
    bytes[k] = static_cast<std::uint8_t>(ziffer(text[2 * k]) << 4 | ziffer(text[2 * k + 1]));
  return bytes;
}

std::string pruefsumme(std::string_view text) {
  unsigned summe = 0;
  for (const char c : text) summe += static_cast<unsigned char>(c);
  return hex(summe, 2);
}

std::string rahmen(std::string_view nutzlast) { return std::string(nutzlast) + pruefsumme(nutzlast) + '\r'; }

}  // namespace zav::simulator
