// One open line end: descriptor, the bytes under way in both directions, and the line speed.
//
// A held line passes one byte after the other, ten bits each. Bytes carry the moment at which they have
// passed, not the one at which the process woke up for them, and a reply starts at the moment of the CR that
// it answers; so lateness of the process does not add up, and it sleeps for whole messages at a time.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "simulator/fd.h"
#include "simulator/master.h"

namespace zav::simulator {

class Anschluss {
 public:
  // byte_zeit: seconds that a byte takes; 0 = as fast as it goes.
  explicit Anschluss(double byte_zeit) : byte_zeit(byte_zeit) {}

  void oeffnen(Fd neu);
  void schliessen();
  bool offen() const { return static_cast<bool>(fd); }
  int nummer() const { return fd.nummer(); }

  // Events to poll for. Nothing is read while more than a good message waits, so a fast sender is held back.
  short interesse() const;
  // Time of the next byte that matters; infinite when none is under way.
  double naechste() const;

  // Takes what has arrived at time jetzt: number of bytes, 0 when there are none now, -1 when the other side
  // is gone.
  int lesen(double jetzt);
  // Gives each byte that has passed by jetzt to nehmen(byte, time), which returns false to stop.
  template <class Nehmen>
  void zustellen(double jetzt, Nehmen nehmen) {
    while (ein_ab < ein.size() && ein_frei + takt() <= jetzt) {
      ein_frei += takt();
      if (!nehmen(ein[ein_ab++], ein_frei)) break;
    }
    if (ein_ab == ein.size()) {
      ein.clear();
      ein_ab = 0;
    }
  }
  // Bytes pass at once: the sender has gone, its bytes have not.
  void eilen(bool so) { eilig = so; }

  // Puts bytes on the line from time ab on. Lines for people are dropped when nobody reads (verzichtbar).
  void senden(std::string_view bytes, double ab, double jetzt, bool verzichtbar = false);
  // Writes what has passed by jetzt. False when the line is broken.
  bool schreiben(double jetzt);
  // Forgets what has not been taken yet: nobody listens.
  void ausgang_leeren();

  Zustand zustand;

 private:
  double takt() const { return eilig ? 0 : byte_zeit; }
  double takt_ende(double frei, std::size_t n) const { return frei + static_cast<double>(n) * takt(); }

  Fd fd;
  double byte_zeit;
  bool eilig = false;
  std::string ein, aus;  // under way, from ein_ab and aus_ab on
  std::size_t ein_ab = 0, aus_ab = 0;
  double ein_frei = 0, aus_frei = 0;  // when the last byte taken from the queue had passed
  bool verstopft = false;             // the descriptor takes no more for now
};

}  // namespace zav::simulator
