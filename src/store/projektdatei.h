// The project file: the pure conversion between a project and the bytes of its file, and the two commands of
// the user on the open project.
//
// The file is text in Windows-1252 with CR LF lines, read by position alone (docs/dateiformat.md). Line 2
// tells the generation: "910", "900" and "800" are written and read; "710", "700", "600" and "500" are only
// read.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "store/projekt.h"
#include "zav/version.h"

namespace zav {

// True for a generation that is read but no longer written: saving such a project under its old name of
// generation gives a file that the old way of reading misunderstands, so callers save it as 910.
bool Alte_generation(std::string_view version);

// ---- pure: bytes and projects, no boxes, no session -------------------------------------------------------

// The bytes of the file. The generation is that of Datei_version; any but 900 and 910 is written with the
// lines of 800 under its own name. Characters that the code page does not hold become "?".
std::string Projekt_schreiben(const Projekt& p);

// Line 2, or nothing where the file has fewer lines.
std::optional<std::string> Version_lesen(std::string_view bytes);

// Fills a project that has its reset values from the bytes of a file of any generation and brings it to the
// present data: cameras split, old dimmer parameters, codes and timers converted. Lines that do not convert
// and lines that are missing leave their fields; no input makes it fail. Datei_version becomes the
// generation's. False, and only Datei_version changed where there is a line 2, for a generation that is not
// known. `marke` takes line 3.
bool Projekt_lesen(std::string_view bytes, Projekt& p, std::string* marke = nullptr);

// Beep and stop box of a file that could not be read or written: the system's description of the error
// number, with what the caller has to say behind it.
void Dateifehler_melden(int fehler, const std::string& dahinter = {});

// ---- the open project -------------------------------------------------------------------------------------

enum class Speichern {
  gespeichert,
  ohne_namen,         // refused with a box, sitzung.Speicherfehler is 1
  nicht_angelegt,     // refused with a box, Projekt_name is "Namenlos" now
  nicht_geschrieben,  // failed later without a box; the old file stands as it was. The project is not saved
};

enum class Laden {
  geladen,
  abgebrochen,      // no name: the store is untouched
  nicht_geoeffnet,  // box; the project is empty and "Namenlos"
  unbekannt,        // box; likewise, Datei_version keeps what line 2 says
  nicht_gesichert,  // box; the backup copy failed, the project is empty and keeps its name
  unvollstaendig,   // the file could not be read to its end: what came before was loaded, without a box
};

// Saves to Projekt_name + ".zav" and puts the name into the list of last files. Whatever happens, the file on
// disk is the old or the new one, whole. The error number of a failure stands in sitzung.Dateifehler (0
// else). The caller clears sitzung.Projekt_geaendert after Speichern::gespeichert.
Speichern Projekt_speichern();

// Loads the file that Projekt_name names with its extension of four characters ("" = the dialog was
// cancelled; sitzung.Projekt_name_vorher is then taken back). Afterwards Projekt_name is without extension,
// or "Namenlos". Asks before converting an old generation whether to keep a copy. Error number as above.
Laden Projekt_laden();

}  // namespace zav
