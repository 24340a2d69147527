// The surface of the command line: boxes as lines on standard error, questions answered by an option, by the
// user at a terminal or by what changes nothing, progress as a bar.
#pragma once

#include <array>
#include <csignal>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

#include "form/oberflaeche.h"

namespace zav {

// Where a call reads and writes. The flags tell whether a person sits at that end.
struct Endgeraet {
  std::istream& ein;
  std::ostream& aus;
  std::ostream& fehler;
  bool ein_terminal = false;
  bool fehler_terminal = false;
};

enum class Fragen_art { stellen, ja, nein };

class Konsole final : public Oberflaeche {
 public:
  explicit Konsole(Endgeraet g);  // puts itself in place
  ~Konsole() override;            // and the surface before it back
  Konsole(const Konsole&) = delete;
  Konsole& operator=(const Konsole&) = delete;

  Fragen_art fragen = Fragen_art::stellen;
  std::string bejahter_titel;  // a question of this title is answered with Yes, whatever `fragen` says
  bool leise = false;
  std::function<void()> bei_runde;  // at every turn of the surface

  // True once a box with a warning or stop icon has appeared that was no question.
  bool fehler_gezeigt() const { return fehler_gezeigt_; }
  // One line of our own on standard error, for what the system has no box for. Counts as an error box.
  void Fehler(std::string_view text);
  // One line on standard error that is no error.
  void Anmerken(std::string_view text);

  // A line of a running operation's log; how far the operation has come, in percent, and what it is at. Shown
  // to a person only.
  void Protokoll(std::string_view zeile);
  void Fortschritt_zeigen(double gesamt, std::string_view taetigkeit);
  void Fortschritt_ende();

  Antwort Melden(const Meldung& m) override;
  void Hinweis(const std::string& text) override;
  void DoEvents() override;
  // The command line shows no forms and asks for no files: its arguments say all. std::logic_error.
  void Zeigen(Formular& f) override;
  std::optional<Dateiwahl> Datei_oeffnen(const Dateifrage&) override { return std::nullopt; }
  std::optional<Dateiwahl> Datei_speichern(const Dateifrage&) override { return std::nullopt; }

 private:
  bool anzeigen() const { return geraet_.fehler_terminal && !leise; }
  Antwort Antwort_holen(const Meldung& m);
  void Zeile(std::string_view text);
  // A line that the next one takes the place of.
  void Fluechtige_zeile(std::string text);

  Endgeraet geraet_;
  Oberflaeche* vorher_;
  bool fehler_gezeigt_ = false;
  std::string fluechtig_;  // the line that is to vanish, "" none
};

// While it lives, Ctrl-C and the request to end (SIGINT, SIGTERM) do not end the program: `bei_abbruch` runs
// at the next turn of the surface. A second signal ends it at once.
class Abbruchwache {
 public:
  explicit Abbruchwache(void (*bei_abbruch)());
  ~Abbruchwache();
  Abbruchwache(const Abbruchwache&) = delete;
  Abbruchwache& operator=(const Abbruchwache&) = delete;
  // True when the user has asked to stop since.
  static bool verlangt();

 private:
  std::array<struct sigaction, 2> vorher_{};
};

}  // namespace zav
