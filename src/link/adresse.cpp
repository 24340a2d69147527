#include "link/adresse.h"

#include <algorithm>
#include <array>

#include "basis/melder.h"
#include "basis/text.h"
#include "basis/zahl.h"
#include "platform/csc.h"

namespace zav {

namespace {

constexpr int groesster_port = 65535;
constexpr int punkttext = 20;  // room for a dotted address

bool Nur_ziffern(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string Abgelehnt(const std::string& text, const std::string& wort) {
  Melden(text);
  return wort;
}

// "" or the error word.
std::string Namen_ersetzen(std::string& ip) {
  Melden(
      "IP Adresse enthält Buchstaben - es wird versucht die Adresse über das Internet aufzulösen. "
      "Dies kann einige Sekunden dauern.");
  if (cscAttach() < 0) return Adresse_err_ip;
  const std::uint32_t adresse = cscResolve(ip);
  if (adresse == 0) return Abgelehnt("Hostname kann nicht aufgelöst werden", Adresse_err_ip);
  std::array<char, punkttext> puffer{};
  if (cscMakeDotted(adresse, puffer.data(), punkttext) <= 0) {
    return Abgelehnt("Fehler beim Umwandeln in Punkte-Darstellung", Adresse_err_ip);
  }
  ip = puffer.data();
  return {};
}

std::string Pruefen(std::string& ip, const std::string& port) {
  if (port.empty()) return Abgelehnt("Eingabefeld ist leer", Adresse_err_port);
  if (!Nur_ziffern(port)) return Abgelehnt("Nur Zahlen erlaubt", Adresse_err_port);
  if (!Zahl_lesen(port, 0, groesster_port)) {
    return Abgelehnt("TCP Port muss im Bereich von 0...65535 sein", Adresse_err_port);
  }
  if (ip.empty()) return Abgelehnt("Eingabefeld ist leer", Adresse_err_ip);
  if (!Nur_ziffern(Ersetzen(ip, ".", ""))) {
    if (std::string fehler = Namen_ersetzen(ip); !fehler.empty()) return fehler;
  }
  const auto felder = Teilen(ip, ".");
  if (felder.size() > 4) return Abgelehnt("Zuviele Punkte", Adresse_err_ip);
  if (felder.size() < 4) return Abgelehnt("Zuwenig Punkte", Adresse_err_ip);
  std::array<int, 4> zahlen{};
  for (std::size_t i = 0; i < 4; ++i) {
    if (felder[i].empty() || !Nur_ziffern(felder[i])) return Abgelehnt("Nur Zahlen erlaubt", Adresse_err_ip);
    const auto zahl = Zahl_lesen(felder[i], 0, 255);
    if (!zahl) return Abgelehnt("Zahl zu gross", Adresse_err_ip);
    zahlen[i] = *zahl;
  }
  std::array<char, punkttext> puffer{};
  if (cscMakeDotted4(zahlen[0], zahlen[1], zahlen[2], zahlen[3], puffer.data(), punkttext) <= 0) {
    return Abgelehnt("Undefinierbarer Fehler", Adresse_err_div);
  }
  return puffer.data();
}

}  // namespace

std::string Adresse_pruefen(std::string& ip, const std::string& port) {
  std::string ergebnis = Pruefen(ip, port);
  cscRelease();
  return ergebnis;
}

}  // namespace zav
