#include "store/altdaten.h"

#include <algorithm>
#include <array>
#include <string>

#include "store/zeilen.h"

namespace zav {

namespace {

constexpr int alte_timer = 8;
constexpr i16 erster_timercode = 6;  // relay code of old timer 0
constexpr i16 relais_aus = 1;
constexpr i16 relais_ein = 2;
constexpr i32 timer_start = 1;  // start and restart

// Every cell that holds an old timer code becomes functions of that timer: off at its start, on at its end.
void Timercodes_umsetzen(Projekt& p, int ereignis) {
  const auto relais = p.Ein_relais.zeile(ereignis);
  for (std::size_t j = 0; j < relais.size(); ++j) {
    const int t = relais[j] - erster_timercode;
    if (t < 0 || t >= alte_timer) continue;
    p.Ein_timer(ereignis, t) = timer_start;
    p.Tev_relais(4 * t, j) = relais_aus;
    p.Tev_relais(4 * t + 3, j) = relais_ein;
    relais[j] = 0;
  }
}

// An event is in use, and to be sent, when its row in one of the matrices holds something.
template <std::size_t N>
void Flaggen_bilden(Feld<u8, N>& leer, Feld<u8, N>& funktext, const auto& benutzt) {
  for (std::size_t i = 0; i < N; ++i) leer[i] = funktext[i] = benutzt(i) ? 1 : 0;
}

bool Nicht_null(const auto& zeile) {
  return std::any_of(zeile.begin(), zeile.end(), [](auto v) { return v != 0; });
}
bool Ab_eins(const auto& zeile) {
  return std::any_of(zeile.begin(), zeile.end(), [](auto v) { return v >= 1; });
}

std::string Zweistellig(i16 zahl) {
  std::string text = std::to_string(zahl);
  return text.size() == 1 ? "0" + text : text;
}

}  // namespace

void Dimmer_korrektur(Projekt& p, std::string_view marke) {
  if (marke == marke_neu) return;
  for (int i = 0; i < eingangsereignisse; ++i) {
    if (p.Ein_leer[i] != 1) continue;
    for (int j = 0; j < dimmerausgaenge; ++j) {
      const i16 erster = p.Ein_dimmer(i, j, 0);
      i16& zweiter = p.Ein_dimmer(i, j, 1);
      if (erster == 1 || erster == 17) {
        zweiter = static_cast<i16>(zweiter + 1);
        p.Ein_funktext[i] = 1;
      }
      if (zweiter == 2) zweiter = 1;
      if (zweiter == 18) zweiter = 17;
    }
  }
}

void Altdaten_umsetzen(Projekt& p) {
  Flaggen_bilden(p.Ein_leer, p.Ein_funktext, [&](std::size_t i) {
    return Nicht_null(p.Ein_relais.zeile(i)) || Nicht_null(p.Ein_dimmer.zeile(i)) ||
           Nicht_null(p.Ein_timer.zeile(i));
  });
  for (int i = 0; i < eingangsereignisse; ++i) Timercodes_umsetzen(p, i);
  Flaggen_bilden(p.Uhr_leer, p.Uhr_funktext, [&](std::size_t i) {
    return Nicht_null(p.Uhr_relais.zeile(i)) || Ab_eins(p.Uhr_dimmer.zeile(i)) ||
           Nicht_null(p.Uhr_timer.zeile(i));
  });
  Flaggen_bilden(p.Tev_leer, p.Tev_funktext, [&](std::size_t i) {
    return Nicht_null(p.Tev_relais.zeile(i)) || Nicht_null(p.Tev_dimmer.zeile(i));
  });

  for (int t = 0; t < alte_timer; ++t) {
    const std::string zeit = Zweistellig(p.Ein_param(t, 2)) + "." + Zweistellig(p.Ein_param(t, 1)) + "." +
                             Zweistellig(p.Ein_param(t, 0));
    const bool benutzt = zeit != "00.00.01";
    p.Timer_zeit[3 * t] = benutzt ? zeit : "";
    p.Timer_text[t] = benutzt ? "Timer " + std::to_string(t) : "";
  }
}

}  // namespace zav
