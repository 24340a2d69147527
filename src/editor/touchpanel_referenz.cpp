#include "editor/touchpanel_referenz.h"

#include <array>
#include <string_view>

#include "basis/zahl.h"
#include "form/oberflaeche.h"
#include "store/funktionen.h"
#include "store/katalog.h"

namespace zav {

namespace {

constexpr const char* doppellinie = "================================";
constexpr const char* linie = "--------------------------------";
constexpr const char* strichlinie = "- - - - - - - - - - - - - - - -";
constexpr int slots = plaetze * tastenplaetze;  // of a Kombination
constexpr int slots_je_apparat = 24;            // of a device with six addresses

std::string Pfeil(int nummer) { return " ---> GR  " + Hex_text(nummer); }

// First address of the device that each key slot of a Kombination belongs to; -1 where there is none.
std::array<int, slots> Slotadressen(int k) {
  std::array<int, slots> adressen_von{};
  adressen_von.fill(-1);
  for (int d = plaetze * k; d < plaetze * (k + 1); ++d) {
    const auto lauf = Apparat_adressen(projekt, d);
    if (!lauf) continue;
    for (int n = 0; n < slots_je_apparat; ++n) {
      const int slot = Apparat_slot(projekt, d, n);
      if (slot >= 0) adressen_von[slot - slots * k] = lauf->von;
    }
  }
  return adressen_von;
}

}  // namespace

std::string Touchpanel_text() {
  std::string text;
  const auto zeile = [&text](std::string_view z) { (text += z) += "\r\n"; };

  zeile(doppellinie);
  zeile("TASTEN UND EINGAENGE");
  zeile(doppellinie);
  for (int k = 0; k < kombinationen; ++k) {
    if (projekt.Komb_text[k].empty()) continue;
    zeile(projekt.Komb_text[k] + " - " + projekt.Komb_text2[k]);
    const auto adressen_von = Slotadressen(k);
    for (int s = 0; s < slots; ++s) {
      const str& name = projekt.Dev_text[slots * k + s];
      if (name.empty()) continue;
      zeile("   " + name + (adressen_von[s] >= 0 ? Pfeil(adressen_von[s]) : ""));
    }
    zeile(strichlinie);
  }

  const auto rueckmeldungen = [&](const char* titel, int von, int bis, int je_gruppe, const auto& texte) {
    zeile(titel);
    for (int a = von; a < bis; ++a) {
      if (!texte[a - von].empty()) zeile(Ausgang_bezeichnung(a) + Pfeil(a));
      if ((a - von) % je_gruppe == je_gruppe - 1) zeile(linie);
    }
  };
  rueckmeldungen("Rückmeldungen SWITCH/MOTOR", 0, relaisausgaenge, relais_je_gruppe, projekt.Relais_text);
  rueckmeldungen("Rückmeldungen DIMMER", erster_dimmer, ausgang_keiner, dimmer_je_gruppe,
                 projekt.Dimmer_text);
  return text;
}

Touchpanel_Referenz::Touchpanel_Referenz() : Formular("Touchpanel_Referenz", "Touchpanel Adressen-Referenz") {
  anmelden("Text1", Text1);
  anmelden("Command1", Command1);
  anmelden("Command2", Command2);
  Text1.mehrzeilig = true;
  Text1.nur_lesen = true;
  Text1.festbreit = true;
  Text1.breite = 64;
  Text1.zeilen = 30;
  Text1.setzen(Touchpanel_text());
  Command1.wenn_gedrueckt = [this] { oberflaeche().Zwischenablage(Text1.text()); };
  Command2.standard = true;
  Command2.abbruch = true;
  Command2.wenn_gedrueckt = [this] { schliessen(); };
}

Anordnung Touchpanel_Referenz::anordnung() { return Spalte(Text1, Knopfzeile(Command1, Command2)); }

}  // namespace zav
