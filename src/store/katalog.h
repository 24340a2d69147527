// The catalogue of device kinds: what an Apparat is called, how many addresses it takes, which keys and LEDs
// it shows, where it may stand - and where the keys and events of a placed device lie in the project.
//
// An address is a group of four input events. Event offset j of a device counts from its first event, 4 x
// first address. Key slot n of a device is entry 128 x Kombination + 8 x place + n of Dev_text and Dev_adr.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "basis/feld.h"
#include "store/projekt.h"

namespace zav {

// A set of the key slots 0 to 7, written as their digits: "23".
class Slots {
 public:
  consteval Slots(const char* ziffern) {  // NOLINT: a text is a set
    for (; *ziffern != 0; ++ziffern)
      bits_ = static_cast<u8>(bits_ | 1U << static_cast<unsigned>(*ziffern - '0'));
  }
  constexpr bool hat(int n) const { return n >= 0 && n < 8 && (bits_ >> n & 1U) != 0; }
  constexpr bool leer() const { return bits_ == 0; }

 private:
  u8 bits_ = 0;
};

// Groups of kinds with rules of their own, to be joined with |.
enum Apparat_gruppe : u8 {
  gruppe_keine = 0,
  gruppe_diverse = 1,       // only in a Kombination of layout 16, "Diverse"
  gruppe_thermostat = 2,    // its LED lists carry fixed functions, and it polls
  gruppe_flanken = 4,       // two events per key: offset 2n rising, 2n + 1 falling edge
  gruppe_flanken_lang = 8,  // eight inputs: offsets 0 to 15 as edges, 16 to 23 one event each
  gruppe_funk = 16,         // radio sender
};

// No kind takes more addresses than that.
inline constexpr int adressen_je_apparat = 6;

struct Apparatart {
  i16 typ;
  std::string_view tag;    // caption of its picture, "" for 73 and 74
  std::string_view titel;  // title of its page
  int adressen;            // how many it takes, 0 to adressen_je_apparat
  Slots tasten;            // slots with a text field
  Slots leds;              // slots with an LED list
  u8 gruppen = gruppe_keine;

  constexpr bool ist(Apparat_gruppe g) const { return (gruppen & g) != 0; }
};

inline constexpr int apparat_arten = 93;
inline constexpr int apparat_wetterstation = 75;

// Kinds 1 to 93 in order.
std::span<const Apparatart> Apparatarten();
// nullptr for a number that is no kind.
const Apparatart* Apparat_art(int typ);

// Class of a radio sender as App_enocean_art holds it: 1 two keys, 2 four keys, 3 hand sender, 4 magnet
// contact, 5 motion sensor; 0 for every other kind.
i16 Apparat_funkart(int typ);

// The key slot whose text and LED belong to event offset j of a kind; j 0 to 23.
int Slot_von_versatz(int typ, int j);
// The first event offset of key slot n: the rising edge where a key has two.
int Versatz_von_slot(int typ, int n);

// A thermostat leaves part of its run to other devices: is its address a + i one of those?
bool Thermostat_adresse_frei(int typ, int i);
// Offset of the address whose first input the master polls as a thermostat's, and whose four LED outputs
// carry its fixed functions: 0 for kind 39, 2 for 40 and 78. Nothing for other kinds.
std::optional<int> Thermostat_adresse(int typ);

// ---- placed devices; d = 16 x Kombination + place ---------------------------------------------------------

// The run of addresses a device takes, from the texts App_text and App_text2. What a damaged file puts there
// is cut to what a device can have and to the addresses that exist; nothing without a first address.
struct Adresslauf {
  int von = 0;
  int anzahl = 0;
  int erstes_ereignis() const { return 4 * von; }
  int ereignisse() const { return 4 * anzahl; }
  bool operator==(const Adresslauf&) const = default;
};
std::optional<Adresslauf> Apparat_adressen(const Projekt& p, int d);

// Entry of Dev_text and Dev_adr for slot n of device d, n 0 to 23; -1 where the device has no such slot.
// Slots from 8 up lie on the places behind it. They are its own while these places are empty and only as far
// as it has events (4 x its addresses); the LED slots 8 to 11 of kinds 40 and 78 always. No slot leaves the
// Kombination.
int Apparat_slot(const Projekt& p, int d, int n);
// Entry of Dev_text for the key text of slot n; -1 as above, and where the place behind has texts of its own.
int Apparat_textslot(const Projekt& p, int d, int n);

// ---- layouts of a Kombination -----------------------------------------------------------------------------

struct Layout {
  std::string_view name;
  std::string_view gruppe;  // heading in the chooser
  int spalten;
  int zeilen;
  // Place = 4 x row + column.
  constexpr bool hat(int platz) const { return platz % 4 < spalten && platz / 4 < zeilen && platz >= 0; }
};

inline constexpr int layout_diverse = 16;

// The 17 layouts by number.
std::span<const Layout> Layouts();
// nullptr for a number that is no layout.
const Layout* Layout_von(int nummer);

}  // namespace zav
