#include "editor/actmask_init.h"

#include <algorithm>
#include <span>
#include <utility>

#include "editor/ausgangsfelder.h"
#include "store/sitzung.h"

namespace zav {

namespace {

std::string Helligkeit_bei_neustart(int wert) {
  if (wert == 0) return "Zustand wie vorher";
  return wert == helligkeit_aus ? "Aus" : std::to_string(wert);
}

}  // namespace

Actmask_init::Actmask_init() : Formular("Actmask_init", "Aktionen beim Einschalten") {
  anmelden("TabStrip1", TabStrip1);
  Relais_einrichten();
  Dimmer_einrichten();
  anmelden("Command5", Command5);
  anmelden("Command6", Command6);
  Command5.standard = true;
  Command5.wenn_gedrueckt = [this] { Uebernehmen(); };
  Command6.abbruch = true;
  Command6.wenn_gedrueckt = [this] { schliessen(); };

  TabStrip1.setzen(0);
  Baugruppe.setzen(0);
  Dimmbaugruppe.setzen(0);
  Faerben();
}

void Actmask_init::Relais_einrichten() {
  anmelden("Baugruppe", Baugruppe);
  anmelden("Frame1", Frame1);
  anmelden("Lnr1", Lnr1);
  anmelden("Text1", Text1);
  anmelden("Combo1", Combo1);
  anmelden("Alle_8", Alle_8);
  anmelden("Alle_512", Alle_512);

  Gruppenleiste_einrichten(Baugruppe, Ziel::Art::Relais);
  Baugruppe.wenn_geaendert = [this] { Baugruppe_zeigen(); };
  for (int i = 0; i < relais_je_gruppe; ++i) {
    Ausgangstext_einrichten(Text1[i]);
    Text1[i].wenn_geaendert = [this, i] { relais_text_[Relais(i)] = Text1[i].text(); };
    Combo1[i].fuellen({"Ausschalten", "Einschalten", "Zustand wie vorher"});
    Combo1[i].hinweis = "Zustand dieses Ausgangs bei einem Neustart von ZAVnet bestimmen";
    Combo1[i].wenn_geaendert = [this, i] {
      relais_[Relais(i)] = static_cast<i16>(Combo1[i].position());
      Faerben();
    };
  }
  constexpr std::array titel_8{"A&usschalten", "&Einschalten", "&Zustand wie vorher"};
  constexpr std::array titel_512{"Au&sschalten", "E&inschalten", "Zustand wie &vorher"};
  for (int zustand = 0; zustand < 3; ++zustand) {
    const auto code = static_cast<i16>(zustand);
    Alle_8[zustand].titel = titel_8[zustand];
    Alle_8[zustand].wenn_gedrueckt = [this, code] { Relais_setzen(Relais(0), relais_je_gruppe, code); };
    Alle_512[zustand].titel = titel_512[zustand];
    Alle_512[zustand].wenn_gedrueckt = [this, code] { Relais_setzen(0, relaisausgaenge, code); };
  }
}

void Actmask_init::Dimmer_einrichten() {
  anmelden("Dimmbaugruppe", Dimmbaugruppe);
  anmelden("Frame2", Frame2);
  anmelden("Lnr2", Lnr2);
  anmelden("Text2", Text2);
  anmelden("Command1", Command1);
  anmelden("Slider1", Slider1);
  anmelden("Intens", Intens);

  Gruppenleiste_einrichten(Dimmbaugruppe, Ziel::Art::Dimmer);
  Dimmbaugruppe.wenn_geaendert = [this] { Dimmbaugruppe_zeigen(); };
  for (int i = 0; i < dimmer_je_gruppe; ++i) {
    Ausgangstext_einrichten(Text2[i]);
    Text2[i].wenn_geaendert = [this, i] { dimmer_text_[Dimmer(i)] = Text2[i].text(); };
    Command1[i].titel = "Aus";
    Command1[i].hinweis = "Schnelles Bearbeiten: Rückstellung auf  'Aus'";
    Command1[i].wenn_gedrueckt = [this, i] { Slider1[i].setzen(helligkeit_aus); };
    Slider1[i].hinweis = "Einstellung: Aus / Wunschhelligkeit bei Neustart";
    Slider1[i].wenn_geaendert = [this, i] { Dimmer_setzen(i); };
    Intens[i].hinweis = "Keine Eingabe möglich";
    Intens[i].nur_lesen = true;
  }
}

void Actmask_init::Baugruppe_zeigen() {
  const Beschaeftigt b(*this);
  Frame1.titel = "Baugruppe " + std::to_string(Baugruppe.position());
  for (int i = 0; i < relais_je_gruppe; ++i) {
    Lnr1[i].titel = Ziel_name({Ziel::Art::Relais, Relais(i)});
    Text1[i].setzen(relais_text_[Relais(i)]);
    Einstellen(Combo1[i], relais_[Relais(i)]);
  }
}

void Actmask_init::Relais_setzen(int von, int anzahl, i16 zustand) {
  for (int a = von; a < von + anzahl; ++a) relais_[a] = zustand;
  Baugruppe_zeigen();
  Faerben();
}

void Actmask_init::Dimmbaugruppe_zeigen() {
  const Beschaeftigt b(*this);
  Frame2.titel = "Baugruppe " + std::to_string(Dimmbaugruppe.position());
  for (int i = 0; i < dimmer_je_gruppe; ++i) {
    Lnr2[i].titel = Ziel_name({Ziel::Art::Dimmer, Dimmer(i)});
    Text2[i].setzen(dimmer_text_[Dimmer(i)]);
    Slider1[i].setzen(dimmer_[Dimmer(i)]);
    Intens[i].setzen(Helligkeit_bei_neustart(dimmer_[Dimmer(i)]));
  }
}

void Actmask_init::Dimmer_setzen(int i) {
  dimmer_[Dimmer(i)] = static_cast<i16>(Slider1[i].wert());
  Intens[i].setzen(Helligkeit_bei_neustart(Slider1[i].wert()));
  Faerben();
}

void Actmask_init::Faerben() {
  const auto faerben = [](Auswahl& leiste, std::span<const i16> werte) {
    const std::size_t breite = werte.size() / leiste.anzahl();
    for (int g = 0; g < leiste.anzahl(); ++g) {
      const auto gruppe = Teilzeile(werte, g, breite);
      const bool anders = std::any_of(gruppe.begin(), gruppe.end(), [](i16 w) { return w != 0; });
      leiste.faerben(g, anders ? Farbe::belegt : Farbe::normal);
    }
  };
  faerben(Baugruppe, relais_.alle());
  faerben(Dimmbaugruppe, dimmer_.alle());
}

void Actmask_init::Uebernehmen() {
  const auto uebernehmen = [](auto& kopie, auto& ziel) {
    if (ziel == kopie) return;
    ziel = std::move(kopie);
    sitzung.Projekt_geaendert = 1;
  };
  uebernehmen(relais_text_, projekt.Relais_text);
  uebernehmen(dimmer_text_, projekt.Dimmer_text);
  uebernehmen(relais_, projekt.Relais_neustart);
  uebernehmen(dimmer_, projekt.Dimmer_neustart);
  schliessen();
}

Anordnung Actmask_init::anordnung() {
  return Spalte(
      Reiter(TabStrip1,
             Spalte(Gruppe("ZAVswitch, ZAVmotor: Oxx", Baugruppe),
                    Zeile(Gruppe(Frame1, Storenpaare(Lnr1, Text1, Combo1)),
                          Spalte(Gruppe("Alle 8 Ausgänge", Raster(3, Alle(Alle_8))),
                                 Gruppe("Alle 512 Ausgänge", Raster(3, Alle(Alle_512))), Feder()))),
             Spalte(Gruppe("ZAVdimmer, ZAVmodul, ZAVled: Dxx", Dimmbaugruppe),
                    Gruppe(Frame2, Raster(5, Zeilenweise(Lnr2, Text2, Command1, Slider1, Intens))), Feder())),
      Knopfzeile(Command5, Command6));
}

}  // namespace zav
