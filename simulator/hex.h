// How the master writes numbers on the line: fixed-width upper-case hexadecimal, and a sum modulo 256 behind
// each message.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zav::simulator {

using Bytes = std::vector<std::uint8_t>;

// The low `stellen` digits of wert, with leading zeros.
std::string hex(std::uint64_t wert, int stellen);
std::string hex(std::span<const std::uint8_t> bytes);

// True when every character is one of 0-9, A-F.
bool ist_hex(std::string_view text);

// Value of at most eight digits; nothing when a character is no upper-case digit or the length does not fit.
std::optional<std::uint32_t> hex_zahl(std::string_view text);

// Bytes of an even number of digits, all of which must be digits.
Bytes hex_bytes(std::string_view text);

// Sum of the characters modulo 256 as two digits.
std::string pruefsumme(std::string_view text);

// Payload + checksum + CR: a message or reply as it goes over the line.
std::string rahmen(std::string_view nutzlast);

}  // namespace zav::simulator
