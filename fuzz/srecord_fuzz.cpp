// Firmware files: any bytes get a verdict.
#include "eingabe.h"
#include "service/srecord.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t n) {
  zav::Eingabe e(bytes, n);
  const auto datei = e.alles();
  const std::string mangel = zav::Srecord_mangel(datei);
  zav::Verlangen(!mangel.empty() || datei.find('S') != datei.npos, "what is no record is told");
  zav::Verlangen(mangel.size() < 512, "a fault is told in a sentence");
  return 0;
}
