// Begin and end of a session of the window program.
#pragma once

namespace zav {

// Reads the settings, makes an empty project, and greets. False when the user ends the program in the greeting; else a
// project is in the store.
bool Sitzung_beginnen();

// The user wants to end the program: stops a running listing, closes the link, asks about unsaved changes, and writes
// the settings. False when he stays.
bool Sitzung_beenden();

}  // namespace zav
