#include "platform/uhrwerk.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>
#include <optional>
#include <random>

namespace zav {

namespace {

using Uhr = std::chrono::steady_clock;

struct {
  std::optional<Datum> heute;
  std::optional<std::mt19937> fest;  // with a fixed seed
  std::mt19937 frei{std::random_device{}()};
  double faktor = 1.0;
  double beginn_timer = 0.0;  // Timer() when the factor was set
  Uhr::time_point beginn;
} stand;

constexpr double tag_sekunden = 86400.0;

std::tm Ortszeit(std::time_t t) {
  std::tm ort{};
  localtime_r(&t, &ort);
  return ort;
}

double Echter_timer() {
  const auto jetzt = std::chrono::system_clock::now();
  const std::tm ort = Ortszeit(std::chrono::system_clock::to_time_t(jetzt));
  const auto seit_epoche = std::chrono::duration<double>(jetzt.time_since_epoch()).count();
  return ort.tm_hour * 3600 + ort.tm_min * 60 + ort.tm_sec + (seit_epoche - std::floor(seit_epoche));
}

double Ziehen(std::mt19937& quelle) { return std::uniform_real_distribution<double>(0.0, 1.0)(quelle); }

}  // namespace

double Timer() {
  if (stand.faktor == 1.0) return Echter_timer();
  const double vergangen = std::chrono::duration<double>(Uhr::now() - stand.beginn).count();
  return std::fmod(stand.beginn_timer + vergangen * stand.faktor, tag_sekunden);
}

Datum Heute() {
  if (stand.heute) return *stand.heute;
  const std::tm ort = Ortszeit(std::time(nullptr));
  return {ort.tm_year + 1900, ort.tm_mon + 1, ort.tm_mday};
}

int Tageszeit() { return static_cast<int>(Echter_timer()); }

double Zufall() { return Ziehen(stand.fest ? *stand.fest : stand.frei); }

double Zufall_neu_gesaet() {
  if (stand.fest) return Ziehen(*stand.fest);
  std::random_device rauschen;
  stand.frei.seed(rauschen() ^ static_cast<std::uint32_t>(Uhr::now().time_since_epoch().count()));
  return Ziehen(stand.frei);
}

void Heute_setzen(Datum d) { stand.heute = d; }
void Zufall_saeen(std::uint32_t saat) { stand.fest.emplace(saat); }

void Zeitraffer_setzen(double faktor) {
  stand.beginn_timer = faktor == 1.0 ? 0.0 : Timer();
  stand.beginn = Uhr::now();
  stand.faktor = faktor;
}

int Echte_millisekunden(double sekunden) {
  return std::max(0, static_cast<int>(std::ceil(sekunden * 1000.0 / stand.faktor)));
}

}  // namespace zav
