#include "time/schaltregel.h"

#include <array>

#include "store/projekt.h"

namespace zav {

namespace {

struct Modus {
  std::string_view name;
  std::string_view wort;
};
constexpr std::array<Modus, zeitmodi> modi{{
    {"Normal", ""},
    {"Normal + Zufall", ""},
    {"Sonnenaufgang", "Aufgang"},
    {"Sonnenaufgang + Zufall", "Aufgang + Zufall"},
    {"Sonnenuntergang", "Untergang"},
    {"Sonnenuntergang + Zufall", "Untergang + Zufall"},
}};

}  // namespace

std::string_view Modus_name(Zeitregel m) { return modi.at(static_cast<std::size_t>(m)).name; }
std::string_view Modus_wort(Zeitregel m) { return modi.at(static_cast<std::size_t>(m)).wort; }

Schaltregel Regel_lesen(int e) {
  const Projekt& p = projekt;
  return {p.Uhr_astro[e], p.Uhr_tag[e], p.Uhr_f1[e], p.Uhr_f2[e], p.Uhr_f3[e],
          p.Uhr_f4[e],    p.Uhr_f5[e],  p.Uhr_f6[e], p.Uhr_f7[e]};
}

void Regel_schreiben(int e, const Schaltregel& r) {
  Projekt& p = projekt;
  p.Uhr_astro[e] = r.astro;
  p.Uhr_tag[e] = r.tag;
  p.Uhr_f1[e] = r.f1;
  p.Uhr_f2[e] = r.f2;
  p.Uhr_f3[e] = r.f3;
  p.Uhr_f4[e] = r.f4;
  p.Uhr_f5[e] = r.f5;
  p.Uhr_f6[e] = r.f6;
  p.Uhr_f7[e] = r.f7;
}

}  // namespace zav
