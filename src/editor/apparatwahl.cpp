#include "editor/apparatwahl.h"

#include <initializer_list>

#include "store/katalog.h"

namespace zav {

namespace {

struct Bereich {
  int von, bis;
};
std::vector<Bilderseite::Bild> Apparate(std::initializer_list<Bereich> bereiche) {
  std::vector<Bilderseite::Bild> bilder;
  for (const Bereich& b : bereiche) {
    for (int t = b.von; t <= b.bis; ++t) {
      const std::string tag(Apparat_art(t)->tag);
      bilder.push_back({.nummer = t, .typ = t, .hinweis = tag + " (Bild:" + std::to_string(t) + ")"});
    }
  }
  return bilder;
}

}  // namespace

Apparatwahl_Feller::Apparatwahl_Feller()
    : Bilderseite("Apparatwahl_Feller", "Feller + Diverse auswählen",
                  Apparate({{1, 51}, {65, 80}, {90, 93}})) {}
Apparatwahl_Enocean::Apparatwahl_Enocean()
    : Bilderseite("Apparatwahl_Enocean", "Enocean + Diverse auswählen", Apparate({{49, 64}, {81, 89}})) {}

}  // namespace zav
