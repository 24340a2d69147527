// The documentation of a project, for a spreadsheet or a word processor.
#pragma once

#include <string>

namespace zav {

// The project being worked on as UTF-8 text with a byte order mark, CR LF behind every line and tabs between
// the cells. Sections with a heading each: project, notes, Kombinationen with their devices, keys and
// functions, groups without a device, outputs, timers, switching times, sequencer, weather, radio. What is
// empty is left out.
std::string Bericht();

}  // namespace zav
