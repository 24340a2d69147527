// The master's messages: how numbers are written, the checksum, the window, the status codes and their words.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "basis/feld.h"

namespace zav {

// Fixed-width upper-case hexadecimal. A value too wide for the field (a negative one always) shows the box
// "Ungültige Daten" and gives an empty text.
std::string Hex2(std::int64_t v);
std::string Hex4(std::int64_t v);
std::string Hex8(std::int64_t v);

// Sum of the characters modulo 256, two upper-case digits. A character counts by the low byte of its code
// point.
std::string Pruefsumme(std::string_view text);

// Reads up to eight hexadecimal digits into a number; false, and the number as it was, for any other text.
bool Hex_wert(std::string_view text, std::uint32_t& wert);

// "D" + six digits each; a value of more than six digits leaves its field empty. Stands in
// leitung.Sende_text.
void Fenster_setzen(i32 von, i32 bis);

// Telegram on the bus: address 4 digits, length 2 digits, 8 data bytes as 16 digits. Opens and closes the
// port; failures have shown their box and leave Empfang_status 1.
void Can_senden(const std::string& adresse, const std::string& laenge, const std::string& daten);
// Makes an event in the master: device number on the bus 4 digits, action 2 digits, key 2 digits.
void Ereignis_erzeugen(const std::string& a, const std::string& b, const std::string& c);

// Shows the box for a status code (payload + CR) of the transfer family: transfer, erase, clock setting.
// "portopen" and "F00" show nothing.
void Uebertragungsfehler_melden(const std::string& empfang);

// Restarts the master and waits for its first sign of life; shows how it went.
void Neustart_ausfuehren();

// What the master says of itself.
struct Masterinfo {
  bool gut = false;
  std::string version;  // ten characters
  std::string projekt;  // file name of the project that it holds: 24 characters, blanks behind the name
};
// Asks version (also put into sitzung.Master_version) and project name. Failures have shown their box.
Masterinfo Master_abfragen();

}  // namespace zav
