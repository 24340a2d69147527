// Switching clocks, sequencer and staircase lights, and what outputs do by themselves.
#include "editor/actmask_init.h"
#include "editor/actmask_timer.h"
#include "editor/actmask_uhr.h"
#include "editor/dimmermode.h"
#include "editor/timer_trepp.h"
#include "time/form_setup_uhr.h"
#include "time/uhr.h"
#include "time/uhr_astro.h"
#include "wirkungen.h"

namespace zav::beispiel {

// ---- clocks ---------------------------------------------------------------------------

Zeitregel um_zeit(Text t) { return {.modus = Zeit_fest, .zeit = t}; }
Zeitregel bei_sonnenaufgang() { return {.modus = Zeit_aufgang, .zeit = ""}; }
Zeitregel bei_sonnenuntergang() { return {.modus = Zeit_untergang, .zeit = ""}; }

Zeitregel Zeitregel::frueher(Text t) const {
  Zeitregel r = *this;
  r.versatz_art = 1;
  r.versatz = t;
  return r;
}
Zeitregel Zeitregel::spaeter(Text t) const {
  Zeitregel r = frueher(t);
  r.versatz_art = 2;
  return r;
}
Zeitregel Zeitregel::zwischen(Text von, Text bis) const {
  fordern(versatz_art != 0, "Grenzen nur mit Versatz");
  Zeitregel r = *this;
  r.nicht_vor = von;
  r.nicht_nach = bis;
  return r;
}
Zeitregel Zeitregel::zufaellig(Text vorher, Text nachher) const {
  Zeitregel r = *this;
  r.modus += 1;  // the mode with a random shift follows its own
  r.zufall_frueher = vorher;
  r.zufall_spaeter = nachher;
  return r;
}

namespace {

// Types a time into a field that opens with `oeffnen`; the window asks for the time as soon as it is open.
void zeit_eintragen(Textfeld& feld, Text zeit, const std::function<void()>& oeffnen) {
  if (zeit.empty()) return;
  arbeitsplatz().mit_meldung("Bitte Eingabe korrigieren", oeffnen);
  tippen(feld, zeit);
}
void zeit_eintragen(Textfeld& feld, Text zeit, Kaestchen& davor) {
  zeit_eintragen(feld, zeit, [&] { davor.haken(true); });
}

void regel_eintragen(Uhr_Astro& a, const Zeitregel& regel) {
  if (!regel.zeit.empty()) tippen(a.Text14, regel.zeit);
  a.Combo_Astro.waehlen(regel.modus);
  zeit_eintragen(a.Text15, regel.versatz, [&] { a.Option3.waehlen(regel.versatz_art); });
  zeit_eintragen(a.Text16, regel.nicht_vor, a.Check1);
  zeit_eintragen(a.Text17, regel.nicht_nach, a.Check2);
  zeit_eintragen(a.Text18, regel.zufall_frueher, a.Check3);
  zeit_eintragen(a.Text19, regel.zufall_spaeter, a.Check4);
}

}  // namespace

void schaltzeit(int uhr, std::initializer_list<Tag> tage, Text name, const Zeitregel& regel,
                const Wirkungen& w) {
  auto& f = arbeitsplatz().fenster<Uhr>("Bitte wenn nötig den Schaltuhr-Sequenzer anpassen");
  f.Uhr_auswahl.waehlen(uhr - 1);
  for (const Tag tag : tage) {
    f.TabStrip1.waehlen(tag);
    const int zeile = freies(f.Schaltzeit_txt);
    tippen(nummer(f.Schaltzweck_txt, zeile), name);
    arbeitsplatz().dialog<Uhr_Astro>(nummer(f.Zeitsetz, zeile),
                                     [&](Uhr_Astro& a) { regel_eintragen(a, regel); });
    funktionen<Actmask_uhr>(nummer(f.Funktion, zeile), w);
  }
}

void sequenz(Text ab_datum, int uhr) {
  auto& f = arbeitsplatz().fenster<Form_Setup_uhr>();
  const int zeile = freies(f.Text_dat);
  nummer(f.Text_dat, zeile).ausfuellen(ab_datum);
  nummer(f.Combo1, zeile).waehlen("Schaltuhr " + std::to_string(uhr));
  nummer(f.Check1, zeile).haken(true);
}

// ---- staircase lights ---------------------------------------------------------------------------

Treppenlicht treppenlicht(Text name, const Wirkungen& start, Text zeit, const Wirkungen& ende) {
  return treppenlicht(name, start, "", {}, zeit, ende);
}

Treppenlicht treppenlicht(Text name, const Wirkungen& start, Text zeit1, const Wirkungen& mitte, Text zeit2,
                          const Wirkungen& ende) {
  auto& f = arbeitsplatz().fenster<Timer_trepp>();
  const int t = freies(f.Txtbox_timerbez);
  tippen(nummer(f.Txtbox_timerbez, t), name);
  // The third step in between, and the time before it, stay unused.
  nummer(f.Ttime, Timer_trepp::zeiten_je_timer * t).ausfuellen(zeit1);
  nummer(f.Ttime, Timer_trepp::zeiten_je_timer * t + 2).ausfuellen(zeit2);
  const int anfang = Timer_trepp::schritte * t;
  funktionen<Actmask_timer>(nummer(f.Tevent, anfang), start);
  funktionen<Actmask_timer>(nummer(f.Tevent, anfang + 1), mitte);
  funktionen<Actmask_timer>(nummer(f.Tevent, anfang + 3), ende);
  return {t};
}

// ---- basic settings of outputs ---------------------------------------------------------------------------

void wie_vorher_nach_neustart(std::initializer_list<Licht> lichter) {
  auto& f = arbeitsplatz().fenster<Actmask_init>();
  for (const Licht l : lichter) {
    const int i = l.ausgang % relais_je_gruppe;
    f.Baugruppe.waehlen(l.ausgang / relais_je_gruppe);
    benennen(nummer(f.Text1, i), {Ziel::Art::Relais, l.ausgang});
    nummer(f.Combo1, i).waehlen("Zustand wie vorher");
  }
}

void abschnitt(std::initializer_list<Dimmlicht> lampen) {
  auto& f = arbeitsplatz().fenster<Dimmermode>();
  for (const Dimmlicht d : lampen) {
    f.TabStrip1.waehlen(d.dimmer / Dimmermode::zeilen);
    nummer(f.Check2, d.dimmer % Dimmermode::zeilen).haken(true);
  }
}

}  // namespace zav::beispiel
