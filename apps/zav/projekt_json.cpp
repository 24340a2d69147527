#include "projekt_json.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>
#include <span>

#include "store/felder.h"

namespace zav {

namespace {

class Schreiber {
 public:
  explicit Schreiber(std::ostream& aus) : aus_(aus) {}

  void Wert(const std::string& text) {
    aus_ << nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  }
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
    requires(M < 16 || std::is_same_v<T, str>)
  void Feldwert(const Feld<T, N, M>& feld) {
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
    const auto leer = [](const auto& werte) { return std::ranges::all_of(werte, [](auto w) { return w == 0; }); };
    Folge('{', '}', feld.mass(0), [&](std::size_t e) {
      const auto zeile = feld.zeile(e);
      if (leer(zeile)) return;
      Schluessel(e);
      const std::size_t breite = zeile.size() / spalten;
      Folge('{', '}', spalten, [&](std::size_t j) {
        const auto zelle = zeile.subspan(j * breite, breite);
        if (leer(zelle)) return;
        Schluessel(j);
        zelle_schreiben(zelle);
      });
    });
  }

  std::ostream& aus_;
  bool trennen_ = false;
};

}  // namespace

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
