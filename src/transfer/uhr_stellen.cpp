#include "transfer/uhr_stellen.h"

#include "basis/datum.h"
#include "basis/melder.h"
#include "basis/text.h"
#include "link/leitung.h"
#include "link/protokoll.h"
#include "transfer/empfaenger.h"
#include "transfer/zeitbloecke.h"

namespace zav {

namespace {

constexpr i32 umstellung_anfang = 3547136;
constexpr int status_laenge = 6;

bool Austausch(std::string text) {
  leitung.Sende_text = std::move(text);
  Meldung_senden(leitung.Sende_text, leitung.Antwort_zeit, true, status_laenge);
  return leitung.Empfang_status == 0 && Antwort_ist_gut();
}

bool Alles_senden(const Uhrstellung& u) {
  Port_oeffnen();
  if (leitung.Port_fehler != 0) {
    leitung.Empfang_text = Port_zu;
    return false;
  }
  if (leitung.Link_art == Verbindung::com) Empfaenger_ruecksetzen();
  if (!Austausch("i") || !Austausch("U" + Uhrziffern(u))) return false;

  Block tabelle;
  Umstellungstabelle(u.Richt_modus, u.Sowi_datum, tabelle);
  if (tabelle.zu_breit()) Melden("Ungültige Daten", {}, Symbol::Stopp);
  str daten;
  Hex_anfuegen(tabelle.bytes(), daten);
  Fenster_setzen(umstellung_anfang, umstellung_anfang + tabelle.laenge() - 1);
  return Austausch(leitung.Sende_text) && Austausch("W" + daten);
}

}  // namespace

Feld<str, 20> Sowi_daten_berechnen(int jahr) {
  return Feld<str, 20>([jahr](std::size_t i) {
    return Datum_text(Letzter_sonntag(jahr + static_cast<int>(i) / 2, i % 2 == 0 ? 3 : 10));
  });
}

str Uhrziffern(const Uhrstellung& u) {
  const str& zeit = u.Akt_zeit_text;
  const str& tag = u.Akt_datum_text;
  const auto datum = Datum_lesen(tag);
  const std::size_t laenge = Zeichen_anzahl(tag);
  const str jahr = laenge == 8 ? Mitte(tag, 7, 2) : laenge == 10 ? Mitte(tag, 9, 2) : "00";
  return Mitte(zeit, 7, 2) + Mitte(zeit, 4, 2) + Mitte(zeit, 1, 2) +
         std::to_string(datum ? Sommerzeit(*datum) : 0) + std::to_string(u.Akt_wochentag) + Mitte(tag, 1, 2) +
         Mitte(tag, 4, 2) + jahr + "00";
}

bool Uhr_stellen(const Uhrstellung& u) {
  melder().Zeiger_setzen(Zeiger::warten);
  const bool gut = Alles_senden(u);
  Port_schliessen();
  melder().Zeiger_setzen(Zeiger::normal);
  if (!gut) {
    Uebertragungsfehler_melden(leitung.Empfang_text);
    return false;
  }
  if (Fragen({.text = "Im ZAVmaster einen Neustart durchführen (nur so werden Änderungen wirksam)?",
              .titel = "Neustart ZAVmaster?",
              .knoepfe = Knoepfe::Ja_Nein_Abbrechen,
              .symbol = Symbol::Frage})) {
    Neustart_ausfuehren();
  }
  return true;
}

}  // namespace zav
