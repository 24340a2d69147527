#include "time/form_setup_uhr.h"

#include <algorithm>
#include <vector>

#include "basis/datum.h"
#include "basis/melder.h"
#include "platform/uhrwerk.h"
#include "store/projekt.h"
#include "store/sitzung.h"

namespace zav {

namespace {

constexpr std::array<const char*, 5> spalten{"Ab Datum", "Schaltuhr wählen", "Jedes Jahr", "Mo-So",
                                             "Täglich"};

i16 Eins(bool an) { return an ? 1 : 0; }

}  // namespace

Form_Setup_uhr::Form_Setup_uhr() : Formular("Form_Setup_uhr", "Schaltuhr-Sequenzer") {
  Verdrahten();
  Laden();
}

void Form_Setup_uhr::Verdrahten() {
  anmelden("Label1", Label1);
  anmelden("Text_dat", Text_dat);
  anmelden("Combo1", Combo1);
  anmelden("Check1", Check1);
  anmelden("Check2", Check2);
  anmelden("Check3", Check3);
  anmelden("Command1", Command1);
  anmelden("Kalender", Kalender);
  anmelden("SortButton", SortButton);
  anmelden("Check4", Check4);
  anmelden("Frame1", Frame1);
  anmelden("Option1", Option1);
  anmelden("Frame2", Frame2);
  anmelden("Option2", Option2);
  anmelden("Frame3", Frame3);
  anmelden("Check5", Check5);
  anmelden("ok_button", ok_button);
  anmelden("cancel_button", cancel_button);

  for (std::size_t s = 0; s < spalten.size(); ++s) Label1[s].titel = spalten[s];
  for (std::size_t i = 0; i < zeilen; ++i) {
    Text_dat[i].hoechstlaenge = 10;
    Text_dat[i].hinweis = "TT.MM.JJJJ";
    Text_dat[i].wenn_betreten = [this, i] { Zeile_waehlen(i); };
    Text_dat[i].wenn_verlassen = [this, i] { Datum_ansehen(i); };
    Combo1[i].fuellen({"Keine", "Schaltuhr 1", "Schaltuhr 2"});
    Combo1[i].hinweis = "Festlegen, welche Schaltuhr zum angegebenen Datum aktiv wird (um Mitternacht)";
    Combo1[i].wenn_geaendert = [this, i] { Zeile_waehlen(i); };
    Check1[i].hinweis = "Eine Sequenz nur einmal oder alle Jahre wieder ausführen";
    Check2[i].frei = Check3[i].frei = false;
    Command1[i].titel = "Löschen";
    Command1[i].hinweis =
        "Eine Sequenz löschen, die Zeiten und Funktionen der Schaltuhr werden nicht verändert oder gelöscht";
    Command1[i].wenn_gedrueckt = [this, i] { Zeile_loeschen(i); };
  }
  Kalender.wenn_geaendert = [this] {
    Text_dat[zeile_].setzen(Datum_text(Kalender.datum()));
    Datum_ansehen(zeile_);
  };
  SortButton.wenn_gedrueckt = [this] { Sortieren(); };
  Check4.hinweis =
      "Wenn aktiviert, können die Schaltuhren über Vierfachtaster mit LED auch manuell ausgewählt werden";
  Check5[0].titel = "Schaltbefehle der Schaltuhr für ZAVswitch und ZAVmotor nachholen";
  Check5[1].titel = "Schaltbefehle der Schaltuhr für alle Dimmer nachholen";
  Check5[2].titel = "Schaltbefehle der Schaltuhr für alle Timer nachholen";
  ok_button.wenn_gedrueckt = [this] { Uebernehmen(); };
  cancel_button.wenn_gedrueckt = [this] { schliessen(); };
  ok_button.standard = true;
  cancel_button.abbruch = true;
}

void Form_Setup_uhr::Laden() {
  const Beschaeftigt still(*this);
  const Projekt& p = projekt;
  for (std::size_t i = 0; i < zeilen; ++i) {
    Zeile_setzen(i, {.datum = p.Seq_datum[i],
                     .uhr = p.Seq_uhr[i],
                     .mo_so = p.Seq_mo_so[i] == 1,
                     .taeglich = p.Seq_taeglich[i] == 1,
                     .jedes_jahr = p.Seq_flag[i] == 1});
  }
  Check4.setzen(p.Seq_manuell == 1);
  Option1.setzen(p.Seq_mitternacht == 1 ? 1 : 0);
  Option2.setzen(p.Seq_neustart == 1 ? 1 : 0);
  for (std::size_t i = 0; i < Check5.size(); ++i) Check5[i].setzen(p.Sowi_modus[i] != 0);
  Zeile_waehlen(0);
}

Form_Setup_uhr::Zeilenwerte Form_Setup_uhr::Zeile_holen(std::size_t i) const {
  return {Text_dat[i].text(), Combo1[i].position(), Check2[i].an(), Check3[i].an(), Check1[i].an()};
}

void Form_Setup_uhr::Zeile_setzen(std::size_t i, const Zeilenwerte& z) {
  const Beschaeftigt still(*this);
  Text_dat[i].setzen(z.datum);
  Combo1[i].setzen(z.uhr > 0 && z.uhr < Combo1[i].anzahl() ? z.uhr : 0);
  Check1[i].setzen(z.jedes_jahr);
  Check2[i].setzen(z.mo_so);
  Check3[i].setzen(z.taeglich);
  Datum_ansehen(i);
}

void Form_Setup_uhr::Zeile_waehlen(std::size_t i) {
  const Beschaeftigt still(*this);
  zeile_ = i;
  for (std::size_t n = 0; n < zeilen; ++n) Datum_ansehen(n);
  Kalender.setzen(Datum_lesen(Text_dat[i].text()).value_or(Heute()));
}

// A date that can be read takes its long form and gives its clock's colour to the list beside it; one that
// cannot is coloured and stays as it was typed.
void Form_Setup_uhr::Datum_ansehen(std::size_t i) {
  const Beschaeftigt still(*this);
  Textfeld& feld = Text_dat[i];
  const auto datum = Datum_lesen(feld.text());
  if (datum) feld.setzen(Datum_text(*datum));
  const bool gut = datum || feld.text().empty();
  feld.farbe = !gut ? Farbe::belegt : i == zeile_ ? Farbe::aktuell : Farbe::normal;
  constexpr std::array<Farbe, 3> uhrfarben{Farbe::normal, Farbe::uhr1, Farbe::uhr2};
  Combo1[i].farbe = datum ? uhrfarben.at(static_cast<std::size_t>(Combo1[i].position())) : Farbe::normal;
}

bool Form_Setup_uhr::Daten_pruefen() {
  for (std::size_t i = 0; i < zeilen; ++i) {
    Datum_ansehen(i);
    if (Text_dat[i].text().empty() || Datum_lesen(Text_dat[i].text())) continue;
    Melden("'" + Text_dat[i].text() + "' ist kein Datum. Bitte das Datum im Format TT.MM.JJJJ eingeben.",
           "Info", Symbol::Information);
    fokussieren(Text_dat[i]);
    return false;
  }
  return true;
}

void Form_Setup_uhr::Zeile_loeschen(std::size_t i) {
  if (!Fragen(
          {.text =
               "Die Schaltuhr wird aus der Sequenz gelöscht. Alle programmieren Zeiten und Funktionen bleiben"
               " aber in der Schaltuhr selber erhalten."
               "Möchten Sie die Schaltuhr aus der Sequenz löschen?",
           .titel = "Warnung vor dem Löschen",
           .knoepfe = Knoepfe::Ja_Nein,
           .symbol = Symbol::Warnung,
           .standard = 2})) {
    return;
  }
  Zeile_setzen(i, {});
  Zeile_waehlen(i);
}

void Form_Setup_uhr::Sortieren() {
  if (!Daten_pruefen()) return;
  std::vector<Zeilenwerte> werte;
  for (std::size_t i = 0; i < zeilen; ++i) werte.push_back(Zeile_holen(i));
  // An empty date has the highest day number of all.
  std::ranges::stable_sort(werte, {}, [](const Zeilenwerte& z) { return Tag_nummer(z.datum); });
  for (std::size_t i = 0; i < zeilen; ++i) Zeile_setzen(i, werte[i]);
  Zeile_waehlen(0);
}

void Form_Setup_uhr::Uebernehmen() {
  if (!Daten_pruefen()) return;
  Projekt& p = projekt;
  for (std::size_t i = 0; i < zeilen; ++i) {
    const Zeilenwerte z = Zeile_holen(i);
    p.Seq_datum[i] = z.datum;
    p.Seq_uhr[i] = static_cast<i16>(z.uhr);
    p.Seq_mo_so[i] = Eins(z.mo_so);
    p.Seq_taeglich[i] = Eins(z.taeglich);
    p.Seq_flag[i] = Eins(z.jedes_jahr);
  }
  p.Seq_manuell = Eins(Check4.an());
  p.Seq_mitternacht = static_cast<i16>(Option1.position());
  p.Seq_neustart = static_cast<i16>(Option2.position());
  for (std::size_t i = 0; i < Check5.size(); ++i) p.Sowi_modus[i] = Eins(Check5[i].an());
  p.Uhr_tabelle_geaendert = 1;
  sitzung.Projekt_geaendert = 1;
  schliessen();
}

std::vector<Sequenztag> Form_Setup_uhr::plan(int jahr) const {
  std::vector<Sequenz> sequenzen;
  for (std::size_t i = 0; i < zeilen; ++i) {
    if (const auto ab = Datum_lesen(Text_dat[i].text())) {
      sequenzen.push_back({.ab = *ab, .uhr = Combo1[i].position(), .jedes_jahr = Check1[i].an()});
    }
  }
  return Sequenzplan(sequenzen, jahr);
}

Anordnung Form_Setup_uhr::anordnung() {
  Anordnung raster =
      Raster(6, Alle(Label1), Leer(), Zeilenweise(Text_dat, Combo1, Check1, Check2, Check3, Command1));
  return Spalte(
      Zeile(Spalte(std::move(raster), Zeile(SortButton, Feder())),
            Spalte(Check4, Gruppe(Frame1, Option1), Gruppe(Frame2, Option2), Gruppe(Frame3, Alle(Check5)))),
      Besonders("jahresplan", Kalender), Knopfzeile(ok_button, cancel_button));
}

}  // namespace zav
