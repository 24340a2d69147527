#include "weather/wetterwerte.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "basis/melder.h"
#include "basis/text.h"
#include "basis/zahl.h"
#include "link/leitung.h"

namespace zav {

namespace {

constexpr int antwortlaenge = 27;  // 24 characters, checksum, CR

// Where a value stands in the reply and how it becomes a measure; how its bar is drawn.
struct Messung {
  std::string_view name;
  std::string_view bild;
  std::string_view einheit;
  std::size_t von, stellen;
  int nullpunkt;  // subtracted from the number
  double teiler;  // of what is left
  double balken_bis;
  double versatz;  // added for the bar
};
constexpr std::array<Messung, wettersensoren> messungen{{
    {"Sonne Ost", "sonne", " kLux", 15, 2, 0, 1, 95, 0},
    {"Sonne Süd", "sonne", " kLux", 11, 2, 0, 1, 95, 0},
    {"Sonne West", "sonne", " kLux", 13, 2, 0, 1, 95, 0},
    {"Tageslicht", "tageslicht", " Lux", 17, 2, 0, 1, 249, 0},
    {"Aussentemperatur", "temperatur", " °C", 7, 4, 2730, 10, 71, 20},
    {"Innentemperatur", "temperatur", " °C", 19, 2, 0, 1, 50, 0},
    {"Windgeschwindigkeit", "wind", " m/s", 21, 4, 0, 10, 20, 0},
}};

std::optional<double> Messwert(const Messung& m, std::string_view antwort) {
  const std::string ziffern = Mitte(antwort, m.von, m.stellen);
  if (ziffern.size() != m.stellen || ziffern.find_first_not_of("0123456789ABCDEF") != std::string::npos) {
    return std::nullopt;
  }
  return (static_cast<double>(*Hex_zahl(ziffern)) - m.nullpunkt) / m.teiler;
}

// Whole numbers without a decimal place.
std::string Zehntel(double wert) {
  const std::int64_t z = Runden(wert * 10);
  const std::int64_t betrag = std::abs(z);
  std::string text = (z < 0 ? "-" : "") + std::to_string(betrag / 10);
  if (betrag % 10 != 0) text += "." + std::to_string(betrag % 10);
  return text;
}

}  // namespace

std::string_view Sensor_name(std::size_t sensor) { return messungen.at(sensor).name; }
std::string_view Sensor_einheit(std::size_t sensor) { return messungen.at(sensor).einheit; }
std::string_view Sensor_bild(std::size_t sensor) { return messungen.at(sensor).bild; }

Wetterwerte Wetter_entschluesseln(std::string_view antwort) {
  using Stand = Wetterwerte::Stand;
  Wetterwerte w;
  const std::string zustand = Zeichen(antwort, 1);
  if (zustand.empty() || zustand == "0") return w;
  if (zustand == "8") {
    w.stand = Stand::keine_daten;
    return w;
  }
  w.niederschlag = Zeichen(antwort, 2) == "1";
  w.stand = Stand::defekt;
  const std::string guete = Zeichen(antwort, 3);
  if (guete != "8" && guete != "C" && guete != "E") return w;
  for (std::size_t s = 0; s < wettersensoren; ++s) {
    const auto wert = Messwert(messungen[s], antwort);
    if (!wert) return w;
    w.werte[s] = *wert;
  }
  w.stand = Stand::gut;
  return w;
}

std::string_view Wetterstand_text(Wetterwerte::Stand stand) {
  switch (stand) {
    case Wetterwerte::Stand::keine_station: return "Keine oder defekte Wetterstation";
    case Wetterwerte::Stand::keine_daten: return "Keine Daten von der Wetterstation";
    case Wetterwerte::Stand::defekt: return "Wetterstation defekt";
    case Wetterwerte::Stand::gut: break;
  }
  return "";
}

Wetterbild Wetterbild_von(const Wetterwerte& w) {
  constexpr double sonnenschein = 20;  // kLux
  if (w.stand == Wetterwerte::Stand::gut) {
    if (w.niederschlag) return {"regen", "Niederschlag"};
    const double sonne = *std::max_element(w.werte.begin() + sonne_ost, w.werte.begin() + sonne_west + 1);
    return sonne > sonnenschein ? Wetterbild{"sonne", "Sonnig"} : Wetterbild{"wolke", "Bedeckt"};
  }
  return {"wetter", "Keine Werte"};
}

std::string_view Niederschlag_text(const Wetterwerte& w) {
  return w.niederschlag ? "Niederschlag" : "Trocken";
}

std::string Wetterwert_text(std::size_t sensor, double wert) {
  return Zehntel(wert) + std::string(Sensor_einheit(sensor));
}

std::string Wind_in_kmh(double wert) {
  // Rounded before it is cut: a tenth of m/s is no exact binary number.
  const auto zehntel = Runden(wert * 10) * 36 / 10;
  return Zehntel(static_cast<double>(zehntel) / 10) + " km/h";
}

std::string Wetter_abfragen() {
  const Wartezeiger zeiger;
  Port_oeffnen();
  if (leitung.Port_fehler != 0) {
    Melden("SIO: Fehler " + std::to_string(leitung.Port_fehler) + " bei Open Port");
    Port_schliessen();
    return {};
  }
  leitung.Sende_text = "s";
  Meldung_senden(leitung.Sende_text, leitung.Antwort_zeit, true, antwortlaenge);
  Port_schliessen();
  if (leitung.Empfang_status != 0) {
    Melden("Abfrage nicht möglich. Versuchen Sie es bitte noch einmal.");
    return {};
  }
  return Links(leitung.Empfang_text, antwortlaenge - 3);
}

Wetterbalken Leere_wetterbalken() {
  const auto balken = [](std::size_t s) {
    return Balken(0, messungen[s].balken_bis, Balken::Zeigt::messwert);
  };
  return {balken(sonne_ost),        balken(sonne_sued),      balken(sonne_west),         balken(tageslicht),
          balken(aussentemperatur), balken(innentemperatur), balken(windgeschwindigkeit)};
}

void Wetterbalken_zeigen(Wetterbalken& balken, const Wetterwerte& w) {
  for (std::size_t s = 0; s < wettersensoren; ++s) {
    const Messung& m = messungen[s];
    balken[s].wert = std::clamp(w.werte[s] + m.versatz, 0.0, m.balken_bis);
    const double gezeigt = *balken[s].wert - m.versatz;
    std::string hinweis = std::string(m.name) + ": " + Wetterwert_text(s, gezeigt);
    if (s == windgeschwindigkeit) hinweis += " = " + Wind_in_kmh(gezeigt);
    balken[s].hinweis = hinweis;
  }
}

void Wetterbalken_leeren(Wetterbalken& balken) {
  for (Balken& b : balken) {
    b.wert = b.von;
    b.hinweis = std::string();
  }
}

}  // namespace zav
