#include "weather/wetterlogik.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "basis/datum.h"
#include "basis/liste.h"
#include "basis/melder.h"
#include "basis/zahl.h"
#include "form/oberflaeche.h"
#include "form/zeitfeld.h"
#include "store/funktionen.h"
#include "store/katalog.h"
#include "store/sitzung.h"

namespace zav {

namespace {

constexpr int ereignisse_je_station = 2 * wetterfunktionen;

const std::vector<std::string> vergleiche{"nicht prüfen", "kleiner als", "grösser als"};
const std::vector<std::string> richtungen{"nicht prüfen", "Ost",     "Süd",     "West",    "Nord",
                                          "Südost",       "Südwest", "Nordost", "Nordwest"};

// One row of the conditions: how it is compared and, for the sensors, with what.
struct Bedingung {
  const char* name;
  const std::vector<std::string>* worte;
  Feld<i16, 8> Projekt::*vergleich;
  Feld<str, 8> Projekt::*schwelle;  // nullptr: none
  int von = 0, bis = 0, gross = 0;  // of the slider
};

const std::vector<std::string> regenworte{"nicht prüfen", "ja", "nein"};
const std::vector<std::string> defektworte{"nein", "ja"};
const std::vector<std::string> verknuepfungen{"ODER", "UND"};

const std::array<Bedingung, Wetterlogik::zeilen> bedingungen{{
    {"Sonne Ost", &vergleiche, &Projekt::Wetter_v_ost, &Projekt::Wetter_sonne_ost, 0, 95, 10},
    {"Sonne Süd", &vergleiche, &Projekt::Wetter_v_sued, &Projekt::Wetter_sonne_sued, 0, 95, 10},
    {"Sonne West", &vergleiche, &Projekt::Wetter_v_west, &Projekt::Wetter_sonne_west, 0, 95, 10},
    {"Tageslicht", &vergleiche, &Projekt::Wetter_v_licht, &Projekt::Wetter_licht, 0, 249, 10},
    {"Aussentemp.", &vergleiche, &Projekt::Wetter_v_aussen, &Projekt::Wetter_aussen, -20, 50, 5},
    {"Innentemp.", &vergleiche, &Projekt::Wetter_v_innen, &Projekt::Wetter_innen, 0, 50, 5},
    {"Windgeschw.", &vergleiche, &Projekt::Wetter_v_wind, &Projekt::Wetter_wind, 0, 20, 5},
    // The thresholds of the next three are kept in the file and mean nothing.
    {"Windrichtung", &richtungen, &Projekt::Wetter_v_richtung, &Projekt::Wetter_r1},
    {"Niederschlag", &regenworte, &Projekt::Wetter_v_regen, &Projekt::Wetter_r2},
    {"Sensor defekt", &defektworte, &Projekt::Wetter_v_defekt, &Projekt::Wetter_r3},
    {"Verknüpfung", &verknuepfungen, &Projekt::Wetter_undoder, nullptr},
}};

// The four times: their field, what it says when there is none, and where it is kept.
struct Wetterzeit {
  Textfeld Wetterlogik::*feld;
  Taste Wetterlogik::*loeschen;
  const char* keine;
  const char* hinweis;
  Feld<str, 8> Projekt::*wert;
};
constexpr const char* nicht_warten = "nicht warten";
constexpr const char* nicht_wiederholen = "nicht wiederholen";
constexpr const char* ohne_warten = "Wartezeit löschen, Funktion ohne Warten ausführen";
constexpr const char* ohne_wiederholen = "Kein Wiederholen der Funktion";
using W = Wetterlogik;
constexpr std::array<Wetterzeit, 4> zeiten{{
    {&W::Text10, &W::Command6, nicht_warten, ohne_warten, &Projekt::Wetter_warte1},
    {&W::Text11, &W::Command7, nicht_wiederholen, ohne_wiederholen, &Projekt::Wetter_wiederh1},
    {&W::Text12, &W::Command8, nicht_warten, ohne_warten, &Projekt::Wetter_warte2},
    {&W::Text13, &W::Command9, nicht_wiederholen, ohne_wiederholen, &Projekt::Wetter_wiederh2},
}};

const char* Verknuepfung_in_worten(int position) {
  return position == 1 ? "UND: Auslösen nur wenn ALLE alle Bedingungen erfüllt sind"
                       : "ODER: Auslösen sobald EINE Bedingung erfüllt ist";
}

// Writes a value and notes a change for the session.
template <class T>
void Schreiben(T& ziel, T wert) {
  if (std::exchange(ziel, wert) != wert) sitzung.Projekt_geaendert = 1;
}
// The position of a list; one that shows nothing leaves the value that it could not show.
void Schreiben(i16& ziel, const Auswahl& liste) {
  if (liste.position() >= 0) Schreiben(ziel, static_cast<i16>(liste.position()));
}

std::string Mit_einheit(std::size_t sensor, const std::string& wert) {
  return wert + std::string(Sensor_einheit(sensor));
}

// First address of the project's weather station; nothing where its events have no place.
std::optional<int> Stationsadresse() {
  for (int d = 0; d < apparate; ++d) {
    if (projekt.App_typ[d] != apparat_wetterstation) continue;
    return Zahl_lesen(projekt.App_text[d], 0, (eingangsereignisse - ereignisse_je_station) / 4);
  }
  return std::nullopt;
}

}  // namespace

void Wetterlogik_oeffnen(Funktionen_oeffnen funktionen) {
  const auto adresse = Stationsadresse();
  if (!adresse) {
    Melden("Bitte Adresse definieren");
    return;
  }
  Wetterlogik form(*adresse, std::move(funktionen));
  oberflaeche().Zeigen(form);
}

Wetterlogik::Wetterlogik(int adresse, Funktionen_oeffnen funktionen)
    : Formular("Wetterlogik", "Wettersensor"), adresse_(adresse), funktionen_oeffnen_(std::move(funktionen)) {
  Verdrahten();
  Bedingungen_verdrahten();
  TabStrip1.fuellen(std::vector<std::string>(wetterfunktionen));
  Reiter_beschriften();
  {
    const Beschaeftigt still(*this);
    TabStrip1.setzen(0);
  }
  Bedingungen_tauschen(false);
  Laden();
}

void Wetterlogik::Verdrahten() {
  anmelden("TabStrip1", TabStrip1);
  anmelden("Frame2", Frame2);
  anmelden("Check1", Check1);
  anmelden("Text3", Text3);
  anmelden("Frame3", Frame3);
  anmelden("Label3", Label3);
  anmelden("Label4", Label4);
  anmelden("Text0", Text0);
  anmelden("Command2", Command2);
  anmelden("Label5", Label5);
  anmelden("Combo2", Combo2);
  anmelden("Label6", Label6);
  anmelden("Combo3", Combo3);
  anmelden("Frame4", Frame4);
  anmelden("Text10", Text10);
  anmelden("Command6", Command6);
  anmelden("Text11", Text11);
  anmelden("Command7", Command7);
  anmelden("Frame5", Frame5);
  anmelden("Text12", Text12);
  anmelden("Command8", Command8);
  anmelden("Text13", Text13);
  anmelden("Command9", Command9);
  anmelden("Command5", Command5);
  anmelden("Command1", Command1);

  TabStrip1.wenn_geaendert = [this] { Reiter_wechseln(); };
  for (std::size_t z = 0; z < zeilen; ++z) Label3[z].titel = bedingungen[z].name;
  for (Schild& s : Text0) s.zahl = true;
  Command2.wenn_gedrueckt = [this] { Bedingungen_oeffnen(); };
  Label5.titel =
      "Diese Wetterfunktion nur ausführen, wenn folgender Ausgang (real oder virtuell) eines ZAVswitch "
      "\"Ein\" ist:";
  Combo2.fuellen(Texte(relaisausgaenge, Ausgang_bezeichnung));
  Label6.titel =
      "Die Funktionen sofort nach Aktivierung des Ausgangs ausführen oder auf eine Zustands- änderung der "
      "Prüfbedingung warten:";
  Combo3.fuellen({"Erst bei Zustandsänderung ausführen", "Sofort ausführen"});
  for (std::size_t n = 0; n < zeiten.size(); ++n) {
    Textfeld& feld = this->*zeiten[n].feld;
    feld.hinweis = "HH.MM.SS, höchstens 01.59.59";
    feld.breite = 18;  // room for a word or a complaint
    feld.wenn_verlassen = [this, n] { Zeit_pruefen(n); };
    Taste& loeschen = this->*zeiten[n].loeschen;
    loeschen.titel = "Löschen";
    loeschen.hinweis = zeiten[n].hinweis;
    loeschen.wenn_gedrueckt = [&feld, n] { feld.setzen(zeiten[n].keine); };
  }
  for (std::size_t r = 0; r < Command5.size(); ++r) {
    Command5[r].wenn_gedrueckt = [this, r] {
      const int e = Wetterereignis(adresse_, funktion_, r == 0);
      if (funktionen_oeffnen_) funktionen_oeffnen_(e, "Wetterfunktion " + std::to_string(funktion_));
      Leer_berechnen(Ereignisart::Eingang, e);
      Funktionen_zeigen(r);
    };
  }
  Command1.wenn_gedrueckt = [this] {
    if (Seite_uebernehmen()) schliessen();
  };
  Command1.standard = true;
  Command1.abbruch = true;
}

void Wetterlogik::Laden() {
  const Beschaeftigt still(*this);
  const Projekt& p = projekt;
  Frame2.titel = Frame1.titel = "Wetterfunktion " + std::to_string(funktion_);
  Check1.setzen(p.Wetter_aktiv[funktion_] == "1");
  Text3.setzen(p.Wetter_text[funktion_]);
  for (const Wetterzeit& z : zeiten) (this->*z.feld).setzen((p.*z.wert)[funktion_]);
  Einstellen(Combo2, p.Wetter_ausgang[funktion_]);
  Einstellen(Combo3, p.Wetter_start[funktion_]);
  Zusammenfassung_zeigen();
  Funktionen_zeigen(0);
  Funktionen_zeigen(1);
}

void Wetterlogik::Zusammenfassung_zeigen() {
  const Beschaeftigt still(*this);
  for (std::size_t z = 0; z < zeilen; ++z) {
    const Bedingung& b = bedingungen[z];
    const int vergleich = (projekt.*b.vergleich)[funktion_];
    Einstellen(Combo1[z], vergleich);
    if (z == und_oder) Label10.titel = Combo1[z].hinweis = Verknuepfung_in_worten(vergleich);
    Label4[z].titel = z == und_oder    ? Verknuepfung_in_worten(vergleich)
                      : vergleich == 0 ? "---"
                                       : Combo1[z].text();
    if (b.schwelle == nullptr) continue;
    // What is not compared steps back.
    Label3[z].frei = Label4[z].frei = Text0[z].frei = vergleich != 0;
    const str& schwelle = (projekt.*b.schwelle)[funktion_];
    Text0[z].titel = z < wettersensoren ? Mit_einheit(z, schwelle) : schwelle;
    if (z < wettersensoren) Slider1[z].setzen(Zahl_lesen(schwelle).value_or(0));
  }
  for (std::size_t z = 0; z < wettersensoren; ++z) {
    Schwelle_anzeigen(z);
    Vergleich_anzeigen(z);
  }
}

void Wetterlogik::Funktionen_zeigen(std::size_t satz) {
  const std::string zeichen =
      Funktionszeichen(Ereignisart::Eingang, Wetterereignis(adresse_, funktion_, satz == 0));
  Command5[satz].titel = zeichen.empty() ? "Funktion leer" : "Verwendet: " + zeichen;
  Command5[satz].farbe = zeichen.empty() ? Farbe::normal : Farbe::belegt;
}

bool Wetterlogik::Zeit_pruefen(std::size_t nummer) {
  Textfeld& feld = this->*zeiten[nummer].feld;
  if (feld.text().empty() || feld.text() == zeiten[nummer].keine) return true;
  if (!Zeitfeld_pruefen(feld).empty()) return false;
  Hoechstens(feld, "01.59.59");
  Mindestens(feld, "00.00.01");
  return true;
}

bool Wetterlogik::Seite_uebernehmen() {
  for (std::size_t n = 0; n < zeiten.size(); ++n) {
    if (!Zeit_pruefen(n)) return false;
  }
  Schreiben(projekt.Wetter_aktiv[funktion_], str(Check1.an() ? "1" : "0"));
  Schreiben(projekt.Wetter_text[funktion_], Text3.text());
  Schreiben(projekt.Wetter_ausgang[funktion_], Combo2);
  Schreiben(projekt.Wetter_start[funktion_], Combo3);
  for (const Wetterzeit& z : zeiten) Schreiben((projekt.*z.wert)[funktion_], (this->*z.feld).text());
  Reiter_beschriften();
  return true;
}

void Wetterlogik::Reiter_wechseln() {
  if (!Seite_uebernehmen()) {
    const Beschaeftigt still(*this);
    TabStrip1.setzen(funktion_);
    return;
  }
  funktion_ = TabStrip1.position();
  Laden();
}

void Wetterlogik::Reiter_beschriften() {
  for (int f = 0; f < wetterfunktionen; ++f) {
    TabStrip1.beschriften(f, std::to_string(f) + ": " + projekt.Wetter_text[f]);
    const bool prueft = std::any_of(bedingungen.begin(), bedingungen.begin() + und_oder,
                                    [f](const Bedingung& b) { return (projekt.*b.vergleich)[f] != 0; });
    TabStrip1.faerben(f, prueft ? Farbe::belegt : Farbe::normal);
  }
}

void Wetterlogik::schliessen_wuenschen() { (Frame1.sichtbar ? Command4 : Command1).druecken(); }

// ---- the conditions

void Wetterlogik::Bedingungen_verdrahten() {
  anmelden("Frame1", Frame1);
  anmelden("Label8", Label8);
  anmelden("Label7", Label7);
  anmelden("Combo1", Combo1);
  anmelden("Slider1", Slider1);
  anmelden("Text1", Text1);
  anmelden("Label25", Label25);
  anmelden("ProgressBar", ProgressBar);
  anmelden("Label9", Label9);
  anmelden("Label10", Label10);
  anmelden("Command10", Command10);
  anmelden("Command3", Command3);
  anmelden("Command4", Command4);

  const Beschaeftigt still(*this);
  constexpr std::array<const char*, 6> spalten{"Messwert", "Vergleich", "Schwelle", "", "", "Wetterwerte"};
  for (std::size_t s = 0; s < spalten.size(); ++s) Label8[s].titel = spalten[s];
  for (std::size_t z = 0; z < zeilen; ++z) {
    Label7[z].titel = bedingungen[z].name;
    Combo1[z].fuellen(*bedingungen[z].worte);
    if (z < wettersensoren) Combo1[z].wenn_geaendert = [this, z] { Vergleich_anzeigen(z); };
  }
  Combo1[9].hinweis =
      "Soll bei Defekt des Wettersensors die Funktion für \"Prüfbedingung erfüllt\" sofort ausgelöst werden?";
  Combo1[und_oder].wenn_geaendert = [this] {
    Combo1[und_oder].hinweis = Label10.titel = Verknuepfung_in_worten(Combo1[und_oder].position());
  };
  for (std::size_t s = 0; s < wettersensoren; ++s) {
    Slider1[s].bereich(bedingungen[s].von, bedingungen[s].bis);
    Slider1[s].gross = bedingungen[s].gross;
    Slider1[s].wenn_geaendert = [this, s] { Schwelle_anzeigen(s); };
    Text1[s].nur_lesen = true;
    Text1[s].breite = 4;
    Label25[s].zahl = Label9[s].zahl = true;
  }
  Command10.wenn_gedrueckt = [this] { Wetterwerte_anzeigen(); };
  Command3.wenn_gedrueckt = [this] { Bedingungen_uebernehmen(); };
  Command4.wenn_gedrueckt = [this] {
    Bedingungen_tauschen(false);
    Zusammenfassung_zeigen();
  };
  Command3.standard = true;
}

// The conditions take the place of the function: nothing else can be left or closed until they are done.
void Wetterlogik::Bedingungen_oeffnen() {
  Wetterwerte_leeren();
  Bedingungen_tauschen(true);
}

void Wetterlogik::Bedingungen_tauschen(bool offen) {
  Frame1.sichtbar = offen;
  Frame2.sichtbar = !offen;
  for (Steuerelement* e : std::initializer_list<Steuerelement*>{&TabStrip1, &Command1, &Command2}) {
    e->sperren(offen, "Zuerst die Prüfbedingungen übernehmen oder abbrechen");
  }
}

void Wetterlogik::Bedingungen_uebernehmen() {
  for (std::size_t z = 0; z < zeilen; ++z) {
    const Bedingung& b = bedingungen[z];
    Schreiben((projekt.*b.vergleich)[funktion_], Combo1[z]);
    if (z < wettersensoren) Schreiben((projekt.*b.schwelle)[funktion_], Text1[z].text());
  }
  Bedingungen_tauschen(false);
  Zusammenfassung_zeigen();
  Reiter_beschriften();
}

void Wetterlogik::Vergleich_anzeigen(std::size_t zeile) {
  const bool prueft = Combo1[zeile].position() != 0;
  Slider1[zeile].frei = Text1[zeile].frei = prueft;
  Label25[zeile].sichtbar = prueft;
}

void Wetterlogik::Schwelle_anzeigen(std::size_t sensor) {
  const int wert = Slider1[sensor].wert();
  const std::string text = std::to_string(wert);
  Text1[sensor].setzen(text);
  Label25[sensor].titel = Mit_einheit(sensor, text);
  Slider1[sensor].hinweis =
      sensor == windgeschwindigkeit ? text + " m/s = " + Wind_in_kmh(wert) : Mit_einheit(sensor, text);
}

void Wetterlogik::Wetterwerte_anzeigen() {
  Command10.frei = Command3.frei = Command4.frei = false;
  const std::string antwort = Wetter_abfragen();
  Command10.frei = Command3.frei = Command4.frei = true;
  Wetterwerte_leeren();
  if (antwort.empty()) return;
  const Wetterwerte w = Wetter_entschluesseln(antwort);
  if (w.stand != Wetterwerte::Stand::gut) {
    Melden(std::string(Wetterstand_text(w.stand)));
    return;
  }
  Wetterbalken_zeigen(ProgressBar, w);
  for (std::size_t s = 0; s < wettersensoren; ++s) Label9[s].titel = Wetterwert_text(s, w.werte[s]);
}

void Wetterlogik::Wetterwerte_leeren() {
  Wetterbalken_leeren(ProgressBar);
  for (Schild& s : Label9) s.titel = "---";
}

}  // namespace zav
