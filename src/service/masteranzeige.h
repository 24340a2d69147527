// What several dialogs show of the master and of the way to it.
#pragma once

#include <string>

#include "form/steuerelement.h"

namespace zav {

// The way to the master by the settings: "COM 1  115200 8N1", "Ethernet 192.168.1.20:4001", "WLAN ...".
std::string Schnittstelle_text();

// Asks the master for its version and for the name of the project that it holds; "---" stands in the fields
// meanwhile. A failure has shown its box.
void Masterinfo_holen(Textfeld& version, Textfeld& projektname);

// "&Neustart": asks, then restarts the master.
void Neustart_fragen();

}  // namespace zav
