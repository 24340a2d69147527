#include "editor/auswahl_taster.h"

#include <utility>
#include <vector>

#include "editor/import.h"
#include "store/katalog.h"

namespace zav {

namespace {

// Values of Grp_typ.
constexpr std::array taster{0,  1,  2,  3,  4,  5,  6,  8,  9,  10, 11, 12, 13, 14, 15,
                            16, 17, 18, 19, 20, 21, 22, 23, 24, 26, 31, 32, 33, 34};
constexpr std::array taster_ab_2005{35, 36, 37, 38, 39, 40, 41, 43, 44, 45, 46, 47, 48, 49};

}  // namespace

Tasterwahl::Tasterwahl(std::string name, std::string titel, std::span<const int> bildtypen)
    : Formular(std::move(name), std::move(titel)) {
  anmelden("Bilder", Bilder);
  anmelden("Cancel", Cancel);

  std::vector<std::string> nummern;
  nummern.reserve(bildtypen.size());
  for (const int b : bildtypen) nummern.push_back(std::to_string(b));
  Bilder.fuellen(std::move(nummern));
  for (int i = 0; i < Bilder.anzahl(); ++i) {
    const Apparatart& art = *Apparat_art(Importart_von(bildtypen[static_cast<std::size_t>(i)])->typ);
    Bilder.hinweisen(i, std::string(art.titel));
  }
  Bilder.wenn_angeklickt = [this, bildtypen](int i) {
    gewaehlt_ = bildtypen[static_cast<std::size_t>(i)];
    schliessen();
  };
  Cancel.abbruch = true;
  Cancel.wenn_gedrueckt = [this] { schliessen(); };
}

Anordnung Tasterwahl::anordnung() { return Spalte(Besonders("tasterbilder", Bilder), Knopfzeile(Cancel)); }

Auswahl_Taster::Auswahl_Taster() : Tasterwahl("Auswahl_Taster", "Taster oder Beo4 wählen", taster) {}
Auswahl_Taster_2::Auswahl_Taster_2()
    : Tasterwahl("Auswahl_Taster_2", "Taster Feller Edizio Due ab März 2005", taster_ab_2005) {}

}  // namespace zav
