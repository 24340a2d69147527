#include "editor/apparatwahl.h"

#include <utility>

#include "store/katalog.h"

namespace zav {

namespace {

struct Bereich {
  int von, bis;
};
std::vector<int> Aufzaehlen(std::initializer_list<Bereich> bereiche) {
  std::vector<int> typen;
  for (const Bereich& b : bereiche) {
    for (int t = b.von; t <= b.bis; ++t) typen.push_back(t);
  }
  return typen;
}

}  // namespace

std::vector<int> Apparate_feller() { return Aufzaehlen({{1, 51}, {65, 80}, {90, 93}}); }
std::vector<int> Apparate_enocean() { return Aufzaehlen({{49, 64}, {81, 89}}); }

Apparatwahl::Apparatwahl(std::string titel, std::vector<int> typen)
    : Formular("Apparatwahl", std::move(titel)), typen_(std::move(typen)) {
  anmelden("Bilder", Bilder);
  anmelden("Cancel", Cancel);

  std::vector<std::string> nummern;
  nummern.reserve(typen_.size());
  for (const int t : typen_) nummern.push_back(std::to_string(t));
  Bilder.fuellen(std::move(nummern));
  for (int i = 0; i < Bilder.anzahl(); ++i) {
    const Apparatart& art = *Apparat_art(typen_.at(static_cast<std::size_t>(i)));
    Bilder.hinweisen(i, std::string(art.tag) + " (Bild:" + std::to_string(art.typ) + ")");
  }
  Bilder.wenn_angeklickt = [this](int i) {
    gewaehlt_ = typen_.at(static_cast<std::size_t>(i));
    schliessen();
  };
  Cancel.abbruch = true;
  Cancel.wenn_gedrueckt = [this] { schliessen(); };
}

Anordnung Apparatwahl::anordnung() { return Spalte(Besonders("apparatebilder", Bilder), Knopfzeile(Cancel)); }

}  // namespace zav
