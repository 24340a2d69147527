// A dialog without a window: its controls, its rules, and the layout that a front end draws it from.
//
//     class Dimmermode final : public Formular {
//      public:
//       Dimmermode();
//       Auswahl TabStrip1{Auswahl::Form::Reiter};
//       std::array<Kaestchen, 16> Check1, Check2;
//       Taste OK{"&OK"}, Cancel{"&Abbrechen"};
//       Anordnung anordnung() override;
//     };
//
// The constructor loads the data, names the controls with anmelden() and sets their handlers. A caller builds
// the form and hands it to oberflaeche().Zeigen(), which returns when the form has closed; results are read
// from its members.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "form/anordnung.h"
#include "form/steuerelement.h"

namespace zav {

class Formular {
 public:
  // The class's name, and the caption of its window.
  explicit Formular(std::string name, std::string titel = {});
  virtual ~Formular() = default;
  Formular(const Formular&) = delete;
  Formular& operator=(const Formular&) = delete;

  const std::string& name() const { return name_; }
  const std::string& titel() const { return titel_; }
  void titel_setzen(std::string titel);
  // True while what the window shows stands in no file: the front end marks its title.
  bool ungespeichert() const { return ungespeichert_; }
  void ungespeichert_setzen(bool ungespeichert);

  // Where the controls sit. Every control of the form stands in it exactly once.
  virtual Anordnung anordnung() = 0;
  // The front end is about to show the form: the place for what needs a form on screen (a first message, a
  // run).
  virtual void beim_oeffnen() {}
  // The user wants the window gone by its own means (Escape, the title bar). Presses the control with
  // `abbruch`, if there is one that can be pressed; else closes.
  virtual void schliessen_wuenschen();
  // Escape: the same, but where it would end the program.
  virtual void abbrechen_wuenschen() { schliessen_wuenschen(); }

  bool offen() const { return offen_; }
  void schliessen();
  // Makes a form that was closed ready to be shown again.
  void oeffnen() { offen_ = true; }

  bool beschaeftigt() const { return beschaeftigt_ > 0; }

  const std::vector<Steuerelement*>& elemente() const { return elemente_; }
  // By name ("Command5", "Combo1(3)"); nullptr when there is none.
  Steuerelement* element(std::string_view name) const;

  // The control that has the focus by the form's wish; the front end obeys. nullptr: its own choice.
  Steuerelement* fokus() const { return fokus_; }
  // Counts the wishes: the same control may be wished again after the user has left it.
  unsigned fokuswunsch() const { return fokuswunsch_; }
  void fokussieren(Steuerelement& e);

  // The front end's ear for title, focus and closing.
  std::function<void()> beobachter;

 protected:
  void anmelden(const std::string& name, Steuerelement& e);
  // Members get the names "Combo1(0)", "Combo1(1)" ...
  template <class E, std::size_t N>
  void anmelden(const std::string& name, std::array<E, N>& feld) {
    for (std::size_t i = 0; i < N; ++i) anmelden(name + "(" + std::to_string(i) + ")", feld[i]);
  }

 private:
  friend class Beschaeftigt;
  void geaendert() {
    if (beobachter) beobachter();
  }
  std::string name_;
  std::string titel_;
  std::vector<Steuerelement*> elemente_;
  Steuerelement* fokus_ = nullptr;
  unsigned fokuswunsch_ = 0;
  int beschaeftigt_ = 0;
  bool offen_ = true;
  bool ungespeichert_ = false;
};

// Silences the handlers of a form while it fills its fields.
class Beschaeftigt {
 public:
  explicit Beschaeftigt(Formular& f) : f_(f) { ++f_.beschaeftigt_; }
  ~Beschaeftigt() { --f_.beschaeftigt_; }
  Beschaeftigt(const Beschaeftigt&) = delete;
  Beschaeftigt& operator=(const Beschaeftigt&) = delete;

 private:
  Formular& f_;
};

}  // namespace zav
