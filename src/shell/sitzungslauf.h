// Begin and end of a session of the window program.
#pragma once

#include <string>

namespace zav {

// Reads the settings, makes an empty project, and opens the given file; without one it greets. False when the
// user ends the program in the greeting; else a project is in the store.
bool Sitzung_beginnen(const std::string& datei = {});

// The user wants to end the program: stops a running listing, closes the link, asks about unsaved changes,
// and writes the settings. False when he stays.
bool Sitzung_beenden();

}  // namespace zav
