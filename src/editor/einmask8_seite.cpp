// The places of the shown Kombination and the page of the chosen device.
#include <algorithm>
#include <utility>

#include "basis/melder.h"
#include "editor/apparat.h"
#include "editor/bilderseite.h"
#include "editor/einmask8.h"
#include "form/oberflaeche.h"
#include "store/funktionen.h"
#include "store/katalog.h"
#include "store/sitzung.h"

namespace zav {

namespace {

std::string Adresse_in_worten(int d) {
  if (const auto lauf = Apparat_adressen(projekt, d)) {
    const std::string von = "Adresse i" + std::to_string(lauf->von);
    return lauf->anzahl > 1 ? von + " - i" + std::to_string(lauf->von + lauf->anzahl - 1) : von;
  }
  const std::string& anzahl = projekt.App_text2[d];
  if (anzahl.empty() || anzahl == "0") return "Ohne Adresse";
  return "Noch keine Adresse, belegt " + anzahl;
}

// What the event acts on: relay outputs "O", dimmers "D", timers "T", as their numbers begin.
std::string Ereignismarken(int ereignis) {
  const Ereigniszeilen z = Zeilen_von(Ereignisart::Eingang, ereignis);
  const auto benutzt = [](auto werte) { return std::ranges::any_of(werte, [](auto w) { return w != 0; }); };
  std::string marken;
  const auto marke = [&marken](bool da, const char* zeichen) {
    if (da) marken += (marken.empty() ? "" : " ") + std::string(zeichen);
  };
  marke(benutzt(z.relais), "O");
  marke(benutzt(z.dimmer), "D");
  marke(benutzt(z.timer), "T");
  return marken;
}

}  // namespace

void Einmask8::Plaetze_zeigen() {
  const Layout* const layout = komb_ < 0 ? nullptr : Layout_von(projekt.Komb_layout[komb_]);
  for (int p = 0; p < plaetze; ++p) {
    Taste& bild = Image3.at(static_cast<std::size_t>(p));
    // A layout of a later program: all places, so that nothing is out of reach.
    bild.sichtbar = komb_ >= 0 && (layout == nullptr || layout->hat(p));
    if (komb_ < 0) continue;
    const int typ = projekt.App_typ[plaetze * komb_ + p];
    const Apparatart* const art = Apparat_art(typ);
    bild.titel = art == nullptr ? "" : std::string(art->titel);
    bild.hinweis = art == nullptr ? "" : std::string(art->tag);
    bild.farbe = p == platz_ ? Farbe::aktuell : Farbe::normal;
    const std::string symbol = "apparat-" + std::to_string(typ);
    if (bild.bild != symbol) {
      bild.bild = symbol;
      bild.geaendert();
    }
  }
}

void Einmask8::Platz_waehlen(int p) {
  platz_ = p;
  Adressanzahl_nachfuehren(apparat());
  Plaetze_zeigen();
  Seite_zeigen();
}

void Einmask8::Seite_zeigen() {
  const Beschaeftigt b(*this);
  const int typ = projekt.App_typ[apparat()];
  const Apparatart* const art = Apparat_art(typ);
  const Apparatseite seite = Apparat_seite(typ);

  Frame2.titel = art == nullptr ? "" : std::string(art->titel);
  Label_Adresse.titel = Adresse_in_worten(apparat());
  Command_Wetter.sichtbar = typ == apparat_wetterstation;
  Command_Enocean.sichtbar = art != nullptr && art->ist(gruppe_funk);
  Slider20.sichtbar = typ == 89;
  Label_Lux.sichtbar = typ == 89;
  Slider20.setzen(projekt.App_enocean_wert[apparat()]);
  Label_Lux.titel = std::to_string(Slider20.wert()) + " Lux";
  for (std::size_t z = 0; z < Label_Zeile.size(); ++z) {
    Label_Zeile.at(z).titel = seite.ueberschriften.at(z);
    Label_Zeile.at(z).sichtbar = !seite.ueberschriften.at(z).empty();
  }
  Tasten_zeigen(seite);
  Leds_zeigen(seite);
  Ereignisse_faerben();
}

void Einmask8::Tasten_zeigen(const Apparatseite& seite) {
  for (int n = 0; n < Apparatseite::tasten_max; ++n) {
    const auto i = static_cast<std::size_t>(n);
    const auto& name = seite.tasten.at(i);
    Label_Taste.at(i).titel = name.value_or("");
    Label_Taste.at(i).sichtbar = name.has_value();
    TTxt.at(i).sichtbar = name.has_value();
    const int slot = name ? Text_slot(n) : -1;
    TTxt.at(i).frei = slot >= 0;
    TTxt.at(i).setzen(slot < 0 ? "" : projekt.Dev_text[slot]);

    const auto& knopf = seite.knoepfe.at(i);
    Command15.at(i).sichtbar = knopf.has_value();
    Command15.at(i).titel = knopf ? knopf->titel : "";
    Command15.at(i).hinweis = knopf ? knopf->hinweis : "";
  }
}

void Einmask8::Leds_zeigen(const Apparatseite& seite) {
  for (int n = 0; n < Apparatseite::leds_max; ++n) {
    const auto i = static_cast<std::size_t>(n);
    const auto& name = seite.leds.at(i);
    Label_LED.at(i).titel = name.value_or("");
    Label_LED.at(i).sichtbar = name.has_value();
    Auswahl& liste = Combo_LED.at(i);
    liste.sichtbar = name.has_value();
    const int slot = name ? Led_slot(n) : -1;
    liste.frei = slot >= 0;
    const int ausgang = slot < 0 ? -1 : projekt.Dev_adr[slot];
    liste.setzen(ausgang >= 0 && ausgang < liste.anzahl() ? ausgang : -1);
  }
}

void Einmask8::Ereignisse_faerben() {
  for (int j = 0; j < Apparatseite::tasten_max; ++j) {
    const auto e = Ereignis(j);
    Taste& knopf = Command15.at(static_cast<std::size_t>(j));
    knopf.farbe = e && projekt.Ein_leer[*e] != 0 ? Farbe::belegt : Farbe::normal;
    knopf.marken = e ? Ereignismarken(*e) : "";
  }
}

void Einmask8::Led_listen_fuellen() {
  std::vector<std::string> texte = LED_liste();
  if (texte == led_texte_) return;
  led_texte_ = std::move(texte);
  const Beschaeftigt b(*this);
  for (Auswahl& liste : Combo_LED) {
    const int position = liste.position();
    liste.fuellen(led_texte_);
    liste.setzen(position);
  }
}

void Einmask8::Apparat_auswaehlen(Bilderseite&& wahl) {
  oberflaeche().Zeigen(wahl);
  if (!wahl.gewaehlt()) return;
  const std::string verweigert = Setzen_verweigert(apparat(), *wahl.gewaehlt());
  if (!verweigert.empty()) {
    Melden(verweigert);
    return;
  }
  Apparat_setzen(apparat(), *wahl.gewaehlt());
  sitzung.Projekt_geaendert = 1;
  Platz_waehlen(platz_);
}

// Entry of Dev_text for the text field n; -1 where it lies on a place that has a device of its own.
int Einmask8::Text_slot(int n) const { return Apparat_textslot(projekt, apparat(), n); }

// Entry of Dev_adr for the LED list n.
int Einmask8::Led_slot(int n) const {
  const int versatz = Led_listen_versetzt(projekt.App_typ[apparat()]) ? tastenplaetze : 0;
  return Apparat_slot(projekt, apparat(), n + versatz);
}

void Einmask8::Text_geaendert(int n) {
  const int slot = Text_slot(n);
  if (slot < 0) return;
  projekt.Dev_text[slot] = TTxt.at(static_cast<std::size_t>(n)).text();
  sitzung.Projekt_geaendert = 1;
}

void Einmask8::Led_geaendert(int n) {
  const int slot = Led_slot(n);
  const int position = Combo_LED.at(static_cast<std::size_t>(n)).position();
  if (slot < 0 || position < 0) return;
  projekt.Dev_adr[slot] = static_cast<i16>(position);
  sitzung.Projekt_geaendert = 1;

  const int typ = projekt.App_typ[apparat()];
  const int adresse = Led_listen_versetzt(typ) ? *Thermostat_adresse(typ) : Versatz_von_slot(typ, n) / 4;
  const auto lauf = Apparat_adressen(projekt, apparat());
  if (lauf && adresse < lauf->anzahl) projekt.Grp_led[lauf->von + adresse] = 1;
}

void Einmask8::Lux_geaendert() {
  projekt.App_enocean_wert[apparat()] = static_cast<i16>(Slider20.wert());
  Label_Lux.titel = std::to_string(Slider20.wert()) + " Lux";
  sitzung.Projekt_geaendert = 1;
}

std::vector<Einmask8::Tastenzeile> Einmask8::Tastenzeilen() {
  std::vector<Tastenzeile> zeilen;
  if (komb_ < 0) return zeilen;
  const int typ = projekt.App_typ[apparat()];
  for (int n = 0; n < Apparatseite::tasten_max; ++n) {
    const auto i = static_cast<std::size_t>(n);
    Tastenzeile z;
    if (n % 4 == 0 && Label_Zeile.at(i / 4).sichtbar) z.ueberschrift = &Label_Zeile.at(i / 4);
    if (TTxt.at(i).sichtbar) {
      z.name = &Label_Taste.at(i);
      z.text = &TTxt.at(i);
    }
    if (i < Combo_LED.size() && Combo_LED.at(i).sichtbar) {
      z.led_name = &Label_LED.at(i);
      z.led = &Combo_LED.at(i);
    }
    for (int j = 0; j < Apparatseite::tasten_max; ++j) {
      Taste& knopf = Command15.at(static_cast<std::size_t>(j));
      if (knopf.sichtbar && Slot_von_versatz(typ, j) == n) z.ereignisse.push_back(&knopf);
    }
    if (z.text != nullptr || z.led != nullptr || !z.ereignisse.empty()) zeilen.push_back(std::move(z));
  }
  return zeilen;
}

bool Einmask8::Taste_belegt(int platz, int slot) const {
  if (komb_ < 0) return false;
  const int d = plaetze * komb_ + platz;
  const auto lauf = Apparat_adressen(projekt, d);
  if (!lauf) return false;
  for (int j = 0; j < lauf->ereignisse(); ++j) {
    if (Slot_von_versatz(projekt.App_typ[d], j) == slot && projekt.Ein_leer[lauf->erstes_ereignis() + j] != 0)
      return true;
  }
  return false;
}

}  // namespace zav
