#include "editor/dialog_kombination.h"

#include <algorithm>
#include <span>
#include <utility>
#include <vector>

#include "basis/liste.h"
#include "basis/melder.h"
#include "basis/zahl.h"
#include "editor/adressplan.h"

namespace zav {

namespace {

const std::string zelle_frei = "frei";
const std::string zelle_besetzt = "besetzt";

}  // namespace

Dialog_Kombination::Dialog_Kombination(std::string aktuell, int anzahl)
    : Formular("Dialog_Kombination", "Auswahl der Adressen für die Eingänge"),
      aktuell_(std::move(aktuell)),
      anzahl_(anzahl) {
  anmelden("Zellen", Zellen);
  anmelden("Label_Frei", Label_Frei);
  anmelden("Label_Besetzt", Label_Besetzt);
  anmelden("Label_Aktuell", Label_Aktuell);
  anmelden("Cancel", Cancel);

  Label_Frei.farbe = Farbe::frei;
  Label_Besetzt.farbe = Farbe::belegt;
  Label_Aktuell.farbe = Farbe::aktuell;
  Zellen.wenn_angeklickt = [this](int n) { Zelle_gewaehlt(n); };
  Cancel.abbruch = true;
  Cancel.wenn_gedrueckt = [this] { schliessen(); };
  Zellen_zeigen();
}

void Dialog_Kombination::Zellen_zeigen() {
  const Adressplan plan;
  Zellen.fuellen(Texte(adressen, [&plan](int a) {
    if (!plan.belegt(a)) return std::to_string(a);
    const int k = plan.apparat(a) / plaetze;
    return std::to_string(a) + "   " + projekt.Komb_text2[k] + " - " + projekt.Komb_text[k];
  }));
  for (int a = 0; a < adressen; ++a) {
    Zellen.hinweisen(a, plan.belegt(a) ? zelle_besetzt : zelle_frei);
    Zellen.faerben(a, plan.belegt(a) ? Farbe::belegt : Farbe::frei);
  }
  if (const auto alt = Zahl_lesen(aktuell_, 0, adressen - 1)) {
    for (int a = *alt; a < std::min(*alt + anzahl_, adressen); ++a) Zellen.faerben(a, Farbe::aktuell);
    Zellen.setzen(*alt);
    return;
  }
  // A device without an address: the first place for it is proposed.
  for (int a = 0; a < adressen; ++a) {
    if (Passt_ab(a)) return Zellen.setzen(a);
  }
}

bool Dialog_Kombination::Passt_ab(int n) const {
  if (n + anzahl_ > adressen) return false;
  const auto lauf = std::span(Zellen.eintraege())
                        .subspan(static_cast<std::size_t>(n), static_cast<std::size_t>(std::max(anzahl_, 0)));
  return std::ranges::none_of(lauf, [](const Auswahl::Eintrag& e) { return e.hinweis == zelle_besetzt; });
}

void Dialog_Kombination::Zelle_gewaehlt(int n) {
  if (n + anzahl_ > adressen) {
    Melden("Überschreitet Adressbereich, Vorgang wird nicht ausgeführt");
    return;
  }
  if (!Passt_ab(n)) {
    Melden("Überschneidet besetzte Adressen, Vorgang wird nicht ausgeführt");
    return;
  }
  if (!aktuell_.empty() && !Wechsel_bestaetigt(n)) return;
  gewaehlt_ = n;
  schliessen();
}

bool Dialog_Kombination::Wechsel_bestaetigt(int n) const {
  const bool einzeln = anzahl_ == 1;
  const std::string neu = std::to_string(n);
  return Fragen(
      {.text = (einzeln ? "Adresse " : "Adressengruppe ab ") + aktuell_ + " wirklich auf " + neu + " ändern?",
       .titel = einzeln ? "Adresse ändern für bestehende oder eingefügte Baugruppe"
                        : "Ändern einer Adressengruppe",
       .knoepfe = Knoepfe::Ja_Nein_Abbrechen});
}

Anordnung Dialog_Kombination::anordnung() {
  return Spalte(Besonders("adressplan", Zellen), Zeile(Label_Frei, Label_Besetzt, Label_Aktuell),
                Knopfzeile(Cancel));
}

}  // namespace zav
