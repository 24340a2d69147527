// What a form needs of the outside, beyond boxes, pointer, beep and DoEvents: file dialogs, other forms,
// keys.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "basis/melder.h"

namespace zav {

class Formular;

struct Dateifilter {
  std::string text;    // "ZAVnet (*.zav)"
  std::string muster;  // "*.zav"
  bool operator==(const Dateifilter&) const = default;
};

// A question for a file name.
struct Dateifrage {
  std::string titel{};
  std::string ordner{};     // where the dialog starts; one that does not exist means the home folder
  std::string vorschlag{};  // proposed name
  std::string endung{};     // added to a name without one, with its dot
  std::vector<Dateifilter> filter{};
  int filter_nr = 0;                    // active filter, from 0
  bool ueberschreiben_fragen = false;   // ask before replacing a file
  bool schreibschutz_waehlbar = false;  // offer the write-protection box
};

struct Dateiwahl {
  std::string pfad;
  int filter_nr = 0;
  bool schreibgeschuetzt = false;
};

// Keys held while a command is given.
struct Umschalttasten {
  bool strg = false;
  bool alt = false;
  bool umschalt = false;
};

class Oberflaeche : public Melder {
 public:
  // Shows a form over the present one and returns when it has closed.
  virtual void Zeigen(Formular& f) = 0;
  // Nothing when the user cancels.
  virtual std::optional<Dateiwahl> Datei_oeffnen(const Dateifrage& f) = 0;
  virtual std::optional<Dateiwahl> Datei_speichern(const Dateifrage& f) = 0;
  virtual std::optional<std::string> Ordner_waehlen(const std::string& /*beginn*/) { return std::nullopt; }
  virtual Umschalttasten Tasten() { return {}; }
  // Puts a text on the clipboard.
  virtual void Zwischenablage(const std::string& /*text*/) {}
};

// The surface in place. There must be one before a form is used: std::logic_error.
Oberflaeche& oberflaeche();
// Puts a surface in place, as melder() too; nullptr takes it away. Returns the one before.
Oberflaeche* Oberflaeche_setzen(Oberflaeche* o);

}  // namespace zav
