// The program's settings: application "ZAVlink", in an INI file of the user's config folder. Section
// "Startup" holds what the program keeps between runs, section "Ports" the device files that COM numbers
// stand for.
#pragma once

#include <string>

#include "basis/feld.h"

namespace zav {

struct Einstellungen {
  i16 Com_port = 1;                        // serial port 1 to 8
  str Com_geraet;                          // device file instead of a number; never stored
  str Standard_ordner = "C:";              // folder for project files
  Feld<str, 20> Sowi_datum{"02.02.2002"};  // change-over dates: entry 2i to summer, 2i + 1 to winter time
  i16 Richt_modus = 0;                     // 0 no change-over, 1 by the dates, 2 radio clock
  i16 Epson = 0;                           // kept only
  i16 Com_art = 0;                         // 0 serial, 1 wired network, 2 WLAN
  i16 Event_sperre = 0;                    // check box of the transfer dialog
  str Host_name = "192.168.000.000";       // as entered
  str Host_ip = "192.168.000.000";         // the address to connect to; a name after a restart, see below
  i32 Host_port = 4001;
  Feld<str, 4> last_file{"---"};  // newest first, paths without extension, "---" empty
  Feld<str, 8> Ports;             // device file of COM 1 to 8, "" = the n-th of the devices present
};

extern Einstellungen einstellungen;

// The file: $XDG_CONFIG_HOME/ZAVlink/ZAVlink.ini, else ~/.config/ZAVlink/ZAVlink.ini. "" without a home
// folder.
std::string Einstellungsdatei();

// Reads all settings; a missing key takes its default. Returns "" or, for a value that is no number of its
// range where one must stand, a German sentence that names file and key; the default holds then.
std::string Einstellungen_lesen();
// Writes all settings but the list of last files. HostNameIP is written with the value of Host_name, so the
// two agree after every run. Keys and sections that are not known here, and comments, stay in the file.
// Returns "" or a German sentence; the old file is whole then.
std::string Einstellungen_schreiben();
// Writes the list of last files alone.
std::string Letzte_dateien_schreiben();

}  // namespace zav
