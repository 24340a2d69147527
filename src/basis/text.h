// Texts are UTF-8 in memory. Rules that count or cut characters go through here: a position or a length is
// always in characters (code points), never in bytes, and positions count from 1.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zav {

// Number of characters. A byte that is no part of valid UTF-8 counts as one character.
std::size_t Zeichen_anzahl(std::string_view text);

// Up to n characters from position von (1 = first). Empty where the text ends before von.
std::string Mitte(std::string_view text, std::size_t von, std::size_t n = std::string::npos);
std::string Links(std::string_view text, std::size_t n);
std::string Rechts(std::string_view text, std::size_t n);

// The character at position von (1 = first) as text of its own; "" behind the end.
std::string Zeichen(std::string_view text, std::size_t von);

// The code points of the text. An invalid byte gives its own value.
std::u32string Codes(std::string_view text);
// The reverse: UTF-8 of code points.
std::string Aus_codes(std::u32string_view codes);

// Upper and lower case for A-Z and the letters of Windows-1252.
std::string Gross(std::string_view text);
std::string Klein(std::string_view text);

// Parts between the separators; a text without one is one part.
std::vector<std::string> Teilen(std::string_view text, std::string_view trenner);

// Every occurrence of alt replaced by neu.
std::string Ersetzen(std::string text, std::string_view alt, std::string_view neu);

// Without blanks, tabs and line ends at both ends.
std::string_view Ohne_rand(std::string_view text);

}  // namespace zav
