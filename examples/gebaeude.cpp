#include "gebaeude.h"

#include <algorithm>
#include <optional>

#include "app/app_eigenschaften_seite.h"
#include "editor/actmask.h"
#include "editor/bilderseite.h"
#include "editor/dialog_kombination.h"
#include "editor/layoutwahl.h"
#include "enocean/enocean_definition.h"
#include "enocean/sender.h"
#include "form/oberflaeche.h"
#include "store/katalog.h"
#include "store/sitzung.h"
#include "weather/wetterlogik.h"
#include "wirkungen.h"

namespace zav::beispiel {

namespace {

void zeigen(Formular&& f) { oberflaeche().Zeigen(f); }

Tueren tueren() {
  Tueren t;
  t.wetterlogik = [] { Wetterlogik_oeffnen([](int e, Text titel) { zeigen(Actmask(e, titel)); }); };
  t.enocean_definition = [](int platz) {
    zeigen(Enocean_Definition(plaetze * sitzung.Komb_aktuell + platz));
  };
  t.app_seite = [](int platz, int versatz) {
    zeigen(App_eigenschaften_seite(plaetze * sitzung.Komb_aktuell + platz, versatz));
  };
  t.enocean_schatten_kopieren = Enocean_schatten_nehmen;
  t.enocean_abgleichen = Enocean_abgleichen;
  return t;
}

Einmask8& editor() { return arbeitsplatz().fenster<Einmask8>("", tueren); }

// With the room on show.
Einmask8& editor(Raum r) {
  Einmask8& e = editor();
  if (e.kombination() == r.kombination) return e;
  const auto& knoten = e.TreeView1.knoten();
  const auto raum = std::ranges::find_if(knoten, [&](const Baum::Knoten& k) {
    return k.schluessel.starts_with(std::to_string(r.kombination) + "key");
  });
  fordern(raum != knoten.end(), "Raum nicht gefunden");
  e.TreeView1.waehlen(raum->schluessel);
  return e;
}

// The first of so many free cells of the address map.
int freie_adressen(const Auswahl& zellen, int anzahl) {
  const auto frei = [](const Auswahl::Eintrag& zelle) { return zelle.farbe == Farbe::frei; };
  int n = 0, lauf = 0;
  for (const auto& zelle : zellen.eintraege()) {
    lauf = frei(zelle) ? lauf + 1 : 0;
    ++n;
    if (lauf == anzahl) return n - lauf;
  }
  fordern(false, "Keine freien Adressen mehr");
  return -1;
}

}  // namespace

Einmask8& editor(const Apparat& a) {
  Einmask8& e = editor(a.raum);
  if (e.platz() != a.platz) nummer(e.Image3, a.platz).druecken();
  return e;
}

Raum kombination(Text geschoss, Text raum, Rahmen rahmen) {
  Einmask8& e = editor();
  arbeitsplatz().dialog<Layoutwahl>(e.Command9, [&](Layoutwahl& wahl) {
    tippen(wahl.Text_Standort, geschoss);
    tippen(wahl.Text_Bezeichnung, raum);
    nummer(wahl.Image6, rahmen).druecken();
  });
  return {e.kombination()};
}

Apparat apparat(Raum r, int art) {
  Einmask8& e = editor(r);
  const auto frei =
      std::ranges::find_if(e.Image3, [](const zav::Taste& t) { return t.sichtbar && t.titel == "Leer"; });
  fordern(frei != e.Image3.end(), "Kein Platz mehr: " + *e.Frame1.titel);
  frei->druecken();
  zav::Taste& bilderseite = Apparat_funkart(art) > 0 ? e.mnuChooseEnocean : e.mnuChoose;
  arbeitsplatz().dialog<Bilderseite>(bilderseite,
                                     [&](Bilderseite& w) { w.Bilder.waehlen(std::to_string(art)); });
  if (const int anzahl = Apparat_art(art)->adressen; anzahl > 0) {
    arbeitsplatz().dialog<Dialog_Kombination>(
        e.Command2, [&](Dialog_Kombination& d) { d.Zellen.waehlen(freie_adressen(d.Zellen, anzahl)); });
  }
  return {r, e.platz(), art};
}

namespace {

// The output that a key's LED shows: the first that it switches; nothing for a key that switches none.
std::optional<int> led_von(const Wirkungen& wirkungen) {
  for (const Wirkung& w : wirkungen) {
    if (w.ziel == Wirkung::Ziel::relais) return w.nummer;
    if (w.ziel == Wirkung::Ziel::dimmer) return erster_dimmer + w.nummer;
  }
  return std::nullopt;
}

Taste ereignis_belegen(const Apparat& a, int versatz, const Wirkungen& w) {
  funktionen<Actmask>(nummer(editor(a).Command15, versatz), w);
  return {a, versatz};
}

void led(const Apparat& a, int slot, int ausgang) { nummer(editor(a).Combo_LED, slot).waehlen(ausgang); }

}  // namespace

Taste taste(Apparat a, int slot, Text name, const Wirkungen& w) {
  tippen(nummer(editor(a).TTxt, slot), name);
  const Taste t = ereignis_belegen(a, Versatz_von_slot(a.art, slot), w);
  if (const auto ausgang = led_von(w); ausgang && Apparat_art(a.art)->leds.hat(slot)) led(a, slot, *ausgang);
  return t;
}

Taste taste_los(Apparat a, int slot, const Wirkungen& w) {
  return ereignis_belegen(a, Versatz_von_slot(a.art, slot) + 1, w);
}

void heizung(Apparat thermostat, Licht ventil, Licht absenkung) {
  taste(thermostat, 0, "Heizung", {thermo(ventil)});
  led(thermostat, 0, absenkung.ausgang);
}

void storentasten(Apparat a, int slot_auf, int slot_ab, Text name, Store s) {
  taste(a, slot_auf, name + " auf", {auf(s)});
  taste(a, slot_ab, name + " ab", {ab(s)});
}

}  // namespace zav::beispiel
