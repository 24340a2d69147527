// One row of the switching clocks with everything that belongs to it: text, time, rule and functions.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "basis/feld.h"
#include "store/projekt.h"
#include "time/schaltregel.h"

namespace zav {

inline constexpr int schaltuhren = 2;
inline constexpr int tagesseiten = 8;  // Monday to Sunday, then every day
inline constexpr int zeilen_je_seite = 16;

// Clock event of a row.
constexpr int Uhrereignis(int uhr, int tag, int zeile) {
  return (uhr * tagesseiten + tag) * zeilen_je_seite + zeile;
}

// The three parameters of a dimmer output that the clock editor copies and clears; the fourth, the tempo,
// stays where it is.
inline constexpr int schaltzeile_dimmerparameter = 3;

// A row away from its place. A fresh one is an empty row.
struct Schaltzeile {
  std::string text;
  std::string zeit;
  Schaltregel regel;
  std::vector<i16> relais = std::vector<i16>(relaisausgaenge);
  std::vector<std::array<i16, schaltzeile_dimmerparameter>> dimmer{dimmerausgaenge};
  std::vector<i32> timer = std::vector<i32>(timeranzahl);
};

// Rule and functions of clock event e; text and time are the editor's working copies and stay empty.
Schaltzeile Schaltzeile_lesen(int e);
// Writes rule and functions into the project. Raises no flag.
void Schaltzeile_schreiben(int e, const Schaltzeile& z);

}  // namespace zav
