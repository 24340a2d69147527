#include "editor/layoutwahl.h"

#include <string>

#include "basis/melder.h"
#include "store/projekt.h"
#include "store/sitzung.h"

namespace zav {

Layoutwahl::Layoutwahl(int k)
    : Formular("Layoutwahl", projekt.Komb_typ[k] == 0 ? "Neue Kombination" : "Kombination ändern"), k_(k) {
  anmelden("Text_Standort", Text_Standort);
  anmelden("Text_Bezeichnung", Text_Bezeichnung);
  anmelden("Image6", Image6);
  anmelden("Command1", Command1);
  anmelden("Cancel", Cancel);

  Text_Standort.hinweis =
      "Standort der Kombination, der Fernbedienung, des Wettersensors: z. B. Erdgeschoss, Keller, Garten, "
      "Dach (für "
      "Wettersensor)";
  Text_Bezeichnung.hinweis =
      "Nähere Bezeichnung: z.B. Küche bei Tür, Korridor bei Schlafen, IR-Sender Wohnen, Wettersensor, "
      "ZAVin-0800 usw.";
  for (int l = 0; l < static_cast<int>(Image6.size()); ++l) {
    Taste& bild = Image6.at(static_cast<std::size_t>(l));
    bild.titel = std::string(Layout_von(l)->name);
    bild.bild = "layout-" + std::to_string(l);
    bild.wenn_gedrueckt = [this, l] { Layout_waehlen(l); };
  }
  Command1.standard = true;
  Command1.wenn_gedrueckt = [this] { Uebernehmen(); };
  Cancel.abbruch = true;
  Cancel.wenn_gedrueckt = [this] { schliessen(); };

  Text_Standort.setzen(projekt.Komb_text[k]);
  Text_Bezeichnung.setzen(projekt.Komb_text2[k]);
  Layout_waehlen(Layout_von(projekt.Komb_layout[k]) != nullptr ? projekt.Komb_layout[k] : 15);
}

void Layoutwahl::Layout_waehlen(int nummer) {
  layout_ = nummer;
  for (int l = 0; l < static_cast<int>(Image6.size()); ++l) {
    Image6.at(static_cast<std::size_t>(l)).farbe = l == nummer ? Farbe::aktuell : Farbe::normal;
  }
}

void Layoutwahl::Uebernehmen() {
  if (Text_Standort.text().empty() || Text_Bezeichnung.text().empty()) {
    Melden("Eingabe erforderlich");
    return;
  }
  for (int p = 0; p < plaetze && layout_ < 15; ++p) {
    if (!Layout_von(layout_)->hat(p) && projekt.App_typ[plaetze * k_ + p] != apparat_leer) {
      Melden("Bitte zuerst Apparate löschen. Die gewünschte Kombination ist kleiner als die bestehende.");
      return;
    }
  }
  projekt.Komb_layout[k_] = static_cast<i16>(layout_);
  projekt.Komb_typ[k_] = 1;
  projekt.Komb_text[k_] = Text_Standort.text();
  projekt.Komb_text2[k_] = Text_Bezeichnung.text();
  sitzung.Projekt_geaendert = 1;
  uebernommen_ = true;
  schliessen();
}

Anordnung Layoutwahl::anordnung() {
  const auto gruppe = [this](std::string_view titel) {
    Anordnung a = Gruppe(std::string(titel));
    for (int l = 0; l < static_cast<int>(Image6.size()); ++l) {
      if (Layout_von(l)->gruppe == titel) a.kinder.emplace_back(Image6.at(static_cast<std::size_t>(l)));
    }
    return a;
  };
  return Spalte(
      Raster(1, Text_Standort, Text_Bezeichnung),
      Zeile(gruppe(Layout_von(9)->gruppe), gruppe(Layout_von(4)->gruppe), gruppe(Layout_von(1)->gruppe)),
      gruppe(Layout_von(layout_diverse)->gruppe), Knopfzeile(Command1, Cancel));
}

}  // namespace zav
