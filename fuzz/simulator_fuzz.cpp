// What anyone may say to the simulated master, in its bootloader too.
#include "eingabe.h"
#include "simulator/geraet.h"

using namespace zav;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t n) {
  Eingabe e(bytes, n);
  simulator::Geraet geraet("REV 09.04");
  simulator::Zustand zustand;
  double t = 0;
  if (e.byte() % 2 == 1) geraet.einschalten(true, t);
  while (!e.leer()) {
    simulator::Ausgabe aus;
    geraet.empfangen(zustand, static_cast<char>(e.byte()), t += 0.25, aus);
    geraet.zeit(t);
    geraet.an_alle.clear();
    Verlangen(aus.bytes.size() < 8192, "a reply is bounded");
  }
  return 0;
}
