#include "editor/apparat.h"

#include <algorithm>

#include "editor/adressplan.h"
#include "store/katalog.h"

namespace zav {

namespace {

constexpr const char* andere_anzahl =
    "Bitte löschen Sie zuerst den alten Apparat, da der neue nicht gleich viele Adressen belegt.";
constexpr const char* keine_adressen =
    "Bitte löschen Sie zuerst den alten Apparat, da der neue keine Adressen belegt.";

// Calls f for every array of the project with one stretch of entries for each Kombination.
template <class F>
void Jedes_feld_der_kombinationen(F f) {
  f(&Projekt::Komb_typ);
  f(&Projekt::Komb_text);
  f(&Projekt::Komb_text2);
  f(&Projekt::Komb_layout);
  f(&Projekt::App_typ);
  f(&Projekt::App_text);
  f(&Projekt::App_text2);
  f(&Projekt::Dev_text);
  f(&Projekt::Dev_adr);
  f(&Projekt::App_enocean_id);
  f(&Projekt::App_enocean_schluessel);
  f(&Projekt::App_enocean_text3);
  f(&Projekt::App_enocean_empf);
  f(&Projekt::App_enocean_art);
  f(&Projekt::App_enocean_wert);
  f(&Projekt::App_enocean_res1);
  f(&Projekt::App_enocean_res2);
}

void Led_schreiben(int ereignis, i16 ausgang) {
  if (projekt.Ein_led[ereignis] == ausgang) return;
  projekt.Ein_led[ereignis] = ausgang;
  projekt.Grp_led[ereignis / 4] = 1;
}

}  // namespace

bool Wetterstation_da() { return std::ranges::count(projekt.App_typ.alle(), apparat_wetterstation) > 0; }

std::string Setzen_verweigert(int d, int typ) {
  const Apparatart& art = *Apparat_art(typ);
  const bool mit_adresse = !projekt.App_text[d].empty();
  if (art.ist(gruppe_diverse) && projekt.Komb_layout[d / plaetze] != layout_diverse) return meldung_diverse;
  if (typ == apparat_wetterstation && Wetterstation_da()) return meldung_zweite_wetterstation;
  if (!mit_adresse) return "";
  if (art.adressen == 0) return keine_adressen;
  return projekt.App_text2[d] == std::to_string(art.adressen) ? "" : andere_anzahl;
}

void Apparat_setzen(int d, int typ) {
  projekt.App_typ[d] = static_cast<i16>(typ);
  projekt.App_enocean_art[d] = Apparat_funkart(typ);
}

void Adressanzahl_nachfuehren(int d) {
  if (const Apparatart* const art = Apparat_art(projekt.App_typ[d]))
    projekt.App_text2[d] = std::to_string(art->adressen);
}

void Kombination_entfernen(int k) {
  const Projekt frisch;
  Jedes_feld_der_kombinationen([&](auto feld) {
    const auto werte = (projekt.*feld).alle();
    const std::size_t breite = werte.size() / kombinationen;
    const auto luecke = werte.begin() + static_cast<std::ptrdiff_t>(static_cast<std::size_t>(k) * breite);
    const auto ende = std::move(luecke + static_cast<std::ptrdiff_t>(breite), werte.end(), luecke);
    std::ranges::copy((frisch.*feld).alle().last(breite), ende);
  });
}

void Leds_und_thermostate_nachfuehren() {
  std::ranges::fill(projekt.Grp_thermo.alle(), i16{0});
  for (int d = 0; d < apparate; ++d) {
    if (!Kombination_belegt(d / plaetze)) continue;
    const auto lauf = Apparat_adressen(projekt, d);
    if (!lauf) continue;
    const int typ = projekt.App_typ[d];
    if (const auto i = Thermostat_adresse(typ); i && *i < lauf->anzahl)
      projekt.Grp_thermo[lauf->von + *i] = 1;
    for (int j = 0; j < lauf->ereignisse(); ++j) {
      if (Thermostat_adresse_frei(typ, j / 4) && Adresse_fremd(lauf->von + j / 4, d)) continue;
      const int slot = Apparat_slot(projekt, d, Slot_von_versatz(typ, j));
      Led_schreiben(lauf->erstes_ereignis() + j, slot < 0 ? i16{ausgang_keiner} : projekt.Dev_adr[slot]);
    }
  }
}

}  // namespace zav
