#include "store/kennzahlen.h"

#include <algorithm>
#include <set>
#include <vector>

#include "store/katalog.h"

namespace zav {

namespace {

int Anzahl(const auto& feld, const auto& trifft_zu) {
  return static_cast<int>(std::ranges::count_if(feld.alle(), trifft_zu));
}
constexpr auto eins = [](auto wert) { return wert == 1; };
constexpr auto gefuellt = [](const str& text) { return !text.empty(); };

// How many of the columns of the matrices hold something in any row. A column has as many cells as a row has
// to each.
int Benutzt(std::size_t spalten, const auto&... matrizen) {
  std::vector<bool> benutzt(spalten);
  const auto ansehen = [&](const auto& matrix) {
    const std::size_t breite = matrix.zeilenbreite / spalten;
    for (std::size_t e = 0; e < matrix.mass(0); ++e) {
      const auto zeile = matrix.zeile(e);
      for (std::size_t i = 0; i < zeile.size(); ++i) {
        if (zeile[i] != 0) benutzt[i / breite] = true;
      }
    }
  };
  (ansehen(matrizen), ...);
  return static_cast<int>(std::ranges::count(benutzt, true));
}

}  // namespace

Kennzahlen Kennzahlen_von(const Projekt& p) {
  Kennzahlen k;
  for (std::size_t a = 0; a < p.App_typ.groesse; ++a) {
    if (p.Komb_text[a / plaetze].empty()) continue;  // what such a slot holds is in no file
    if (p.App_typ[a] != apparat_leer) ++k.apparate;
    k.adressen += Apparat_adressen(p, static_cast<int>(a)).value_or(Adresslauf{}).anzahl;
    if (!p.App_enocean_id[a].empty()) ++k.funksender;
  }
  std::set<str> geschosse(p.Komb_text.alle().begin(), p.Komb_text.alle().end());
  geschosse.erase("");
  for (std::size_t i = 0; i < p.App_eigenschaften.mass(0); ++i) {
    if (p.App_eigenschaften.zeile(i)[App_geraet] != "0") ++k.apptasten;
  }
  k.kombinationen = Anzahl(p.Komb_text, gefuellt);
  k.geschosse = static_cast<int>(geschosse.size());
  k.eingangsereignisse = Anzahl(p.Ein_leer, eins);
  k.eingang_zu_senden = Anzahl(p.Ein_funktext, eins);
  k.schaltzeiten = Anzahl(p.Uhr_zeit, gefuellt);
  k.uhrereignisse = Anzahl(p.Uhr_leer, eins);
  k.uhr_zu_senden = Anzahl(p.Uhr_funktext, eins);
  k.timerereignisse = Anzahl(p.Tev_leer, eins);
  k.timer_zu_senden = Anzahl(p.Tev_funktext, eins);
  k.led_zu_senden = Anzahl(p.Grp_led, eins);
  k.relais_benutzt = Benutzt(relaisausgaenge, p.Ein_relais, p.Uhr_relais, p.Tev_relais);
  k.dimmer_benutzt = Benutzt(dimmerausgaenge, p.Ein_dimmer, p.Uhr_dimmer, p.Tev_dimmer);
  k.timer_benutzt = Benutzt(timeranzahl, p.Ein_timer, p.Uhr_timer);
  k.wetterfunktionen = Anzahl(p.Wetter_text, gefuellt);
  k.funkempfaenger = Anzahl(p.Enocean_empf_da, eins);
  k.kameras = Anzahl(p.Kamera_aktiv, [](const str& t) { return t == "1"; });
  return k;
}

}  // namespace zav
