#include "transfer/tageszeiten.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "basis/datum.h"
#include "basis/sonne.h"

namespace zav {

namespace {

constexpr int letzte_sekunde = 86399;

// One row with its texts read, once for the whole year.
struct Regel {
  i16 art = Zeit_fest;
  bool benutzt = false;
  bool mit_zufall = false;
  bool nach_sonne = false;
  int zeit = 0;
  int versatz = 0;
  std::optional<int> frueher;  // bounds of the random shift
  std::optional<int> spaeter;
  std::optional<int> untergrenze;
  std::optional<int> obergrenze;
  bool unten_schalten = true;  // at a limit: switch there, or not at all
  bool oben_schalten = true;
};

std::optional<int> Sekunden(const str& text) {
  return text.empty() ? std::nullopt : std::optional(Zeit_sekunden(text));
}

Regel Regel_lesen(const Projekt& p, int e) {
  Regel r;
  r.art = p.Uhr_astro[e];
  r.benutzt = !p.Uhr_zeit[e].empty() && r.art >= Zeit_fest && r.art <= Zeit_untergang_zufall;
  if (!r.benutzt) return r;
  r.mit_zufall = r.art % 2 == 1;
  r.nach_sonne = r.art >= Zeit_aufgang;
  r.zeit = Zeit_sekunden(p.Uhr_zeit[e]);
  if (p.Uhr_tag[e] == 1) r.versatz = -Zeit_sekunden(p.Uhr_f1[e]);
  if (p.Uhr_tag[e] == 2) r.versatz = Zeit_sekunden(p.Uhr_f1[e]);
  r.untergrenze = Sekunden(p.Uhr_f2[e]);
  r.obergrenze = Sekunden(p.Uhr_f3[e]);
  r.frueher = Sekunden(p.Uhr_f4[e]);
  r.spaeter = Sekunden(p.Uhr_f5[e]);
  r.unten_schalten = p.Uhr_f6[e] == 0;
  r.oben_schalten = p.Uhr_f7[e] == 0;
  return r;
}

// The amounts drawn last. They outlive a row: see Tageszeiten_berechnen.
struct Zufallsversatz {
  int E = 0;
  int S = 0;
};

int Ziehen(int hoechstens, const std::function<double()>& zufall) {
  return static_cast<int>(std::floor((hoechstens + 1) * zufall()));
}

// Half of it, rounded down: the master's table has a resolution of two seconds.
int Halbe(int sekunden) { return sekunden >> 1; }

int Zeit_am_tag(const Regel& r, int aufgang, int untergang, Zufallsversatz& versatz,
                const std::function<double()>& zufall) {
  if (!r.benutzt) return schaltet_nicht;
  if (r.art == Zeit_fest) return Halbe(r.zeit);

  int v = r.zeit;
  if (r.nach_sonne) {
    v = (r.art <= Zeit_aufgang_zufall ? aufgang : untergang) + r.versatz;
  } else {
    versatz = {};
  }
  if (r.mit_zufall) {
    if (r.frueher) versatz.E = Ziehen(*r.frueher, zufall);
    if (r.spaeter) versatz.S = Ziehen(*r.spaeter, zufall);
    v += versatz.S - versatz.E;
  }
  if (r.nach_sonne) {
    if (r.untergrenze && *r.untergrenze > v) v = r.unten_schalten ? *r.untergrenze : schaltet_nicht;
    // The mark is a time too, 18:12:15: a row that comes to lie exactly there does not switch.
    if (v != schaltet_nicht && r.obergrenze && *r.obergrenze < v)
      v = r.oben_schalten ? *r.obergrenze : schaltet_nicht;
    if (v == schaltet_nicht) return schaltet_nicht;
  }
  return Halbe(std::clamp(v, 0, letzte_sekunde));
}

}  // namespace

Sonnentafeln Sonnen_tabellen_fuellen(int jahr) {
  Sonnentafeln t;
  for (int m = 0; m < monate_im_jahr; ++m) {
    for (int d = 0; d < tage_im_monat; ++d) {
      const Sonnenzeiten zeiten = Sonnenzeiten_am(Datum_aus(jahr, m + 1, d + 1));
      t.Sonne_auf(m, d) = zeiten.aufgang;
      t.Sonne_unter(m, d) = zeiten.untergang;
    }
  }
  return t;
}

Uhr_tafel Tageszeiten_berechnen(const Projekt& p, const Sonnentafeln& sonne,
                                const std::function<double()>& zufall) {
  std::array<Regel, uhrereignisse> regeln;
  for (int e = 0; e < uhrereignisse; ++e) regeln[static_cast<std::size_t>(e)] = Regel_lesen(p, e);

  Uhr_tafel Uhr_work;
  Zufallsversatz versatz;
  auto ziel = Uhr_work.alle().begin();
  for (int m = 0; m < monate_im_jahr; ++m) {
    for (int d = 0; d < tage_im_monat; ++d) {
      const int aufgang = sonne.Sonne_auf(m, d);
      const int untergang = sonne.Sonne_unter(m, d);
      for (const Regel& r : regeln) *ziel++ = Zeit_am_tag(r, aufgang, untergang, versatz, zufall);
    }
  }
  return Uhr_work;
}

}  // namespace zav
