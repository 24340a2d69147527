// Weather functions and radio senders: windows that open from the page of their device.
#include <array>

#include "editor/actmask.h"
#include "enocean/enocean_definition.h"
#include "gebaeude.h"
#include "weather/wetterlogik.h"
#include "wirkungen.h"

namespace zav::beispiel {

// ---- radio ---------------------------------------------------------------------------

namespace {

// The receivers, for the first sender of each: there they are entered.
std::array<std::string, zav::empfaenger> empfaengerorte;

}  // namespace

void empfaenger(int nummer, Text ort) { beispiel::nummer(empfaengerorte, nummer) = ort; }

void funksender(Apparat a, Text id, Text schluessel, int empfaenger) {
  arbeitsplatz().dialog<Enocean_Definition>(editor(a).Command_Enocean, [&](Enocean_Definition& f) {
    tippen(f.ID_Text, id);
    tippen(f.Key_Text, schluessel);
    f.Option1.waehlen(empfaenger);
    nummer(f.Check1, empfaenger).haken(true);
    tippen(nummer(f.Text2, empfaenger), nummer(empfaengerorte, empfaenger));
  });
}

// ---- weather ---------------------------------------------------------------------------

namespace {

// Rows of the conditions.
enum { sonne_sued = 1, sonne_west = 2, tageslicht = 3, aussentemperatur = 4, wind = 6, niederschlag = 8 };

constexpr const char* kleiner = "kleiner als";
constexpr const char* groesser = "grösser als";

int naechste_wetterfunktion = 0;

void warten(Textfeld& feld, Text zeit) {
  if (!zeit.empty()) feld.ausfuellen(zeit);
}

}  // namespace

Bedingung wind_ueber(int wert) { return {wind, groesser, wert}; }
Bedingung sonne_sued_ueber(int wert) { return {sonne_sued, groesser, wert}; }
Bedingung sonne_west_ueber(int wert) { return {sonne_west, groesser, wert}; }
Bedingung licht_unter(int wert) { return {tageslicht, kleiner, wert}; }
Bedingung aussen_unter(int wert) { return {aussentemperatur, kleiner, wert}; }
Bedingung aussen_ueber(int wert) { return {aussentemperatur, groesser, wert}; }
Bedingung regen() { return {niederschlag, "ja", std::nullopt}; }

void wetterfunktion(Apparat station, const Wetterfunktion& f) {
  arbeitsplatz().dialog<Wetterlogik>(editor(station).Command_Wetter, [&](Wetterlogik& w) {
    w.TabStrip1.waehlen(naechste_wetterfunktion++);
    tippen(w.Text3, f.name);

    w.Command2.druecken();
    for (const Bedingung& b : f.bedingungen) {
      nummer(w.Combo1, b.zeile).waehlen(b.vergleich);
      if (b.schwelle) nummer(w.Slider1, b.zeile).schieben(*b.schwelle);
    }
    w.Combo1[Wetterlogik::und_oder].waehlen(f.alle_noetig ? "UND" : "ODER");
    w.Command3.druecken();

    w.Combo2.waehlen(f.freigabe.ausgang);
    warten(w.Text10, f.warten);
    warten(w.Text12, f.warten_danach);
    funktionen<Actmask>(w.Command5[0], f.erfuellt);
    funktionen<Actmask>(w.Command5[1], f.nicht_erfuellt);
  });
}

}  // namespace zav::beispiel
