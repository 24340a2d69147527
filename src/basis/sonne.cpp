#include "basis/sonne.h"

#include <cmath>

#include "basis/zahl.h"

namespace zav {

namespace {

constexpr double pi = 3.141592653;

// Half the length of the day (hours) and the time of the sun's highest place (hours, summer-time reading).
struct Bogen {
  double halb;
  double mittag;
};

Bogen Tagbogen(double laenge, double breite, Datum d) {
  const double hoehe = (-50.0 / 60.0) * pi / 180.0;
  const double tag = Tag_des_jahres(d);
  const double phi = breite * pi / 180.0;
  const double lambda = laenge * pi / 180.0;
  const double deklination = 0.40954 * std::sin(0.0172 * (tag - 79.35));
  const double x =
      (std::sin(hoehe) - std::sin(phi) * std::sin(deklination)) / (std::cos(phi) * std::cos(deklination));
  const double halb = 12.0 * (2.0 * std::atan(1.0) + std::atan(-x / std::sqrt(1.0 - x * x))) / pi;
  const double zeitgleichung =
      -0.1752 * std::sin(0.03343 * tag + 0.5474) - 0.134 * std::sin(0.018234 * tag - 0.1939);
  const double ortszeit = (15.0 - lambda * 180.0 / pi) * 4.0 / 60.0;
  return {halb, ortszeit + 12.0 - zeitgleichung};
}

}  // namespace

double Sonnenaufgang(double laenge, double breite, Datum d) {
  const Bogen b = Tagbogen(laenge, breite, d);
  return (b.mittag - b.halb) / 24.0;
}

double Sonnenuntergang(double laenge, double breite, Datum d) {
  const Bogen b = Tagbogen(laenge, breite, d);
  return (b.mittag + b.halb) / 24.0;
}

Sonnenzeiten Sonnenzeiten_am(Datum d) {
  const double winter = Sommerzeit(d) != 0 ? 0.0 : 1.0 / 24.0;
  const auto sekunden = [winter](double anteil) {
    return static_cast<int>(Runden((anteil - winter) * 86400.0));
  };
  return {sekunden(Sonnenaufgang(laenge_grad, breite_grad, d)),
          sekunden(Sonnenuntergang(laenge_grad, breite_grad, d))};
}

}  // namespace zav
