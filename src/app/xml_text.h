// Text and indentation of the app's descriptor. Its bytes are those that the app has always been given: no
// valid UTF-8 as soon as a text holds more than the nine common letters with accents.
#pragma once

#include <string>
#include <string_view>

namespace zav {

// Bytes of a user's text: ä ö ü Ä Ö Ü é è à as their two bytes of UTF-8, < > & " ' as entities, every other
// character as its one byte of Windows-1252.
std::string Xml_text(std::string_view text);

// Two blanks a level.
std::string Einrueckung(int ebene);

// The parts of a text before and behind its first "--"; without one the title is all of it and the subtitle
// empty.
std::string App_titel_teil(std::string_view text);
std::string App_untertitel_teil(std::string_view text);

}  // namespace zav
