// The arrays of a project: flat, of fixed dimensions, and bounds-checked.
#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace zav {

using i16 = std::int16_t;
using i32 = std::int32_t;
using u8 = std::uint8_t;
using u16 = std::uint16_t;
using str = std::string;

// An array of type T with the dimensions N..., outermost first, indexed as f(i, j, k) or, with one
// dimension, as f[i]. An index outside its dimension throws std::out_of_range. Inner loops take a whole
// row as a span and pay nothing for the check.
template <class T, std::size_t... N>
class Feld {
  static_assert(sizeof...(N) >= 1);
  static constexpr std::array<std::size_t, sizeof...(N)> masse{N...};

 public:
  using Element = T;
  static constexpr std::size_t groesse = (N * ...);
  static constexpr std::size_t dimensionen = sizeof...(N);
  static constexpr std::size_t mass(std::size_t d) { return masse.at(d); }
  // Number of elements behind one value of the first index.
  static constexpr std::size_t zeilenbreite = groesse / masse[0];

  // Every element takes the value.
  Feld(T wert = T{}) : werte_(groesse, wert) {}
  // Every element takes what the function gives for its flat index.
  template <std::invocable<std::size_t> F>
  explicit Feld(F vorgabe) {
    werte_.reserve(groesse);
    for (std::size_t i = 0; i < groesse; ++i) werte_.push_back(static_cast<T>(vorgabe(i)));
  }

  template <std::integral... I>
  T& operator()(I... index) {
    return werte_[stelle(index...)];
  }
  template <std::integral... I>
  const T& operator()(I... index) const {
    return werte_[stelle(index...)];
  }
  T& operator[](std::integral auto i) requires(sizeof...(N) == 1) { return werte_[stelle(i)]; }
  const T& operator[](std::integral auto i) const requires(sizeof...(N) == 1) { return werte_[stelle(i)]; }

  // All elements behind the first index i, in order: zeilenbreite of them.
  std::span<T> zeile(std::integral auto i) { return {werte_.data() + zeilenanfang(i), zeilenbreite}; }
  std::span<const T> zeile(std::integral auto i) const {
    return {werte_.data() + zeilenanfang(i), zeilenbreite};
  }
  // All elements in flat order.
  std::span<T> alle() { return werte_; }
  std::span<const T> alle() const { return werte_; }

  bool operator==(const Feld&) const = default;

 private:
  static std::size_t geprueft(std::integral auto i, std::size_t mass) {
    if (std::cmp_less(i, 0) || std::cmp_greater_equal(i, mass)) {
      throw std::out_of_range("Feld: index " + std::to_string(i) + " of " + std::to_string(mass));
    }
    return static_cast<std::size_t>(i);
  }
  static std::size_t zeilenanfang(std::integral auto i) { return geprueft(i, masse[0]) * zeilenbreite; }
  template <std::integral... I>
  static std::size_t stelle(I... index) {
    static_assert(sizeof...(I) == sizeof...(N), "one index for each dimension");
    std::size_t s = 0;
    std::size_t d = 0;
    ((s = s * masse[d] + geprueft(index, masse[d]), ++d), ...);
    return s;
  }

  // On the heap, so that a project can be a local variable.
  std::vector<T> werte_;
};

// Run i of a row made of runs of `breite` elements, as of the parameters of a dimmer or the outputs of a
// group. Throws std::out_of_range when the row has no such run.
template <class T>
std::span<T> Teilzeile(std::span<T> zeile, std::integral auto i, std::integral auto breite) {
  const auto laenge = static_cast<std::size_t>(breite);
  if (std::cmp_less(i, 0) || static_cast<std::size_t>(i) >= zeile.size() / laenge) {
    throw std::out_of_range("run " + std::to_string(i) + " of " + std::to_string(zeile.size() / laenge));
  }
  return zeile.subspan(static_cast<std::size_t>(i) * laenge, laenge);
}

}  // namespace zav
