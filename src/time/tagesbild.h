// The picture of a switching time on the 24 hours of one day: what a window paints on its scale.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "basis/datum.h"
#include "time/schaltregel.h"

namespace zav {

// The scale: midnight stands at 500, the next midnight at 10100, an hour every 400 units.
inline constexpr double skala_anfang = 500.0;
inline constexpr double skala_ende = 10100.0;
inline constexpr double skala_stunde = 400.0;
// Place of a time; times beyond the day stand at its ends.
double Skala_ort(int sekunden);

struct Tagesbild {
  enum class Rolle { aufgang, untergang, untere_limite, obere_limite, schaltzeit };
  struct Marke {
    Rolle rolle;
    double ort;
    std::string text;  // "HH.MM.SS"
    bool operator==(const Marke&) const = default;
  };
  struct Band {  // times from `von` to `bis`; equal for a single one
    double von;
    double bis;
    std::string text_von;
    std::string text_bis;
    bool operator==(const Band&) const = default;
  };

  std::vector<Marke> marken;     // in the order of Rolle
  std::optional<Band> band;      // what the random shift can reach, before the limits
  std::optional<Band> ergebnis;  // when the master switches; nothing on a day without switching
  std::string worte;             // the result as a sentence
  std::string status;            // "Schaltzeit ok", "... bei Limite", "... unterdrückt"; "" for a fixed time
};

// The picture of a rule on a date. `zeit` is the time of the fixed modes. Random shifts are not drawn: the
// band shows them all. All times of the rule have been checked.
Tagesbild Tagesbild_von(const Schaltregel& regel, std::string_view zeit, Datum tag);

}  // namespace zav
