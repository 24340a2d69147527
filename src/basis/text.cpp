#include "basis/text.h"

#include <algorithm>

namespace zav {

namespace {

// Length in bytes of the character that begins at i: 1 for ASCII and for a byte that is not valid UTF-8.
std::size_t Zeichenlaenge(std::string_view text, std::size_t i) {
  const auto b = static_cast<unsigned char>(text[i]);
  const std::size_t n = b < 0xC2 ? 1 : b < 0xE0 ? 2 : b < 0xF0 ? 3 : b < 0xF5 ? 4 : 1;
  if (i + n > text.size()) return 1;
  for (std::size_t k = 1; k < n; ++k) {
    if ((static_cast<unsigned char>(text[i + k]) & 0xC0) != 0x80) return 1;
  }
  return n;
}

// Byte position of the character with the 0-based number n, or the length of the text.
std::size_t Bytestelle(std::string_view text, std::size_t n) {
  std::size_t i = 0;
  for (; n > 0 && i < text.size(); --n) i += Zeichenlaenge(text, i);
  return i;
}

template <class F>
std::string Je_code(std::string_view text, F umwandeln) {
  std::u32string codes = Codes(text);
  for (char32_t& c : codes) c = umwandeln(c);
  return Aus_codes(codes);
}

// Pairs outside Latin-1 that Windows-1252 holds in both cases.
constexpr struct {
  char32_t gross, klein;
} sonderpaare[] = {{0x0160, 0x0161}, {0x0152, 0x0153}, {0x017D, 0x017E}, {0x0178, 0x00FF}};

}  // namespace

std::size_t Zeichen_anzahl(std::string_view text) {
  std::size_t n = 0;
  for (std::size_t i = 0; i < text.size(); i += Zeichenlaenge(text, i)) ++n;
  return n;
}

std::string Mitte(std::string_view text, std::size_t von, std::size_t n) {
  if (von == 0) return {};
  const std::string_view rest = text.substr(Bytestelle(text, von - 1));
  return std::string(n == std::string::npos ? rest : rest.substr(0, Bytestelle(rest, n)));
}

std::string Links(std::string_view text, std::size_t n) {
  return std::string(text.substr(0, Bytestelle(text, n)));
}

std::string Rechts(std::string_view text, std::size_t n) {
  const std::size_t alle = Zeichen_anzahl(text);
  return std::string(text.substr(Bytestelle(text, alle > n ? alle - n : 0)));
}

std::string Zeichen(std::string_view text, std::size_t von) { return Mitte(text, von, 1); }

std::u32string Codes(std::string_view text) {
  std::u32string codes;
  codes.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t n = Zeichenlaenge(text, i);
    const auto b = static_cast<unsigned char>(text[i]);
    char32_t c = n == 1 ? b : b & (0xFFu >> (n + 1));
    for (std::size_t k = 1; k < n; ++k) c = (c << 6) | (static_cast<unsigned char>(text[i + k]) & 0x3Fu);
    codes.push_back(c);
    i += n;
  }
  return codes;
}

std::string Aus_codes(std::u32string_view codes) {
  std::string text;
  text.reserve(codes.size());
  for (const char32_t c : codes) {
    if (c < 0x80) {
      text += static_cast<char>(c);
    } else if (c < 0x800) {
      text += static_cast<char>(0xC0 | (c >> 6));
      text += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
      text += static_cast<char>(0xE0 | (c >> 12));
      text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      text += static_cast<char>(0x80 | (c & 0x3F));
    } else {
      text += static_cast<char>(0xF0 | (c >> 18));
      text += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
      text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      text += static_cast<char>(0x80 | (c & 0x3F));
    }
  }
  return text;
}

std::string Gross(std::string_view text) {
  return Je_code(text, [](char32_t c) -> char32_t {
    if ((c >= U'a' && c <= U'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7)) return c - 0x20;
    for (const auto& p : sonderpaare) {
      if (c == p.klein) return p.gross;
    }
    return c;
  });
}

std::string Klein(std::string_view text) {
  return Je_code(text, [](char32_t c) -> char32_t {
    if ((c >= U'A' && c <= U'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7)) return c + 0x20;
    for (const auto& p : sonderpaare) {
      if (c == p.gross) return p.klein;
    }
    return c;
  });
}

std::vector<std::string> Teilen(std::string_view text, std::string_view trenner) {
  std::vector<std::string> teile;
  for (;;) {
    const std::size_t i = text.find(trenner);
    teile.emplace_back(text.substr(0, i));
    if (i == std::string_view::npos) return teile;
    text.remove_prefix(i + trenner.size());
  }
}

std::string Ersetzen(std::string text, std::string_view alt, std::string_view neu) {
  for (std::size_t i = 0; (i = text.find(alt, i)) != std::string::npos; i += neu.size()) {
    text.replace(i, alt.size(), neu);
  }
  return text;
}

std::string_view Ohne_rand(std::string_view text) {
  constexpr std::string_view leer = " \t\r\n";
  const std::size_t von = text.find_first_not_of(leer);
  if (von == std::string_view::npos) return {};
  return text.substr(von, text.find_last_not_of(leer) - von + 1);
}

}  // namespace zav
