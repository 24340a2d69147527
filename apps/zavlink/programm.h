// The window program: command line, session, main window.
#pragma once

namespace zav::fenster {

// zavlink [DATEI] [--simulator] [--hell | --dunkel]. Gives the exit status.
int Programm(int argc, char** argv);

}  // namespace zav::fenster
