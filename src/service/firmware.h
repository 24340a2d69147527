// Replacing the master's operating system through its bootloader, step by step, without a window.
#pragma once

#include <string>

#include "service/firmware_leitung.h"

namespace zav {

class Updatebeobachter {
 public:
  virtual ~Updatebeobachter() = default;

  // A step has begun: 2 to 6, with its whole label.
  virtual void Schritt_zeigen(int /*nr*/, const std::string& /*text*/) {}
  // Text to append to the log, with its line ends.
  virtual void Protokoll(const std::string& /*text*/) {}
  // Progress of the transfer, then of the countdown.
  virtual void Fortschritt_zeigen(double /*wert*/, double /*bis*/) {}
  // Whether the run can be left now: while it waits for the master.
  virtual void Abbruch_freigeben(bool /*frei*/) {}
};

enum class Updateergebnis {
  fertig,
  falscher_name,    // box; the file's name does not tell that it is for the master
  nicht_gewollt,    // the user took the warning to heart
  nicht_geoeffnet,  // box; no line
  abgebrochen,      // by Abbruch
  leitung_weg,      // box; the line has broken down while the run waited for the master
  unvollstaendig,   // box, behind the steps; not all of the file could be read and sent
};

class Firmware_update {
 public:
  explicit Firmware_update(Updatebeobachter& beobachter) : beobachter_(beobachter) {}

  // The whole run. Update_datei must carry "ZAVMAStER_" in its path; a content that is no well-formed
  // S-record file is warned of before anything happens, and the user decides. From the erase to the end of a
  // run the master has no operating system; a new run is the recovery.
  Updateergebnis Ausfuehren(Updateweg weg, const std::string& Update_datei);

  bool Abbruch = false;    // set from a handler: leaves the run while it waits for the master
  bool geloescht = false;  // the erase has been asked for

 private:
  enum class Warten { gekommen, abgebrochen, leitung_weg };

  bool Inhalt_pruefen(const std::string& pfad);
  Updateergebnis Fuehren(Firmwareleitung& l, const std::string& pfad);
  void Scheitern_melden(Updateergebnis ergebnis) const;
  Warten Aufforderung_abwarten(Firmwareleitung& l);
  void Neu_starten(Firmwareleitung& l);
  void Mitlesen(Firmwareleitung& l, int ms);
  void Zeile(const std::string& text) { beobachter_.Protokoll(text + "\r\n"); }
  static Updateergebnis Ausgang(Warten w);

  Updatebeobachter& beobachter_;
};

}  // namespace zav
