#include "store/projekt.h"

#include <array>
#include <memory>
#include <utility>

#include "basis/zahl.h"
#include "platform/uhrwerk.h"
#include "store/sitzung.h"

namespace zav {

Projekt projekt;
Sitzung sitzung;

const char* App_vorgabe(std::size_t feld) {
  static constexpr std::array<const char*, app_felder> vorgaben{
      "0", "0", "0", "0", "0", "0", "0", "", "0", "0", "", "640", "0", "", "", "", "", "", "", "", "", ""};
  return vorgaben.at(feld);
}

void Projekt_reset() {
  Projekt neu;
  neu.Projekt_name = std::move(projekt.Projekt_name);
  neu.Datei_version = std::move(projekt.Datei_version);
  projekt = std::move(neu);

  const Sitzung frisch;
  sitzung.Master_version = frisch.Master_version;
  sitzung.Master_neu_pruefen = frisch.Master_neu_pruefen;
  sitzung.Foto_nr = frisch.Foto_nr;
  sitzung.Komb_aktuell = frisch.Komb_aktuell;
  sitzung.Enocean_aktuell = frisch.Enocean_aktuell;

  Kennung_neu();
}

void App_reset(int i) {
  for (std::size_t f = 0; f < app_felder; ++f) projekt.App_eigenschaften(i, f) = App_vorgabe(f);
}

void Kennung_neu() {
  projekt.Projekt_kennung.clear();
  for (int teil = 0; teil < 4; ++teil) {
    const std::string ziffern = Hex_text(Runden(Zufall_neu_gesaet() * 30000.0));
    projekt.Projekt_kennung += std::string(4 - ziffern.size(), '0') + ziffern;
  }
}

}  // namespace zav
