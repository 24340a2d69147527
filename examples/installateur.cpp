#include "installateur.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

#include "platform/datei.h"
#include "platform/uhrwerk.h"
#include "store/kamera.h"
#include "store/katalog.h"
#include "store/projektdatei.h"

namespace zav::beispiel {

namespace {

// How far each kind of resource has been given out.
struct {
  int licht = 0;       // from O0-0 on
  int store = 64;      // from O8-0 on
  int virtuell = 128;  // from O16-0 on
  int dimmer = 0;
  int timer = 0;
  int adresse = 0;
  int wetter = 0;
  int sequenz = 0;
  int kamera = 0;
} vergeben;

constexpr int kennung_saat = 1947;

enum Relaiscode { code_aus = 1, code_ein, code_impuls, code_um, code_store, code_stop, code_thermo };
constexpr int mit_sperre = 6;     // added to a relay code of a clock event
constexpr int mit_freigabe = 12;  // likewise

// Checks what the windows' lists would not offer.
void fordern(bool gut, const std::string& was) {
  if (!gut) throw std::logic_error("Beispielhaus: " + was);
}

Licht ausgang(int& zaehler, Text name, int schritt = 1) {
  fordern(name.size() <= 25, "Text zu lang: " + name);
  const int a = zaehler;
  zaehler += schritt;
  projekt.Relais_text[a] = name;
  return {a};
}

Wirkung relais(int nummer, int code) { return {.ziel = Wirkung::Ziel::relais, .nummer = nummer, .code = code}; }

// The rows of one event, of whichever matrix.
struct Zeilen {
  std::span<i16> relais, dimmer;
  std::span<i32> timer;
  bool taste = false;
};

Zeilen eingang(int e) {
  return {projekt.Ein_relais.zeile(e), projekt.Ein_dimmer.zeile(e), projekt.Ein_timer.zeile(e), true};
}

void eintragen(const Zeilen& z, const Wirkungen& wirkungen) {
  for (const Wirkung& w : wirkungen) {
    const auto n = static_cast<std::size_t>(w.nummer);
    if (w.ziel == Wirkung::Ziel::relais) {
      fordern(z.relais[n] == 0, "Ausgang zweimal im gleichen Ereignis");
      z.relais[n] = static_cast<i16>(w.code);
    } else if (w.ziel == Wirkung::Ziel::timer) {
      z.timer[n] = w.code;
    } else {
      const auto p = z.dimmer.subspan(n * dimmerparameter, dimmerparameter);
      if (z.taste) p[0] = static_cast<i16>((w.auf_ab ? 1 : 0) + (w.um ? 16 : 0));
      if (z.taste) p[1] = static_cast<i16>((w.auf_ab ? 1 : 0) + (w.speicher ? 16 : 0));
      p[2] = static_cast<i16>(w.hell);
      p[3] = static_cast<i16>(w.tempo);
    }
  }
}

void eingang_belegen(int e, const Wirkungen& w) {
  eintragen(eingang(e), w);
  projekt.Ein_leer[e] = w.empty() ? 0 : 1;
  projekt.Ein_funktext[e] = projekt.Ein_leer[e];
}

// The output whose state a key's LED shows: the first that it switches.
i16 led_von(const Wirkungen& wirkungen) {
  for (const Wirkung& w : wirkungen) {
    if (w.ziel == Wirkung::Ziel::relais) return static_cast<i16>(w.nummer);
    if (w.ziel == Wirkung::Ziel::dimmer) return static_cast<i16>(erster_dimmer + w.nummer);
  }
  return ausgang_keiner;
}

void led(Apparat a, int slot, i16 ausgang) {
  projekt.Dev_adr[Apparat_slot(projekt, a.stelle, slot)] = ausgang;
  projekt.Ein_led[4 * a.adresse + slot] = ausgang;
}

auto& app(Taste t, App_feld f) { return projekt.App_eigenschaften.zeile(t.ereignis)[f]; }

}  // namespace

// ---- outputs ----------------------------------------------------------------------------------------------------------

Licht licht(Text name) { return ausgang(vergeben.licht, name); }
Licht virtuell(Text name) { return ausgang(vergeben.virtuell, name); }

Store storen(Text name) {
  const Licht l = ausgang(vergeben.store, name + " auf", 2);
  projekt.Relais_text[l.ausgang + 1] = name + " ab";
  return {l.ausgang};
}

Dimmlicht dimmlicht(Text name) {
  fordern(name.size() <= 25, "Text zu lang: " + name);
  projekt.Dimmer_text[vergeben.dimmer] = name;
  return {vergeben.dimmer++};
}

// ---- functions --------------------------------------------------------------------------------------------------------

Wirkung aus(Licht l) { return relais(l.ausgang, code_aus); }
Wirkung ein(Licht l) { return relais(l.ausgang, code_ein); }
Wirkung impuls(Licht l) { return relais(l.ausgang, code_impuls); }
Wirkung um(Licht l) { return relais(l.ausgang, code_um); }
Wirkung thermo(Licht ventil) { return relais(ventil.ausgang, code_thermo); }
Wirkung auf(Store s) { return relais(s.auf, code_store); }
Wirkung ab(Store s) { return relais(s.auf + 1, code_store); }
Wirkungen stop(Store s) { return {relais(s.auf, code_stop), relais(s.auf + 1, code_stop)}; }
Wirkung starte(Treppenlicht t) { return {.ziel = Wirkung::Ziel::timer, .nummer = t.timer, .code = 1}; }
Wirkung stoppe(Treppenlicht t) { return {.ziel = Wirkung::Ziel::timer, .nummer = t.timer, .code = 2}; }

Wirkung dimmen(Dimmlicht d, int prozent, int tempo) {
  return {.ziel = Wirkung::Ziel::dimmer, .nummer = d.dimmer, .hell = prozent, .tempo = tempo};
}
Wirkung aus(Dimmlicht d, int tempo) { return dimmen(d, 1, tempo); }
Wirkung bedienen(Dimmlicht d, int prozent) {
  Wirkung w = dimmen(d, prozent, 1);
  w.auf_ab = w.um = w.speicher = true;
  return w;
}

Wirkung gesperrt(Wirkung w) {
  w.code += mit_sperre;
  return w;
}
Wirkung entsperrt(Wirkung w) {
  w.code += mit_freigabe;
  return w;
}

Wirkungen alle(std::initializer_list<Wirkungen> teile) {
  Wirkungen w;
  for (const Wirkungen& t : teile) w.insert(w.end(), t.begin(), t.end());
  return w;
}

// ---- the building -----------------------------------------------------------------------------------------------------

Raum kombination(Text geschoss, Text raum, Rahmen rahmen) {
  const auto& typen = projekt.Komb_typ.alle();
  const auto k = static_cast<int>(std::ranges::find(typen, i16{0}) - typen.begin());
  projekt.Komb_typ[k] = 1;
  projekt.Komb_text[k] = geschoss;
  projekt.Komb_text2[k] = raum;
  projekt.Komb_layout[k] = static_cast<i16>(rahmen);
  return {k};
}

Apparat apparat(Raum r, int art) {
  const Layout& layout = *Layout_von(projekt.Komb_layout[r.kombination]);
  int platz = 0;
  while (!layout.hat(platz) || projekt.App_typ[plaetze * r.kombination + platz] != apparat_leer) ++platz;
  const Apparatart& a = *Apparat_art(art);
  fordern(a.ist(gruppe_diverse) <= (projekt.Komb_layout[r.kombination] == layout_diverse), "Apparat nur in Diverse");
  const int d = plaetze * r.kombination + platz;
  projekt.App_typ[d] = static_cast<i16>(art);
  projekt.App_text2[d] = std::to_string(a.adressen);
  projekt.App_enocean_art[d] = Apparat_funkart(art);
  if (a.adressen == 0) return {d, -1};
  const int adresse = vergeben.adresse;
  vergeben.adresse += a.adressen;
  projekt.App_text[d] = std::to_string(adresse);
  return {d, adresse};
}

Taste taste(Apparat a, int slot, Text name, const Wirkungen& w) {
  const int art = projekt.App_typ[a.stelle];
  const int ereignis = 4 * a.adresse + Versatz_von_slot(art, slot);
  projekt.Dev_text[Apparat_slot(projekt, a.stelle, slot)] = name;
  if (Apparat_art(art)->leds.hat(slot)) led(a, slot, led_von(w));
  eingang_belegen(ereignis, w);
  return {ereignis};
}

Taste taste_los(Apparat a, int slot, const Wirkungen& w) {
  const int ereignis = 4 * a.adresse + Versatz_von_slot(projekt.App_typ[a.stelle], slot) + 1;
  eingang_belegen(ereignis, w);
  return {ereignis};
}

void heizung(Apparat thermostat, Licht ventil, Licht absenkung) {
  taste(thermostat, 0, "Heizung", {thermo(ventil)});
  projekt.Grp_thermo[thermostat.adresse] = 1;
  led(thermostat, 0, static_cast<i16>(absenkung.ausgang));
}

void storentasten(Apparat a, int slot_auf, int slot_ab, Text name, Store s) {
  taste(a, slot_auf, name + " auf", {auf(s)});
  taste(a, slot_ab, name + " ab", {ab(s)});
}

// ---- radio --------------------------------------------------------------------------------------------------------------

void empfaenger(int nummer, Text ort) {
  projekt.Enocean_empf_da[nummer] = 1;
  projekt.Enocean_empf_geaendert[nummer] = 1;
  projekt.Enocean_empf_ort[nummer] = ort;
}

void funksender(Apparat a, Text id, Text schluessel, int empfaenger) {
  projekt.App_enocean_id[a.stelle] = id;
  projekt.App_enocean_schluessel[a.stelle] = schluessel;
  projekt.App_enocean_empf[a.stelle] = static_cast<i16>(empfaenger);
}

// ---- time ---------------------------------------------------------------------------------------------------------------

Zeitregel um_zeit(Text t) { return {.modus = 0, .zeit = t}; }
Zeitregel bei_sonnenaufgang() { return {.modus = 2, .zeit = "Aufgang"}; }
Zeitregel bei_sonnenuntergang() { return {.modus = 4, .zeit = "Untergang"}; }

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
  r.modus += 1;
  r.zeit += modus == 0 ? " mit Zufall" : " + Zufall";
  r.zufall_frueher = vorher;
  r.zufall_spaeter = nachher;
  return r;
}

void schaltzeit(int uhr, std::initializer_list<Tag> tage, Text name, const Zeitregel& regel, const Wirkungen& w) {
  for (const Tag tag : tage) {
    int e = (uhr - 1) * 128 + tag * 16;
    while (!projekt.Uhr_zeit[e].empty()) ++e;
    projekt.Uhr_text[e] = name;
    projekt.Uhr_zeit[e] = regel.zeit;
    projekt.Uhr_astro[e] = static_cast<i16>(regel.modus);
    projekt.Uhr_tag[e] = static_cast<i16>(regel.versatz_art);
    projekt.Uhr_f1[e] = regel.versatz;
    projekt.Uhr_f2[e] = regel.nicht_vor;
    projekt.Uhr_f3[e] = regel.nicht_nach;
    projekt.Uhr_f4[e] = regel.zufall_frueher;
    projekt.Uhr_f5[e] = regel.zufall_spaeter;
    eintragen({projekt.Uhr_relais.zeile(e), projekt.Uhr_dimmer.zeile(e), projekt.Uhr_timer.zeile(e)}, w);
    projekt.Uhr_leer[e] = projekt.Uhr_funktext[e] = w.empty() ? 0 : 1;
  }
}

void sequenz(Text ab_datum, int uhr) {
  const int i = vergeben.sequenz++;
  projekt.Seq_datum[i] = ab_datum;
  projekt.Seq_uhr[i] = static_cast<i16>(uhr);
  projekt.Seq_mo_so[i] = projekt.Seq_taeglich[i] = projekt.Seq_flag[i] = 1;
}

namespace {

// Event n of a timer: 0 start, 1 and 2 between, 3 end.
void timerereignis(Treppenlicht t, int n, const Wirkungen& w) {
  const int e = 4 * t.timer + n;
  eintragen({projekt.Tev_relais.zeile(e), projekt.Tev_dimmer.zeile(e), {}}, w);
  projekt.Tev_leer[e] = projekt.Tev_funktext[e] = w.empty() ? 0 : 1;
}

}  // namespace

Treppenlicht treppenlicht(Text name, const Wirkungen& start, Text zeit, const Wirkungen& ende) {
  return treppenlicht(name, start, "", {}, zeit, ende);
}

Treppenlicht treppenlicht(Text name, const Wirkungen& start, Text zeit1, const Wirkungen& mitte, Text zeit2,
                          const Wirkungen& ende) {
  const Treppenlicht t{vergeben.timer++};
  projekt.Timer_text[t.timer] = name;
  projekt.Timer_zeit[3 * t.timer] = zeit1;
  projekt.Timer_zeit[3 * t.timer + 2] = zeit2;
  timerereignis(t, 0, start);
  timerereignis(t, 1, mitte);
  timerereignis(t, 3, ende);
  return t;
}

// ---- weather --------------------------------------------------------------------------------------------------------------

Bedingung wind_ueber(int wert) { return {&Projekt::Wetter_wind, &Projekt::Wetter_v_wind, 2, wert}; }
Bedingung sonne_sued_ueber(int wert) { return {&Projekt::Wetter_sonne_sued, &Projekt::Wetter_v_sued, 2, wert}; }
Bedingung sonne_west_ueber(int wert) { return {&Projekt::Wetter_sonne_west, &Projekt::Wetter_v_west, 2, wert}; }
Bedingung licht_unter(int wert) { return {&Projekt::Wetter_licht, &Projekt::Wetter_v_licht, 1, wert}; }
Bedingung aussen_unter(int wert) { return {&Projekt::Wetter_aussen, &Projekt::Wetter_v_aussen, 1, wert}; }
Bedingung aussen_ueber(int wert) { return {&Projekt::Wetter_aussen, &Projekt::Wetter_v_aussen, 2, wert}; }
Bedingung regen() { return {nullptr, &Projekt::Wetter_v_regen, 1, 0}; }

void wetterfunktion(Apparat station, const Wetterfunktion& f) {
  const int n = vergeben.wetter++;
  projekt.Wetter_text[n] = f.name;
  projekt.Wetter_undoder[n] = f.alle_noetig ? 1 : 0;
  projekt.Wetter_ausgang[n] = static_cast<i16>(f.freigabe.ausgang);
  if (!f.warten.empty()) projekt.Wetter_warte1[n] = f.warten;
  if (!f.warten_danach.empty()) projekt.Wetter_warte2[n] = f.warten_danach;
  for (const Bedingung& b : f.bedingungen) {
    if (b.schwelle != nullptr) (projekt.*b.schwelle)[n] = std::to_string(b.wert);
    (projekt.*b.vergleich)[n] = static_cast<i16>(b.code);
  }
  const int erstes = 4 * station.adresse + 2 * n;
  eingang_belegen(erstes, f.erfuellt);
  eingang_belegen(erstes + 1, f.nicht_erfuellt);
}

// ---- the rest -------------------------------------------------------------------------------------------------------------

void in_der_app(Taste t, Text symbol, Geraet g) {
  app(t, App_geraet) = std::to_string(static_cast<int>(g));
  app(t, App_mit_icon) = "1";
  app(t, App_icon_name) = symbol;
  const i16 rueckmeldung = projekt.Ein_led[t.ereignis];
  if (rueckmeldung == ausgang_keiner) return;
  app(t, App_mit_rueckmeldung) = "1";
  app(t, App_rueckmeldung) = std::to_string(rueckmeldung);
}

void mit_frage(Taste t, Text frage, Text ja, Text nein) {
  app(t, App_mit_bestaetigung) = "1";
  app(t, App_frage1) = frage;
  app(t, App_ja1) = ja;
  app(t, App_nein1) = nein;
}

void als_szene(Taste t) {
  app(t, App_geraet) = "3";
  app(t, App_bereich) = "2";
  app(t, App_als_szene) = "1";
  app(t, App_mit_icon) = app(t, App_mit_rueckmeldung) = app(t, App_mit_bestaetigung) = "0";
}

void kamera(const Kamera& k) {
  const int i = vergeben.kamera++;
  projekt.Kamera_titel[i] = k.titel;
  projekt.Kamera_untertitel[i] = k.ort;
  projekt.Kamera_ip[i] = k.ip;
  projekt.Kamera_port[i] = k.port;
  projekt.Kamera_controlport[i] = "8081";
  projekt.Kamera_stream_von[i] = "50000";
  projekt.Kamera_modell[i] = k.modell;
  projekt.Kamera_aktiv[i] = "1";
  projekt.Kamera_usecase[i] = "1";
  projekt.Kamera_taste1[i] = std::to_string(k.taste.ereignis);
  projekt.Kamera_tastentext1[i] = k.tastentext;
  projekt.Kamera_text[i] = "";  // defined from here on
}

void wie_vorher_nach_neustart(std::initializer_list<Licht> lichter) {
  for (const Licht l : lichter) projekt.Relais_neustart[l.ausgang] = 2;
}

void abschnitt(std::initializer_list<Dimmlicht> lampen) {
  for (const Dimmlicht d : lampen) projekt.Dimmer_modus[d.dimmer] = 1;
}

void neues_projekt(Text titel, Text notizen) {
  Zufall_saeen(kennung_saat);
  Projekt_reset();
  projekt.Datei_version = "910";
  projekt.Notizen = notizen;
  projekt.App_allgemein[0] = titel;
}

bool abgeben(Text datei) {
  projekt.Uhr_tabelle_geaendert = 1;
  Kamera_zusammensetzen(projekt);
  const Dateiergebnis ergebnis = Datei_schreiben(datei, Projekt_schreiben(projekt));
  if (!ergebnis) std::fprintf(stderr, "%s: %s\n", datei.c_str(), Systemfehler_text(ergebnis.fehler).c_str());
  return static_cast<bool>(ergebnis);
}

}  // namespace zav::beispiel
