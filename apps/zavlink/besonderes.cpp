// The painted widgets by the names under which layouts ask for them.
#include <array>

#include "zavlink/adressplanfeld.h"
#include "zavlink/apparaterahmen.h"
#include "zavlink/apparatseitenfeld.h"
#include "zavlink/bilderwahl.h"
#include "zavlink/hauptansicht.h"
#include "zavlink/jahresplan.h"
#include "zavlink/renderer.h"
#include "zavlink/tagesskala.h"

namespace zav::fenster {

Besonderer_bau Besonderer_bau_von(const std::string& name) {
  struct Eintrag {
    std::string_view name;
    Besonderer_bau bau;
  };
  static constexpr std::array tabelle{
      Eintrag{"adressplan", Adressplanfeld_bauen},     Eintrag{"bilderwahl", Bilderwahl_bauen},
      Eintrag{"apparaterahmen", Apparaterahmen_bauen}, Eintrag{"apparatseite", Apparatseitenfeld_bauen},
      Eintrag{"hauptansicht", Hauptansicht_bauen},     Eintrag{"tafel", Tafel_bauen},
      Eintrag{"Tagesskala", Tagesskala_bauen},         Eintrag{"jahresplan", Jahresplan_bauen},
  };
  for (const Eintrag& e : tabelle) {
    if (e.name == name) return e.bau;
  }
  return nullptr;
}

}  // namespace zav::fenster
