// What the numbers in the function matrices mean: one vocabulary for the editors, the search, the reports and
// the transfer's display. The codes stand in project files and in the master: never renumber.
//
// A relay code is the position in the list of its kind of event. Relay outputs come in groups of eight,
// dimmer outputs in groups of four. Two neighbours of a relay group can drive a blind: the even one up, the
// odd one down.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "store/projekt.h"

namespace zav {

inline constexpr int relais_je_gruppe = 8;
inline constexpr int relaisgruppen = relaisausgaenge / relais_je_gruppe;
inline constexpr int dimmer_je_gruppe = 4;
inline constexpr int dimmergruppen = dimmerausgaenge / dimmer_je_gruppe;

// The three kinds of event: a key or input, a switching time, a step of a timer.
enum class Ereignisart { Eingang, Uhr, Timer };

// Relay codes that all three kinds share.
enum Relaiscode : i16 {
  relais_keine = 0,
  relais_aus = 1,
  relais_ein = 2,
  relais_impuls = 3,
  relais_um = 4,
  relais_store = 5,  // even output: up, odd output: down
  relais_store_stop = 6,
};

// What a code means for the other output of a blind's pair.
enum class Storenrolle {
  keine,        // goes with anything
  fahren,       // moves the blind: the other output must do nothing
  stoppen,      // stops the blind: both outputs carry the code
  unvereinbar,  // could switch on both at once: not beside an output that moves the blind
};

struct Relaisfunktion {
  const char* gerade;    // in words, on an even output
  const char* ungerade;  // on an odd output
  Storenrolle rolle;
};

// The relay codes of a kind of event, position = code: 8 for an input, 21 for a clock, 7 for a timer.
std::span<const Relaisfunktion> Relaisfunktionen(Ereignisart art);
// Lists as a user chooses from, position = stored value.
std::vector<std::string> Relaisliste(Ereignisart art, bool gerade);
std::vector<std::string> Timerliste();
std::vector<std::string> Tempoliste();
std::vector<std::string> Sperrenliste();

// Dimmer parameters, in this order. Bit 0 of the first two dims on a long key press of an input event; the
// second holds the lock of a clock event.
enum Dimmerparameter : std::size_t { dimmer_auf, dimmer_ab, dimmer_helligkeit, dimmer_tempo };
inline constexpr i16 dimmer_lang = 1;   // of dimmer_auf, dimmer_ab: while the key is held
inline constexpr i16 dimmer_kurz = 16;  // of dimmer_auf: scene and off in turn; of dimmer_ab: last brightness
inline constexpr i16 helligkeit_aus = 1;  // 0 no change, 1 off, 2 to 100 percent

// A function in words. A code without a meaning, as a damaged file may hold, gives "Code " and its number.
std::string Relais_in_worten(Ereignisart art, int code, int ausgang);
std::string Timer_in_worten(int code);
// Such as "Aus, Tempo Ambiance" or "45 %, Tempo Hoch, Aufdimmen, Memory"; "-" when all four are 0.
std::string Dimmer_in_worten(Ereignisart art, std::span<const i16> parameter);
// "Keine Änderung", "Aus" or the number of percent.
std::string Helligkeit_in_worten(int wert);

// An output or a timer by its short name: "O3-5" relay output 29, "D1-2" dimmer output 6, "T4" timer 4.
struct Ziel {
  enum class Art { Relais, Dimmer, Timer };
  Art art = Art::Relais;
  int nummer = 0;
  bool operator==(const Ziel&) const = default;
};
std::string Ziel_name(Ziel z);
// Reads a short name in either case; nothing for one that does not exist.
std::optional<Ziel> Ziel_lesen(std::string_view name);
// Short name, ": " and its text in the project.
std::string Ziel_bezeichnung(Ziel z);
// The same for a number among all outputs, 0 to 639.
std::string Ausgang_bezeichnung(int ausgang);
// The 642 things that a key's LED can show, position = stored value.
std::vector<std::string> LED_liste();

// The rows of one event in the store.
struct Ereigniszeilen {
  std::span<i16> relais;  // 512
  std::span<i16> dimmer;  // 128 x 4
  std::span<i32> timer;   // 16; none for a timer event
  u8& funktext;           // 1: must be sent
  u8& leer;               // 1: has functions
};
Ereigniszeilen Zeilen_von(Ereignisart art, int ereignis);
// True when the event does anything to an output or a timer.
bool Hat_funktionen(Ereignisart art, int ereignis);
// The mark on the button of an event: "O", "D" and "T" for functions of relays, dimmers and timers, "" for
// none. Here a dimmer counts by a value of at least 1 in one of its first three parameters; the tempo alone
// does nothing.
std::string Funktionszeichen(Ereignisart art, int ereignis);
// Writes Ein_leer, Uhr_leer or Tev_leer of the event from its rows.
void Leer_berechnen(Ereignisart art, int ereignis);

}  // namespace zav
