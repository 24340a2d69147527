#include "argumente.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <utility>

#include "basis/zahl.h"

namespace zav {

namespace {

// "910, 900 und 800".
std::string Aufzaehlung(const std::vector<std::string>& teile) {
  std::string text;
  for (const std::string& teil : teile) {
    if (&teil != &teile.front()) text += &teil == &teile.back() ? " und " : ", ";
    text += teil;
  }
  return text;
}

}  // namespace

Pruefung Eines_von(std::vector<std::string> moegliche) {
  return [moegliche = std::move(moegliche)](const std::string& t) {
    return std::ranges::count(moegliche, t) > 0 ? "" : "möglich sind " + Aufzaehlung(moegliche);
  };
}

Pruefung Ganze_zahl_bis(int bis) {
  return [bis](const std::string& t) {
    return Zahl_lesen(t, 0, bis) ? "" : "möglich sind 0 bis " + std::to_string(bis);
  };
}

void Projektargument(CLI::App& app, std::string& datei) {
  app.add_option("DATEI", datei, "Projekt; .zav wird ergänzt")->required();
}

}  // namespace zav
