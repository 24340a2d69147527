#include "time/schaltzeile.h"

#include <algorithm>

namespace zav {

namespace {

constexpr std::size_t parameter = dimmerparameter;

}  // namespace

Schaltzeile Schaltzeile_lesen(int e) {
  Schaltzeile z;
  z.regel = Regel_lesen(e);
  std::ranges::copy(projekt.Uhr_relais.zeile(e), z.relais.begin());
  std::ranges::copy(projekt.Uhr_timer.zeile(e), z.timer.begin());
  const auto dimmer = projekt.Uhr_dimmer.zeile(e);
  for (std::size_t d = 0; d < z.dimmer.size(); ++d) {
    std::ranges::copy(dimmer.subspan(d * parameter, schaltzeile_dimmerparameter), z.dimmer[d].begin());
  }
  return z;
}

void Schaltzeile_schreiben(int e, const Schaltzeile& z) {
  Regel_schreiben(e, z.regel);
  std::ranges::copy(z.relais, projekt.Uhr_relais.zeile(e).begin());
  std::ranges::copy(z.timer, projekt.Uhr_timer.zeile(e).begin());
  const auto dimmer = projekt.Uhr_dimmer.zeile(e);
  for (std::size_t d = 0; d < z.dimmer.size(); ++d) {
    std::ranges::copy(z.dimmer[d], dimmer.subspan(d * parameter).begin());
  }
}

}  // namespace zav
