#include "app/ip_kameras.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "basis/liste.h"
#include "basis/melder.h"
#include "basis/text.h"
#include "basis/zahl.h"
#include "form/oberflaeche.h"
#include "link/adresse.h"
#include "store/katalog.h"
#include "store/sitzung.h"

namespace zav {

namespace {

// Position among the fields of a camera.
enum Kamera_feld : std::size_t {
  titel,
  untertitel,
  ip,
  port,
  controlport,
  stream_von,
  modell,
  res8,
  aktiv,
  usecase,
  taste1,
  taste2,
  tastentext1,
  tastentext2
};

using K = IP_Kameras;
struct Text {
  Textfeld K::*element;
  Kamera_feld feld;
};
constexpr std::array<Text, 9> texte{{{&K::Text1, titel},
                                     {&K::Text2, untertitel},
                                     {&K::Text3, ip},
                                     {&K::Text4, port},
                                     {&K::Text5, controlport},
                                     {&K::Text6, stream_von},
                                     {&K::Text7, modell},
                                     {&K::Text8, tastentext1},
                                     {&K::Text9, tastentext2}}};

// The text of a key is "0" until somebody writes one: nothing to read, but kept.
bool Ist_vorgabe(const Text& t, std::string_view text) {
  return (t.feld == tastentext1 || t.feld == tastentext2) && text == "0";
}

// Bits of the use case in the order of Check2.
constexpr std::array<const char*, 6> moeglichkeiten{"Video In", "Audio In", "Audio Out",
                                                    "Pan+Tilt", "Zoom",     "Presets"};

// What comes with a type of camera.
struct Modell {
  const char* name;
  const char* text;
  const char* controlport;
  const char* stream_von;
  unsigned usecase;
};
constexpr std::array<Modell, 4> modelle{{{"-", "", "", "", 0},
                                         {"Axis", "axis.m1054.w", "80", "50000", 0b000111},
                                         {"Mobotix", "mobotix.t24", "80", "51000", 0b000111},
                                         {"Panasonic", "panasonic.bb.hcm5xx", "80", "52000", 0b111111}}};

constexpr int groesster_port = 65535;
constexpr int stream_ports = 6;

// True where a text would be taken for the end of a field: "@", two digits, "#".
bool Enthaelt_markierung(std::string_view text) {
  const auto ziffer = [](char c) { return c >= '0' && c <= '9'; };
  for (std::size_t i = 0; i + 3 < text.size(); ++i) {
    if (text[i] == '@' && ziffer(text[i + 1]) && ziffer(text[i + 2]) && text[i + 3] == '#') return true;
  }
  return false;
}

std::string Taste_in_worten(int ereignis, const str& wo) {
  return "I" + std::to_string(ereignis / 4) + "-" + std::to_string(ereignis % 4 + 1) +
         (wo.empty() ? "" : ": " + wo);
}

}  // namespace

IP_Kameras::IP_Kameras() : Formular("IP_Kameras", "IP-Kameras") {
  Verdrahten();
  Laden();
}

void IP_Kameras::Verdrahten() {
  anmelden("TabStrip1", TabStrip1);
  anmelden("Check1", Check1);
  anmelden("Combo1", Combo1);
  anmelden("Text1", Text1);
  anmelden("Text2", Text2);
  anmelden("Text3", Text3);
  anmelden("Text4", Text4);
  anmelden("Command5", Command5);
  anmelden("Label1", Label1);
  anmelden("Text5", Text5);
  anmelden("Text6", Text6);
  anmelden("Text7", Text7);
  anmelden("Frame1", Frame1);
  anmelden("Check2", Check2);
  anmelden("Frame2", Frame2);
  anmelden("Combo2", Combo2);
  anmelden("Text8", Text8);
  anmelden("Combo3", Combo3);
  anmelden("Text9", Text9);
  anmelden("Command3", Command3);
  anmelden("Command1", Command1);
  anmelden("Command2", Command2);

  for (std::size_t i = 0; i < Check2.size(); ++i) Check2[i].titel = moeglichkeiten[i];
  Text6.hinweis = "Erster von 6 Ports";
  TabStrip1.wenn_geaendert = [this] {
    Seite_lesen();
    kamera_ = TabStrip1.position();
    Kamera_zeigen();
  };
  Combo1.wenn_geaendert = [this] { Modell_setzen(); };
  Command5.wenn_gedrueckt = [this] { Pruefen(); };
  Command3.wenn_gedrueckt = [this] { Loeschen(); };
  Command1.wenn_gedrueckt = [this] { Uebernehmen(); };
  Command2.wenn_gedrueckt = [this] { schliessen(); };
  Command1.standard = true;
  Command2.abbruch = true;
}

// All keys with a text, and whatever else a camera names. Event 0 cannot be named: 0 is no key.
void IP_Kameras::Tasten_sammeln() {
  std::vector<std::string> namen{"-"};
  tasten_ = {0};
  std::unordered_set<int> da{0};
  const auto aufnehmen = [&](int ereignis, const std::string& wo) {
    if (!da.insert(ereignis).second) return;
    tasten_.push_back(ereignis);
    namen.push_back(Taste_in_worten(ereignis, wo));
  };
  for (int d = 0; d < apparate; ++d) {
    const auto lauf = Apparat_adressen(projekt, d);
    for (int n = 0; lauf && n < lauf->ereignisse(); ++n) {
      const int slot = Apparat_textslot(projekt, d, n);
      if (slot < 0 || projekt.Dev_text[slot].empty()) continue;
      aufnehmen(lauf->erstes_ereignis() + n,
                projekt.Komb_text2[d / plaetze] + " - " + projekt.Dev_text[slot]);
    }
  }
  for (const Kamera& k : kameras_) {
    for (const auto feld : {taste1, taste2}) {
      aufnehmen(Zahl_lesen(k.felder[feld], 1, eingangsereignisse - 1).value_or(0), "");
    }
  }
  Combo2.fuellen(namen);
  Combo3.fuellen(std::move(namen));
}

void IP_Kameras::Laden() {
  const Beschaeftigt still(*this);
  for (int i = 0; i < kameras; ++i) {
    Kamera& k = kameras_.at(static_cast<std::size_t>(i));
    for (std::size_t f = 0; f < kamerafelder.size(); ++f) k.felder[f] = (projekt.*kamerafelder[f])[i];
    k.zeile = projekt.Kamera_text[i];
  }
  Tasten_sammeln();
  Combo1.fuellen(Texte(modelle, &Modell::name));
  TabStrip1.fuellen(Texte(kameras, [](int i) { return "Kamera " + std::to_string(i + 1); }));
  TabStrip1.setzen(0);
  Kamera_zeigen();
}

void IP_Kameras::Kamera_zeigen() {
  const Beschaeftigt still(*this);
  const auto& f = kamera().felder;
  for (const Text& t : texte) (this->*t.element).setzen(Ist_vorgabe(t, f[t.feld]) ? str() : f[t.feld]);
  Check1.setzen(f[aktiv] == "1");
  const auto bits = static_cast<unsigned>(Zahl_lesen(f[usecase]).value_or(0));
  for (std::size_t i = 0; i < Check2.size(); ++i) Check2[i].setzen((bits >> i & 1U) != 0);
  const auto typ = std::ranges::find(modelle, std::string_view(f[modell]), &Modell::text);
  Einstellen(Combo1, typ == modelle.end() ? -1 : static_cast<int>(typ - modelle.begin()));
  for (auto& [liste, feld] : {std::pair{&Combo2, taste1}, {&Combo3, taste2}}) {
    const auto stelle = std::ranges::find(tasten_, Zahl_lesen(f[feld]).value_or(0));
    Einstellen(*liste, static_cast<int>(stelle - tasten_.begin()));
  }
  Label1.titel = std::string();
}

void IP_Kameras::Seite_lesen() {
  auto& f = kamera().felder;
  for (const Text& t : texte) {
    const std::string& text = (this->*t.element).text();
    if (!text.empty() || !Ist_vorgabe(t, f[t.feld])) f[t.feld] = text;
  }
  // A camera without any setting stays one that is not defined.
  const auto zahl = [](str& ziel, unsigned wert) {
    if (wert != 0 || !ziel.empty()) ziel = std::to_string(wert);
  };
  zahl(f[aktiv], Check1.an() ? 1 : 0);
  unsigned bits = static_cast<unsigned>(Zahl_lesen(f[usecase]).value_or(0)) & ~0b111111U;
  for (std::size_t i = 0; i < Check2.size(); ++i) bits |= Check2[i].an() ? 1U << i : 0U;
  zahl(f[usecase], bits);
  for (auto& [liste, feld] : {std::pair{&Combo2, taste1}, {&Combo3, taste2}}) {
    if (liste->position() >= 0)
      zahl(f[feld], static_cast<unsigned>(tasten_.at(static_cast<std::size_t>(liste->position()))));
  }
}

void IP_Kameras::Modell_setzen() {
  const Modell& m = modelle.at(static_cast<std::size_t>(std::max(0, Combo1.position())));
  Text7.setzen(m.text);
  Text5.setzen(m.controlport);
  Text6.setzen(m.stream_von);
  for (std::size_t i = 0; i < Check2.size(); ++i) Check2[i].setzen((m.usecase >> i & 1U) != 0);
}

void IP_Kameras::Pruefen() {
  Label1.titel = std::string();
  std::string adresse = Text3.text();
  const Wartezeiger zeiger;
  const std::string ergebnis = Adresse_pruefen(adresse, Text4.text());
  if (ergebnis == Adresse_err_ip) {
    Label1.titel = "Die IP-Adresse ist nicht in Ordnung";
    fokussieren(Text3);
  } else if (ergebnis == Adresse_err_port) {
    Label1.titel = "Der Port ist nicht in Ordnung";
    fokussieren(Text4);
  } else if (ergebnis == Adresse_err_div) {
    Label1.titel = "Adresse oder Port sind nicht in Ordnung";
  } else {
    Text3.setzen(ergebnis);
    Label1.titel = "Adresse und Port sind in Ordnung";
  }
}

void IP_Kameras::Loeschen() {
  if (!Fragen({.text = "Wollen Sie diese Kamera und alle Einstellungen wirklich löschen?",
               .titel = "Löschen",
               .knoepfe = Knoepfe::Ja_Nein,
               .symbol = Symbol::Warnung,
               .standard = 2})) {
    return;
  }
  kamera() = {.felder = {}, .zeile = keine_kamera};
  Kamera_zeigen();
}

bool IP_Kameras::Daten_pruefen() {
  const auto beanstanden = [this](int nummer, const Text& t, const std::string& meldung) {
    TabStrip1.setzen(nummer);
    Melden(meldung, "Info", Symbol::Information);
    fokussieren(this->*t.element);
    return false;
  };
  for (int i = 0; i < kameras; ++i) {
    const auto& felder = kameras_.at(static_cast<std::size_t>(i)).felder;
    for (const Text& t : texte) {
      const str& text = felder[t.feld];
      if (Enthaelt_markierung(text)) {
        return beanstanden(
            i, t, "'" + text + "' enthält die Zeichenfolge einer Feldmarkierung (@, zwei Ziffern, #).");
      }
      const bool ist_port = t.feld == port || t.feld == controlport || t.feld == stream_von;
      const int hoechster = t.feld == stream_von ? groesster_port - stream_ports + 1 : groesster_port;
      if (ist_port && !text.empty() && !Zahl_lesen(text, 0, hoechster)) {
        return beanstanden(i, t, "'" + text + "' ist kein Port (0 bis " + std::to_string(hoechster) + ").");
      }
    }
  }
  return true;
}

void IP_Kameras::Uebernehmen() {
  Seite_lesen();
  if (!Daten_pruefen()) return;
  const auto vorher = projekt.Kamera_text;
  for (int i = 0; i < kameras; ++i) {
    const Kamera& k = kameras_.at(static_cast<std::size_t>(i));
    for (std::size_t f = 0; f < kamerafelder.size(); ++f) (projekt.*kamerafelder[f])[i] = k.felder[f];
    projekt.Kamera_text[i] = k.zeile;
  }
  Kamera_zusammensetzen(projekt);
  if (projekt.Kamera_text != vorher) sitzung.Projekt_geaendert = 1;
  schliessen();
}

Anordnung IP_Kameras::anordnung() {
  return Spalte(
      TabStrip1, Zeile(Check1, Combo1, Feder()),
      Raster(3, Text1, Text2, Leer(), Text3, Text4, Command5, Text5, Text6, Leer(), Text7, Label1, Leer()),
      Gruppe(Frame1, Raster(3, Alle(Check2))), Gruppe(Frame2, Raster(2, Combo2, Text8, Combo3, Text9)),
      Zeile(Command3, Feder()), Feder(), Knopfzeile(Command1, Command2));
}

}  // namespace zav
