// The two archives of a project file: one writes the lines of a file, the other reads them. Both have the
// same operations, named after the rule by which a field becomes a line and a line a field; zeilen.h says in
// which order.
//
//   operation         writes                            an empty line reads as      what does not convert
//   text              the text                          ""                          -
//   zahl              the number                        (does not convert)          leaves the field
//   zahl_oder_null    the number                        0                           leaves the field
//   duenn             the number, the empty value of    the empty value             leaves the field
//                     the field as an empty line
//   alte_codes        as duenn; in old generations a    0                           leaves the field
//                     code of the old table is read
//   schalter          the number                        0                           0: only "1" is 1
//   notizen           CR as byte 253, LF as byte 250    ""                          -
//   texte_mit_cr      all texts on one line, each       leaves the fields           -
//                     closed by a CR
//   fest              that text                         (any text is skipped)
//   marke             that text                         (kept as read)
//
// Behind the end of the file every operation leaves its fields as they are. An operation takes any number of
// scalars, Feld<> arrays and spans. A matrix takes lines only for the rows whose flag is 1.
#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "basis/feld.h"
#include "basis/windows1252.h"
#include "basis/zahl.h"

namespace zav {

inline constexpr std::string_view zeilenende = "\r\n";
inline constexpr char notiz_cr = '\xFD';
inline constexpr char notiz_lf = '\xFA';

// What the old generations had instead of today's function codes: the present code of each old one.
using Codetafel = std::array<i16, 12>;

// The elements of what an operation was given.
template <class T>
auto Elemente(T&& x) {
  using U = std::remove_reference_t<T>;
  if constexpr (requires { x.alle(); }) {
    return x.alle();
  } else if constexpr (requires { x.first(0); }) {
    return x;
  } else {
    return std::span<U, 1>(&x, 1);
  }
}

class Schreiber {
 public:
  void text(const auto&... felder) {
    (Je_element(felder, [this](const str& t) { Nach_1252(t, bytes_), bytes_ += zeilenende; }), ...);
  }
  void zahl(const auto&... felder) { (Zahlen(Elemente(felder)), ...); }
  void zahl_oder_null(const auto&... felder) { zahl(felder...); }
  void schalter(const auto&... felder) { zahl(felder...); }
  template <class Feldart>
  void duenn(const Feldart& feld, i16 leer = 0) {
    Zahlen(Elemente(feld), leer);
  }
  template <class T, std::size_t... N>
  void duenn(const Feld<T, N...>& matrix, const Feld<u8, Feld<T, N...>::mass(0)>& belegt) {
    for (std::size_t i = 0; i < matrix.mass(0); ++i) {
      if (belegt[i] == 1) duenn(matrix.zeile(i));
    }
  }
  void alte_codes(const auto& matrix, const auto& belegt, const Codetafel&) { duenn(matrix, belegt); }
  void notizen(const str& notizen) {
    const std::size_t anfang = bytes_.size();
    text(notizen);
    const auto ende = bytes_.end() - static_cast<std::ptrdiff_t>(zeilenende.size());
    std::replace(bytes_.begin() + static_cast<std::ptrdiff_t>(anfang), ende, '\r', notiz_cr);
    std::replace(bytes_.begin() + static_cast<std::ptrdiff_t>(anfang), ende, '\n', notiz_lf);
  }
  void texte_mit_cr(const auto& feld) {
    Je_element(feld, [this](const str& t) { Nach_1252(t, bytes_), bytes_ += '\r'; });
    bytes_ += zeilenende;
  }
  void fest(std::string_view t) { (bytes_ += t) += zeilenende; }
  void marke(std::string_view t) { fest(t); }

  void reservieren(std::size_t n) { bytes_.reserve(n); }
  std::string bytes() && { return std::move(bytes_); }

 private:
  // Bytes of the widest number of a type and the end of its line.
  template <class T>
  static constexpr std::size_t laengste_zahl = sizeof(T) == 4 ? 13 : 8;

  // The lines of the numbers 0 to 99: nearly every number of a project is one of them.
  static constexpr auto kurze_zahlen = [] {
    std::array<std::array<char, 4>, 100> tafel{};
    for (std::size_t n = 0; n < tafel.size(); ++n) {
      const auto zehner = static_cast<char>('0' + n / 10);
      const auto einer = static_cast<char>('0' + n % 10);
      tafel[n] = n < 10 ? std::array{einer, '\r', '\n', '\0'} : std::array{zehner, einer, '\r', '\n'};
    }
    return tafel;
  }();

  static void Je_element(const auto& feld, auto tun) {
    for (const auto& e : Elemente(feld)) tun(e);
  }

  static char* Zahl(char* ziel, std::int32_t wert) {
    if (wert >= 0 && std::cmp_less(wert, kurze_zahlen.size())) {
      std::memcpy(ziel, kurze_zahlen[static_cast<std::size_t>(wert)].data(), 4);
      return ziel + (wert < 10 ? 3 : 4);
    }
    return std::copy(zeilenende.begin(), zeilenende.end(),
                     std::to_chars(ziel, ziel + laengste_zahl<i32>, wert).ptr);
  }

  // One line for each number, an empty one where it equals `leer`.
  template <class T, std::size_t N>
  void Zahlen(std::span<const T, N> zahlen, std::optional<i16> leer = {}) {
    const std::size_t anfang = bytes_.size();
    bytes_.resize(anfang + zahlen.size() * laengste_zahl<T>);
    char* ziel = bytes_.data() + anfang;
    const T* z = zahlen.data();
    const T* const ende = z + zahlen.size();
    while (z != ende) {
      // Most of a matrix is empty: four zeros at a time.
      if constexpr (sizeof(T) == 2) {
        std::uint64_t vier = 1;
        if (leer == i16{0} && ende - z >= 4 && (std::memcpy(&vier, z, sizeof vier), vier == 0)) {
          std::memcpy(ziel, "\r\n\r\n\r\n\r\n", 8);
          ziel += 8;
          z += 4;
          continue;
        }
      }
      ziel = leer == *z ? std::copy(zeilenende.begin(), zeilenende.end(), ziel) : Zahl(ziel, *z);
      ++z;
    }
    bytes_.resize(static_cast<std::size_t>(ziel - bytes_.data()));
  }

  std::string bytes_;
};

class Leser {
 public:
  // Old generations hold function codes of the old table.
  explicit Leser(std::string_view bytes, bool alte_tafel = false)
      : stelle_(bytes.data()), ende_(bytes.data() + bytes.size()), alte_tafel_(alte_tafel) {}

  // The next line without its CR LF. A last line that is not closed counts unless it is empty; a CR or LF
  // alone is part of its line.
  std::optional<std::string_view> zeile() {
    const char* const anfang = stelle_;
    for (const char* suche = anfang; suche != ende_;) {
      const auto* const lf =
          static_cast<const char*>(std::memchr(suche, '\n', static_cast<std::size_t>(ende_ - suche)));
      if (lf == nullptr) break;
      suche = lf + 1;
      if (lf == anfang || lf[-1] != '\r') continue;
      stelle_ = suche;
      return std::string_view(anfang, static_cast<std::size_t>(lf - 1 - anfang));
    }
    stelle_ = ende_;
    if (anfang == ende_) return std::nullopt;
    return std::string_view(anfang, static_cast<std::size_t>(ende_ - anfang));
  }

  void text(auto&&... felder) {
    (Je_element(felder,
                [this](str& t) {
                  const auto z = zeile();
                  if (z) t.clear(), Aus_1252(*z, t);
                  return z.has_value();
                }),
     ...);
  }
  void zahl(auto&&... felder) { (Zahlen(Elemente(felder), std::nullopt), ...); }
  void zahl_oder_null(auto&&... felder) { (Zahlen(Elemente(felder), i16{0}), ...); }
  void schalter(auto&&... felder) {
    (Je_element(felder,
                [this](i16& schalter) {
                  const auto z = zeile();
                  if (z) schalter = *z == "1" ? 1 : 0;
                  return z.has_value();
                }),
     ...);
  }
  template <class Feldart>
  void duenn(Feldart&& feld, i16 leer = 0) {
    Zahlen(Elemente(feld), leer);
  }
  template <class T, std::size_t... N>
  void duenn(Feld<T, N...>& matrix, const Feld<u8, Feld<T, N...>::mass(0)>& belegt) {
    for (std::size_t i = 0; i < matrix.mass(0); ++i) {
      if (belegt[i] == 1) duenn(matrix.zeile(i));
    }
  }
  template <class T, std::size_t... N>
  void alte_codes(Feld<T, N...>& matrix, const Feld<u8, Feld<T, N...>::mass(0)>& belegt,
                  const Codetafel& tafel) {
    if (!alte_tafel_) return duenn(matrix, belegt);
    for (std::size_t i = 0; i < matrix.mass(0); ++i) {
      if (belegt[i] == 1) alte_codes(matrix.zeile(i), tafel);
    }
  }
  // A code is in the old table by its text: "03" is the number 3 and no old code.
  void alte_codes(std::span<i16> codes, const Codetafel& tafel) {
    Je_element(codes, [&](i16& code) {
      const auto z = zeile();
      if (!z) return false;
      if (const auto wert = z->empty() ? 0 : Wert<i16>(*z)) {
        const bool alt =
            *wert >= 0 && std::cmp_less(*wert, tafel.size()) && (z->size() <= 1 || z->front() != '0');
        code = static_cast<i16>(alt ? tafel[static_cast<std::size_t>(*wert)] : *wert);
      }
      return true;
    });
  }
  void notizen(str& notizen) {
    const auto z = zeile();
    if (!z) return;
    std::string zeichen(*z);
    std::replace(zeichen.begin(), zeichen.end(), notiz_cr, '\r');
    std::replace(zeichen.begin(), zeichen.end(), notiz_lf, '\n');
    notizen = Aus_1252(zeichen);
  }
  void texte_mit_cr(auto& feld) {
    std::string_view rest = zeile().value_or("");
    Je_element(feld, [&](str& t) {
      const std::size_t n = rest.find('\r');
      if (n == std::string_view::npos) return false;
      t.clear();
      Aus_1252(rest.substr(0, n), t);
      rest.remove_prefix(n + 1);
      return true;
    });
  }
  void fest(std::string_view) { zeile(); }
  void marke(std::string_view) { marke_ = Aus_1252(zeile().value_or("")); }

  const str& gelesene_marke() const { return marke_; }

 private:
  // Runs over the elements until the function finds the file at its end.
  static void Je_element(auto&& feld, auto lesen) {
    for (auto& e : Elemente(feld)) {
      if (!lesen(e)) return;
    }
  }

  // The number of a line, where the field can hold it. Fields of 32 bits too take only numbers of 16.
  template <class T>
  static std::optional<std::int32_t> Wert(std::string_view zeile) {
    using Grenzen = std::numeric_limits<std::conditional_t<sizeof(T) == 1, u8, i16>>;
    return Zahl_lesen(zeile, Grenzen::min(), Grenzen::max());
  }

  // One line for each number; an empty line gives `leer`, or leaves the number where there is none.
  template <class T, std::size_t N>
  void Zahlen(std::span<T, N> zahlen, std::optional<i16> leer) {
    static constexpr std::string_view acht_leere = "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
    static constexpr int schnelle_stellen = sizeof(T) == 1 ? 2 : 4;  // any such number fits the field

    T* z = zahlen.data();
    T* const letzte = z + zahlen.size();
    while (z != letzte) {
      const std::ptrdiff_t rest = ende_ - stelle_;
      if (leer && letzte - z >= 8 && rest >= 16 && std::memcmp(stelle_, acht_leere.data(), 16) == 0) {
        z = std::fill_n(z, 8, static_cast<T>(*leer));
        stelle_ += 16;
        continue;
      }
      // Nearly every line is empty or holds a short number: those are read where they stand.
      if (rest >= schnelle_stellen + std::ssize(zeilenende)) {
        const char* p = stelle_;
        unsigned wert = 0;
        for (int n = 0; n < schnelle_stellen && *p >= '0' && *p <= '9'; ++n)
          wert = wert * 10 + static_cast<unsigned>(*p++ - '0');
        if (p[0] == '\r' && p[1] == '\n') {
          if (p != stelle_) {
            *z = static_cast<T>(wert);
          } else if (leer) {
            *z = static_cast<T>(*leer);
          }
          stelle_ = p + 2;
          ++z;
          continue;
        }
      }
      const auto text = zeile();
      if (!text) return;
      if (text->empty() && leer) {
        *z = static_cast<T>(*leer);
      } else if (const auto wert = Wert<T>(*text)) {
        *z = static_cast<T>(*wert);
      }
      ++z;
    }
  }

  const char* stelle_;
  const char* ende_;
  bool alte_tafel_;
  str marke_;
};

}  // namespace zav
