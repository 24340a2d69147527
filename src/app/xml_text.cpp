#include "app/xml_text.h"

#include "basis/text.h"
#include "basis/windows1252.h"

namespace zav {

namespace {

constexpr std::string_view trenner = "--";

std::string_view Ersatz(char32_t zeichen) {
  switch (zeichen) {
    case U'ä': return "\xC3\xA4";
    case U'ö': return "\xC3\xB6";
    case U'ü': return "\xC3\xBC";
    case U'Ä': return "\xC3\x84";
    case U'Ö': return "\xC3\x96";
    case U'Ü': return "\xC3\x9C";
    case U'é': return "\xC3\xA9";
    case U'è': return "\xC3\xA8";
    case U'à': return "\xC3\xA0";
    case U'<': return "&lt;";
    case U'>': return "&gt;";
    case U'&': return "&amp;";
    case U'"': return "&quot;";
    case U'\'': return "&apos;";
    default: return {};
  }
}

void Zeichen_anfuegen(char32_t zeichen, std::string& bytes) {
  if (const auto ersatz = Ersatz(zeichen); !ersatz.empty()) {
    bytes += ersatz;
  } else {
    bytes += static_cast<char>(Code_1252(zeichen).value_or('?'));
  }
}

bool Ist_ascii(char c) { return (c & 0x80) == 0; }

}  // namespace

std::string Xml_text(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    if (Ist_ascii(text[i])) {
      Zeichen_anfuegen(static_cast<unsigned char>(text[i++]), bytes);
      continue;
    }
    std::size_t ende = i;
    while (ende < text.size() && !Ist_ascii(text[ende])) ++ende;
    for (const char32_t zeichen : Codes(text.substr(i, ende - i))) Zeichen_anfuegen(zeichen, bytes);
    i = ende;
  }
  return bytes;
}

std::string Einrueckung(int ebene) { return std::string(static_cast<std::size_t>(2 * ebene), ' '); }

std::string App_titel_teil(std::string_view text) { return std::string(text.substr(0, text.find(trenner))); }

std::string App_untertitel_teil(std::string_view text) {
  const std::size_t n = text.find(trenner);
  return n == std::string_view::npos ? std::string() : std::string(text.substr(n + trenner.size()));
}

}  // namespace zav
