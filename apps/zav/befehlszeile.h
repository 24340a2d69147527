// The command line as a function, so that tests call it without a process.
#pragma once

#include <string>
#include <vector>

#include "konsole.h"

namespace zav {

// Runs one call with the arguments behind the program's name. Returns the exit status: 0 done; 1 the
// operation failed, was refused or showed an error box; 2 wrong use. The project, the settings and the link
// are fresh for each call.
int Befehlszeile(std::vector<std::string> argumente, Endgeraet geraet);

}  // namespace zav
