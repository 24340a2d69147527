#include "store/kamera.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "basis/zahl.h"

namespace zav {

namespace {

constexpr const char* keine_kamera = "X";

// The fields in the order of their markers.
constexpr std::array felder{
    &Projekt::Kamera_titel,       &Projekt::Kamera_untertitel,  &Projekt::Kamera_ip,
    &Projekt::Kamera_port,        &Projekt::Kamera_controlport, &Projekt::Kamera_stream_von,
    &Projekt::Kamera_modell,      &Projekt::Kamera_res8,        &Projekt::Kamera_aktiv,
    &Projekt::Kamera_usecase,     &Projekt::Kamera_taste1,      &Projekt::Kamera_taste2,
    &Projekt::Kamera_tastentext1, &Projekt::Kamera_tastentext2};

std::string Markierung(std::size_t feld) { return "@" + Stellen(static_cast<int>(feld) + 1, 2) + "#"; }

bool Definiert(const Projekt& p, int kamera) {
  return p.Kamera_text[kamera] != keine_kamera || std::any_of(felder.begin(), felder.end(), [&](auto feld) {
           const str& t = (p.*feld)[kamera];
           return !t.empty() && t != "0";
         });
}

}  // namespace

void Kamera_zerlegen(Projekt& p) {
  for (int i = 0; i < kameras; ++i) {
    if (p.Kamera_text[i] == keine_kamera) continue;
    std::string_view rest = p.Kamera_text[i];
    for (std::size_t f = 0; f < felder.size(); ++f) {
      const std::string markierung = Markierung(f);
      const std::size_t n = rest.find(markierung);
      if (n == std::string_view::npos) continue;
      (p.*felder[f])[i] = rest.substr(0, n);
      rest.remove_prefix(n + markierung.size());
    }
  }
}

void Kamera_zusammensetzen(Projekt& p) {
  for (int i = 0; i < kameras; ++i) {
    if (!Definiert(p, i)) continue;
    std::string& zeile = p.Kamera_text[i];
    zeile.clear();
    for (std::size_t f = 0; f < felder.size(); ++f) zeile += (p.*felder[f])[i] + Markierung(f);
  }
}

}  // namespace zav
