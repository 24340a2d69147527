#include "editor/ereignissuche.h"

#include <algorithm>
#include <string_view>

#include "basis/datum.h"
#include "store/katalog.h"

namespace zav {

namespace {

constexpr int zeilen_je_tag = 16;
constexpr int tagesseiten = 8;  // Monday to Sunday, and every day

std::string_view Tagesseite_wort(int seite) { return seite < 7 ? Wochentag_wort(seite) : "Täglich"; }

bool Trifft(Ereignisart art, int ereignis, Ziel ziel) {
  const Ereigniszeilen z = Zeilen_von(art, ereignis);
  switch (ziel.art) {
    case Ziel::Art::Relais: return z.relais[ziel.nummer] != 0;
    case Ziel::Art::Timer: return !z.timer.empty() && z.timer[ziel.nummer] != 0;
    case Ziel::Art::Dimmer: break;
  }
  const auto parameter = Teilzeile(z.dimmer, ziel.nummer, dimmerparameter);
  return std::any_of(parameter.begin(), parameter.end(), [](i16 p) { return p != 0; });
}

// Event offset j of device d.
std::string Tastenzeile(int d, const Adresslauf& lauf, int j) {
  const int k = d / plaetze;
  const int slot = Apparat_slot(projekt, d, Slot_von_versatz(projekt.App_typ[d], j));
  std::string zeile =
      "i" + std::to_string(lauf.von) + " - " + projekt.Komb_text[k] + " - " + projekt.Komb_text2[k] + ": ";
  if (slot >= 0) zeile += projekt.Dev_text[slot];
  if (projekt.App_typ[d] == apparat_wetterstation) {
    zeile += " Wetterfunktion " + std::to_string(j / 2);
    zeile += j % 2 == 0 ? " - Prüfbedingung erfüllt" : " - Prüfbedingung nicht erfüllt";
  }
  return zeile;
}

std::string Uhrzeile(int e) {
  const int uhr = e / (tagesseiten * zeilen_je_tag);
  const int tag = e / zeilen_je_tag % tagesseiten;
  return "Uhr " + std::to_string(uhr + 1) + ", " + std::string(Tagesseite_wort(tag)) + ", Zeit " +
         std::to_string(e % zeilen_je_tag) + ": " + projekt.Uhr_text[e] + " - " + projekt.Uhr_zeit[e];
}

std::string Timerzeile(int e) {
  return "T" + std::to_string(e / 4) + "-" + std::to_string(e % 4) + ": " + projekt.Timer_text[e / 4];
}

}  // namespace

std::string Ereignisse_suchen(Ziel ziel) {
  std::string text;
  const auto anhaengen = [&text](const std::string& zeile) { text += zeile + "\r\n"; };

  for (int d = 0; d < apparate; ++d) {
    const auto lauf = Apparat_adressen(projekt, d);
    if (!lauf) continue;
    for (int j = 0; j < lauf->ereignisse(); ++j) {
      if (Trifft(Ereignisart::Eingang, lauf->erstes_ereignis() + j, ziel))
        anhaengen(Tastenzeile(d, *lauf, j));
    }
  }
  for (int e = 0; e < uhrereignisse; ++e) {
    if (Trifft(Ereignisart::Uhr, e, ziel)) anhaengen(Uhrzeile(e));
  }
  for (int e = 0; e < timerereignisse; ++e) {
    if (Trifft(Ereignisart::Timer, e, ziel)) anhaengen(Timerzeile(e));
  }
  return text;
}

}  // namespace zav
