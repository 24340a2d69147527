// wetter, enocean: the weather station and the radio receivers.
#include <CLI/CLI.hpp>
#include <array>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>

#include "argumente.h"
#include "basis/text.h"
#include "befehl.h"
#include "enocean/programmieren.h"
#include "link/leitung.h"
#include "projektzugriff.h"
#include "store/projektdatei.h"
#include "weather/wetterwerte.h"

namespace zav {

namespace {

constexpr std::size_t namensbreite = 22;

// Names of the values for scripts.
constexpr std::array<const char*, wettersensoren> schluessel{
    "sonne_ost",        "sonne_sued",      "sonne_west",         "tageslicht",
    "aussentemperatur", "innentemperatur", "windgeschwindigkeit"};

std::string Namensspalte(std::string_view name) {
  return std::string(name) + std::string(namensbreite - Zeichen_anzahl(name), ' ');
}

void Wetter_ausgeben(std::ostream& aus, const Wetterwerte& w) {
  for (std::size_t s = 0; s < wettersensoren; ++s) {
    aus << Namensspalte(Sensor_name(s)) << Wetterwert_text(s, w.werte.at(s));
    if (s == windgeschwindigkeit) aus << " = " << Wind_in_kmh(w.werte.at(s));
    aus << '\n';
  }
  aus << Namensspalte("Niederschlag") << Niederschlag_text(w) << '\n';
}

// kLux, kLux, kLux, Lux, degrees Celsius, degrees Celsius, m/s.
std::string Wetter_json(const Wetterwerte& w) {
  nlohmann::ordered_json j;
  for (std::size_t s = 0; s < wettersensoren; ++s) j[schluessel.at(s)] = w.werte.at(s);
  j["niederschlag"] = w.niederschlag;
  return j.dump(2);
}

// What the run reports, as the console's progress line.
class Funkanzeige final : public Enocean_anzeige {
 public:
  explicit Funkanzeige(Konsole& konsole) : konsole_(konsole) {}
  ~Funkanzeige() override { konsole_.Fortschritt_ende(); }
  void Meldung_zeigen(const std::string& text) override { text_ = text; }
  void Fortschritt_zeigen(double prozent) override { konsole_.Fortschritt_zeigen(prozent, text_); }

 private:
  Konsole& konsole_;
  std::string text_;
};

}  // namespace

Ausfuehrung Befehl_wetter(CLI::App& /*app*/) {
  return [](Lauf& lauf) {
    const std::string antwort = Wetter_abfragen();
    if (antwort.empty()) return false;
    const Wetterwerte w = Wetter_entschluesseln(antwort);
    if (w.stand != Wetterwerte::Stand::gut) {
      Melden(std::string(Wetterstand_text(w.stand)));
      return false;
    }
    if (lauf.json) {
      lauf.aus << Wetter_json(w) << '\n';
    } else {
      Wetter_ausgeben(lauf.aus, w);
    }
    return true;
  };
}

Ausfuehrung Befehl_enocean(CLI::App& app) {
  struct Argumente {
    std::string datei;
    bool alle = false;
  };
  const auto a = std::make_shared<Argumente>();
  Projektargument(app, a->datei);
  app.add_flag("--alle", a->alle, "alle eingebauten Empfänger, nicht nur geänderte");
  return [a](Lauf& lauf) {
    if (!Projekt_oeffnen(lauf, a->datei)) return false;
    const auto vorher = projekt.Enocean_empf_geaendert;
    Enocean_ergebnis ergebnis{};
    {
      Funkanzeige anzeige(lauf.konsole);
      const Abbruchwache wache([] { leitung.Abbruch_flag = 1; });
      ergebnis = Enocean_programmieren(a->alle, anzeige);
    }
    const bool zu_speichern =
        projekt.Enocean_empf_geaendert != vorher && !Alte_generation(projekt.Datei_version);
    const bool gesichert = !zu_speichern || Projekt_sichern(lauf, Projektpfad(a->datei));
    return ergebnis == Enocean_ergebnis::aktualisiert && gesichert;
  };
}

}  // namespace zav
