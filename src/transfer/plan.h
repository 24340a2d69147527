// The plan of a transfer: everything that goes to the master, in its order. The driver, the dry run, the
// image and the progress display all walk this one list.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/einstellungen.h"
#include "store/projekt.h"
#include "transfer/block.h"
#include "transfer/tageszeiten.h"

namespace zav {

// What is packed: a project, the computer's settings that travel with it, and the year's switching times.
struct Quelle {
  const Projekt& projekt;
  const Einstellungen& einstellungen;
  const Uhr_tafel& Uhr_work;
};

// Progress in percent: of the whole operation and of the section.
struct Fortschritt {
  double gesamt = 0;
  int aktuell = 0;

  bool operator==(const Fortschritt&) const = default;
};

// One section: rows of one kind, each sent as one block.
struct Abschnitt {
  enum class Anzeige { keine, block, zeilen };

  std::string_view protokoll{};   // line of the log, "" none
  bool zaehlend = false;          // the line ends with the number of rows that have gone
  std::string_view befehl = "W";  // direct command, or "W": through a window
  i32 anfang = 0;                 // first address of row 0, and the distance between rows
  i32 schritt = 0;
  int zeilen = 1;
  void (*packen)(const Quelle& q, int zeile, Block& b) = nullptr;
  bool (*faellig)(const Projekt& p, int zeile) = nullptr;  // null: goes with every transfer
  void (*erledigt)(Projekt& p, int zeile) = nullptr;       // after the row has gone
  Anzeige anzeige = Anzeige::keine;                        // block: fixed by stufe; zeilen: by row
  int stufe = 0;                // block: 1 to 8; zeilen: tenth of the whole, from 1
  int erste = 0;                // number that the first row has in the progress
  bool nur_gesperrt = false;    // only in a transfer that locks inputs and weather meanwhile
  bool breite_beendet = false;  // a value too wide ends the run, without a message
  bool stempel = false;         // the project counts as sent after this

  bool gefenstert() const { return befehl == "W"; }
};

std::span<const Abschnitt> Plan();

// Where the progress stands when the section is at that row.
std::optional<Fortschritt> Fortschritt_bei(const Abschnitt& a, int zeile);

// How much of the plan goes.
struct Umfang {
  bool nur_geaenderte = true;  // else every row, flagged or not
  bool sperren = false;
};

// One who walks along the plan. Every call gets what is due in the order of sending.
class Plangaenger {
 public:
  virtual ~Plangaenger() = default;

  virtual void Abschnitt_beginnt(const Abschnitt&) {}
  // A packed row; false ends the walk.
  virtual bool Zeile(const Abschnitt& a, int zeile, const Block& b) = 0;
  // The section's progress has come to this row, sent or not.
  virtual void Zeile_vorbei(const Abschnitt&, int /*zeile*/) {}
  virtual void Abschnitt_endet(const Abschnitt&, int /*gesendet*/) {}
};

// Walks the whole plan. A block that a value cut short shows its box before it is handed out. False when the
// walker, or a value too wide where that ends the run, has ended it.
bool Plan_gehen(const Quelle& q, const Umfang& umfang, Plangaenger& gaenger);

// Switching times of today's year with fresh random shifts, as a transfer needs them.
Uhr_tafel Uhr_tafel_heute(const Projekt& p);

// Everything that a transfer would write, one line for each block:
//   A <hex>                direct commands alike
//   W <von> <bis> <hex>    through a window: first and last address, six digits each
// Shows the boxes that a transfer would show for values too wide.
std::string Abbild(const Projekt& p, const Einstellungen& e, const Umfang& umfang);

}  // namespace zav
