// The rule of a switching time: when it is reached on a day. The master knows no sun; the times of all days
// are computed from the rules when they are sent.
#pragma once

#include <string>
#include <string_view>

#include "basis/feld.h"
#include "transfer/tageszeiten.h"

namespace zav {

inline constexpr int zeitmodi = 6;

constexpr bool Mit_zufall(Zeitregel m) { return static_cast<int>(m) % 2 == 1; }
constexpr bool Mit_sonne(Zeitregel m) { return m >= Zeit_aufgang; }
constexpr bool Bei_aufgang(Zeitregel m) { return m == Zeit_aufgang || m == Zeit_aufgang_zufall; }

// Entry of the list of modes, e.g. "Sonnenaufgang + Zufall".
std::string_view Modus_name(Zeitregel m);
// What a sun mode writes as the row's time, e.g. "Aufgang + Zufall"; "" for the fixed times.
std::string_view Modus_wort(Zeitregel m);
// Follows the fixed time of a row with a random shift.
inline constexpr std::string_view zufall_anhang = " mit Zufall";

// Values of Uhr_tag.
enum class Versatz : i16 { keiner, frueher, spaeter };

// The fields of one clock event that make its rule. Times are "HH.MM.SS", "" where one is not used.
struct Schaltregel {
  i16 astro = 0;     // Zeitregel
  i16 tag = 0;       // Versatz
  std::string f1{};  // offset
  std::string f2{};  // lower limit
  std::string f3{};  // upper limit
  std::string f4{};  // greatest random shift to earlier
  std::string f5{};  // greatest random shift to later
  i16 f6 = 0;        // at the lower limit: 0 switch at the limit, 1 do not switch
  i16 f7 = 0;        // at the upper limit, likewise

  // A value that no editor writes shows as 0.
  Zeitregel modus() const {
    return astro > 0 && astro < zeitmodi ? static_cast<Zeitregel>(astro) : Zeit_fest;
  }
  Versatz versatz() const { return tag > 0 && tag <= 2 ? static_cast<Versatz>(tag) : Versatz::keiner; }

  bool operator==(const Schaltregel&) const = default;
};

// The rule of clock event e (0 to 255) in the project.
Schaltregel Regel_lesen(int e);
void Regel_schreiben(int e, const Schaltregel& r);

}  // namespace zav
