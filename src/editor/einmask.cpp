#include "editor/einmask.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "basis/liste.h"
#include "editor/actmask.h"
#include "editor/ausgangsfelder.h"
#include "editor/auswahl_taster.h"
#include "editor/import.h"
#include "form/oberflaeche.h"
#include "store/katalog.h"
#include "store/sitzung.h"

namespace zav {

namespace {

constexpr int bild_mehrfachsender = 70;  // value of Grp_typ
constexpr int bild_vorgabe = 5;
constexpr int mehrfachsender_adressen = 6;

constexpr const char* loeschtitel = "Warnung vor dem Löschen";

bool Ist_mehrfachsender(int bildtyp) {
  const auto art = Importart_von(bildtyp);
  return art && art->adressen == mehrfachsender_adressen;
}

// Several senders of one kind are told apart by marks in their groups' texts. A text with a mark decides what
// the group is, whatever its picture.
bool Text_bestimmt_bild(int adresse) {
  constexpr int keines = -1;
  return Importtyp(projekt.Grp_text[adresse], keines) != keines;
}

// First address of the sender that has this address in its run; the address itself counts too.
std::optional<int> Sender_ueber(int adresse) {
  for (int a = std::max(0, adresse - mehrfachsender_adressen + 1); a <= adresse; ++a) {
    if (Ist_mehrfachsender(Importtyp(projekt.Grp_text[a], projekt.Grp_typ[a]))) return a;
  }
  return std::nullopt;
}

// A sender that stands in the way of a new one of this picture: a second one of its kind, or one in its run.
std::optional<int> Sender_im_weg(int adresse, int bildtyp) {
  for (int a = 0; a < adressen; ++a) {
    if (a == adresse || !Ist_mehrfachsender(projekt.Grp_typ[a])) continue;
    if (projekt.Grp_typ[a] == bildtyp || (a > adresse && a < adresse + mehrfachsender_adressen)) return a;
  }
  return std::nullopt;
}

void Merken(auto& ziel, auto wert) {
  if (ziel == wert) return;
  ziel = wert;
  sitzung.Projekt_geaendert = 1;
}

}  // namespace

Einmask::Einmask() : Formular("Einmask", "Eingänge") {
  Seite_einrichten();
  Gruppe_einrichten();
  anmelden("Command_schliessen", Command_schliessen);
  Command_schliessen.abbruch = true;
  Command_schliessen.wenn_gedrueckt = [this] { schliessen(); };
  TabStrip1.setzen(0);
}

void Einmask::Seite_einrichten() {
  anmelden("TabStrip1", TabStrip1);
  anmelden("Label_kopf", Label_kopf);
  anmelden("Nummer", Nummer);
  anmelden("Text_grp", Text_grp);
  anmelden("Text_ein", Text_ein);

  Label_kopf[0].titel = "Gruppe";
  for (int t = 0; t < tasten; ++t) Label_kopf[1 + t].titel = "Taste " + std::to_string(t + 1);
  TabStrip1.fuellen(Texte(adressen / gruppen_je_seite,
                          [](int seite) { return "I" + std::to_string(seite * gruppen_je_seite); }));
  TabStrip1.wenn_geaendert = [this] { Seite_zeigen(); };
  for (int z = 0; z < gruppen_je_seite; ++z) {
    Nummer[z].wenn_gedrueckt = [this, z] { Gruppe_waehlen(z); };
    Text_grp[z].wenn_geaendert = [this, z] {
      Merken(projekt.Grp_text[TabStrip1.position() * gruppen_je_seite + z], Text_grp[z].text());
      Gruppe_waehlen(z);
    };
  }
  for (int t = 0; t < gruppen_je_seite * tasten; ++t) {
    Text_ein[t].wenn_geaendert = [this, t] {
      Merken(projekt.Ein_text[TabStrip1.position() * gruppen_je_seite * tasten + t], Text_ein[t].text());
      Gruppe_waehlen(t / tasten);
    };
  }
}

void Einmask::Gruppe_einrichten() {
  anmelden("Frame1", Frame1);
  anmelden("Label_bild", Label_bild);
  anmelden("Command_taster", Command_taster);
  anmelden("Command_due", Command_due);
  anmelden("Command_mehrfach", Command_mehrfach);
  anmelden("Check_thermo", Check_thermo);
  anmelden("Label_taste", Label_taste);
  anmelden("Combo_LED", Combo_LED);
  anmelden("Command_fkt", Command_fkt);
  anmelden("Command_loeschen", Command_loeschen);

  Command_taster.wenn_gedrueckt = [this] { Bild_waehlen<Auswahl_Taster>(); };
  Command_due.wenn_gedrueckt = [this] { Bild_waehlen<Auswahl_Taster_2>(); };
  Command_mehrfach.wenn_gedrueckt = [this] {
    Bild_setzen(projekt.Grp_typ[adresse()] == bild_mehrfachsender ? bild_vorgabe : bild_mehrfachsender);
  };
  Check_thermo.hinweis =
      "Thermostatfunktion für Eingang 1: Dieser wird ca. alle 4 Minuten vom ZAVmaster abgefragt und wie ein "
      "Ereignis "
      "behandelt.";
  Check_thermo.wenn_geaendert = [this] {
    Merken(projekt.Grp_thermo[adresse()], static_cast<i16>(Check_thermo.an()));
  };
  for (int t = 0; t < tasten; ++t) {
    Combo_LED[t].hinweis = "Tasten-LED mit einem Ausgang in dieser Liste verknüpfen";
    Combo_LED[t].wenn_geaendert = [this, t] {
      Merken(projekt.Ein_led[ereignis(t)], static_cast<i16>(Combo_LED[t].position()));
      projekt.Grp_led[adresse()] = 1;
    };
    Command_fkt[t].titel = "Funktionen...";
    Command_fkt[t].wenn_gedrueckt = [this, t] { Funktion_oeffnen(t); };
  }
  Led_listen_fuellen();
  Command_loeschen.wenn_gedrueckt = [this] { Loeschen(); };
}

void Einmask::Seite_zeigen() {
  const Beschaeftigt b(*this);
  const int erste = TabStrip1.position() * gruppen_je_seite;
  for (int z = 0; z < gruppen_je_seite; ++z) {
    Nummer[z].titel = "I" + std::to_string(erste + z);
    Text_grp[z].setzen(projekt.Grp_text[erste + z]);
    for (int t = 0; t < tasten; ++t)
      Text_ein[z * tasten + t].setzen(projekt.Ein_text[(erste + z) * tasten + t]);
  }
  Gruppe_waehlen(0);
}

void Einmask::Gruppe_waehlen(int zeile) {
  zeile_ = zeile;
  Gruppe_zeigen();
}

void Einmask::Gruppe_zeigen() {
  const Beschaeftigt b(*this);
  Frame1.titel = "I" + std::to_string(adresse()) + "  " + projekt.Grp_text[adresse()];
  Bild_zeigen();
  Check_thermo.setzen(projekt.Grp_thermo[adresse()] != 0);
  for (int t = 0; t < tasten; ++t) {
    const str& text = projekt.Ein_text[ereignis(t)];
    Label_taste[t].titel = text.empty() ? "Taste " + std::to_string(t + 1) : text;
    Einstellen(Combo_LED[t], projekt.Ein_led[ereignis(t)]);
  }
  Faerben();
}

void Einmask::Bild_zeigen() {
  const int a = adresse();
  const auto art = Importart_von(Importtyp(projekt.Grp_text[a], projekt.Grp_typ[a]));
  Label_bild.titel = art ? std::string(Apparat_art(art->typ)->titel) : "Ohne Bild";
  Command_mehrfach.titel =
      projekt.Grp_typ[a] == bild_mehrfachsender ? "&Mehrfachsender löschen" : "&Mehrfachsender";

  const auto sender = Sender_ueber(a);
  std::string grund;
  if (Text_bestimmt_bild(a)) {
    grund = "Der Text der Gruppe legt das Bild fest";
  } else if (sender && *sender != a) {
    grund = "Gehört zum Mehrfachsender ab I" + std::to_string(*sender);
  }
  for (Taste* t : {&Command_taster, &Command_due, &Command_mehrfach}) {
    t->frei = grund.empty();
    t->hinweis = grund;
  }
}

void Einmask::Led_listen_fuellen() {
  const std::vector<std::string> liste = LED_liste();
  for (Auswahl& c : Combo_LED) c.fuellen(liste);
}

void Einmask::Faerben() {
  for (int z = 0; z < gruppen_je_seite; ++z) {
    const auto leer = Teilzeile(projekt.Ein_leer.alle(), TabStrip1.position() * gruppen_je_seite + z, tasten);
    const bool belegt = std::any_of(leer.begin(), leer.end(), [](u8 w) { return w != 0; });
    Nummer[z].farbe = z == zeile_ ? Farbe::aktuell : belegt ? Farbe::belegt : Farbe::normal;
  }
  for (int t = 0; t < tasten; ++t) {
    Command_fkt[t].farbe = projekt.Ein_leer[ereignis(t)] != 0 ? Farbe::belegt : Farbe::normal;
  }
}

template <class Wahl>
void Einmask::Bild_waehlen() {
  Wahl wahl;
  oberflaeche().Zeigen(wahl);
  if (wahl.gewaehlt()) Bild_setzen(*wahl.gewaehlt());
}

void Einmask::Bild_setzen(int bildtyp) {
  const int a = adresse();
  if (projekt.Grp_typ[a] == bildtyp) return;
  if (Ist_mehrfachsender(bildtyp)) {
    if (const auto anderer = Sender_im_weg(a, bildtyp)) {
      Melden("Es ist bereits ein Mehrfachsender ab I" + std::to_string(*anderer) +
             " definiert. Wie Sie mehrere Mehrfachsender definieren können, finden Sie in der Anleitung zum "
             "IR-Empfänger.");
      return;
    }
    const int hoechste = (TabStrip1.position() + 1) * gruppen_je_seite - mehrfachsender_adressen;
    if (a > hoechste) {
      Melden(
          "Der Mehrfachsender belegt 6 aufeinanderfolgende ZAVnummern. Die höchste wählbare Nummer in dieser "
          "Gruppe ist "
          "somit die I" +
          std::to_string(hoechste));
      return;
    }
  }
  if (Ist_mehrfachsender(projekt.Grp_typ[a]) &&
      !Fragen({.text = "Mehrfachsender löschen? Alle Texte und Funktionen bleiben erhalten.",
               .titel = loeschtitel,
               .knoepfe = Knoepfe::Ja_Nein,
               .symbol = Symbol::Warnung,
               .standard = 2})) {
    return;
  }
  Merken(projekt.Grp_typ[a], static_cast<i16>(bildtyp));
  Gruppe_zeigen();
}

void Einmask::Funktion_oeffnen(int taste) {
  const int e = ereignis(taste);
  Actmask maske(e, projekt.Grp_text[adresse()] + " - " + projekt.Ein_text[e]);
  oberflaeche().Zeigen(maske);
  Leer_berechnen(Ereignisart::Eingang, e);
  Led_listen_fuellen();  // the texts of the outputs may be others now
  Gruppe_zeigen();
}

void Einmask::Loeschen() {
  if (!Fragen(
          {.text =
               "Alle Schalt-, Dimm- und Timerfunktionen dieses Ereignisses werden unwiderruflich gelöscht. "
               "Die Abläufe in den Timern selbst bleiben aber erhalten. Die LEDs werden auf 'dauernd aus' "
               "gesetzt.\nAusführen?",
           .titel = loeschtitel,
           .knoepfe = Knoepfe::Ja_Nein,
           .symbol = Symbol::Warnung,
           .standard = 2})) {
    return;
  }
  for (int e = ereignis(0); e < ereignis(tasten); ++e) {
    const Ereigniszeilen z = Zeilen_von(Ereignisart::Eingang, e);
    std::ranges::fill(z.relais, i16{0});
    std::ranges::fill(z.dimmer, i16{0});
    std::ranges::fill(z.timer, 0);
    z.leer = 0;
    z.funktext = 1;
    projekt.Ein_text[e].clear();
    projekt.Ein_led[e] = ausgang_keiner;
  }
  projekt.Grp_led[adresse()] = 1;
  sitzung.Projekt_geaendert = 1;
  {
    const Beschaeftigt b(*this);
    for (int t = 0; t < tasten; ++t) Text_ein[zeile_ * tasten + t].setzen("");
  }
  Gruppe_zeigen();
}

Anordnung Einmask::anordnung() {
  Anordnung seite = Raster(2 + tasten, Leer(), Alle(Label_kopf));
  for (int z = 0; z < gruppen_je_seite; ++z) {
    seite.kinder.emplace_back(Nummer[z]);
    seite.kinder.emplace_back(Text_grp[z]);
    for (int t = 0; t < tasten; ++t) seite.kinder.emplace_back(Text_ein[z * tasten + t]);
  }
  return Spalte(TabStrip1,
                Zeile(std::move(seite), Gruppe(Frame1, Label_bild, Zeile(Command_taster, Command_due),
                                               Zeile(Command_mehrfach, Check_thermo),
                                               Raster(3, Zeilenweise(Label_taste, Combo_LED, Command_fkt)),
                                               Feder(), Zeile(Command_loeschen, Feder()))),
                Knopfzeile(Command_schliessen));
}

}  // namespace zav
