// The commands on an event of the chosen device, sending, and closing.
#include <algorithm>

#include "basis/melder.h"
#include "editor/actmask.h"
#include "editor/apparat.h"
#include "editor/einmask8.h"
#include "form/oberflaeche.h"
#include "link/leitung.h"
#include "link/protokoll.h"
#include "store/funktionen.h"
#include "store/katalog.h"
#include "store/sitzung.h"

namespace zav {

namespace {

// Actions of Ereignis_erzeugen.
enum Tastenaktion { taste_loesen = 0, taste_druecken = 1, taste_kurz = 2 };

// The first output that the event switches or dims, as a key's LED would show it; nothing for blinds, timers
// and thermostats.
std::optional<i16> Erster_ausgang(int ereignis) {
  const auto relais = projekt.Ein_relais.zeile(ereignis);
  const auto schaltet = [](i16 code) { return code >= relais_aus && code <= relais_um; };
  if (const auto r = std::ranges::find_if(relais, schaltet); r != relais.end()) {
    return static_cast<i16>(r - relais.begin());
  }
  const auto dimmer = projekt.Ein_dimmer.zeile(ereignis);
  const auto d = std::ranges::find_if(dimmer, [](i16 parameter) { return parameter != 0; });
  if (d == dimmer.end()) return std::nullopt;
  return static_cast<i16>(erster_dimmer + (d - dimmer.begin()) / dimmerparameter);
}

}  // namespace

bool Einmask8::Adresse_da() const {
  if (!projekt.App_text[apparat()].empty()) return true;
  Melden("Bitte Adresse definieren");
  return false;
}

std::optional<int> Einmask8::Ereignis(int versatz) const {
  const auto lauf = Apparat_adressen(projekt, apparat());
  if (!lauf || versatz >= lauf->ereignisse()) return std::nullopt;
  return lauf->erstes_ereignis() + versatz;
}

void Einmask8::Ereignis_oeffnen(int versatz) {
  if (!Adresse_da()) return;
  const auto e = Ereignis(versatz);
  if (!e) return;
  const int slot =
      Apparat_textslot(projekt, apparat(), Slot_von_versatz(projekt.App_typ[apparat()], versatz));
  const std::string taste = slot < 0 ? "" : projekt.Dev_text[slot];
  Actmask maske(*e, projekt.Komb_text[komb_] + " - " + projekt.Komb_text2[komb_] + " - " + taste);
  oberflaeche().Zeigen(maske);
  Leer_berechnen(Ereignisart::Eingang, *e);
  Led_listen_fuellen();
  Seite_zeigen();
}

void Einmask8::Rueckmeldungen_suchen() {
  if (!Adresse_da()) return;
  const int typ = projekt.App_typ[apparat()];
  int gefunden = 0;
  for (int n = 0; n < Apparatseite::leds_max; ++n) {
    Auswahl& liste = Combo_LED.at(static_cast<std::size_t>(n));
    if (!liste.sichtbar || !liste.frei || Thermostat_adresse(typ)) continue;
    std::optional<i16> ausgang;
    for (int j = 0; j < Apparatseite::tasten_max && !ausgang; ++j) {
      const auto e = Slot_von_versatz(typ, j) == n ? Ereignis(j) : std::nullopt;
      if (e) ausgang = Erster_ausgang(*e);
    }
    if (!ausgang) continue;
    liste.setzen(*ausgang);
    ++gefunden;
  }
  Melden(std::to_string(gefunden) +
         " LED-Rückmeldungen gefunden\nKeine LED-Rückmeldungen für Storen, Timer und Thermo, bitte manuell "
         "verknüpfen");
}

void Einmask8::App_seite_oeffnen() {
  if (!Adresse_da()) return;
  Durch(tueren_.app_seite, platz_, versatz_);
  Seite_zeigen();
}

// Device number on the bus and key number of the event whose popup is open.
std::optional<Einmask8::Tastendruck> Einmask8::Gewaehlte_taste() const {
  if (!Adresse_da()) return std::nullopt;
  const auto e = Ereignis(versatz_);
  if (!e) return std::nullopt;
  return Tastendruck{Hex4(2 * (*e / 4) + 1024), Hex2(*e % 4 + 1)};
}

void Einmask8::Taste_druecken() {
  const auto taste = Gewaehlte_taste();
  if (!taste) return;
  Ereignis_erzeugen(taste->geraet, Hex2(taste_druecken), taste->taste);
  // A reply that was lost may have left the key down: only what never went out is certain.
  if (leitung.Port_fehler == 0) gedrueckt_ = taste;
  Befehle_freigeben();
}

void Einmask8::Taste_loesen() {
  const auto taste = gedrueckt_ ? gedrueckt_ : Gewaehlte_taste();
  if (!taste) return;
  Ereignis_erzeugen(taste->geraet, Hex2(taste_loesen), taste->taste);
  if (leitung.Port_fehler == 0 && leitung.Empfang_status == 0) gedrueckt_.reset();
  Befehle_freigeben();
}

void Einmask8::Kurzimpuls() {
  if (const auto taste = Gewaehlte_taste()) Ereignis_erzeugen(taste->geraet, Hex2(taste_kurz), taste->taste);
}

void Einmask8::Abgleichen() {
  Leds_und_thermostate_nachfuehren();
  Durch(tueren_.enocean_abgleichen);
}

void Einmask8::Senden() {
  if (sitzung.Projekt_gesendet == 0) {
    Melden("Bitte das erste Senden in dieser Sitzung über das Hauptmenu aufrufen");
    return;
  }
  Abgleichen();
  Durch(tueren_.senden);
}

void Einmask8::Schliessen() {
  if (gedrueckt_) Taste_loesen();
  Abgleichen();
  schliessen();
}

}  // namespace zav
