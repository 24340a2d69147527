#include "app/app_eigenschaften_seite.h"

#include <algorithm>
#include <utility>

#include "app/eigenschaften.h"
#include "basis/zahl.h"
#include "store/funktionen.h"
#include "store/katalog.h"
#include "store/sitzung.h"

namespace zav {

namespace {

using S = App_eigenschaften_seite;

// Controls that show one field of the record, as it stands.
struct Haken {
  Kaestchen S::*element;
  App_feld feld;
};
constexpr std::array<Haken, 5> haken{{{&S::Check5, App_eigener_text},
                                      {&S::Check6, App_mit_icon},
                                      {&S::Check7, App_mit_rueckmeldung},
                                      {&S::Check8, App_mit_bestaetigung},
                                      {&S::Check9, App_als_szene}}};
struct Wahl {
  Auswahl S::*element;
  App_feld feld;
};
constexpr std::array<Wahl, 4> wahlen{{{&S::Combo2, App_geraet},
                                      {&S::Combo3, App_bereich},
                                      {&S::Combo4, App_rueckmeldung},
                                      {&S::Option1, App_frage_art}}};
struct Text {
  Textfeld S::*element;
  App_feld feld;
};
constexpr std::array<Text, 7> texte{{{&S::Text12, App_tastentext},
                                     {&S::Text15, App_frage1},
                                     {&S::Text16, App_ja1},
                                     {&S::Text17, App_nein1},
                                     {&S::Text18, App_frage2},
                                     {&S::Text19, App_ja2},
                                     {&S::Text22, App_nein2}}};

// Positions of Option1.
enum Frage_art { jedesmal, wenn_aus, wenn_ein, je_nach_rueckmeldung };

constexpr int alle_tasten = 1;  // position of Option2

// The icons to choose from; one that only the record's file knows stands at their end.
void Icons_fuellen(Auswahl& liste, const str& name, const str& bild) {
  const auto icons = App_icons();
  std::vector<std::string> namen(icons.begin(), icons.end());
  auto treffer = std::ranges::find(namen, name);
  if (treffer == namen.end() && !name.empty() && name != App_vorgabe(App_icon_name)) {
    treffer = namen.insert(namen.end(), name);
  }
  const int nummer = treffer != namen.end()
                         ? static_cast<int>(treffer - namen.begin())
                         : Zahl_lesen(bild, 0, static_cast<int>(icons.size()) - 1).value_or(0);
  liste.fuellen(std::move(namen));
  liste.setzen(nummer);
}

std::string Tastenname(int d, int versatz) {
  const int slot = Apparat_textslot(projekt, d, Slot_von_versatz(projekt.App_typ[d], versatz));
  const std::string nummer = "Taste " + std::to_string(versatz + 1);
  return slot < 0 || projekt.Dev_text[slot].empty() ? nummer : nummer + ": " + projekt.Dev_text[slot];
}

}  // namespace

App_eigenschaften_seite::App_eigenschaften_seite(int d, int versatz)
    : Formular("App_eigenschaften_seite", "ZAVapp-Eigenschaften"), d_(d) {
  Verdrahten();
  Textfelder_verdrahten();
  Laden(versatz);
}

void App_eigenschaften_seite::Verdrahten() {
  anmelden("Tastenwahl", Tastenwahl);
  anmelden("Combo2", Combo2);
  anmelden("Combo3", Combo3);
  anmelden("Check5", Check5);
  anmelden("Text12", Text12);
  anmelden("Check6", Check6);
  anmelden("Check7", Check7);
  anmelden("Check8", Check8);
  anmelden("Check9", Check9);
  anmelden("Frame1", Frame1);
  anmelden("Image5", Image5);
  anmelden("Combo1", Combo1);
  anmelden("Frame2", Frame2);
  anmelden("Combo4", Combo4);
  anmelden("Frame3", Frame3);
  anmelden("Option1", Option1);
  anmelden("Label25", Label25);
  anmelden("Text15", Text15);
  anmelden("Text16", Text16);
  anmelden("Text17", Text17);
  anmelden("Label26", Label26);
  anmelden("Text18", Text18);
  anmelden("Text19", Text19);
  anmelden("Text22", Text22);
  anmelden("Frame4", Frame4);
  anmelden("Option2", Option2);
  anmelden("Label27", Label27);
  anmelden("Command1", Command1);
  anmelden("Command2", Command2);
  anmelden("OK", OK);
  anmelden("Cancel", Cancel);

  Tastenwahl.wenn_geaendert = [this] { App_seite_zeigen(); };
  Combo1.wenn_geaendert = [this] { Icon_anzeigen(); };
  Combo4.fuellen(LED_liste());
  Option2.setzen(0);
  Label27.titel =
      "Erzeugt für alle Eingänge passende Icons und Rückmeldungen. Alle früheren Eingaben werden ersetzt. "
      "Diese Funktion kann nicht rückgängig gemacht werden!";
  Command1.wenn_gedrueckt = [this] { Automatisch_fuellen(); };
  Command2.wenn_gedrueckt = [this] {
    for (std::size_t f = 0; f < app_felder; ++f) satz()[f] = App_vorgabe(f);
    App_seite_zeigen();
  };
  OK.wenn_gedrueckt = [this] { Uebernehmen(); };
  Cancel.wenn_gedrueckt = [this] { schliessen(); };
  OK.standard = true;
  Cancel.abbruch = true;
}

void App_eigenschaften_seite::Textfelder_verdrahten() {
  for (const Haken& h : haken) {
    (this->*h.element).wenn_geaendert = [this, h] {
      satz()[h.feld] = (this->*h.element).an() ? "1" : "0";
      // No record gets an icon without a name.
      if (h.feld == App_mit_icon && Check6.an()) Icon_anzeigen();
      Sichtbarkeit_setzen();
    };
  }
  for (const Wahl& w : wahlen) {
    (this->*w.element).wenn_geaendert = [this, w] {
      if ((this->*w.element).position() >= 0) satz()[w.feld] = std::to_string((this->*w.element).position());
      Sichtbarkeit_setzen();
    };
  }
  for (const Text& t : texte) {
    (this->*t.element).wenn_geaendert = [this, t] { satz()[t.feld] = (this->*t.element).text(); };
  }
}

void App_eigenschaften_seite::Laden(int versatz) {
  const Beschaeftigt still(*this);
  const Adresslauf lauf = Apparat_adressen(projekt, d_).value_or(Adresslauf{});
  erstes_ereignis_ = lauf.erstes_ereignis();
  std::vector<std::string> namen;
  for (int j = 0; j < std::max(1, lauf.ereignisse()); ++j) {
    const auto zeile = projekt.App_eigenschaften.zeile(erstes_ereignis_ + j);
    std::ranges::copy(zeile, saetze_.emplace_back().begin());
    namen.push_back(Tastenname(d_, j));
  }
  Tastenwahl.fuellen(std::move(namen));
  Tastenwahl.setzen(std::clamp(versatz, 0, Tastenwahl.anzahl() - 1));
  App_seite_zeigen();
}

void App_eigenschaften_seite::App_seite_zeigen() {
  const Beschaeftigt still(*this);
  const Satz& s = satz();
  for (const Haken& h : haken) (this->*h.element).setzen(s[h.feld] == "1");
  for (const Wahl& w : wahlen) Einstellen(this->*w.element, Zahl_lesen(s[w.feld]).value_or(-1));
  for (const Text& t : texte) (this->*t.element).setzen(s[t.feld]);
  Icons_fuellen(Combo1, s[App_icon_name], s[App_icon_bild]);
  Iconbild_zeigen();
  Sichtbarkeit_setzen();
}

void App_eigenschaften_seite::Sichtbarkeit_setzen() {
  const bool szene = Check9.an();
  const bool icon = Check6.an() && !szene;
  Text12.frei = Check5.an();
  Check6.frei = Check7.frei = Check8.frei = !szene;
  Frame1.sichtbar = Combo1.sichtbar = icon;
  Frame2.sichtbar = Combo4.sichtbar = Check7.an() && !szene;
  Frame3.sichtbar = Check8.an() && !szene;

  const int art = Option1.position();
  const bool beide = art == je_nach_rueckmeldung;
  Label25.titel = beide ? "Frage 1, wenn Rückmeldung aus ist" : "Frage 1";
  Label26.titel = beide ? "Frage 2, wenn Rückmeldung ein ist" : "Frage 2";
  Text15.frei = Text16.frei = Text17.frei = art != wenn_ein;
  Text18.frei = Text19.frei = Text22.frei = art == wenn_ein || beide;
}

// Picture and name go in step; a name of another program's keeps the picture that it had.
void App_eigenschaften_seite::Icon_anzeigen() {
  const int icon = Combo1.position();
  if (std::cmp_less(icon, App_icons().size())) satz()[App_icon_bild] = std::to_string(icon);
  satz()[App_icon_name] = Combo1.text();
  Iconbild_zeigen();
}

void App_eigenschaften_seite::Iconbild_zeigen() {
  Image5.titel = Combo1.text();
  Image5.bild = std::string(App_icon_symbol(Zahl_lesen(satz()[App_icon_bild]).value_or(0)));
}

void App_eigenschaften_seite::Automatisch_fuellen() {
  const App_automatik automatik(projekt);
  for (int j = 0; j < Tastenwahl.anzahl(); ++j) {
    if (Option2.position() == alle_tasten || j == Tastenwahl.position()) {
      automatik.fuellen(d_, j, saetze_.at(static_cast<std::size_t>(j)));
    }
  }
  App_seite_zeigen();
}

void App_eigenschaften_seite::Uebernehmen() {
  for (std::size_t j = 0; j < saetze_.size(); ++j) {
    const auto zeile = projekt.App_eigenschaften.zeile(erstes_ereignis_ + static_cast<int>(j));
    if (std::ranges::equal(zeile, saetze_[j])) continue;
    std::ranges::copy(saetze_[j], zeile.begin());
    sitzung.Projekt_geaendert = 1;
  }
  schliessen();
}

Anordnung App_eigenschaften_seite::anordnung() {
  return Spalte(
      Zeile(Tastenwahl, Combo2, Combo3), Zeile(Check5, Text12),
      Zeile(Check6, Check7, Check8, Check9, Feder()),
      Zeile(Gruppe(Frame1, Zeile(Image5, Combo1)), Gruppe(Frame2, Combo4)),
      Gruppe(Frame3, Option1, Raster(4, Label25, Text15, Text16, Text17, Label26, Text18, Text19, Text22)),
      Gruppe(Frame4, Label27, Zeile(Option2, Command1, Feder(), Command2)), Feder(), Knopfzeile(OK, Cancel));
}

}  // namespace zav
