// The master's side of the line protocol, without any line: bytes in, bytes out. It knows no time and no
// descriptor.
//
// A message is one or two command letters, upper-case digits, checksum, CR; a reply is payload, checksum, CR.
// Two bytes work on their own, wherever they come: "%" forgets the line begun, "*" restarts. Checked in this
// order: command known (F01), checksum (F05 when it is no number, F07), digits (F05), length (F01; F64, F65,
// F66, F68 where they apply), ranges.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/ablage.h"
#include "simulator/fehlerregel.h"
#include "simulator/wetter.h"

namespace zav::simulator {

// Command letters at the begin of text, "*" included; "" when there are none.
std::string Befehl_am_anfang(std::string_view text);

// What the master remembers of one line between two bytes.
struct Zustand {
  std::string zeile;       // message begun
  bool verwerfen = false;  // the line was too long: forget up to its CR
  bool anzeige = false;    // event display is on
  bool nach_i = false;     // "i" was answered before its checksum and CR
};

// What goes back to the line that a byte came from.
struct Ausgabe {
  std::string bytes;
  bool trennen = false;  // close the connection
};

enum class Tastenaktion { loesen = 0, druecken = 1, kurz = 2 };

struct Ereignis {
  int adresse = 0;  // of the ZAVin, 0 to 255
  int taste = 1;    // 1 to 4
  Tastenaktion aktion = Tastenaktion::druecken;

  bool operator==(const Ereignis&) const = default;
};

class Master {
 public:
  explicit Master(std::string versionstext);

  void empfangen(Zustand& z, char c, Ausgabe& aus);

  // A key of the house; appears on lines whose event display is on.
  void ereignis(const Ereignis& e);
  // A start by power or bootloader: like "*", without its reply.
  void hochfahren();

  Bestand bestand;
  Fehlerplan fehler;
  Wetter wetter;
  std::string version;                  // cut or filled to ten characters on the line
  std::vector<std::string> teilnehmer;  // lines of the listing
  bool flash_defekt = false;            // the memory test of an erase finds a fault
  bool gesperrt = false;                // inputs and weather are locked ("LD")
  int neustarts = 0;
  bool geaendert = false;  // bestand has changed since this was last cleared

  bool mitschreiben = true;            // keep messages, telegrams, events
  std::deque<std::string> mitschrift;  // messages without checksum and CR; "%" and "*" too
  std::deque<Telegramm> telegramme;
  std::deque<Ereignis> ereignisse;             // those made by "Y"
  std::map<std::string, std::size_t> zaehler;  // messages by command; "" those of no known command

  std::vector<std::string> anzeigezeilen;  // new lines for the event displays; whoever shows them clears them

 private:
  friend struct Befehlstabelle;

  template <class Ausfuehrung>
  void beantworten(const std::string& befehl, Ausgabe& aus, Ausfuehrung ausfuehren);
  void zeile_beantworten(Zustand& z, Ausgabe& aus);
  void stern(Zustand& z, Ausgabe& aus);
  std::string nachricht_ausfuehren(Zustand& z, const std::string& text);
  void auflisten();
  void mitschrift_ergaenzen(std::string text);

  // Handlers: digits in, payload out.
  std::string lebenszeichen(std::string_view);
  std::string version_nennen(std::string_view);
  std::string fenster(std::string_view ziffern);
  std::string schreiben(std::string_view ziffern);
  std::string lesen(std::string_view);
  std::string sperren(std::string_view ziffern);
  std::string nachholen(std::string_view ziffern);
  std::string uhr(std::string_view ziffern);
  std::string loeschen(std::string_view);
  std::string telegramm_senden(std::string_view ziffern);
  std::string ereignis_erzeugen(std::string_view ziffern);
  std::string telegramm_nennen(std::string_view);
  std::string wetter_nennen(std::string_view);
  std::string abholen(std::string_view);
  std::string gut(std::string_view);

  std::uint32_t fenster_von = 0, fenster_bis = 0;
  bool fenster_gilt = false;
  bool neustart_ungemeldet = false;  // the next "i" answers F99
  Telegramm empfangenes;             // last telegram from the bus
  std::string vorlauf;               // stream before the reply being made
};

}  // namespace zav::simulator
