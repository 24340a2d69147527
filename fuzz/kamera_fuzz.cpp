// The line of a camera: what it was cut into is built back into a line that is cut the same way.
#include "eingabe.h"
#include "store/kamera.h"

using namespace zav;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t n) {
  static Projekt p;
  Eingabe e(bytes, n);
  const auto zeile = [](const Projekt& q) { return q.Kamera_text[0]; };
  for (const auto feld :
       {&Projekt::Kamera_titel, &Projekt::Kamera_ip, &Projekt::Kamera_port, &Projekt::Kamera_tastentext2}) {
    (p.*feld)[0] = "";
  }
  p.Kamera_text[0] = e.alles();
  Kamera_zerlegen(p);
  Kamera_zusammensetzen(p);
  const str einmal = zeile(p);
  Kamera_zerlegen(p);
  Kamera_zusammensetzen(p);
  Verlangen(zeile(p) == einmal, "a line that was built is cut into the fields it was built of");
  return 0;
}
