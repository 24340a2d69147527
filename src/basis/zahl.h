// Numbers to text and back.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zav {

// An optional "-" and decimal digits, nothing else; nothing where the text is of another form or the number
// does not fit 32 bits.
std::optional<std::int32_t> Zahl_lesen(std::string_view text);

// The same, limited to [von, bis].
std::optional<std::int32_t> Zahl_lesen(std::string_view text, std::int32_t von, std::int32_t bis);

// Upper-case hexadecimal digits of v without leading zeros; at least one digit. A negative value gives the
// eight digits of its 32-bit two's complement, so it is too wide for every shorter field.
std::string Hex_text(std::int64_t v);

// Reads hexadecimal digits of either case; nothing for another character, an empty text or more than eight.
std::optional<std::uint32_t> Hex_zahl(std::string_view text);

// Rounds to nearest, halves to even: the rounding of every double that becomes a whole number.
std::int64_t Runden(double v);

// The decimal digits, with zeros on the left up to the width.
std::string Stellen(std::int64_t v, int breite);

}  // namespace zav
