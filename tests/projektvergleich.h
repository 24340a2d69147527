// What has become different in a project.
#pragma once

#include <cstddef>
#include <sstream>
#include <string>
#include <tuple>

#include "store/felder.h"

namespace zav {

// Every changed value as "name=value", in an array as "name(i,j)=value" or, for a run of equal values in the
// last index, "name(i,j-k)=value"; in the order of the members, separated by blanks, "" when the projects are
// equal.
inline std::string Geaendert(const Projekt& vorher, const Projekt& nachher = projekt) {
  std::ostringstream aus;
  const auto nennen = [&aus](const auto& wert) {
    if constexpr (sizeof wert == 1) {
      aus << +wert << ' ';
    } else {
      aus << wert << ' ';
    }
  };
  const auto vergleichen = [&]<class T>(const char* name, const T& alt, const T& neu) {
    if constexpr (requires { T::dimensionen; }) {
      constexpr std::size_t reihe = T::mass(T::dimensionen - 1);
      const auto gleich_geaendert = [&](std::size_t i, std::size_t j) {
        return alt.alle()[j] != neu.alle()[j] && neu.alle()[i] == neu.alle()[j];
      };
      for (std::size_t i = 0, j = 0; i < T::groesse; i = ++j) {
        if (alt.alle()[i] == neu.alle()[i]) continue;
        while ((j + 1) % reihe != 0 && gleich_geaendert(i, j + 1)) ++j;
        std::string stelle = j == i ? "" : "-" + std::to_string(j % reihe);
        for (std::size_t d = T::dimensionen, rest = i; d-- > 0; rest /= T::mass(d)) {
          stelle = "," + std::to_string(rest % T::mass(d)) + stelle;
        }
        aus << name << '(' << stelle.substr(1) << ")=";
        nennen(neu.alle()[i]);
      }
    } else if (alt != neu) {
      aus << name << '=';
      nennen(neu);
    }
  };
  std::apply([&](const auto&... m) { (vergleichen(m.name, vorher.*m.zeiger, nachher.*m.zeiger), ...); },
             projekt_felder);
  std::string text = aus.str();
  if (!text.empty()) text.pop_back();
  return text;
}

}  // namespace zav
