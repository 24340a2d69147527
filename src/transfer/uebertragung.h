// Sending the project to the master, and erasing the master: the two long operations, with what they report
// on their way.
#pragma once

#include <string_view>

#include "transfer/plan.h"

namespace zav {

// What an operation reports while it runs. A front end shows what it has room for.
class Beobachter {
 public:
  virtual ~Beobachter() = default;

  virtual void Protokoll_leeren() {}
  // Text to append to the log, with its line ends.
  virtual void Protokoll(std::string_view /*text*/) {}
  virtual void Fortschritt_zeigen(const Fortschritt&) {}
  // Checksum complaints that sending again has mended.
  virtual void Korrigiert_zeigen(int /*anzahl*/) {}
  virtual void Version_zeigen(std::string_view /*version*/) {}
  // A row is about to be sent.
  virtual void Zeile_zeigen(const Abschnitt&, int /*zeile*/) {}
  // The commands that could start a second operation: off during a run.
  virtual void Befehle_freigeben(bool /*frei*/) {}
};

enum class Transferstand : u8 {
  bereit = 0,
  flash_fehler = 1,  // the erase found a fault in the memory
  keine_antwort = 2,
  falsche_version = 3,
};

enum class Sendeergebnis {
  gesendet,
  nicht_gespeichert,  // the project has no file yet
  keine_antwort,      // to the question for the version; no box has told of it
  falsche_version,
  nicht_synchron,  // the master holds another project
  zu_breit,        // a value of the blinds does not fit; no box has told of it
  gescheitert,     // an exchange failed; the rows that have gone are no longer flagged
};

// The operations of one opening of the transfer dialog, on the project being worked on.
class Uebertragung {
 public:
  explicit Uebertragung(Beobachter& beobachter) : beobachter_(beobachter) {}

  bool Check1 = false;  // lock inputs and weather in the master while sending
  u8 Nach_initialisierung =
      0;  // 1: the master has been erased, whatever its stamp says the next transfer may run
  Transferstand Transfer_status = Transferstand::bereit;

  // Sends the parameter blocks, the dates, the stamp, and every row that is flagged; clears the flags row by
  // row. Asks at the end whether to restart the master.
  Sendeergebnis Senden_starten();

  // Asks, then erases and tests the master's memory and flags everything that the project fills for sending.
  // The outcome stands in Transfer_status and Nach_initialisierung. True when the next transfer may run.
  bool Initialisieren();

 private:
  class Sender;

  bool Neu_oeffnen();
  bool Austausch(i16 zeit, int antwortlaenge);
  bool Block_senden();
  bool Direkt_senden(std::string_view befehl);
  bool Version_holen();
  bool Version_vertraeglich(const std::string& meldung);
  Sendeergebnis Sitzung_fuehren();
  Sendeergebnis Gescheitert();
  void Alles_vormerken();
  bool Loeschen();
  void Bericht_lesen();
  void Meldezeichen(char zeichen, double& prozent);

  Beobachter& beobachter_;
  str Sende_daten;            // payload of the block being sent, as text
  i32 Daten_fenster_von = 0;  // window of a "D" command, byte addresses
  i32 Daten_fenster_bis = 0;
};

// Whether a master may get a project of that generation: by the begin of its reply to "V". A project without
// a generation fits none.
bool Version_passt(std::string_view Datei_version, std::string_view antwort);

}  // namespace zav
