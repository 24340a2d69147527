#include "time/uhrseite.h"

#include "basis/datum.h"
#include "basis/text.h"
#include "form/oberflaeche.h"
#include "form/zeitfeld.h"
#include "platform/uhrwerk.h"
#include "transfer/uhr_stellen.h"

namespace zav {

namespace {

constexpr const char* nur_automatisch = "Nur bei automatischer Zeitumstellung";

// What is wrong with a time typed as HH.MM.SS, "" when nothing is.
std::string Uhrzeit_fehler(std::string_view text) {
  std::string formfehler = "HH.MM.SS";
  if (Zeichen_anzahl(text) != 8 || Zeichen(text, 3) != "." || Zeichen(text, 6) != ".") return formfehler;
  return Zeitwerte_pruefen(text, formfehler);
}

}  // namespace

Uhrseite::Uhrseite() : Formular("Uhrseite", "Zeit, Datum und Zeitumstellung im ZAVmaster stellen") {
  Verdrahten();
  const Beschaeftigt still(*this);
  for (std::size_t n = 1; n < felder; ++n) {
    Dat[n].setzen(einstellungen.Sowi_datum[n - 1]);
    Datum_geaendert(n);
  }
  const i16 modus = einstellungen.Richt_modus;
  Option1.setzen(modus >= 0 && modus < Option1.anzahl() ? modus : 0);
  Modus_gewaehlt();
  PC_zeit_uebernehmen();
}

void Uhrseite::Verdrahten() {
  anmelden("Frame1", Frame1);
  anmelden("Akt_zeit", Akt_zeit);
  anmelden("Command2", Command2);
  anmelden("Frame2", Frame2);
  anmelden("Option1", Option1);
  anmelden("Label1", Label1);
  anmelden("Dat", Dat);
  anmelden("Wotag", Wotag);
  anmelden("MonthView1", MonthView1);
  anmelden("Command8", Command8);
  anmelden("Command3", Command3);
  anmelden("Command4", Command4);

  Dat[0].titel = "Datum";
  Label1[0].titel = "Auf Sommerzeit";
  Label1[1].titel = "Auf Winterzeit";
  Akt_zeit.breite = 12;
  Akt_zeit.hinweis = "HH.MM.SS oder HH.MM";
  Akt_zeit.wenn_geaendert = [this] { zeit_getippt_ = true; };
  Akt_zeit.wenn_verlassen = [this] { Zeit_eingegeben(); };
  for (std::size_t n = 0; n < felder; ++n) {
    Dat[n].hoechstlaenge = 10;
    Dat[n].hinweis = "TT.MM.JJJJ";
    Dat[n].wenn_betreten = [this, n] { Datum_angeklickt(n); };
    Dat[n].wenn_geaendert = [this, n] { Datum_geaendert(n); };
  }
  MonthView1.sichtbar = false;
  MonthView1.wenn_geaendert = [this] { Kalender_gewaehlt(); };
  Option1.wenn_geaendert = [this] { Modus_gewaehlt(); };
  Command2.wenn_gedrueckt = [this] { PC_zeit_uebernehmen(); };
  Command8.wenn_gedrueckt = [this] { Umstellungen_berechnen(); };
  Command3.wenn_gedrueckt = [this] { Senden(); };
  Command4.wenn_gedrueckt = [this] { schliessen(); };
  Command3.standard = true;
  Command4.abbruch = true;
}

// ---- time and dates ---------------------------------------------------------------------------------------

void Uhrseite::PC_zeit_uebernehmen() {
  const Beschaeftigt still(*this);
  const Datum heute = Heute();
  MonthView1.sichtbar = false;
  zeit_getippt_ = false;
  Akt_zeit_text_ = Zeit_text(Tageszeit());
  Akt_zeit.setzen(Akt_zeit_text_);
  MonthView1.setzen(heute);
  Dat[0].setzen(Datum_text(heute));
  Datum_geaendert(0);
}

bool Uhrseite::Zeit_eingegeben() {
  const Beschaeftigt still(*this);
  MonthView1.sichtbar = false;
  zeit_getippt_ = false;
  std::string text = Akt_zeit.text();
  if (text.empty()) return true;
  if (Zeichen_anzahl(text) == 5 && Zeichen(text, 3) == ".") text += ".00";
  const std::string fehler = Uhrzeit_fehler(text);
  if (fehler.empty()) {
    Akt_zeit.setzen(text);
    Akt_zeit_text_ = text;
    return true;
  }
  Akt_zeit.setzen(fehler);
  oberflaeche().Piep();
  Melden("Eingabe in Stunden, Minuten und Sekunden im Format HH.MM.SS oder HH.MM", "Info",
         Symbol::Information);
  fokussieren(Akt_zeit);
  Akt_zeit.setzen("00.00.00");
  return false;
}

void Uhrseite::Datum_angeklickt(std::size_t n) {
  const Beschaeftigt still(*this);
  feld_ = n;
  MonthView1.sichtbar = true;
  if (const auto d = Datum_lesen(Dat[n].text())) MonthView1.setzen(*d);
}

void Uhrseite::Datum_geaendert(std::size_t n) {
  const auto d = Datum_lesen(Dat[n].text());
  const int wochentag = d ? Wochentag(*d) : -1;
  Wotag[n].titel = d ? std::string(Wochentag_wort(wochentag)) : std::string{};
  Dat[n].farbe = Datum_gut(n) ? Farbe::normal : Farbe::belegt;
  if (n > 0) {
    einstellungen.Sowi_datum[n - 1] = Dat[n].text();
  } else if (d) {
    Akt_wochentag_ = wochentag;
  }
}

void Uhrseite::Kalender_gewaehlt() {
  const Datum d = MonthView1.datum();
  Dat[feld_].setzen(Datum_text(d));
  // The weekday that goes to the master follows the calendar whatever the field: masters have always been set
  // so.
  Akt_wochentag_ = Wochentag(d);
  MonthView1.sichtbar = false;
}

bool Uhrseite::Datum_gut(std::size_t n) {
  return Datum_lesen(Dat[n].text()).has_value() || (n > 0 && Dat[n].text().empty());
}

bool Uhrseite::Daten_pruefen() {
  for (std::size_t n = 0; n < felder; ++n) {
    if (Datum_gut(n)) continue;
    Melden("'" + Dat[n].text() + "' ist kein Datum. Bitte das Datum im Format TT.MM.JJJJ eingeben.", "Info",
           Symbol::Information);
    if (Dat[n].frei) fokussieren(Dat[n]);
    return false;
  }
  return true;
}

// ---- change-over and sending ------------------------------------------------------------------------------

void Uhrseite::Modus_gewaehlt() {
  einstellungen.Richt_modus = static_cast<i16>(Option1.position());
  const bool nach_daten = einstellungen.Richt_modus == 1;
  for (Schild& l : Label1) l.frei = nach_daten;
  for (std::size_t n = 1; n < felder; ++n) {
    Dat[n].sperren(!nach_daten, nur_automatisch);
    Wotag[n].frei = nach_daten;
  }
  Command8.sperren(!nach_daten, nur_automatisch);
  if (!nach_daten && feld_ > 0) MonthView1.sichtbar = false;
}

void Uhrseite::Umstellungen_berechnen() {
  MonthView1.sichtbar = false;
  if (!Fragen({.text = "Für die nächsten 10 Jahre die Daten für die Zeitumstellung berechnen?",
               .titel = "Sommer-/Winterzeit",
               .knoepfe = Knoepfe::Ja_Nein_Abbrechen,
               .symbol = Symbol::Frage,
               .standard = 3})) {
    return;
  }
  const auto heute = Datum_lesen(Dat[0].text());
  if (!heute) {
    Daten_pruefen();
    return;
  }
  const Feld<str, 20> daten = Sowi_daten_berechnen(heute->jahr);
  for (std::size_t n = 1; n < felder; ++n) Dat[n].setzen(daten[n - 1]);
}

void Uhrseite::Senden() {
  if (zeit_getippt_ && !Zeit_eingegeben()) return;  // Enter sends without leaving the field
  if (!Daten_pruefen()) return;
  Uhr_stellen({.Akt_zeit_text = Akt_zeit_text_,
               .Akt_datum_text = Dat[0].text(),
               .Akt_wochentag = static_cast<i16>(Akt_wochentag_),
               .Richt_modus = einstellungen.Richt_modus,
               .Sowi_datum = einstellungen.Sowi_datum});
}

Anordnung Uhrseite::anordnung() {
  Anordnung daten = Raster(4, Label1[0], Leer(), Label1[1], Leer());
  for (std::size_t n = 1; n < felder; ++n) {
    daten.kinder.emplace_back(Dat[n]);
    daten.kinder.emplace_back(Wotag[n]);
  }
  return Spalte(Zeile(Gruppe(Frame1, Raster(2, Akt_zeit, Leer(), Dat[0], Wotag[0]), Zeile(Command2, Feder()),
                             MonthView1),
                      Gruppe(Frame2, Option1, std::move(daten), Zeile(Command8, Feder()))),
                Knopfzeile(Command3, Command4));
}

}  // namespace zav
