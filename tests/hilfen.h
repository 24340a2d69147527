// Helpers of many tests: a scripted user for message boxes, a folder for files, files as bytes.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include "basis/melder.h"

namespace zav {

inline std::ostream& operator<<(std::ostream& s, const Meldung& m) {
  return s << "[" << m.titel << "] " << m.text << " (Knöpfe " << static_cast<int>(m.knoepfe) << ", Symbol "
           << static_cast<int>(m.symbol) << ", Standard " << m.standard << ")";
}

// Sits in front of the program while it lives: knows which boxes come, in order and to the letter, and
// answers them. A box out of turn fails the test, and so does one that has not come at the end.
class Meldungsskript : public Melder {
 public:
  Meldungsskript() : vorher_(Melder_setzen(this)) {}
  ~Meldungsskript() override {
    Melder_setzen(vorher_);
    for (const auto& [m, a] : erwartet_) ADD_FAILURE() << "box has not come: " << m;
  }
  Meldungsskript(const Meldungsskript&) = delete;
  Meldungsskript& operator=(const Meldungsskript&) = delete;

  void erwarte(Meldung m, Antwort a = Antwort::OK) { erwartet_.emplace_back(std::move(m), a); }
  int pieptoene() const { return pieptoene_; }
  Zeiger zeiger() const { return zeiger_; }

  Antwort Melden(const Meldung& m) override {
    if (erwartet_.empty()) {
      ADD_FAILURE() << "unexpected box: " << m;
      return Vorsichtige_antwort(m.knoepfe);
    }
    const auto [soll, antwort] = std::move(erwartet_.front());
    erwartet_.pop_front();
    EXPECT_EQ(m, soll);
    return antwort;
  }
  void Piep() override { ++pieptoene_; }
  void Zeiger_setzen(Zeiger z) override { zeiger_ = z; }

 private:
  Melder* vorher_;
  std::deque<std::pair<Meldung, Antwort>> erwartet_;
  int pieptoene_ = 0;
  Zeiger zeiger_ = Zeiger::normal;
};

// A folder of its own for a test, gone at its end. The settings of the program live in it too.
class Testordner {
 public:
  Testordner() {
    std::string muster = std::filesystem::temp_directory_path() / "zav-test-XXXXXX";
    pfad_ = ::mkdtemp(muster.data());
    ::setenv("XDG_CONFIG_HOME", (pfad_ / "einstellungen").c_str(), 1);
  }
  ~Testordner() {
    std::error_code egal;
    std::filesystem::remove_all(pfad_, egal);
  }
  Testordner(const Testordner&) = delete;
  Testordner& operator=(const Testordner&) = delete;

  std::string operator/(std::string_view name) const { return pfad_ / name; }
  const std::filesystem::path& pfad() const { return pfad_; }
  // Entries of the folder itself, but the settings.
  std::size_t eintraege() const {
    std::size_t n = 0;
    for (const auto& e : std::filesystem::directory_iterator(pfad_))
      n += e.path().filename() != "einstellungen";
    return n;
  }

 private:
  std::filesystem::path pfad_;
};

inline std::string Dateibytes(const std::string& pfad) {
  std::ifstream datei(pfad, std::ios::binary);
  return {std::istreambuf_iterator<char>(datei), {}};
}

inline void Datei_anlegen(const std::string& pfad, std::string_view bytes) {
  std::ofstream(pfad, std::ios::binary) << bytes;
}

}  // namespace zav
