#include "time/uhr_astro.h"

#include <algorithm>
#include <array>

#include "basis/datum.h"
#include "basis/liste.h"
#include "basis/text.h"
#include "form/oberflaeche.h"
#include "form/zeitfeld.h"
#include "platform/uhrwerk.h"
#include "store/projekt.h"
#include "store/sitzung.h"
#include "time/sonneninfo.h"
#include "time/uhr_astro_rechner.h"

namespace zav {

namespace {

// What the check tests, in its order. A field is tested in the modes of its row while `an` says so.
struct Pruefung {
  enum class Grenze { keine, hoechstens, mindestens };
  std::initializer_list<int> modi;
  Textfeld Uhr_Astro::*feld;
  bool (*an)(const Uhr_Astro&);
  Grenze grenze;
  const char* wert;
};

bool Immer(const Uhr_Astro&) { return true; }
bool Mit_versatz(const Uhr_Astro& f) { return f.Option3.position() != 0; }
template <Kaestchen Uhr_Astro::*kaestchen>
bool Angehakt(const Uhr_Astro& f) {
  return (f.*kaestchen).an();
}

const std::array<Pruefung, 8>& Pruefungen() {
  using enum Pruefung::Grenze;
  using U = Uhr_Astro;
  static const std::array<Pruefung, 8> tabelle{{
      {{0, 1}, &U::Text14, Immer, keine, ""},
      {{1, 3, 5}, &U::Text18, Angehakt<&U::Check3>, hoechstens, "00.30.00"},
      {{1, 3, 5}, &U::Text19, Angehakt<&U::Check4>, hoechstens, "00.30.00"},
      {{2, 3, 4, 5}, &U::Text15, Mit_versatz, hoechstens, "02.00.00"},
      {{2, 3}, &U::Text16, Angehakt<&U::Check1>, mindestens, "01.00.00"},
      {{2, 3}, &U::Text17, Angehakt<&U::Check2>, hoechstens, "11.00.00"},
      {{4, 5}, &U::Text16, Angehakt<&U::Check1>, mindestens, "13.00.00"},
      {{4, 5}, &U::Text17, Angehakt<&U::Check2>, hoechstens, "23.00.00"},
  }};
  return tabelle;
}

bool Betrifft(const Pruefung& p, const Uhr_Astro& f) {
  return std::ranges::find(p.modi, f.Combo_Astro.position()) != p.modi.end() && p.an(f);
}

// The field would pass without a message.
bool Besteht(const Pruefung& p, const Uhr_Astro& f) {
  const std::string& text = (f.*p.feld).text();
  if (!Zeittest(text).empty()) return false;
  switch (p.grenze) {
    case Pruefung::Grenze::hoechstens: return Zeit_sekunden(text) <= Zeit_sekunden(p.wert);
    case Pruefung::Grenze::mindestens: return Zeit_sekunden(text) >= Zeit_sekunden(p.wert);
    case Pruefung::Grenze::keine: break;
  }
  return true;
}

void Ein_aus(Textfeld& feld, bool an, const char* grund) {
  feld.sperren(!an, grund);
  if (!an) feld.setzen("");
}

i16 Nummer(const Auswahl& a) { return static_cast<i16>(a.position()); }
// A stored position, 0 where the list has no such entry.
int Position(const Auswahl& a, i16 wert) { return wert > 0 && wert < a.anzahl() ? wert : 0; }

}  // namespace

Uhr_Astro::Uhr_Astro(int ereignis, const std::string& bezeichnung, const std::string& zeit)
    : Formular("Uhr_Astro", "Beeinflussung der Schaltzeit: " + bezeichnung),
      Option3(Auswahl::Form::Optionen,
              {"Kein Versatz", "Früher (bis max. -2 Stunden):", "Später (bis max. + 2 Stunden):"}),
      Option4(Auswahl::Form::Optionen,
              {"dann Funktion bei Zeitlimite ausführen", "dann Funktion nicht ausführen"}),
      Option5(Auswahl::Form::Optionen,
              {"dann Funktion bei Zeitlimite ausführen", "dann Funktion nicht ausführen"}),
      ereignis_(ereignis) {
  Text14.breite = 20;
  for (Textfeld* t : {&Text15, &Text16, &Text17, &Text18, &Text19}) t->breite = 18;  // room for a complaint
  Verdrahten();
  Laden(zeit);
}

void Uhr_Astro::Laden(const std::string& zeit) {
  const Beschaeftigt still(*this);
  Combo_Astro.fuellen(Texte(zeitmodi, [](int m) { return Modus_name(static_cast<Zeitregel>(m)); }));

  const Schaltregel r = Regel_lesen(ereignis_);
  Combo_Astro.setzen(static_cast<int>(r.modus()));
  if (Mit_sonne(modus())) {
    Text14.setzen(std::string(Modus_wort(modus())));
  } else {
    Text14.setzen(modus() == Zeit_fest_zufall ? Links(zeit, 8) : zeit);
  }
  Option3.setzen(static_cast<int>(r.versatz()));
  Option4.setzen(Position(Option4, r.f6));
  Option5.setzen(Position(Option5, r.f7));
  Check1.setzen(!r.f2.empty());
  Check2.setzen(!r.f3.empty());
  Check3.setzen(!r.f4.empty());
  Check4.setzen(!r.f5.empty());
  Text15.setzen(r.f1);
  Text16.setzen(r.f2);
  Text17.setzen(r.f3);
  Text18.setzen(r.f4);
  Text19.setzen(r.f5);
  Felder_freigeben();
  Slider1.setzen(Tag_des_jahres(Heute()));
}

void Uhr_Astro::beim_oeffnen() {
  if (!Text14.text().empty()) Vorschau();
}

// ---- rules of the fields ----------------------------------------------------------------------------------

void Uhr_Astro::Felder_freigeben() {
  const Zeitregel m = modus();
  Text14.nur_lesen = Mit_sonne(m);
  Label3.titel =
      Mit_sonne(m) ? "Bitte Eingaben unten vornehmen" : "<--- Bitte Zeit eingeben, Format HH.MM.SS";
  Frame3.titel = Bei_aufgang(m) ? "Schaltzeit bei Sonnenaufgang" : "Schaltzeit bei Sonnenuntergang";
  Frame3.sichtbar = Mit_sonne(m);
  Frame6.sichtbar = Mit_zufall(m);
  Frame8.sichtbar = Mit_sonne(m);
  for (Steuerelement* e : std::initializer_list<Steuerelement*>{&Slider1, &Command2, &Command3, &Command6}) {
    e->frei = Mit_sonne(m);
  }

  constexpr const char* ankreuzen = "Zuerst das Kästchen davor ankreuzen";
  Ein_aus(Text15, !ohne_versatz(), "Zuerst 'Früher' oder 'Später' wählen");
  Ein_aus(Text16, Check1.an(), ankreuzen);
  Ein_aus(Text17, Check2.an(), ankreuzen);
  Ein_aus(Text18, Check3.an(), ankreuzen);
  Ein_aus(Text19, Check4.an(), ankreuzen);
  Option4.sperren(!Check1.an(), ankreuzen);
  Option5.sperren(!Check2.an(), ankreuzen);
}

void Uhr_Astro::Modus_gewaehlt() {
  {
    const Beschaeftigt still(*this);
    const Zeitregel m = modus();
    if (!Text14.nur_lesen) feste_zeit_ = Text14.text();
    if (!Mit_sonne(m)) {
      Text14.setzen(feste_zeit_);
      Option3.setzen(0);
      Check1.setzen(false);
      Check2.setzen(false);
    } else {
      Text14.setzen(std::string(Modus_wort(m)));
    }
    if (!Mit_zufall(m)) {
      Check3.setzen(false);
      Check4.setzen(false);
    }
    Felder_freigeben();
  }
  if (!Text14.text().empty()) Vorschau();
}

void Uhr_Astro::Versatz_gewaehlt() {
  {
    const Beschaeftigt still(*this);
    if (ohne_versatz()) {
      Check1.setzen(false);
      Check2.setzen(false);
    }
    Felder_freigeben();
  }
  Vorschau();
}

void Uhr_Astro::Verdrahten() {
  Label3.titel = "";
  Combo_Astro.wenn_geaendert = [this] { Modus_gewaehlt(); };
  Option3.wenn_geaendert = [this] { Versatz_gewaehlt(); };
  for (Kaestchen* k : {&Check1, &Check2, &Check3, &Check4}) {
    k->wenn_geaendert = [this] {
      Felder_freigeben();
      Vorschau();
    };
  }
  for (Textfeld* t : {&Text14, &Text15, &Text16, &Text17, &Text18, &Text19}) {
    t->wenn_geaendert = [this] { Mitzeichnen(); };
  }
  Option4.wenn_geaendert = Option5.wenn_geaendert = Slider1.wenn_geaendert = [this] { Vorschau(); };
  Command2.wenn_gedrueckt = [this] { Slider1.setzen(Slider1.wert() - 1); };
  Command3.wenn_gedrueckt = [this] { Slider1.setzen(Slider1.wert() + 1); };
  Command6.wenn_gedrueckt = [this] { Slider1.setzen(Tag_des_jahres(Heute())); };
  Command7.wenn_gedrueckt = [this] { Vorschau(); };
  Command5.wenn_gedrueckt = [] {
    Uhr_Astro_Rechner rechner;
    oberflaeche().Zeigen(rechner);
  };
  Command1.wenn_gedrueckt = [this] { Bestaetigen(); };
  Command4.wenn_gedrueckt = [this] { schliessen(); };
  Command1.standard = true;
  Command4.abbruch = true;
  Command2.hinweis = "Ein Tag zurück";
  Command3.hinweis = "Ein Tag weiter";

  anmelden("Combo_Astro", Combo_Astro);
  anmelden("Text14", Text14);
  anmelden("Label3", Label3);
  anmelden("Frame3", Frame3);
  anmelden("Frame4", Frame4);
  anmelden("Option3", Option3);
  anmelden("Text15", Text15);
  anmelden("Frame5", Frame5);
  anmelden("Check1", Check1);
  anmelden("Text16", Text16);
  anmelden("Option4", Option4);
  anmelden("Frame7", Frame7);
  anmelden("Check2", Check2);
  anmelden("Text17", Text17);
  anmelden("Option5", Option5);
  anmelden("Frame6", Frame6);
  anmelden("Check3", Check3);
  anmelden("Text18", Text18);
  anmelden("Check4", Check4);
  anmelden("Text19", Text19);
  anmelden("Frame8", Frame8);
  anmelden("Label2", Label2);
  anmelden("Label4", Label4);
  anmelden("Label10", Label10);
  anmelden("Label11", Label11);
  anmelden("Slider1", Slider1);
  anmelden("Command2", Command2);
  anmelden("Command3", Command3);
  anmelden("Command6", Command6);
  anmelden("Command7", Command7);
  anmelden("Command5", Command5);
  anmelden("Command1", Command1);
  anmelden("Command4", Command4);
}

// ---- check, preview, OK -----------------------------------------------------------------------------------

bool Uhr_Astro::Uhr_Astro_pruefen() {
  for (const Pruefung& p : Pruefungen()) {
    if (!Betrifft(p, *this)) continue;
    Textfeld& feld = this->*p.feld;
    if (!Zeitfeld_pruefen(feld).empty()) return false;
    if (p.grenze == Pruefung::Grenze::hoechstens) Hoechstens(feld, p.wert);
    if (p.grenze == Pruefung::Grenze::mindestens) Mindestens(feld, p.wert);
  }
  return true;
}

Schaltregel Uhr_Astro::regel() const {
  return {.astro = Nummer(Combo_Astro),
          .tag = Nummer(Option3),
          .f1 = Text15.text(),
          .f2 = Text16.text(),
          .f3 = Text17.text(),
          .f4 = Text18.text(),
          .f5 = Text19.text(),
          .f6 = Nummer(Option4),
          .f7 = Nummer(Option5)};
}

Datum Uhr_Astro::tag() const { return Plus_tage({Heute().jahr, 1, 1}, Slider1.wert() - 1); }

void Uhr_Astro::Vorschau() {
  if (Uhr_Astro_pruefen()) Zeichnen();
}

void Uhr_Astro::Mitzeichnen() {
  if (std::ranges::all_of(Pruefungen(),
                          [this](const Pruefung& p) { return !Betrifft(p, *this) || Besteht(p, *this); })) {
    Zeichnen();
  }
}

void Uhr_Astro::Zeichnen() {
  bild_ = Tagesbild_von(regel(), Text14.text(), tag());
  Label2.titel = "Datum: " + Datum_mit_wochentag(tag());
  Label4.titel = std::string(Zeit_wort(tag()));
  Label10.titel = bild_->status;
  Label11.titel = bild_->worte;
  Label11.geaendert();
}

void Uhr_Astro::Bestaetigen() {
  if (!Uhr_Astro_pruefen()) return;
  Regel_schreiben(ereignis_, regel());
  projekt.Uhr_tabelle_geaendert = 1;
  sitzung.Projekt_geaendert = 1;
  zeit_neu = Text14.text();
  if (modus() == Zeit_fest_zufall) *zeit_neu += zufall_anhang;
  schliessen();
}

}  // namespace zav
