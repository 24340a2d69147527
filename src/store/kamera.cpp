#include "store/kamera.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "basis/zahl.h"

namespace zav {

namespace {

std::string Markierung(std::size_t feld) { return "@" + Stellen(static_cast<int>(feld) + 1, 2) + "#"; }

bool Definiert(const Projekt& p, int kamera) {
  const auto gefuellt = [&](auto feld) {
    const str& t = (p.*feld)[kamera];
    return !t.empty() && t != "0";
  };
  return p.Kamera_text[kamera] != keine_kamera || std::ranges::any_of(kamerafelder, gefuellt);
}

}  // namespace

void Kamera_zerlegen(Projekt& p) {
  for (int i = 0; i < kameras; ++i) {
    if (p.Kamera_text[i] == keine_kamera) continue;
    std::string_view rest = p.Kamera_text[i];
    for (std::size_t f = 0; f < kamerafelder.size(); ++f) {
      const std::string markierung = Markierung(f);
      const std::size_t n = rest.find(markierung);
      if (n == std::string_view::npos) continue;
      (p.*kamerafelder[f])[i] = rest.substr(0, n);
      rest.remove_prefix(n + markierung.size());
    }
  }
}

void Kamera_zusammensetzen(Projekt& p) {
  for (int i = 0; i < kameras; ++i) {
    if (!Definiert(p, i)) continue;
    std::string& zeile = p.Kamera_text[i];
    zeile.clear();
    for (std::size_t f = 0; f < kamerafelder.size(); ++f) zeile += (p.*kamerafelder[f])[i] + Markierung(f);
  }
}

}  // namespace zav
