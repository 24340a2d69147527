#include <unistd.h>

#include <iostream>

#include "befehlszeile.h"
#include "klartext.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  zav::Klartextpuffer klartext(*std::cout.rdbuf());
  std::ostream terminal(&klartext);
  return zav::Befehlszeile({argv + 1, argv + argc}, {.ein = std::cin,
                                                     .aus = isatty(STDOUT_FILENO) == 1 ? terminal : std::cout,
                                                     .fehler = std::cerr,
                                                     .ein_terminal = isatty(STDIN_FILENO) == 1,
                                                     .fehler_terminal = isatty(STDERR_FILENO) == 1});
}
