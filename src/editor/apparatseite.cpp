#include "editor/apparatseite.h"

#include <algorithm>
#include <vector>

#include "store/katalog.h"

namespace zav {

namespace {

using Knopf = Apparatseite::Knopf;

const Knopf knopf_taste{"Funktionen...", "Funktionen dieser Taste bearbeiten"};
const Knopf knopf_elektronik{"Funktionen...", "Verhalten wie bei Elektroniktaster"};
const Knopf knopf_statisch{"Statische Funktion ", "Ereignis  solange Eingang aktiv"};
const Knopf knopf_steigend{"0 ---> 1", "Ereignis  bei positiver Flanke"};
const Knopf knopf_fallend{"1 ---> 0", "Ereignis  bei negativer Flanke"};
const Knopf knopf_schliessen{"Funktion beim Schliessen", "Ereignis beim Schliessen des Magnetkontakts"};
const Knopf knopf_oeffnen{"Funktion beim Öffnen", "Ereignis beim Öffnen des Magnetkontakts"};
const Knopf knopf_heizventil{"Heizventil verknüpfen",
                             "Relaisausgang des Heizventils mit dem Thermostat verknüpfen"};

// Names of the key slots of kinds that do not simply count their keys.
struct Tastennamen {
  int typ;
  std::vector<std::string> namen;
};
const std::vector<Tastennamen> tastennamen{
    {41, {"Bewegungsmelder (mit Dämmerung)", "Präsenzmelder (ohne Dämmerung)"}},
    {45, {"Bewegungsmelder (mit Dämmerung)", "Präsenzmelder (ohne Dämmerung)"}},
    {89, {"Bewegungsmelder (mit Dämmerung in Lux)", "Präsenzmelder (ohne Dämmerung)"}},
    {88, {"Magnetkontakt schliesst", "Magnetkontakt öffnet"}},
    {72, {"In 1", "In 2", "In 3", "In 4", "In 5", "In 6", "In 7", "In 8"}},
    {76, {"In 0", "In 1", "In 2", "In 3", "In 4", "In 5", "In 6", "In 7"}},
    {77, {"In 0", "In 1", "In 2", "In 3"}},
    {65, {"A",      "B",       "C",      "OFF",     "1 oben", "1 unten", "2 oben", "2 unten",
          "3 oben", "3 unten", "4 oben", "4 unten", "5 oben", "5 unten", "6 oben", "6 unten",
          "7 oben", "7 unten", "8 oben", "8 unten", "D",      "E",       "F",      "Reserve"}},
    {70, {"0",   "1",  "2",       "3",      "4",      "5",      "6",      "7",
          "8",   "9",  "Standby", "Stumm",  "Laut +", "Laut -", "Hell +", "Hell -",
          "Auf", "Ab", "Links",   "Rechts", "Play",   "Stop",   "Menu",   "OK"}},
    {71, {"0",   "1",  "2",     "3",      "4",  "5",    "6",      "7",      "8",   "9",    "LIGHT", "STANDBY",
          "Auf", "Ab", "Links", "Rechts", "GO", "STOP", "Laut +", "Laut -", "Rot", "Grün", "Gelb",  "Blau"}},
    {93,
     {"Kamera 1, Taste 1", "Kamera 1, Taste 2", "Kamera 1, Taste 3", "Kamera 1, Taste 4", "Kamera 1, Taste 5",
      "Kamera 1, Taste 6", "Kamera 2, Taste 1", "Kamera 2, Taste 2", "Kamera 2, Taste 3", "Kamera 2, Taste 4",
      "Kamera 2, Taste 5", "Kamera 2, Taste 6", "Kamera 3, Taste 1", "Kamera 3, Taste 2", "Kamera 3, Taste 3",
      "Kamera 3, Taste 4", "Kamera 3, Taste 5", "Kamera 3, Taste 6", "Kamera 4, Taste 1", "Kamera 4, Taste 2",
      "Kamera 4, Taste 3", "Kamera 4, Taste 4", "Kamera 4, Taste 5", "Kamera 4, Taste 6"}},
};

const std::array<std::string, Apparatseite::zeilen_max> ueberschriften_mehrfachsender{
    "Mehrfachsender, obere Tasten A, B, C und OFF", "Mehrfachsender, Wipptasten 1 und 2",
    "Mehrfachsender, Wipptasten 3 und 4",           "Mehrfachsender, Wipptasten 5 und 6",
    "Mehrfachsender, Wipptasten 7 und 8",           "Mehrfachsender, Tasten D, E, F"};

// Kinds with a list of 24 keys, one an event.
constexpr std::array listenarten{65, 70, 71, 79, 93};

bool Hat_taste(const Apparatart& art, int n) {
  return art.tasten.hat(n) || (art.ist(gruppe_flanken_lang) && n < 8) ||
         std::ranges::count(listenarten, art.typ) > 0;
}

std::string Tastenname(const Apparatart& art, int n, int nummer) {
  const auto eintrag = std::find_if(tastennamen.begin(), tastennamen.end(),
                                    [&](const Tastennamen& t) { return t.typ == art.typ; });
  if (eintrag != tastennamen.end()) return eintrag->namen.at(static_cast<std::size_t>(n));
  return "Taste " + std::to_string(nummer);
}

std::string Ledname(const Apparatart& art, int n) {
  if (!art.ist(gruppe_thermostat)) return "LED";
  switch (n) {
    case 0: return "Absenkung: Aus = Nein, Ein = Ja";
    case 1: return art.typ == 39 ? "Reserve" : "Display: Aus = Aktiv, Ein = Dunkel";
    case 2: return "Betrieb: Aus = Heizen, Ein = Kühlen";
    default: return "Reserve";
  }
}

Knopf Knopf_einer_taste(const Apparatart& art, int n) {
  switch (art.typ) {
    case 39: return knopf_heizventil;
    case 41: return knopf_statisch;
    case 77: return knopf_elektronik;
    case 79: return {"GR " + std::to_string(n), knopf_taste.hinweis};
    case 88: return n == 0 ? knopf_schliessen : knopf_oeffnen;
    default: return knopf_taste;
  }
}

}  // namespace

Apparatseite Apparat_seite(int typ) {
  Apparatseite seite;
  const Apparatart* const art = Apparat_art(typ);
  if (art == nullptr) return seite;

  const bool flanken = art->ist(gruppe_flanken) || art->ist(gruppe_flanken_lang);
  int nummer = 0;
  for (int n = 0; n < Apparatseite::tasten_max; ++n) {
    if (!Hat_taste(*art, n)) continue;
    const auto slot = static_cast<std::size_t>(n);
    seite.tasten.at(slot) = Tastenname(*art, n, ++nummer);
    if (flanken) {
      seite.knoepfe.at(2 * slot) = knopf_steigend;
      seite.knoepfe.at(2 * slot + 1) = knopf_fallend;
    } else {
      seite.knoepfe.at(slot) = Knopf_einer_taste(*art, n);
    }
    if (art->ist(gruppe_flanken_lang)) seite.knoepfe.at(16 + slot) = knopf_elektronik;
  }
  for (int n = 0; n < Apparatseite::leds_max; ++n) {
    if (art->leds.hat(n)) seite.leds.at(static_cast<std::size_t>(n)) = Ledname(*art, n);
  }
  if (Led_listen_versetzt(typ))
    seite.knoepfe.at(4 * static_cast<std::size_t>(*Thermostat_adresse(typ))) = knopf_heizventil;
  if (typ == 65) seite.ueberschriften = ueberschriften_mehrfachsender;
  return seite;
}

bool Led_listen_versetzt(int typ) { return Thermostat_adresse(typ).value_or(0) > 0; }

}  // namespace zav
