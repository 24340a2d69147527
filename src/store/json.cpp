#include "store/json.h"

#include <algorithm>
#include <ostream>
#include <span>

#include "store/felder.h"

namespace zav {

namespace {

class Schreiber {
 public:
  explicit Schreiber(std::ostream& aus) : aus_(aus) {}

  void Wert(const std::string& text) { aus_ << Json_text(text); }
  void Wert(std::integral auto zahl) { aus_ << static_cast<int>(zahl); }

  // What `einer` writes for each i that counts, with commas between.
  template <class F>
  void Folge(char auf, char zu, std::size_t n, F einer) {
    aus_ << auf;
    trennen_ = false;
    for (std::size_t i = 0; i < n; ++i) einer(i);
    aus_ << zu;
    trennen_ = true;
  }
  void Trennen() {
    if (trennen_) aus_ << ',';
    trennen_ = true;
  }
  void Schluessel(std::size_t i) {
    Trennen();
    aus_ << '"' << i << "\":";
  }

  template <class T>
  void Liste(std::span<const T> werte) {
    Folge('[', ']', werte.size(), [&](std::size_t i) {
      Trennen();
      Wert(werte[i]);
    });
  }

  // A scalar.
  template <class T>
  void Feldwert(const T& wert) {
    Wert(wert);
  }
  template <class T, std::size_t N>
  void Feldwert(const Feld<T, N>& feld) {
    Liste(feld.alle());
  }
  // A table of records.
  template <class T, std::size_t N, std::size_t M>
  requires(M < 16 || std::is_same_v<T, str>) void Feldwert(const Feld<T, N, M>& feld) {
    Folge('[', ']', N, [&](std::size_t i) {
      Trennen();
      Liste(feld.zeile(i));
    });
  }
  // A matrix of functions: outputs or timers.
  template <class T, std::size_t N, std::size_t M>
  void Feldwert(const Feld<T, N, M>& feld) {
    Matrix(feld, M, [&](std::span<const T> zelle) { Wert(zelle.front()); });
  }
  // A matrix of functions: dimmers.
  template <class T, std::size_t N, std::size_t M, std::size_t K>
  void Feldwert(const Feld<T, N, M, K>& feld) {
    Matrix(feld, M, [&](std::span<const T> zelle) { Liste(zelle); });
  }

 private:
  template <class F>
  void Matrix(const auto& feld, std::size_t spalten, F zelle_schreiben) {
    const auto leer = [](const auto& werte) {
      return std::ranges::all_of(werte, [](auto w) { return w == 0; });
    };
    Folge('{', '}', feld.mass(0), [&](std::size_t e) {
      const auto zeile = feld.zeile(e);
      if (leer(zeile)) return;
      Schluessel(e);
      const std::size_t breite = zeile.size() / spalten;
      Folge('{', '}', spalten, [&](std::size_t j) {
        const auto zelle = Teilzeile(zeile, j, breite);
        if (leer(zelle)) return;
        Schluessel(j);
        zelle_schreiben(zelle);
      });
    });
  }

  std::ostream& aus_;
  bool trennen_ = false;
};

// Bytes of the character at the begin of text, 0 when it is no UTF-8.
std::size_t Zeichenlaenge(std::string_view text) {
  const auto byte = [text](std::size_t i) {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
  };
  const unsigned b = byte(0);
  const std::size_t n = b < 0x80 ? 1 : b < 0xC2 ? 0 : b < 0xE0 ? 2 : b < 0xF0 ? 3 : b < 0xF5 ? 4 : 0;
  for (std::size_t i = 1; i < n; ++i) {
    if ((byte(i) & 0xC0U) != 0x80) return 0;
  }
  // Overlong forms, surrogates, and beyond the last code point.
  if ((b == 0xE0 && byte(1) < 0xA0) || (b == 0xED && byte(1) >= 0xA0)) return 0;
  if ((b == 0xF0 && byte(1) < 0x90) || (b == 0xF4 && byte(1) >= 0x90)) return 0;
  return n;
}

}  // namespace

std::string Json_text(std::string_view text) {
  constexpr std::string_view besondere = "\b\f\n\r\t\"\\";
  constexpr std::string_view kurzform = "bfnrt\"\\";
  constexpr std::string_view ziffern = "0123456789abcdef";
  std::string aus = "\"";
  while (!text.empty()) {
    const std::size_t n = Zeichenlaenge(text);
    const char c = text.front();
    if (n == 0) {
      aus += "\uFFFD";
    } else if (const std::size_t k = besondere.find(c); n == 1 && k != std::string_view::npos) {
      aus += {'\\', kurzform[k]};
    } else if (n == 1 && static_cast<unsigned char>(c) < 0x20) {
      aus += "\\u00";
      aus += {ziffern[static_cast<unsigned char>(c) / 16], ziffern[static_cast<unsigned char>(c) % 16]};
    } else {
      aus += text.substr(0, n);
    }
    text.remove_prefix(std::max<std::size_t>(n, 1));
  }
  return aus + '"';
}

void Projekt_json(const Projekt& p, std::ostream& aus) {
  Schreiber s(aus);
  const char* vor = "{\n";
  Felder_besuchen(p, [&](const char* name, const auto& feld) {
    aus << vor << '"' << name << "\": ";
    s.Feldwert(feld);
    vor = ",\n";
  });
  aus << "\n}\n";
}

}  // namespace zav
