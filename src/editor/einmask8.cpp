#include "editor/einmask8.h"

#include <algorithm>
#include <utility>

#include "editor/adressplan.h"
#include "editor/apparatwahl.h"
#include "store/sitzung.h"

namespace zav {

Einmask8::Einmask8(Tueren tueren)
    : Formular("Einmask8", "Eingänge - LEDs - IR - Wetter - Touchpanel"), tueren_(std::move(tueren)) {
  Elemente_anmelden();
  Handler_setzen();

  Text_Suche.hinweis =
      "Standort, Bezeichnung, Tastentext oder Adresse, z.B. i12. Enter springt zum nächsten Fund.";
  for (Textfeld* t : {&Text6, &Text7}) {
    t->nur_lesen = true;
    t->breite = 3;
  }
  Cancel.abbruch = true;
  for (auto [befehl, kuerzel] :
       {std::pair{&mnuCut, "Ctrl+X"}, {&mnuCopy, "Ctrl+C"}, {&mnuPaste, "Ctrl+V"}, {&mnuDelete, "Del"}}) {
    befehl->kuerzel = kuerzel;
  }
  for (Auswahl& liste : Combo_LED) liste.hinweis = "Tasten-LED mit einem Ausgang in dieser Liste verknüpfen";
  Command2.hinweis = "Adresse des Apparats vergeben oder ändern";

  Durch(tueren_.enocean_schatten_kopieren);
  Led_listen_fuellen();
  Baum_zeigen();
  const int k = sitzung.Komb_aktuell;
  if (k >= 0 && k < kombinationen && Kombination_belegt(k)) {
    Kombination_zeigen(k);
  } else if (Kombination_belegt(0)) {
    Kombination_zeigen(0);
  } else {
    Kombination_abwaehlen();
  }
}

void Einmask8::Elemente_anmelden() {
  anmelden("Text_Suche", Text_Suche);
  anmelden("TreeView1", TreeView1);
  anmelden("Text6", Text6);
  anmelden("Text7", Text7);
  anmelden("Command9", Command9);
  anmelden("Command_Layout", Command_Layout);
  anmelden("Command13", Command13);
  anmelden("Label1", Label1);
  anmelden("Frame1", Frame1);
  anmelden("Image3", Image3);
  anmelden("mnuChoose", mnuChoose);
  anmelden("mnuChooseEnocean", mnuChooseEnocean);
  anmelden("mnuCut", mnuCut);
  anmelden("mnuCopy", mnuCopy);
  anmelden("mnuPaste", mnuPaste);
  anmelden("mnuDelete", mnuDelete);
  anmelden("Command11", Command11);
  anmelden("Command12", Command12);
  anmelden("Command4", Command4);
  anmelden("Command3", Command3);
  anmelden("Frame2", Frame2);
  anmelden("Label_Adresse", Label_Adresse);
  anmelden("Command2", Command2);
  anmelden("Command_Wetter", Command_Wetter);
  anmelden("Command_Enocean", Command_Enocean);
  anmelden("Slider20", Slider20);
  anmelden("Label_Lux", Label_Lux);
  anmelden("Label_Zeile", Label_Zeile);
  anmelden("Label_Taste", Label_Taste);
  anmelden("TTxt", TTxt);
  anmelden("Label_LED", Label_LED);
  anmelden("Combo_LED", Combo_LED);
  anmelden("Command15", Command15);
  anmelden("mnuCommand7", mnuCommand7);
  anmelden("mnuEigenschaften", mnuEigenschaften);
  anmelden("mnuRucksuch", mnuRucksuch);
  anmelden("mnuOn", mnuOn);
  anmelden("mnuOff", mnuOff);
  anmelden("mnuShort", mnuShort);
  anmelden("mnuImport", mnuImport);
  anmelden("mnuSend", mnuSend);
  anmelden("Cancel", Cancel);
}

void Einmask8::Handler_setzen() {
  Text_Suche.wenn_geaendert = [this] { Suchen(std::max(komb_, 0)); };
  Text_Suche.wenn_eingabe = [this] { Suchen(komb_ + 1); };
  TreeView1.wenn_geaendert = [this] { Knoten_gewaehlt(); };
  Command9.wenn_gedrueckt = [this] { Neue_kombination(); };
  Command_Layout.wenn_gedrueckt = [this] { Kombination_bearbeiten(komb_); };
  Command13.wenn_gedrueckt = [this] { Kombination_loeschen(); };

  for (int p = 0; p < plaetze; ++p) {
    Taste& bild = Image3.at(static_cast<std::size_t>(p));
    bild.wenn_gedrueckt = [this, p] { Platz_waehlen(p); };
    bild.wenn_rechts_gedrueckt = [this, p] { Platz_waehlen(p); };
  }
  mnuChoose.wenn_gedrueckt = [this] { Apparat_auswaehlen(Apparatwahl_Feller()); };
  mnuChooseEnocean.wenn_gedrueckt = [this] { Apparat_auswaehlen(Apparatwahl_Enocean()); };
  for (Taste* t : {&mnuCut, &Command11}) t->wenn_gedrueckt = [this] { Ausschneiden(); };
  for (Taste* t : {&mnuCopy, &Command12}) t->wenn_gedrueckt = [this] { Kopieren(); };
  for (Taste* t : {&mnuPaste, &Command4}) t->wenn_gedrueckt = [this] { Einfuegen(); };
  for (Taste* t : {&mnuDelete, &Command3}) t->wenn_gedrueckt = [this] { Loeschen(); };

  Command2.wenn_gedrueckt = [this] { Adresse_vergeben(); };
  Command_Wetter.wenn_gedrueckt = [this] {
    if (Adresse_da()) Durch(tueren_.wetterlogik);
    Seite_zeigen();
  };
  Command_Enocean.wenn_gedrueckt = [this] { Durch(tueren_.enocean_definition, platz_); };
  Slider20.wenn_geaendert = [this] { Lux_geaendert(); };
  for (int n = 0; n < Apparatseite::tasten_max; ++n) {
    const auto i = static_cast<std::size_t>(n);
    TTxt.at(i).wenn_geaendert = [this, n] { Text_geaendert(n); };
    Command15.at(i).wenn_gedrueckt = [this, n] { Ereignis_oeffnen(n); };
    Command15.at(i).wenn_rechts_gedrueckt = [this, n] { versatz_ = n; };
  }
  for (int n = 0; n < Apparatseite::leds_max; ++n) {
    Combo_LED.at(static_cast<std::size_t>(n)).wenn_geaendert = [this, n] { Led_geaendert(n); };
  }

  mnuCommand7.wenn_gedrueckt = [this] { Ereignis_oeffnen(versatz_); };
  mnuEigenschaften.wenn_gedrueckt = [this] { App_seite_oeffnen(); };
  mnuRucksuch.wenn_gedrueckt = [this] { Rueckmeldungen_suchen(); };
  mnuOn.wenn_gedrueckt = [this] { Taste_druecken(); };
  mnuOff.wenn_gedrueckt = [this] { Taste_loesen(); };
  mnuShort.wenn_gedrueckt = [this] { Kurzimpuls(); };
  mnuImport.wenn_gedrueckt = [this] { Importbefehl(); };
  mnuSend.wenn_gedrueckt = [this] { Senden(); };
  Cancel.wenn_gedrueckt = [this] { Schliessen(); };
}

void Einmask8::Befehle_freigeben() {
  const bool da = komb_ >= 0;
  for (Taste* t :
       {&Command_Layout, &Command13, &Command11, &Command12, &Command3, &mnuCut, &mnuCopy, &mnuDelete,
        &mnuChoose, &mnuChooseEnocean, &Command2, &mnuCommand7, &mnuEigenschaften, &mnuRucksuch}) {
    t->frei = da;
  }
  for (Taste* t : {&Command4, &mnuPaste}) t->frei = da && einfuegbar_;
  for (Taste* t : {&mnuOn, &mnuShort}) t->frei = da && !gedrueckt_;
  mnuOff.frei = da || gedrueckt_;
  Frame2.sichtbar = da;
}

}  // namespace zav
