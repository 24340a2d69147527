// Lists of texts, as choices in windows want them.
#pragma once

#include <concepts>
#include <cstddef>
#include <functional>
#include <ranges>
#include <string>
#include <vector>

namespace zav {

// The text of each value, in their order: itself, or what a function or a member gives.
template <std::ranges::sized_range R, class F = std::identity>
std::vector<std::string> Texte(R&& werte, F text = {}) {
  std::vector<std::string> liste;
  liste.reserve(std::ranges::size(werte));
  for (const auto& w : werte) liste.emplace_back(std::invoke(text, w));
  return liste;
}
// The text of each number from 0 to anzahl - 1.
template <std::invocable<int> F>
std::vector<std::string> Texte(int anzahl, F text) {
  std::vector<std::string> liste;
  liste.reserve(static_cast<std::size_t>(anzahl));
  for (int i = 0; i < anzahl; ++i) liste.emplace_back(text(i));
  return liste;
}

}  // namespace zav
