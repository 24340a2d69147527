// The bytes of one block on their way to the master, and their text on the wire.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "basis/feld.h"

namespace zav {

// Grows field by field. A value that does not fit its field closes the block where it stands: it keeps what
// it has, takes nothing more, and says so in zu_breit(). Negative values fit no field.
class Block {
 public:
  void leeren() {
    bytes_.clear();
    zu_breit_ = false;
  }
  // Appends one byte (0 to 255) or a word of two bytes, high byte first (0 to 65535).
  Block& byte(std::int64_t wert) { return feld(wert, 1); }
  Block& wort(std::int64_t wert) { return feld(wert, 2); }
  // Appends n bytes of the same value.
  Block& fuellen(std::size_t n, u8 wert) {
    if (!zu_breit_) bytes_.insert(bytes_.end(), n, wert);
    return *this;
  }
  // Appends n zero bytes and hands them out to be filled in place; valid until the block grows again.
  std::span<u8> raum(std::size_t n) {
    bytes_.resize(bytes_.size() + n);
    return std::span(bytes_).last(n);
  }

  std::span<const u8> bytes() const { return bytes_; }
  int laenge() const { return static_cast<int>(bytes_.size()); }
  bool zu_breit() const { return zu_breit_; }
  // A value that is no number at all ends the block like one that is too wide.
  void schliessen() { zu_breit_ = true; }

 private:
  Block& feld(std::int64_t wert, int breite) {
    if (zu_breit_) return *this;
    if (wert < 0 || wert >> (8 * breite) != 0) {
      zu_breit_ = true;
      return *this;
    }
    if (breite == 2) bytes_.push_back(static_cast<u8>(wert >> 8));
    bytes_.push_back(static_cast<u8>(wert));
    return *this;
  }

  std::vector<u8> bytes_;
  bool zu_breit_ = false;
};

// Appends two upper-case hexadecimal digits for each byte.
void Hex_anfuegen(std::span<const u8> bytes, std::string& ziel);

}  // namespace zav
