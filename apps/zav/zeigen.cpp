// zeigen: the key figures of a project for people, the whole store for programs.
#include <CLI/CLI.hpp>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "argumente.h"
#include "basis/text.h"
#include "befehl.h"
#include "projektzugriff.h"
#include "store/json.h"
#include "store/kennzahlen.h"

namespace zav {

namespace {

using Zeile = std::pair<const char*, std::string>;

// "12", "12, davon 3 zu senden".
std::string Mit_marken(int anzahl, int markiert) {
  std::string text = std::to_string(anzahl);
  if (markiert > 0) text += ", " + std::to_string(markiert) + " zu senden";
  return text;
}

std::string Von(int anzahl, int alle) { return std::to_string(anzahl) + " von " + std::to_string(alle); }

std::vector<Zeile> Kennzahlen_zeilen(const Projekt& p) {
  const Kennzahlen k = Kennzahlen_von(p);
  return {
      {"Projekt", p.Projekt_name.substr(p.Projekt_name.rfind('/') + 1)},
      {"Generation", p.Datei_version},
      {"Kennung", p.Projekt_kennung},
      {"Kombinationen", std::to_string(k.kombinationen) + " in " + std::to_string(k.geschosse) +
                            (k.geschosse == 1 ? " Geschoss" : " Geschossen")},
      {"Apparate", std::to_string(k.apparate)},
      {"Adressen", Von(k.adressen, adressen)},
      {"Eingangsereignisse", Mit_marken(k.eingangsereignisse, k.eingang_zu_senden)},
      {"Schaltzeiten", std::to_string(k.schaltzeiten) + (p.Uhr_tabelle_geaendert == 1 ? ", zu senden" : "")},
      {"Uhr-Ereignisse", Mit_marken(k.uhrereignisse, k.uhr_zu_senden)},
      {"Timer-Ereignisse", Mit_marken(k.timerereignisse, k.timer_zu_senden)},
      {"LED-Tabellen", std::to_string(k.led_zu_senden) + " zu senden"},
      {"Relaisausgänge", Von(k.relais_benutzt, relaisausgaenge)},
      {"Dimmerausgänge", Von(k.dimmer_benutzt, dimmerausgaenge)},
      {"Timer", Von(k.timer_benutzt, timeranzahl)},
      {"Wetterfunktionen", std::to_string(k.wetterfunktionen)},
      {"Funksender",
       std::to_string(k.funksender) + " an " + std::to_string(k.funkempfaenger) + " Empfängern"},
      {"App-Tasten", std::to_string(k.apptasten)},
      {"Kameras", std::to_string(k.kameras)},
  };
}

}  // namespace

Ausfuehrung Befehl_zeigen(CLI::App& app) {
  const auto datei = std::make_shared<std::string>();
  Projektargument(app, *datei);
  return [datei](Lauf& lauf) {
    if (!Projekt_oeffnen(lauf, *datei)) return false;
    if (lauf.json) {
      Projekt_json(projekt, lauf.aus);
      return true;
    }
    for (const auto& [name, wert] : Kennzahlen_zeilen(projekt)) {
      lauf.aus << name << std::string(20 - Zeichen_anzahl(name), ' ') << wert << '\n';
    }
    return true;
  };
}

}  // namespace zav
