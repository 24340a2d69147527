// Outputs, what is done with them, and the pages of the function editor.
#include "wirkungen.h"

#include <array>

#include "editor/actmask.h"

namespace zav::beispiel {

namespace {

constexpr int relais_thermo = 7;  // of input events
// Added to a relay code of a clock event.
constexpr int mit_sperre = 6, mit_freigabe = 12;

// The next output of each kind.
struct {
  int licht = 0;       // from O0-0 on
  int store = 64;      // from O8-0 on
  int virtuell = 128;  // from O16-0 on
  int dimmer = 0;
} naechster;

std::array<std::string, relaisausgaenge> relaisnamen;
std::array<std::string, dimmerausgaenge> dimmernamen;

std::string& name_von(Ziel z) {
  return z.art == Ziel::Art::Relais ? nummer(relaisnamen, z.nummer) : nummer(dimmernamen, z.nummer);
}

Licht ausgang(int& zaehler, Text name) {
  nummer(relaisnamen, zaehler) = name;
  return {zaehler++};
}

Wirkung relais(int nummer, int code) {
  return {.ziel = Wirkung::Ziel::relais, .nummer = nummer, .code = code};
}

}  // namespace

// ---- outputs ---------------------------------------------------------------------------

Licht licht(Text name) { return ausgang(naechster.licht, name); }
Licht virtuell(Text name) { return ausgang(naechster.virtuell, name); }

Store storen(Text name) {
  const Licht auf = ausgang(naechster.store, name + " auf");
  ausgang(naechster.store, name + " ab");
  return {auf.ausgang};
}

Dimmlicht dimmlicht(Text name) {
  nummer(dimmernamen, naechster.dimmer) = name;
  return {naechster.dimmer++};
}

void benennen(Textfeld& feld, Ziel ausgang) {
  if (feld.text().empty()) tippen(feld, name_von(ausgang));
}

void namen_pruefen() {
  for (int a = 0; a < relaisausgaenge; ++a) {
    fordern(projekt.Relais_text[a] == nummer(relaisnamen, a), "Ohne Funktion: " + nummer(relaisnamen, a));
  }
  for (int d = 0; d < dimmerausgaenge; ++d) {
    fordern(projekt.Dimmer_text[d] == nummer(dimmernamen, d), "Ohne Funktion: " + nummer(dimmernamen, d));
  }
}

// ---- functions ---------------------------------------------------------------------------

Wirkung aus(Licht l) { return relais(l.ausgang, relais_aus); }
Wirkung ein(Licht l) { return relais(l.ausgang, relais_ein); }
Wirkung impuls(Licht l) { return relais(l.ausgang, relais_impuls); }
Wirkung um(Licht l) { return relais(l.ausgang, relais_um); }
Wirkung thermo(Licht ventil) { return relais(ventil.ausgang, relais_thermo); }
Wirkung auf(Store s) { return relais(s.auf, relais_store); }
Wirkung ab(Store s) { return relais(s.auf + 1, relais_store); }
// The function editor stops the other output of the pair along with it.
Wirkung stop(Store s) { return relais(s.auf, relais_store_stop); }
Wirkung starte(Treppenlicht t) { return {.ziel = Wirkung::Ziel::timer, .nummer = t.timer, .code = 1}; }
Wirkung stoppe(Treppenlicht t) { return {.ziel = Wirkung::Ziel::timer, .nummer = t.timer, .code = 2}; }

Wirkung dimmen(Dimmlicht d, int prozent, int tempo) {
  return {.ziel = Wirkung::Ziel::dimmer, .nummer = d.dimmer, .hell = prozent, .tempo = tempo};
}
Wirkung aus(Dimmlicht d, int tempo) { return dimmen(d, 1, tempo); }
Wirkung bedienen(Dimmlicht d, int prozent) {
  Wirkung w = dimmen(d, prozent, 1);
  w.bedienen = true;
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

// ---- the function editor ---------------------------------------------------------------------------

namespace {

void schaltseite(Funktionsmaske& m, const Wirkung& w) {
  const int i = w.nummer % relais_je_gruppe;
  m.TabStrip1.waehlen(Funktionsmaske::schalten);
  m.Baugruppe.waehlen(w.nummer / relais_je_gruppe);
  fordern(!nummer(m.Check1, i).an(),
          "Ausgang zweimal im gleichen Ereignis: " + nummer(relaisnamen, w.nummer));
  nummer(m.Check1, i).haken(true);
  benennen(nummer(m.Text1, i), {Ziel::Art::Relais, w.nummer});
  nummer(m.Combo1, i).waehlen(w.code);
}

void dimmseite(Funktionsmaske& m, const Wirkung& w) {
  const int i = w.nummer % dimmer_je_gruppe;
  m.TabStrip1.waehlen(Funktionsmaske::dimmen);
  m.Dimmbaugruppe.waehlen(w.nummer / dimmer_je_gruppe);
  nummer(m.Check2, i).haken(true);
  benennen(nummer(m.Text2, i), {Ziel::Art::Dimmer, w.nummer});
  nummer(m.Slider1, i).schieben(w.hell);
  nummer(m.Tempo, i).waehlen(w.tempo);
  if (!w.bedienen) return;
  auto& taste = dynamic_cast<Actmask&>(m);
  for (auto* kaestchen : {&taste.Check_auf, &taste.Check_ab, &taste.Check3, &taste.Check_mem}) {
    nummer(*kaestchen, i).haken(true);
  }
}

void timerseite(Funktionsmaske& m, const Wirkung& w) {
  m.TabStrip1.waehlen(Funktionsmaske::timer);
  nummer(m.Check4, w.nummer).haken(true);
  nummer(m.Combo_timerfkt, w.nummer).waehlen(w.code);
}

}  // namespace

void eintragen(Funktionsmaske& m, const Wirkungen& wirkungen) {
  static constexpr std::array seiten{schaltseite, dimmseite, timerseite};  // by Wirkung::Ziel
  for (const Wirkung& w : wirkungen) nummer(seiten, static_cast<int>(w.ziel))(m, w);
}

}  // namespace zav::beispiel
