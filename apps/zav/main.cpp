#include <unistd.h>

#include <iostream>

#include "befehlszeile.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  return zav::Befehlszeile({argv + 1, argv + argc}, {.ein = std::cin,
                                                     .aus = std::cout,
                                                     .fehler = std::cerr,
                                                     .ein_terminal = isatty(STDIN_FILENO) == 1,
                                                     .fehler_terminal = isatty(STDERR_FILENO) == 1});
}
