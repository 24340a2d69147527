// The commands on the open project that more than one place gives.
#pragma once

#include <string>

namespace zav {

// While there are unsaved changes: asks whether to save them, under a new name. False when the user cancels.
bool Ungespeichertes_fragen();

// Saves under the present name; false after a message, the project counts as unsaved then. A write-protected
// project is refused.
bool Projekt_sichern();

// Asks for a name and a generation and saves; true when the project stands in its file afterwards.
bool Projekt_sichern_unter();

// Opens a file, "" = the dialog was cancelled. Projekt_name_vorher of the session is the name to keep then.
void Projekt_oeffnen(const std::string& pfad);

// Writes a file beside the project; false after a box.
bool Datei_ablegen(const std::string& pfad, const std::string& inhalt);

// The path without its extension of three letters; a name that ends otherwise is kept, so that nothing of it
// is lost.
std::string Ohne_endung(const std::string& pfad);

}  // namespace zav
