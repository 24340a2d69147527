// The descriptor with which the phone app learns the building: one XML document made from the Kombinationen,
// the app properties of their keys and the cameras.
#pragma once

#include <string>
#include <string_view>

#include "store/projekt.h"

namespace zav {

// Bytes of the document: a byte order mark, lines with CR LF. Changes nothing.
std::string App_xml_bauen(const Projekt& p);

// Replaces the file. False when that failed, behind a stop box; the old file is whole then.
bool App_xml_schreiben(const std::string& pfad, std::string_view App_xml);

// Asks for the file and writes the descriptor of the project. False when the user cancelled (silently) or
// writing failed. The file's name comes back in `pfad`.
bool App_xml_export(std::string* pfad = nullptr);

// False for a project of generation 800 or 900, whose file holds no app data: a box tells what to do.
bool App_daten_moeglich();

// How many buttons the document holds of each sort, for those who want to know before they write it.
struct App_umfang {
  int normale = 0, globale = 0, szenen = 0, kameras = 0;
};
App_umfang App_zaehlen(const Projekt& p);

}  // namespace zav
