// The controls of a form: plain data with the handlers that the form sets on them. No window system.
//
// One rule for all: a change of value, by the user or by the program, runs the handler unless the form is
// busy; setting the value that is there already does nothing. A user's act (druecken, waehlen, eingeben ...)
// on a control that is hidden or disabled is a programming error and throws std::logic_error: nobody can
// press a key that is not there.
#pragma once

#include <functional>
#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "basis/datum.h"
#include "form/farbe.h"

namespace zav {

class Formular;
class Steuerelement;

// A property whose change the front end is told of. Reads and writes like a plain value.
template <class T>
class Eigenschaft {
 public:
  explicit Eigenschaft(Steuerelement& besitzer, T wert = T{}) : besitzer_(besitzer), wert_(std::move(wert)) {}
  Eigenschaft(const Eigenschaft&) = delete;
  Eigenschaft& operator=(const Eigenschaft& e) { return *this = e.wert_; }
  Eigenschaft& operator=(T wert);

  operator const T&() const { return wert_; }
  const T& operator*() const { return wert_; }
  const T* operator->() const { return &wert_; }

  template <class U>
  friend bool operator==(const Eigenschaft& e, const U& u) {
    return e.wert_ == u;
  }
  friend std::ostream& operator<<(std::ostream& aus, const Eigenschaft& e) requires
      requires(std::ostream& o, const T& t) {
    o << t;
  }
  { return aus << e.wert_; }

 private:
  Steuerelement& besitzer_;
  T wert_;
};

enum class Art { Taste, Kaestchen, Auswahl, Textfeld, Schieber, Schild, Balken, Rahmen, Baum, Kalender };

class Steuerelement {
 public:
  explicit Steuerelement(Art art, std::string titel = {}) : art(art), titel(*this, std::move(titel)) {}
  virtual ~Steuerelement() = default;
  Steuerelement(const Steuerelement&) = delete;
  Steuerelement& operator=(const Steuerelement&) = delete;

  const Art art;
  Eigenschaft<std::string> titel;           // caption, "&" before the mnemonic
  Eigenschaft<std::string> hinweis{*this};  // tool tip
  Eigenschaft<bool> frei{*this, true};      // enabled
  Eigenschaft<std::string> sperrgrund{
      *this};  // why it is disabled, in the tool tip's place then; "" = nothing to say
  Eigenschaft<bool> sichtbar{*this, true};
  Eigenschaft<Farbe> farbe{*this, Farbe::normal};

  // Set by the form: `Combo1`, or `Combo1(3)` for a member of an array.
  const std::string& name() const { return name_; }
  Formular* formular() const { return formular_; }

  // The front end's ear: called after every change of the control. One at a time.
  std::function<void()> beobachter;

  // Disables or enables, with what the user is told of a control that is disabled.
  void sperren(bool gesperrt, const std::string& grund) {
    frei = !gesperrt;
    sperrgrund = gesperrt ? grund : std::string{};
  }
  // What hovering shows now.
  const std::string& tipp() const { return frei || sperrgrund->empty() ? *hinweis : *sperrgrund; }

  // Tells the front end that something visible has changed.
  void geaendert() {
    if (beobachter) beobachter();
  }

 protected:
  // Throws unless a user could act on the control now.
  void pruefe_bedienbar() const;
  // Runs a handler unless the form is busy.
  void ausfuehren(const std::function<void()>& handler) const;

 private:
  friend class Formular;
  std::string name_;
  Formular* formular_ = nullptr;
};

template <class T>
Eigenschaft<T>& Eigenschaft<T>::operator=(T wert) {
  if (!(wert == wert_)) {
    wert_ = std::move(wert);
    besitzer_.geaendert();
  }
  return *this;
}

// A push button or a menu item.
class Taste final : public Steuerelement {
 public:
  explicit Taste(std::string titel = {}) : Steuerelement(Art::Taste, std::move(titel)) {}

  std::function<void()> wenn_gedrueckt;
  std::function<void()> wenn_rechts_gedrueckt;  // right button: usually opens a popup
  bool standard = false;                        // Enter presses it
  bool abbruch = false;                         // Escape presses it
  std::string bild;                             // name of a symbol of the front end's icon family
  std::string kuerzel;                          // keyboard shortcut of the window, "Ctrl+S"
  Eigenschaft<std::string> marken{*this};  // behind the caption of a used key what it does: "O D"; "" = a dot

  void druecken();
  void rechts_druecken();
};

// A check box.
class Kaestchen final : public Steuerelement {
 public:
  explicit Kaestchen(std::string titel = {}) : Steuerelement(Art::Kaestchen, std::move(titel)) {}

  std::function<void()> wenn_geaendert;
  bool an() const { return an_; }
  void setzen(bool an);  // the program's change
  void haken(bool an);   // the user's

 private:
  bool an_ = false;
};

// One choice of several: a drop-down list, option buttons, tabs, a strip or a grid of cells.
class Auswahl final : public Steuerelement {
 public:
  enum class Form { Klappliste, Liste, Optionen, Reiter, Leiste, Raster };
  struct Eintrag {
    std::string text;
    std::string hinweis{};
    Farbe farbe = Farbe::normal;
    bool frei = true;
  };

  explicit Auswahl(Form form = Form::Klappliste, std::vector<std::string> texte = {}, std::string titel = {});

  const Form form;
  std::function<void()> wenn_geaendert;
  // A click on an entry whether it is chosen already or not (grids, strips). A form that sets it moves the
  // position itself, where it moves at all.
  std::function<void(int)> wenn_angeklickt;

  int anzahl() const { return static_cast<int>(eintraege_.size()); }
  const std::vector<Eintrag>& eintraege() const { return eintraege_; }
  const Eintrag& eintrag(int i) const { return eintraege_.at(static_cast<std::size_t>(i)); }
  int position() const { return position_; }  // -1: none
  std::string text() const { return position_ < 0 ? std::string{} : eintrag(position_).text; }

  // New entries; nothing is chosen afterwards, and no handler runs.
  void fuellen(std::vector<std::string> texte);
  void setzen(int position);            // the program's change; -1 to anzahl() - 1
  void waehlen(int position);           // the user's choice or click
  void waehlen(std::string_view text);  // the first entry of that text

  void faerben(int i, Farbe f);
  void beschriften(int i, const std::string& text);
  void hinweisen(int i, const std::string& hinweis);
  void freigeben(int i, bool frei);

 private:
  Eintrag& aendern(int i) { return eintraege_.at(static_cast<std::size_t>(i)); }
  std::vector<Eintrag> eintraege_;
  int position_ = -1;
};

// Shows a stored value in its list; one that the list does not know, as a damaged file may hold, shows as
// nothing chosen.
void Einstellen(Auswahl& liste, int wert);

// A text field of one or several lines.
class Textfeld final : public Steuerelement {
 public:
  explicit Textfeld(std::string titel = {}) : Steuerelement(Art::Textfeld, std::move(titel)) {}

  std::function<void()> wenn_geaendert;
  std::function<void()> wenn_betreten;   // the focus enters the field, by a click or by Tab
  std::function<void()> wenn_verlassen;  // the focus leaves the field
  std::function<void()>
      wenn_eingabe;  // Enter in the field; a field without it leaves Enter to the standard key
  Eigenschaft<bool> nur_lesen{*this, false};
  std::size_t hoechstlaenge = 0;  // in characters, 0 = no limit
  std::size_t breite = 0;         // characters to show at a time, 0 = by hoechstlaenge
  bool mehrzeilig = false;
  bool festbreit = false;  // letters of one width: logs, drawings
  std::size_t zeilen = 0;  // lines to show at a time where there are several, 0 = the front end's choice
  std::string maske;       // the text that stands for "not set", "HH.MM.SS": shown pale, typing replaces it

  const std::string& text() const { return text_; }
  void setzen(std::string text);
  // What the user types replaces the text. Longer text is cut; text with a character that the project file
  // cannot hold is refused with a beep and false.
  bool eingeben(std::string text);
  void betreten();
  void verlassen();
  void eingabe();
  // eingeben() and verlassen().
  void ausfuellen(std::string text);
  // Adds text at the end (a log); no handler. Of a log that reaches laengstes_protokoll bytes its older half
  // goes.
  static constexpr std::size_t laengstes_protokoll = std::size_t{4} << 20;
  void anhaengen(std::string_view text);
  // Another number after each change but anhaengen(): with the same number, what was shown still stands and
  // only the rest is new.
  unsigned fassung() const { return fassung_; }

 private:
  std::string text_;
  unsigned fassung_ = 0;
};

class Schieber final : public Steuerelement {
 public:
  explicit Schieber(int von = 0, int bis = 100, int klein = 1, int gross = 5)
      : Steuerelement(Art::Schieber), von_(von), bis_(bis), klein(klein), gross(gross) {}

  std::function<void()> wenn_geaendert;
  int von() const { return von_; }
  int bis() const { return bis_; }
  int wert() const { return wert_; }
  void bereich(int von, int bis);  // the value is limited to it
  void setzen(int wert);           // limited to the range
  void schieben(int wert);

 private:
  int von_, bis_;

 public:
  int klein, gross;  // small and large step

 private:
  int wert_ = von_;
};

// A text to read.
class Schild final : public Steuerelement {
 public:
  explicit Schild(std::string titel = {}) : Steuerelement(Art::Schild, std::move(titel)) {}
  std::function<void()> wenn_angeklickt;  // by the mouse, or by Enter or the space bar
  bool ueberschrift = false;              // stands out above what it heads
  bool zahl = false;                      // a number with its unit: stands at the right of its column
  Eigenschaft<std::string> bild{*this};   // name of a symbol, shown in place of the text, which is read aloud
  void anklicken();
};

// A progress or value bar.
class Balken final : public Steuerelement {
 public:
  enum class Zeigt { fortschritt, messwert };  // only progress has a percentage
  explicit Balken(double von = 0, double bis = 100, Zeigt zeigt = Zeigt::fortschritt)
      : Steuerelement(Art::Balken), zeigt(zeigt), von(von), bis(bis), wert(*this, von) {}
  Zeigt zeigt;
  double von, bis;
  Eigenschaft<double> wert;
};

// A titled frame around other controls; hiding or disabling it hides or disables them.
class Rahmen final : public Steuerelement {
 public:
  explicit Rahmen(std::string titel = {}) : Steuerelement(Art::Rahmen, std::move(titel)) {}
};

// A tree of nodes with unique keys, in the order of adding.
class Baum final : public Steuerelement {
 public:
  struct Knoten {
    std::string schluessel;
    std::string text;
    int eltern = -1;  // number of the parent, -1 = root
    std::string bild{};
    bool offen = false;
  };

  Baum() : Steuerelement(Art::Baum) {}
  std::function<void()> wenn_geaendert;

  const std::vector<Knoten>& knoten() const { return knoten_; }
  const std::string& gewaehlt() const { return gewaehlt_; }  // key, "" = none
  int finden(std::string_view schluessel) const;             // number, -1 = none
  void fuellen(std::vector<Knoten> knoten);                  // nothing is chosen afterwards
  void setzen(std::string schluessel);
  void waehlen(const std::string& schluessel);  // the user's; runs the handler also on the chosen node

 private:
  std::vector<Knoten> knoten_;
  std::string gewaehlt_;
};

// A month calendar.
class Kalender final : public Steuerelement {
 public:
  Kalender() : Steuerelement(Art::Kalender) {}
  std::function<void()> wenn_geaendert;  // also on a click on the day that is chosen already
  Datum datum() const { return datum_; }
  void setzen(Datum d);
  void waehlen(Datum d);

 private:
  Datum datum_;
};

}  // namespace zav
