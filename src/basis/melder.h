// What any layer may ask of whoever sits in front of the program: show a box and bring back the answer, beep,
// change the pointer, take a turn. The front ends implement it; the forms' port builds on it.
#pragma once

#include <string>

namespace zav {

enum class Knoepfe { OK, OK_Abbrechen, Ja_Nein, Ja_Nein_Abbrechen };
enum class Symbol { keines, Information, Frage, Warnung, Stopp };
enum class Antwort { OK, Abbrechen, Ja, Nein };
enum class Zeiger { normal, warten };

// One message box. `standard` is the number of the default button, from 1.
struct Meldung {
  std::string text;
  std::string titel{};
  Knoepfe knoepfe = Knoepfe::OK;
  Symbol symbol = Symbol::keines;
  int standard = 1;

  bool operator==(const Meldung&) const = default;
};

class Melder {
 public:
  virtual ~Melder() = default;

  // Shows the box and waits for the answer.
  virtual Antwort Melden(const Meldung& m) = 0;
  virtual void Piep() {}
  virtual void Zeiger_setzen(Zeiger) {}
  // What a longer command is doing, for the panel of the main window; "" takes it away.
  virtual void Hinweis(const std::string&) {}
  // A turn for the front end during a long operation: repaint, take input. Handlers may run.
  virtual void DoEvents() {}
};

// The front end of this process. Before one is set, boxes answer themselves with what changes nothing
// (OK, else cancel, else no) and are lost.
Melder& melder();
// Puts a front end in place; nullptr takes it away. Returns the one before.
Melder* Melder_setzen(Melder* m);

// The answer that changes nothing for a set of buttons.
Antwort Vorsichtige_antwort(Knoepfe k);

// Shows a box with an OK button and the given icon.
void Melden(const std::string& text, const std::string& titel = {}, Symbol symbol = Symbol::keines);
// True when the user answers Yes (or OK).
bool Fragen(const Meldung& m);

// The busy pointer for a stretch of work.
class Wartezeiger {
 public:
  Wartezeiger() { melder().Zeiger_setzen(Zeiger::warten); }
  ~Wartezeiger() { melder().Zeiger_setzen(Zeiger::normal); }
  Wartezeiger(const Wartezeiger&) = delete;
  Wartezeiger& operator=(const Wartezeiger&) = delete;
};

}  // namespace zav
