// Where the installer sits: one window is open at a time, every question it asks is expected, and whatever
// goes otherwise ends the work with an exception.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "form/drehbuch.h"
#include "form/formular.h"

namespace zav::beispiel {

class Arbeitsplatz {
 public:
  // The open window if it is an F; else closes that one and opens an F with what `mitgabe` makes. Closing an
  // F shows the box `abschied`, if it is not "".
  template <class F, class... Mitgabe>
  F& fenster(const std::string& abschied = "", Mitgabe... mitgabe) {
    if (auto* const f = dynamic_cast<F*>(fenster_.get()); f != nullptr && f->offen()) return *f;
    schliessen();
    auto neu = std::make_unique<F>(mitgabe()...);
    F& f = *neu;
    fenster_ = std::move(neu);
    abschied_ = abschied;
    f.beim_oeffnen();
    return f;
  }

  // Presses a button that opens a D, works in it and takes over what it holds, unless it has closed by then.
  template <class D>
  void dialog(zav::Taste& knopf, const std::function<void(D&)>& arbeit) {
    drehbuch_.erwarte_dialog<D>([&](D& d) {
      arbeit(d);
      if (d.offen()) uebernehmen(d);
    });
    knopf.druecken();
    pruefen();
  }

  // An act that is answered with a box of this text.
  void mit_meldung(const std::string& text, const std::function<void()>& handlung);

  // Takes over the open window, if there is one.
  void schliessen();

 private:
  // Presses what Enter presses; where that is nothing, Escape.
  static void uebernehmen(Formular& f);
  // Throws what did not go as expected.
  void pruefen();

  Drehbuch drehbuch_;
  std::unique_ptr<Formular> fenster_;
  std::string abschied_;
};

// The one there is.
Arbeitsplatz& arbeitsplatz();

// Ends the work, with the reason, unless the condition holds.
void fordern(bool gut, const std::string& was);

// Types into a field; the text must stand there whole afterwards.
void tippen(Textfeld& feld, const std::string& text);

// A control among its likes, by its number.
auto& nummer(auto& elemente, int n) { return elemente.at(static_cast<std::size_t>(n)); }

// The number of the first empty field of a column.
int freies(const auto& felder) {
  int n = 0;
  for (const Textfeld& feld : felder) {
    if (feld.text().empty()) return n;
    ++n;
  }
  fordern(false, "Keine freie Zeile mehr");
  return -1;
}

}  // namespace zav::beispiel
