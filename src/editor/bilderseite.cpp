#include "editor/bilderseite.h"

#include <utility>

namespace zav {

Bilderseite::Bilderseite(std::string name, std::string titel, std::vector<Bild> bilder)
    : Formular(std::move(name), std::move(titel)), bilder_(std::move(bilder)) {
  anmelden("Bilder", Bilder);
  anmelden("Cancel", Cancel);

  std::vector<std::string> nummern;
  nummern.reserve(bilder_.size());
  for (const Bild& b : bilder_) nummern.push_back(std::to_string(b.nummer));
  Bilder.fuellen(std::move(nummern));
  for (int i = 0; i < Bilder.anzahl(); ++i)
    Bilder.hinweisen(i, bilder_.at(static_cast<std::size_t>(i)).hinweis);
  Bilder.wenn_angeklickt = [this](int i) {
    gewaehlt_ = bilder_.at(static_cast<std::size_t>(i)).nummer;
    schliessen();
  };
  Cancel.abbruch = true;
  Cancel.wenn_gedrueckt = [this] { schliessen(); };
}

Anordnung Bilderseite::anordnung() { return Spalte(Besonders("bilderwahl", Bilder), Knopfzeile(Cancel)); }

}  // namespace zav
