// What the device page shows for each kind: named key texts, LED lists, one button for each event.
#pragma once

#include <array>
#include <optional>
#include <string>

namespace zav {

struct Apparatseite {
  static constexpr int tasten_max = 24;  // keys and events of a device with six addresses
  static constexpr int leds_max = 8;
  static constexpr int zeilen_max = 6;  // headings, one over four keys

  struct Knopf {
    std::string titel;
    std::string hinweis;
  };

  // By key slot; nothing where the page has no text field.
  std::array<std::optional<std::string>, tasten_max> tasten{};
  // By LED list: its name.
  std::array<std::optional<std::string>, leds_max> leds{};
  // By event offset.
  std::array<std::optional<Knopf>, tasten_max> knoepfe{};
  std::array<std::string, zeilen_max> ueberschriften{};
};

// The page of a kind; empty for a number that is no kind.
Apparatseite Apparat_seite(int typ);
// True when the LED lists 0 to 3 of the kind belong to the slots 8 to 11.
bool Led_listen_versetzt(int typ);

}  // namespace zav
