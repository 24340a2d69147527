#include "editor/auswahl_taster.h"

#include <array>
#include <span>

#include "editor/import.h"
#include "store/katalog.h"

namespace zav {

namespace {

// Values of Grp_typ.
constexpr std::array taster{0,  1,  2,  3,  4,  5,  6,  8,  9,  10, 11, 12, 13, 14, 15,
                            16, 17, 18, 19, 20, 21, 22, 23, 24, 26, 31, 32, 33, 34};
constexpr std::array taster_ab_2005{35, 36, 37, 38, 39, 40, 41, 43, 44, 45, 46, 47, 48, 49};

std::vector<Bilderseite::Bild> Tasterbilder(std::span<const int> bildtypen) {
  std::vector<Bilderseite::Bild> bilder;
  for (const int b : bildtypen) {
    const int typ = Importart_von(b)->typ;
    bilder.push_back({.nummer = b, .typ = typ, .hinweis = std::string(Apparat_art(typ)->titel)});
  }
  return bilder;
}

}  // namespace

Auswahl_Taster::Auswahl_Taster()
    : Bilderseite("Auswahl_Taster", "Taster oder Beo4 wählen", Tasterbilder(taster)) {}
Auswahl_Taster_2::Auswahl_Taster_2()
    : Bilderseite("Auswahl_Taster_2", "Taster Feller Edizio Due ab März 2005", Tasterbilder(taster_ab_2005)) {
}

}  // namespace zav
