#include "editor/dimmermode.h"

#include <string>
#include <utility>
#include <vector>

#include "basis/liste.h"
#include "store/funktionen.h"
#include "store/sitzung.h"

namespace zav {

Dimmermode::Dimmermode() : Formular("Dimmermode", "Grundeinstellungen Dimmer") {
  anmelden("TabStrip1", TabStrip1);
  anmelden("Frame1", Frame1);
  anmelden("Label1", Label1);
  anmelden("Label2", Label2);
  anmelden("Label3", Label3);
  anmelden("Lnr", Lnr);
  anmelden("Text1", Text1);
  anmelden("Check1", Check1);
  anmelden("Check2", Check2);
  anmelden("OK", OK);
  anmelden("Cancel", Cancel);

  TabStrip1.fuellen(Texte(dimmerausgaenge / zeilen, [](int seite) {
    const int erster = seite * zeilen;
    return Ziel_name({Ziel::Art::Dimmer, erster}) + " bis " +
           Ziel_name({Ziel::Art::Dimmer, erster + zeilen - 1});
  }));
  TabStrip1.wenn_geaendert = [this] { Seite_zeigen(); };
  Label1.hinweis = "Phasenanschnitt oder -abschnitt definieren";

  for (int z = 0; z < zeilen; ++z) {
    Lnr[z].hinweis = "Nummer des Dimmerausgangs";
    Text1[z].hinweis = "Keine Eingabe möglich";
    Text1[z].nur_lesen = true;
    Check1[z].hinweis = "Aktivieren für Glühlampen, 230 Volt Halogen, GEWICKELTE Trafos für NV-Halogen";
    Check2[z].hinweis =
        "Aktivieren für Glühlampen, 230 Volt Halogen, primär dimmbare ELEKTRONISCHE Trafos für NV-Halogen";
    // A mode stays chosen until the other one is.
    Check1[z].wenn_geaendert = [this, z] {
      if (Check1[z].an()) modus_[Dimmer(z)] = 0;
      Modus_zeigen(z);
    };
    Check2[z].wenn_geaendert = [this, z] {
      if (Check2[z].an()) modus_[Dimmer(z)] = 1;
      Modus_zeigen(z);
    };
  }
  OK.standard = true;
  OK.wenn_gedrueckt = [this] { Uebernehmen(); };
  Cancel.abbruch = true;
  Cancel.wenn_gedrueckt = [this] { schliessen(); };
  TabStrip1.setzen(0);
}

void Dimmermode::Seite_zeigen() {
  for (int z = 0; z < zeilen; ++z) {
    Lnr[z].titel = Ziel_name({Ziel::Art::Dimmer, Dimmer(z)});
    Text1[z].setzen(projekt.Dimmer_text[Dimmer(z)]);
    Modus_zeigen(z);
  }
}

void Dimmermode::Modus_zeigen(int zeile) {
  const Beschaeftigt b(*this);
  Check1[zeile].setzen(modus_[Dimmer(zeile)] == 0);
  Check2[zeile].setzen(modus_[Dimmer(zeile)] == 1);
}

void Dimmermode::Uebernehmen() {
  if (projekt.Dimmer_modus != modus_) {
    projekt.Dimmer_modus = std::move(modus_);
    sitzung.Projekt_geaendert = 1;
  }
  schliessen();
}

Anordnung Dimmermode::anordnung() {
  // One heading stands over both boxes, which stand under its two words.
  Anordnung zeilen_raster = Raster(3, Leer(), Label3, Label1);
  for (std::size_t z = 0; z < Lnr.size(); ++z) {
    zeilen_raster.kinder.insert(zeilen_raster.kinder.end(),
                                {Lnr[z], Text1[z], Zeile(Check1[z], Feder(), Check2[z])});
  }
  return Spalte(TabStrip1, Gruppe(Frame1, std::move(zeilen_raster), Label2), Knopfzeile(OK, Cancel));
}

}  // namespace zav
