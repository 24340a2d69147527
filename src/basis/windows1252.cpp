#include "basis/windows1252.h"

#include <algorithm>
#include <array>

#include "basis/text.h"

namespace zav {

namespace {

// Code points of the bytes 80 to 9F; all other bytes stand for the code point of their own number.
constexpr std::array<char32_t, 32> mitte{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                         0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                         0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                         0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool Nur_ascii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

void Aus_1252(std::string_view bytes, std::string& ziel) {
  if (Nur_ascii(bytes)) {
    ziel.append(bytes);
    return;
  }
  for (const char zeichen : bytes) {
    const auto b = static_cast<unsigned char>(zeichen);
    if (b < 0x80) {
      ziel += zeichen;
    } else {
      const char32_t c = b < 0xA0 ? mitte[b - 0x80] : b;
      ziel += Aus_codes({&c, 1});
    }
  }
}

std::string Aus_1252(std::string_view bytes) {
  std::string text;
  Aus_1252(bytes, text);
  return text;
}

std::optional<unsigned char> Code_1252(char32_t zeichen) {
  if (zeichen < 0x80 || (zeichen >= 0xA0 && zeichen <= 0xFF)) return static_cast<unsigned char>(zeichen);
  const auto* const stelle = std::find(mitte.begin(), mitte.end(), zeichen);
  if (stelle == mitte.end()) return std::nullopt;
  return static_cast<unsigned char>(0x80 + (stelle - mitte.begin()));
}

void Nach_1252(std::string_view text, std::string& ziel) {
  if (Nur_ascii(text)) {
    ziel.append(text);
    return;
  }
  for (const char32_t c : Codes(text)) ziel += static_cast<char>(Code_1252(c).value_or('?'));
}

std::string Nach_1252(std::string_view text) {
  std::string bytes;
  Nach_1252(text, bytes);
  return bytes;
}

bool Ist_1252(std::string_view text) {
  const std::u32string codes = Codes(text);
  return std::all_of(codes.begin(), codes.end(), [](char32_t c) { return Code_1252(c).has_value(); });
}

}  // namespace zav
