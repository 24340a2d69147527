// A surface without a screen, for tests and for programs that act like a user: a queue of what is expected to
// appear - boxes, dialogs, file questions - with what the user does about each. What appears out of turn, or
// does not appear, is a fault.
//
//     Drehbuch d;
//     d.erwarte({.text = "Löschen?", .titel = "Warnung", .knoepfe = Knoepfe::Ja_Nein}, Antwort::Ja);
//     d.erwarte_dialog<Actmask>([](Actmask& m) { m.Combo1[0].waehlen(5); m.Command5.druecken(); });
//     ...
//     EXPECT_EQ(d.maengel(), "");
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "form/formular.h"
#include "form/oberflaeche.h"

namespace zav {

class Drehbuch : public Oberflaeche {
 public:
  Drehbuch();            // puts itself in place
  ~Drehbuch() override;  // and the surface before it back

  // The next thing to appear is this box, all of it to the letter.
  void erwarte(Meldung m, Antwort a = Antwort::OK);
  // The same where only text counts (any title, icon, buttons).
  void erwarte_text(std::string text, Antwort a = Antwort::OK);
  // A form of class F opens; spiel acts on it and must leave it closed, else it is closed and that is a
  // fault.
  template <class F>
  void erwarte_dialog(std::function<void(F&)> spiel) {
    schritte_.push_back(Dialog{[spiel = std::move(spiel)](Formular& f) {
      auto* const gesuchtes = dynamic_cast<F*>(&f);
      if (gesuchtes != nullptr) spiel(*gesuchtes);
      return gesuchtes != nullptr;
    }});
  }
  // A file question; nothing = cancel.
  void erwarte_datei(std::optional<Dateiwahl> wahl);
  // Keys held from now on.
  void tasten(Umschalttasten t) { tasten_ = t; }
  // Runs at every DoEvents.
  std::function<void()> bei_doevents;

  // Faults so far and what was expected but has not come, one a line; "" when all went by the book. Clears
  // both.
  std::string maengel();
  // All boxes that have appeared, text only.
  const std::vector<std::string>& meldungen() const { return meldungen_; }
  const std::vector<Dateifrage>& dateifragen() const { return dateifragen_; }
  const std::string& zwischenablage() const { return zwischenablage_; }
  int pieptoene() const { return pieptoene_; }

  Antwort Melden(const Meldung& m) override;
  void Piep() override { ++pieptoene_; }
  void DoEvents() override {
    if (bei_doevents) bei_doevents();
  }
  void Zeigen(Formular& f) override;
  std::optional<Dateiwahl> Datei_oeffnen(const Dateifrage& f) override { return Datei(f); }
  std::optional<Dateiwahl> Datei_speichern(const Dateifrage& f) override { return Datei(f); }
  Umschalttasten Tasten() override { return tasten_; }
  void Zwischenablage(const std::string& text) override { zwischenablage_ = text; }

 private:
  struct Kasten {
    Meldung meldung;
    bool nur_text;
    Antwort antwort;
  };
  struct Dialog {
    std::function<bool(Formular&)> spiel;  // false: a form of another class
  };
  struct Datei_wahl {
    std::optional<Dateiwahl> wahl;
  };
  using Schritt = std::variant<Kasten, Dialog, Datei_wahl>;

  // The next step if it is of kind S, taken off the queue; else nothing, with a fault noted.
  template <class S>
  std::optional<S> naechster(const std::string& erschienen);
  std::optional<Dateiwahl> Datei(const Dateifrage& f);

  Oberflaeche* vorher_;
  std::deque<Schritt> schritte_;
  std::vector<std::string> fehler_;
  std::vector<std::string> meldungen_;
  std::vector<Dateifrage> dateifragen_;
  std::string zwischenablage_;
  Umschalttasten tasten_;
  int pieptoene_ = 0;
};

}  // namespace zav
