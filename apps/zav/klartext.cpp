#include "klartext.h"

namespace zav {

namespace {

// U+0080 to U+009F are the byte 0xC2 and one of 0x80 to 0x9F.
bool Zweites_zeichen_ist_steuernd(std::string_view text) {
  return text.size() > 1 && text[0] == '\xC2' && static_cast<unsigned char>(text[1]) < 0xA0;
}

bool Steuert(std::string_view text) {
  const auto c = static_cast<unsigned char>(text[0]);
  if (c == '\r') return !text.starts_with("\r\n");
  return (c < ' ' && c != '\n' && c != '\t') || c == 0x7F;
}

}  // namespace

std::string Klartext(std::string_view text) {
  std::string klar;
  klar.reserve(text.size());
  for (; !text.empty(); text.remove_prefix(1)) {
    if (Zweites_zeichen_ist_steuernd(text)) {
      text.remove_prefix(1);
      klar += '?';
    } else {
      klar += Steuert(text) ? '?' : text[0];
    }
  }
  return klar;
}

Klartextpuffer::int_type Klartextpuffer::overflow(int_type c) {
  if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
  const char zeichen = traits_type::to_char_type(c);
  return xsputn(&zeichen, 1) == 1 ? c : traits_type::eof();
}

std::streamsize Klartextpuffer::xsputn(const char* text, std::streamsize n) {
  const std::string klar = Klartext({text, static_cast<std::size_t>(n)});
  const auto laenge = static_cast<std::streamsize>(klar.size());
  return ziel_.sputn(klar.data(), laenge) == laenge ? n : 0;
}

}  // namespace zav
