#include "app/eigenschaften.h"

#include <algorithm>
#include <array>
#include <string>

#include "basis/text.h"
#include "store/funktionen.h"
#include "store/katalog.h"

namespace zav {

namespace {

enum Icon_nr : int {
  taste,
  licht,
  dimmer,
  storen,
  szene,
  steckdose,
  heizung,
  alarm,
  luefter,
  musik,
  fernseher,
  tor,
  tuere,
  garten,
  uhr,
  klingel,
  kamera,
  icon_anzahl
};
constexpr std::array<std::string_view, icon_anzahl> icons{
    "Taste", "Licht",     "Dimmer", "Store", "Szene",  "Steckdose", "Heizung", "Alarm", "Ventilator",
    "Musik", "Fernseher", "Tor",    "Türe",  "Garten", "Timer",     "Klingel", "Kamera"};
constexpr std::array<std::string_view, icon_anzahl> symbole{
    "taste", "lampe",     "dimmer", "store", "szene",  "steckdose", "heizung", "alarm", "ventilator",
    "musik", "fernseher", "tor",    "tuere", "garten", "timer",     "glocke",  "kamera"};

// What a text of an installer says of its key; the first word found decides.
struct Stichwort {
  std::string_view wort;  // lower case
  int icon;
};
constexpr std::array stichworte{
    Stichwort{"szene", szene},       Stichwort{"alarm", alarm},      Stichwort{"panik", alarm},
    Stichwort{"store", storen},      Stichwort{"rollladen", storen}, Stichwort{"jalousie", storen},
    Stichwort{"markise", storen},    Stichwort{"rollo", storen},     Stichwort{"steckdose", steckdose},
    Stichwort{"heizung", heizung},   Stichwort{"thermo", heizung},   Stichwort{"ventilator", luefter},
    Stichwort{"lüft", luefter},      Stichwort{"musik", musik},      Stichwort{"radio", musik},
    Stichwort{"fernseh", fernseher}, Stichwort{"garage", tor},       Stichwort{"tor ", tor},
    Stichwort{"türöffner", tuere},   Stichwort{"haustür", tuere},    Stichwort{"klingel", klingel},
    Stichwort{"gong", klingel},      Stichwort{"kamera", kamera},    Stichwort{"bewässer", garten},
    Stichwort{"dimm", dimmer},       Stichwort{"licht", licht},      Stichwort{"lampe", licht},
    Stichwort{"leuchte", licht},     Stichwort{"spot", licht},
};

// Kinds whose inputs nobody presses: motion sensors and edge inputs.
constexpr std::array keine_tasten{45, 69, 72, 76, 89};

bool Schaltet(i16 code) { return code >= relais_aus && code <= relais_um; }
bool Faehrt(i16 code) { return code == relais_store || code == relais_store_stop; }

}  // namespace

std::span<const std::string_view> App_icons() { return icons; }

std::string_view App_icon_symbol(int nummer) {
  return symbole.at(static_cast<std::size_t>(nummer > 0 && nummer < icon_anzahl ? nummer : int{taste}));
}

App_automatik::App_automatik(const Projekt& p) : p_(p) {
  for (const i16 ausgang : p.Dev_adr.alle()) {
    if (ausgang >= 0 && ausgang < ausgang_keiner) mit_led_.set(static_cast<std::size_t>(ausgang));
  }
}

int App_automatik::Rueckmeldung(int ereignis) const {
  int erster = -1;
  // True when the search is over.
  const auto ansehen = [&](int ausgang) {
    if (erster < 0) erster = ausgang;
    if (!mit_led_.test(static_cast<std::size_t>(ausgang))) return false;
    erster = ausgang;
    return true;
  };
  const auto relais = p_.Ein_relais.zeile(ereignis);
  for (int a = 0; a < relaisausgaenge; ++a) {
    if (Schaltet(relais[static_cast<std::size_t>(a)]) && ansehen(a)) return erster;
  }
  const auto dimmwerte = p_.Ein_dimmer.zeile(ereignis);
  for (int d = 0; d < dimmerausgaenge; ++d) {
    const auto parameter = Teilzeile(dimmwerte, d, dimmerparameter);
    if (std::ranges::any_of(parameter, [](i16 w) { return w != 0; }) && ansehen(erster_dimmer + d))
      return erster;
  }
  return erster;
}

int App_automatik::Icon(int d, int versatz, int ereignis) const {
  const int slot = Apparat_textslot(p_, d, Slot_von_versatz(p_.App_typ[d], versatz));
  const std::string text = slot < 0 ? "" : Klein(p_.Dev_text[slot]) + " ";
  const auto wort = std::ranges::find_if(
      stichworte, [&](const Stichwort& s) { return text.find(s.wort) != std::string::npos; });
  if (wort != stichworte.end()) return wort->icon;
  const auto benutzt = [](auto w) { return w != 0; };
  const auto relais = p_.Ein_relais.zeile(ereignis);
  if (std::ranges::any_of(relais, Faehrt)) return storen;
  if (std::ranges::any_of(p_.Ein_dimmer.zeile(ereignis), benutzt)) return dimmer;
  if (std::ranges::any_of(relais, Schaltet)) return licht;
  return std::ranges::any_of(p_.Ein_timer.zeile(ereignis), benutzt) ? uhr : taste;
}

void App_automatik::fuellen(int d, int versatz, std::span<str> satz) const {
  const auto lauf = Apparat_adressen(p_, d);
  if (!lauf || versatz < 0 || versatz >= lauf->ereignisse()) return;
  const int ereignis = lauf->erstes_ereignis() + versatz;
  satz[App_geraet] = std::ranges::find(keine_tasten, p_.App_typ[d]) != keine_tasten.end() ? "0" : "3";
  satz[App_bereich] = satz[App_eigener_text] = satz[App_tastentext] = "0";
  const int icon = Icon(d, versatz, ereignis);
  satz[App_mit_icon] = "1";
  satz[App_icon_bild] = std::to_string(icon);
  satz[App_icon_name] = icons.at(static_cast<std::size_t>(icon));
  const int ausgang = Rueckmeldung(ereignis);
  satz[App_mit_rueckmeldung] = ausgang < 0 ? "0" : "1";
  if (ausgang >= 0) satz[App_rueckmeldung] = std::to_string(ausgang);
}

}  // namespace zav
