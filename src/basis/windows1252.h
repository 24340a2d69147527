// Windows-1252, the code page of project files and of the wire, to and from the UTF-8 of memory. Exact for
// all 256 byte values: the five bytes that the code page leaves undefined (81, 8D, 8F, 90, 9D) stand for the
// control characters of the same number.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zav {

// UTF-8 text of the bytes. Never fails.
std::string Aus_1252(std::string_view bytes);
// The same, appended to a text.
void Aus_1252(std::string_view bytes, std::string& ziel);

// Bytes of the text. A character that the code page does not hold becomes "?".
std::string Nach_1252(std::string_view text);
void Nach_1252(std::string_view text, std::string& ziel);

// Byte of a code point, or nothing where the code page does not hold it.
std::optional<unsigned char> Code_1252(char32_t zeichen);

// True when every character of the text has a byte.
bool Ist_1252(std::string_view text);

}  // namespace zav
