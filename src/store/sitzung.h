// Values of the running session. They are no part of the project and are never saved with it.
#pragma once

#include <string>

#include "basis/feld.h"

namespace zav {

struct Sitzung {
  i16 Projekt_geaendert = 0;  // 1: unsaved changes
  i16 Schreibschutz = 0;      // 1: the open file is write-protected
  i16 Speicherfehler = 0;     // 1: the last save refused, the project has no name
  int Dateifehler = 0;        // error number of the last loading or saving, 0 = none
  i16 Abbruch = 0;            // 1: the running listing shall stop
  i16 Komb_aktuell = 0;       // current Kombination of the installation editor
  i16 Enocean_aktuell = 0;
  u8 Master_neu_pruefen = 1;   // 1: the next transfer has to ask the master first
  u8 Master_vergleich = 0;     // result of the transfer's version check, 0 = compatible
  u8 Projekt_gesendet = 0;     // 1: a transfer has run to its end since the program started
  u8 Foto_nr = 1;              // picture shown by the picture viewer
  u16 Enocean_details = 0;     // "Details anzeigen"
  str Master_version = "---";  // as last read
  str Marke;                   // third line of the file as read
  str Projekt_name_vorher;     // the name before the open dialog
};

extern Sitzung sitzung;

}  // namespace zav
