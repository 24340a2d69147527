// Reading, saving and reading again: what an old generation brings into the store is what its saved file
// brings back, cell by cell; and a file of a present generation comes back byte by byte, whatever its shape.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <type_traits>

#include "basis/windows1252.h"
#include "store/felder.h"
#include "store/kamera.h"
#include "store/projektdatei.h"

using namespace zav;

namespace {

void Gleich(const Projekt& a, const Projekt& b) {
  Felder_besuchen(a, [&]<class T>(std::string_view name, const T& feld) {
    Felder_besuchen(b, [&]<class U>(std::string_view n, const U& soll) {
      if constexpr (std::is_same_v<T, U>) {
        EXPECT_TRUE(n != name || feld == soll) << name;
      }
    });
  });
}

TEST(Rundreise, OldGenerationsComeBackFromTheirSavedFile) {
  std::mt19937 zufall(11);
  for (const char* version : {"710", "700", "600", "500"}) {
    for (const bool belegt : {false, true}) {
      SCOPED_TRACE(std::string(version) + (belegt ? " in use" : " empty"));
      std::string bytes = std::string("alt\r\n") + version + "\r\n\r\n\r\n\r\nNotiz\r\n";
      for (int i = 0; i < 150000; ++i) {
        if (belegt && zufall() % 3 == 0) bytes += std::to_string(zufall() % 21);
        bytes += "\r\n";
      }
      Projekt p;
      ASSERT_TRUE(Projekt_lesen(bytes, p));
      p.Datei_version = "910";
      const std::string gespeichert = Projekt_schreiben(p);
      Projekt q;
      ASSERT_TRUE(Projekt_lesen(gespeichert, q));
      EXPECT_TRUE(Projekt_schreiben(q) == gespeichert);
      Projekt r;
      ASSERT_TRUE(Projekt_lesen(Projekt_schreiben(q), r));
      Gleich(q, r);
    }
  }
}

TEST(Rundreise, FilesOfEveryShapeComeBackByteByByte) {
  std::string alle_bytes;
  for (int b = 0; b < 256; ++b) alle_bytes += static_cast<char>(b);
  // One part of the project in use at a time.
  using Setzen = void (*)(Projekt&, const str&);
  const Setzen formen[] = {
      [](Projekt&, const str&) {},
      [](Projekt& p, const str& t) { p.Notizen = t + "\r\n" + t; },
      [](Projekt& p, const str& t) {
        p.Grp_text[255] = p.Ein_text[0] = p.Relais_text[511] = p.Dimmer_text[127] = t;
      },
      [](Projekt& p, const str&) { p.Ein_leer[0] = 1, p.Ein_dimmer(0, 127, 3) = -1; },
      [](Projekt& p, const str&) { p.Ein_leer[1023] = 1, p.Ein_timer(1023, 15) = 4; },
      [](Projekt& p, const str& t) { p.Uhr_leer[255] = 1, p.Uhr_relais(255, 511) = 20, p.Uhr_text[255] = t; },
      [](Projekt& p, const str& t) { p.Tev_leer[0] = p.Tev_leer[63] = 1, p.Timer_text[15] = t; },
      [](Projekt& p, const str& t) { p.Komb_text[0] = p.Komb_text[255] = p.App_text[16 * 255] = t; },
      [](Projekt& p, const str& t) {
        p.Kamera_titel[3] = t;
        Kamera_zusammensetzen(p);
      },
  };
  for (const char* version : {"910", "900", "800"}) {
    for (std::size_t f = 0; f < std::size(formen); ++f) {
      SCOPED_TRACE(std::string(version) + " shape " + std::to_string(f));
      Projekt p;
      p.Datei_version = version;
      formen[f](p, Aus_1252(alle_bytes));
      const std::string bytes = Projekt_schreiben(p);
      Projekt q;
      ASSERT_TRUE(Projekt_lesen(bytes, q));
      EXPECT_TRUE(Projekt_schreiben(q) == bytes);
    }
  }
}

}  // namespace
