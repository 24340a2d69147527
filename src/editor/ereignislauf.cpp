#include "editor/ereignislauf.h"

#include <algorithm>
#include <utility>

#include "editor/adressplan.h"
#include "store/funktionen.h"

namespace zav {

namespace {

Ereigniskopie Lesen(int e) {
  Ereigniskopie kopie;
  std::ranges::copy(projekt.Ein_relais.zeile(e), kopie.relais.begin());
  std::ranges::copy(projekt.Ein_timer.zeile(e), kopie.timer.begin());
  std::ranges::copy(projekt.Ein_dimmer.zeile(e), kopie.dimmer.begin());
  std::ranges::copy(projekt.App_eigenschaften.zeile(e), kopie.app.begin());
  return kopie;
}

void Schreiben(int e, const Ereigniskopie& kopie) {
  std::ranges::copy(kopie.relais, projekt.Ein_relais.zeile(e).begin());
  std::ranges::copy(kopie.timer, projekt.Ein_timer.zeile(e).begin());
  std::ranges::copy(kopie.dimmer, projekt.Ein_dimmer.zeile(e).begin());
  std::ranges::copy(kopie.app, projekt.App_eigenschaften.zeile(e).begin());
  projekt.Ein_funktext[e] = 1;
  Leer_berechnen(Ereignisart::Eingang, e);
}

void Leeren(int e) {
  std::ranges::fill(projekt.Ein_relais.zeile(e), i16{0});
  std::ranges::fill(projekt.Ein_timer.zeile(e), 0);
  std::ranges::fill(projekt.Ein_dimmer.zeile(e), i16{0});
  App_reset(e);
  projekt.Ein_led[e] = ausgang_keiner;
  projekt.Ein_funktext[e] = 1;
  projekt.Ein_leer[e] = 0;
}

// The events of the run that are device d's own, in order.
std::vector<int> Eigene_ereignisse(const Adresslauf& lauf, int d) {
  std::vector<int> eigene;
  for (int i = 0; i < lauf.anzahl; ++i) {
    if (Thermostat_adresse_frei(projekt.App_typ[d], i) && Adresse_fremd(lauf.von + i, d)) continue;
    for (int j = 0; j < 4; ++j) eigene.push_back(4 * (lauf.von + i) + j);
  }
  return eigene;
}

}  // namespace

std::array<str, app_felder> Ereigniskopie::App_vorgaben() {
  std::array<str, app_felder> vorgaben;
  for (std::size_t f = 0; f < app_felder; ++f) vorgaben.at(f) = App_vorgabe(f);
  return vorgaben;
}

std::vector<Ereigniskopie> Lauf_lesen(const Adresslauf& lauf, int d) {
  std::vector<Ereigniskopie> kopien(static_cast<std::size_t>(lauf.ereignisse()));
  for (const int e : Eigene_ereignisse(lauf, d))
    kopien.at(static_cast<std::size_t>(e - lauf.erstes_ereignis())) = Lesen(e);
  return kopien;
}

void Lauf_schreiben(const Adresslauf& lauf, int d, const std::vector<Ereigniskopie>& ereignisse) {
  for (const int e : Eigene_ereignisse(lauf, d)) {
    const auto j = static_cast<std::size_t>(e - lauf.erstes_ereignis());
    if (j < ereignisse.size()) Schreiben(e, ereignisse[j]);
  }
  Lauf_leds_melden(lauf);
}

void Lauf_leeren(const Adresslauf& lauf, int d) {
  for (const int e : Eigene_ereignisse(lauf, d)) Leeren(e);
  Lauf_leds_melden(lauf);
}

void Lauf_verschieben(const Adresslauf& alt, const Adresslauf& neu, int d) {
  // In ascending order: a thermostat may move down onto cells that it had left free itself.
  for (const int e : Eigene_ereignisse(alt, d)) {
    const int ziel = e - alt.erstes_ereignis() + neu.erstes_ereignis();
    if (ziel >= eingangsereignisse) break;
    Schreiben(ziel, Lesen(e));
    Leeren(e);
  }
  Lauf_leds_melden(alt);
  Lauf_leds_melden(neu);
}

void Lauf_leds_melden(const Adresslauf& lauf) {
  for (int i = 0; i < lauf.anzahl; ++i) projekt.Grp_led[lauf.von + i] = 1;
}

}  // namespace zav
