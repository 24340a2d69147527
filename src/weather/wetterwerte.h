// What the weather station reports to the master, as the master passes it on: 24 characters, counted from 1.
//
//   1      1  state: "0" none or defective, "8" no data yet, other = present
//   2      1  "1" precipitation
//   3      1  quality: "8", "C" or "E" = the values are valid
//   4      3  not used here
//   7      4  outside temperature, tenths of a degree above -273.0 °C
//   11     2  sun from the south, kLux
//   13     2  sun from the west, kLux
//   15     2  sun from the east, kLux
//   17     2  daylight, Lux
//   19     2  inside temperature, °C
//   21     4  wind speed, tenths of m/s
//
// Numbers are hexadecimal, digits 0 to 9 and upper-case A to F.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "form/steuerelement.h"

namespace zav {

// The seven sensors that measure, in the order in which every page shows them.
enum Wettersensor : std::size_t {
  sonne_ost,
  sonne_sued,
  sonne_west,
  tageslicht,
  aussentemperatur,
  innentemperatur,
  windgeschwindigkeit,
  wettersensoren
};

std::string_view Sensor_name(std::size_t sensor);     // "Sonne Ost"
std::string_view Sensor_einheit(std::size_t sensor);  // " kLux", with its blank
std::string_view Sensor_bild(std::size_t sensor);     // name of its symbol

struct Wetterwerte {
  enum class Stand { gut, keine_station, keine_daten, defekt };
  Stand stand = Stand::keine_station;
  bool niederschlag = false;                   // holds for gut and defekt
  std::array<double, wettersensoren> werte{};  // kLux, kLux, kLux, Lux, °C, °C, m/s; hold for gut
};

// Never fails: a reply with something else where a number must stand comes from a defective station.
Wetterwerte Wetter_entschluesseln(std::string_view antwort);
// The box that is due for a state, "" for good values.
std::string_view Wetterstand_text(Wetterwerte::Stand stand);
// The weather in one symbol, and what it says. Sun is shining where a side gets more than the light of a
// bright sky.
struct Wetterbild {
  std::string_view bild;
  std::string_view worte;
};
Wetterbild Wetterbild_von(const Wetterwerte& w);
// "Niederschlag" or "Trocken".
std::string_view Niederschlag_text(const Wetterwerte& w);
// A measured value with at most one decimal place and its unit: "12.5 °C".
std::string Wetterwert_text(std::size_t sensor, double wert);
// A wind speed in m/s as "12.2 km/h", cut to tenths.
std::string Wind_in_kmh(double wert);

// Asks the master for the reply. "" on failure, which has shown its box; the port is closed in any case.
std::string Wetter_abfragen();

// One bar a sensor. A bar is limited to its range; that of the outside temperature begins at -20 °C.
using Wetterbalken = std::array<Balken, wettersensoren>;
Wetterbalken Leere_wetterbalken();
// Sets bars and tool tips to values; Wetterbalken_leeren takes them back.
void Wetterbalken_zeigen(Wetterbalken& balken, const Wetterwerte& w);
void Wetterbalken_leeren(Wetterbalken& balken);

}  // namespace zav
