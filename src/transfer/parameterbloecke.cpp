#include "transfer/parameterbloecke.h"

#include <algorithm>
#include <array>

#include "basis/datum.h"
#include "basis/zahl.h"

namespace zav {

namespace {

constexpr int typ_wetterstation = 75;
constexpr int station_keine = 252;

// Bit k of the result is set where the value of element anfang + k is the one looked for.
template <class F>
int Bits(const F& feld, int anfang, int anzahl, int gesucht) {
  int bits = 0;
  for (int k = 0; k < anzahl; ++k) bits |= (feld[anfang + k] == gesucht) << k;
  return bits;
}

// A text as a whole number; 0 where it is none.
int Ganzzahl(const str& text) { return Zahl_lesen(text).value_or(0); }

// The last station of the project counts. One without a number on the bus is as good as none.
int Stationsnummer(const Projekt& p) {
  for (int a = apparate - plaetze; a >= plaetze; a -= plaetze) {
    if (p.App_typ[a] == typ_wetterstation) return Zahl_lesen(p.App_text[a]).value_or(station_keine);
  }
  return station_keine;
}

// The master counts from 0, so a time is sent as its seconds less one.
int Zeit_oder(const str& text, std::string_view keine, int ersatz) {
  return text.empty() || text == keine ? ersatz : Zeit_sekunden(text) - 1;
}

// Comparisons in the order of their bits, 0 to 6, in the flag bytes.
constexpr std::array<Feld<i16, 8> Projekt::*, 7> vergleiche{
    &Projekt::Wetter_v_wind, &Projekt::Wetter_v_innen, &Projekt::Wetter_v_licht, &Projekt::Wetter_v_ost,
    &Projekt::Wetter_v_west, &Projekt::Wetter_v_sued,  &Projekt::Wetter_v_aussen};

int Vergleichsbits(const Projekt& p, int f, int gesucht) {
  int bits = 0;
  for (std::size_t i = 0; i < vergleiche.size(); ++i) bits |= ((p.*vergleiche[i])[f] == gesucht) << i;
  return bits;
}

struct Schalterbytes {
  int allgemein = 0;
  int groesser = 0;
  int trocken = 0;
  int kleiner = 0;
};

Schalterbytes Schalter(const Projekt& p, int f) {
  if (p.Wetter_aktiv[f] != "1") return {};
  return {.allgemein = (p.Wetter_v_regen[f] == 1) | (p.Wetter_undoder[f] == 1) << 5 |
                       (p.Wetter_start[f] == 1) << 6 | (p.Wetter_v_defekt[f] == 1) << 7,
          .groesser = Vergleichsbits(p, f, 2),
          .trocken = p.Wetter_v_regen[f] == 2,
          .kleiner = Vergleichsbits(p, f, 1)};
}

void Wetterfunktion(const Projekt& p, int f, Block& b) {
  const int ausgang = p.Wetter_ausgang[f];
  const Schalterbytes s = Schalter(p, f);
  b.byte(ausgang < 0 ? ausgang : ausgang / 16).wort(1 << (ausgang & 15)).byte(0xFF);
  b.wort((Ganzzahl(p.Wetter_aussen[f]) + std::int64_t{273}) * 10);
  b.byte(Ganzzahl(p.Wetter_sonne_sued[f])).byte(Ganzzahl(p.Wetter_sonne_west[f]));
  b.byte(Ganzzahl(p.Wetter_sonne_ost[f])).byte(Ganzzahl(p.Wetter_licht[f])).byte(Ganzzahl(p.Wetter_innen[f]));
  b.wort(std::int64_t{10} * Ganzzahl(p.Wetter_wind[f]));
  b.byte(s.allgemein).byte(s.groesser).byte(s.trocken).byte(s.kleiner);
  b.wort(Zeit_oder(p.Wetter_warte1[f], "nicht warten", 0));
  b.wort(Zeit_oder(p.Wetter_warte2[f], "nicht warten", 0));
  b.wort(Zeit_oder(p.Wetter_wiederh1[f], "nicht wiederholen", 0xFFFF));
  b.wort(Zeit_oder(p.Wetter_wiederh2[f], "nicht wiederholen", 0xFFFF));
  b.fuellen(5, 0);
}

}  // namespace

void Block_a(const Projekt& p, Block& b) {
  for (int erster = 0; erster < relaisausgaenge; erster += 16) {
    for (const int zustand : {1, 2}) b.wort(Bits(p.Relais_neustart, erster, 16, zustand));
  }
}

void Block_q(const Projekt& p, Block& b) {
  for (int d = 0; d < dimmerausgaenge; d += 4) {
    b.byte(0);
    for (int k = 0; k < 4; ++k) b.byte(p.Dimmer_neustart[d + k]);
    b.fuellen(3, 0);
  }
}

void Block_t(const Projekt& p, Block& b) {
  for (const str& zeit : p.Timer_zeit.alle()) b.wort(zeit.empty() ? 0 : Zeit_sekunden(zeit));
}

void Block_p(const Projekt& p, Block& b) {
  for (int d = 0; d < dimmerausgaenge; d += 4) b.byte(Bits(p.Dimmer_modus, d, 4, 1)).fuellen(7, 0);
}

void Block_h(const Projekt& p, Block& b) {
  for (int g = 0; g < adressen; g += 2) b.byte((p.Grp_thermo[g] == 1) | (p.Grp_thermo[g + 1] == 1) << 4);
}

void Block_m(const Projekt& p, Block& b) {
  b.byte(Runden(p.Store_p4 / 10.0)).byte(Runden(p.Store_p2 / 10.0)).byte(Runden(p.Store_p3 / 10.0));
  b.wort(std::int64_t{100} * p.Store_p1).byte(p.Store_p5);
}

void Block_w(const Projekt& p, Block& b) {
  b.byte(Stationsnummer(p)).byte(0);
  for (int f = 0; f < wetterfunktionen; ++f) Wetterfunktion(p, f, b);
}

}  // namespace zav
