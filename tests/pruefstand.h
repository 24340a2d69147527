// A fresh program for tests of forms and commands: an empty project, default settings, a scripted user.
#pragma once

#include <gtest/gtest.h>

#include <concepts>
#include <functional>
#include <sstream>
#include <string>
#include <utility>

#include "form/drehbuch.h"
#include "link/leitung.h"
#include "platform/einstellungen.h"
#include "platform/uhrwerk.h"
#include "store/katalog.h"
#include "store/projekt.h"
#include "store/sitzung.h"

namespace zav {

class Pruefstand : public testing::Test {
 protected:
  Pruefstand() {
    Projekt_reset();
    projekt.Datei_version = "910";
    sitzung = {};
    einstellungen = {};
    leitung = {};
    Com_art_setzen();
    Heute_setzen({2026, 5, 4});
  }
  ~Pruefstand() override {
    EXPECT_EQ(d.maengel(), "");
    Zeitraffer_setzen(1);
    Projekt_reset();
  }

  static void kombination(int k, const std::string& standort, const std::string& raum, int layout = 16) {
    projekt.Komb_typ[k] = 1;
    projekt.Komb_text[k] = standort;
    projekt.Komb_text2[k] = raum;
    projekt.Komb_layout[k] = static_cast<i16>(layout);
  }
  // At place p of Kombination k; adresse -1 = none yet.
  static void apparat(int k, int p, int typ, int adresse) {
    projekt.App_typ[16 * k + p] = static_cast<i16>(typ);
    projekt.App_text[16 * k + p] = adresse < 0 ? "" : std::to_string(adresse);
    projekt.App_text2[16 * k + p] = std::to_string(Apparat_art(typ)->adressen);
  }
  // Presses the key: this box comes, to the letter, and gets that answer; of a text alone the rest is free.
  void druecken(Taste& t, const Meldung& box, Antwort a = Antwort::OK) {
    d.erwarte(box, a);
    t.druecken();
  }
  template <std::convertible_to<std::string> T>
  void druecken(Taste& t, const T& text, Antwort a = Antwort::OK) {
    d.erwarte_text(text, a);
    t.druecken();
  }
  // Presses the key: a form of class F opens, in which spiel acts.
  template <class F>
  void druecken(Taste& t, std::function<void(F&)> spiel) {
    d.erwarte_dialog<F>(std::move(spiel));
    t.druecken();
  }
  // What controls show, separated by "|": text, chosen entry, "an" or "aus", number, or else the caption.
  static std::string zeigt(const auto&... elemente) {
    std::ostringstream aus;
    const auto eines = [&aus]<class E>(const E& e) {
      if constexpr (requires { e.text(); }) {
        aus << e.text();
      } else if constexpr (requires { e.an(); }) {
        aus << (e.an() ? "an" : "aus");
      } else if constexpr (requires { e.wert(); }) {
        aus << e.wert();
      } else if constexpr (requires { *e.wert; }) {
        aus << *e.wert;
      } else {
        aus << *e.titel;
      }
      aus << '|';
    };
    (eines(elemente), ...);
    return aus.str().substr(0, aus.str().size() - 1);
  }

  Drehbuch d;
};

}  // namespace zav
