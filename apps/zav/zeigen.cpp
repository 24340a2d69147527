// zeigen: the key figures of a project for people, the whole store for programs.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "basis/text.h"
#include "basis/zahl.h"
#include "befehl.h"
#include "projekt_json.h"
#include "projektzugriff.h"

namespace zav {

namespace {

using Zeile = std::pair<const char*, std::string>;

int Anzahl(const auto& feld, const auto& trifft_zu) {
  return static_cast<int>(std::ranges::count_if(feld.alle(), trifft_zu));
}
constexpr auto eins = [](auto wert) { return wert == 1; };
constexpr auto gefuellt = [](const str& text) { return !text.empty(); };

// "12", "12, davon 3 zu senden".
std::string Mit_marken(int anzahl, int markiert) {
  std::string text = std::to_string(anzahl);
  if (markiert > 0) text += ", " + std::to_string(markiert) + " zu senden";
  return text;
}

// Outputs of the dimension `m` that an event touches; `breite` cells each.
void Benutzte(const auto& matrix, std::size_t spalten, std::set<std::size_t>& menge) {
  for (std::size_t e = 0; e < matrix.mass(0); ++e) {
    const auto zeile = matrix.zeile(e);
    const std::size_t breite = zeile.size() / spalten;
    for (std::size_t i = 0; i < zeile.size(); ++i) {
      if (zeile[i] != 0) menge.insert(i / breite);
    }
  }
}

std::string Benutzt(std::size_t spalten, const auto&... matrizen) {
  std::set<std::size_t> menge;
  (Benutzte(matrizen, spalten, menge), ...);
  return std::to_string(menge.size()) + " von " + std::to_string(spalten);
}

std::vector<Zeile> Kennzahlen(const Projekt& p) {
  int apparate = 0;
  int adressen_belegt = 0;
  int sender = 0;
  for (std::size_t a = 0; a < p.App_typ.groesse; ++a) {
    if (p.Komb_text[a / plaetze].empty()) continue;  // what such a slot holds is in no file
    if (p.App_typ[a] != apparat_leer) ++apparate;
    if (!p.App_text[a].empty()) adressen_belegt += Zahl_lesen(p.App_text2[a]).value_or(0);
    if (!p.App_enocean_id[a].empty()) ++sender;
  }
  std::set<str> geschosse(p.Komb_text.alle().begin(), p.Komb_text.alle().end());
  geschosse.erase("");
  int apptasten = 0;
  for (std::size_t i = 0; i < p.App_eigenschaften.mass(0); ++i) {
    if (p.App_eigenschaften.zeile(i)[App_geraet] != "0") ++apptasten;
  }
  const int wetter = Anzahl(p.Wetter_text, gefuellt);

  return {
      {"Projekt", p.Projekt_name.substr(p.Projekt_name.rfind('/') + 1)},
      {"Generation", p.Datei_version},
      {"Kennung", p.Projekt_kennung},
      {"Kombinationen", std::to_string(Anzahl(p.Komb_text, gefuellt)) + " in " + std::to_string(geschosse.size()) +
                            (geschosse.size() == 1 ? " Geschoss" : " Geschossen")},
      {"Apparate", std::to_string(apparate)},
      {"Adressen", std::to_string(adressen_belegt) + " von " + std::to_string(adressen)},
      {"Eingangsereignisse", Mit_marken(Anzahl(p.Ein_leer, eins), Anzahl(p.Ein_funktext, eins))},
      {"Schaltzeiten", std::to_string(Anzahl(p.Uhr_zeit, gefuellt)) + (p.Uhr_tabelle_geaendert == 1 ? ", zu senden" : "")},
      {"Uhr-Ereignisse", Mit_marken(Anzahl(p.Uhr_leer, eins), Anzahl(p.Uhr_funktext, eins))},
      {"Timer-Ereignisse", Mit_marken(Anzahl(p.Tev_leer, eins), Anzahl(p.Tev_funktext, eins))},
      {"LED-Tabellen", std::to_string(Anzahl(p.Grp_led, eins)) + " zu senden"},
      {"Relaisausgänge", Benutzt(relaisausgaenge, p.Ein_relais, p.Uhr_relais, p.Tev_relais)},
      {"Dimmerausgänge", Benutzt(dimmerausgaenge, p.Ein_dimmer, p.Uhr_dimmer, p.Tev_dimmer)},
      {"Timer", Benutzt(timeranzahl, p.Ein_timer, p.Uhr_timer)},
      {"Wetterfunktionen", std::to_string(wetter)},
      {"Funksender", std::to_string(sender) + " an " + std::to_string(Anzahl(p.Enocean_empf_da, eins)) + " Empfängern"},
      {"App-Tasten", std::to_string(apptasten)},
      {"Kameras", std::to_string(Anzahl(p.Kamera_aktiv, [](const str& t) { return t == "1"; }))},
  };
}

}  // namespace

Ausfuehrung Befehl_zeigen(CLI::App& app) {
  const auto datei = std::make_shared<std::string>();
  app.add_option("DATEI", *datei, "Projekt; .zav wird ergänzt")->required();
  return [datei](Lauf& lauf) {
    if (!Projekt_oeffnen(lauf, *datei)) return false;
    if (lauf.json) {
      Projekt_json(projekt, lauf.aus);
      return true;
    }
    for (const auto& [name, wert] : Kennzahlen(projekt)) {
      lauf.aus << name << std::string(20 - Zeichen_anzahl(name), ' ') << wert << '\n';
    }
    return true;
  };
}

}  // namespace zav
