#include "time/uhr.h"

#include <algorithm>

#include "editor/actmask_uhr.h"
#include "form/oberflaeche.h"
#include "store/funktionen.h"
#include "store/projekt.h"
#include "store/sitzung.h"
#include "time/uhr_astro.h"

namespace zav {

namespace {

constexpr std::size_t zwecklaenge = 25;
constexpr std::array<const char*, 4> spalten{"Nr.", "Bezeichnung", "Schaltzeit", "Funktionen"};

constexpr std::size_t Stelle(int r) { return static_cast<std::size_t>(r); }

}  // namespace

Uhr::Uhr() : Formular("Uhr"), text_(projekt.Uhr_text), zeit_(projekt.Uhr_zeit) {
  Verdrahten();
  const Beschaeftigt still(*this);
  Uhr_auswahl.setzen(0);
  TabStrip1.setzen(0);
  Seite_zeigen();
}

void Uhr::Verdrahten() {
  anmelden("Uhr_auswahl", Uhr_auswahl);
  anmelden("TabStrip1", TabStrip1);
  anmelden("Frame1", Frame1);
  anmelden("Label2", Label2);
  anmelden("Label1", Label1);
  anmelden("Schaltzweck_txt", Schaltzweck_txt);
  anmelden("Schaltzeit_txt", Schaltzeit_txt);
  anmelden("Zeitsetz", Zeitsetz);
  anmelden("Funktion", Funktion);
  anmelden("Frame2", Frame2);
  anmelden("Copy", Copy);
  anmelden("Cut", Cut);
  anmelden("Paste", Paste);
  anmelden("Delete", Delete);
  anmelden("Copy_day", Copy_day);
  anmelden("Paste_day", Paste_day);
  anmelden("Command1", Command1);
  anmelden("OK", OK);

  Uhr_auswahl.wenn_geaendert = [this] { Uhr_gewaehlt(); };
  TabStrip1.wenn_geaendert = [this] { Tag_gewaehlt(); };
  for (std::size_t s = 0; s < spalten.size(); ++s) Label2[s].titel = spalten[s];
  for (int r = 0; r < zeilen_je_seite; ++r) {
    const std::size_t i = Stelle(r);
    Label1[i].titel = "U" + std::to_string(r);
    Schaltzweck_txt[i].hoechstlaenge = zwecklaenge;
    Schaltzweck_txt[i].hinweis = "Bezeichung der Aufgabe, z. B. 'Weck-Szene' oder 'Aussenlicht'";
    Schaltzweck_txt[i].wenn_betreten = Schaltzweck_txt[i].wenn_geaendert = [this, r] { Zeile_waehlen(r); };
    Schaltzeit_txt[i].nur_lesen = true;
    Schaltzeit_txt[i].breite = 20;
    Schaltzeit_txt[i].hinweis = "Anzeige der Schaltzeit";
    Zeitsetz[i].bild = "uhr";
    Zeitsetz[i].hinweis = "Eingabe der Schaltzeit";
    Zeitsetz[i].wenn_gedrueckt = [this, r] { Zeit_bearbeiten(r); };
    Funktion[i].hinweis = "Eingabe der Funktionen";
    Funktion[i].wenn_gedrueckt = [this, r] { Funktion_bearbeiten(r); };
  }
  Frame2.hinweis = "Diverse Editierfunktionen";
  Copy.wenn_gedrueckt = [this] {
    Zeile_kopieren(zeile_, 0);
    Tabelle_geaendert();
  };
  Cut.wenn_gedrueckt = [this] {
    Zeile_kopieren(zeile_, 0);
    Zeile_leeren();
    Tabelle_geaendert();
    fokussieren(Schaltzweck_txt[Stelle(zeile_)]);
  };
  Paste.wenn_gedrueckt = [this] {
    Zeile_einfuegen(zeile_, 0);
    Auffrischen();
    Tabelle_geaendert();
  };
  Copy_day.wenn_gedrueckt = [this] {
    for (int r = 0; r < zeilen_je_seite; ++r) Zeile_kopieren(r, r);
    Tabelle_geaendert();
  };
  Delete.wenn_gedrueckt = [this] { Loeschen(); };
  Paste_day.wenn_gedrueckt = [this] { Tag_einfuegen(); };
  Command1.wenn_gedrueckt = [this] { Sortieren(); };
  OK.wenn_gedrueckt = [this] { Uebernehmen(); };
  OK.abbruch = true;  // there is nothing to take back
}

void Uhr::Tabelle_geaendert() {
  projekt.Uhr_tabelle_geaendert = 1;
  sitzung.Projekt_geaendert = 1;
}

// ---- the page on screen -----------------------------------------------------------------------------------

void Uhr::Seite_zeigen() {
  const Beschaeftigt still(*this);
  for (int r = 0; r < zeilen_je_seite; ++r) {
    Schaltzweck_txt[Stelle(r)].setzen(text_[ereignis(r)]);
    Schaltzeit_txt[Stelle(r)].setzen(zeit_[ereignis(r)]);
  }
  const std::string titel = "Schaltuhr " + std::to_string(uhr_ + 1);
  titel_setzen(titel);
  Frame1.titel = titel;
  for (int u = 0; u < schaltuhren; ++u) {
    Uhr_auswahl.faerben(u, u != uhr_ ? Farbe::normal : u == 0 ? Farbe::uhr1 : Farbe::uhr2);
  }
  Auffrischen();
}

void Uhr::Seite_sichern() {
  for (int r = 0; r < zeilen_je_seite; ++r) {
    text_[ereignis(r)] = Schaltzweck_txt[Stelle(r)].text();
    zeit_[ereignis(r)] = Schaltzeit_txt[Stelle(r)].text();
  }
}

void Uhr::Auffrischen() {
  for (int r = 0; r < zeilen_je_seite; ++r) {
    const std::size_t i = Stelle(r);
    const std::string zeichen = Funktionszeichen(Ereignisart::Uhr, ereignis(r));
    const Farbe farbe = r == zeile_       ? (uhr_ == 0 ? Farbe::uhr1 : Farbe::uhr2)
                        : zeichen.empty() ? Farbe::normal
                                          : Farbe::belegt;
    Funktion[i].titel = zeichen;
    for (Steuerelement* e :
         std::initializer_list<Steuerelement*>{&Schaltzweck_txt[i], &Schaltzeit_txt[i], &Label1[i]}) {
      e->farbe = farbe;
    }
  }
  for (int t = 0; t < tagesseiten; ++t) TabStrip1.faerben(t, Tag_belegt(t) ? Farbe::belegt : Farbe::normal);
}

bool Uhr::Tag_belegt(int tag) const {
  for (int r = 0; r < zeilen_je_seite; ++r) {
    const bool gezeigt = tag == tag_;
    if (!(gezeigt ? Schaltzeit_txt[Stelle(r)].text() : zeit_[Uhrereignis(uhr_, tag, r)]).empty()) return true;
  }
  return false;
}

void Uhr::Uhr_gewaehlt() {
  Seite_sichern();
  uhr_ = Uhr_auswahl.position();
  Seite_zeigen();
}

void Uhr::Tag_gewaehlt() {
  Seite_sichern();
  tag_ = TabStrip1.position();
  Seite_zeigen();
}

void Uhr::Zeile_waehlen(int r) {
  if (r == zeile_) return;
  zeile_ = r;
  Auffrischen();
}

// ---- one row ----------------------------------------------------------------------------------------------

void Uhr::Funktion_bearbeiten(int r) {
  Zeile_waehlen(r);
  Actmask_uhr maske(ereignis(r),
                    Schaltzweck_txt[Stelle(r)].text() + " - " + Schaltzeit_txt[Stelle(r)].text());
  oberflaeche().Zeigen(maske);
  Auffrischen();
}

void Uhr::Zeit_bearbeiten(int r) {
  Zeile_waehlen(r);
  Uhr_Astro astro(ereignis(r), Schaltzweck_txt[Stelle(r)].text(), Schaltzeit_txt[Stelle(r)].text());
  oberflaeche().Zeigen(astro);
  if (astro.zeit_neu) Schaltzeit_txt[Stelle(r)].setzen(*astro.zeit_neu);
  Auffrischen();
}

Schaltzeile Uhr::Zeile_holen(int r) const {
  Schaltzeile z = Schaltzeile_lesen(ereignis(r));
  z.text = Schaltzweck_txt[Stelle(r)].text();
  z.zeit = Schaltzeit_txt[Stelle(r)].text();
  return z;
}

void Uhr::Zeile_setzen(int r, const Schaltzeile& z) {
  const Beschaeftigt still(*this);
  Schaltzeile_schreiben(ereignis(r), z);
  Schaltzweck_txt[Stelle(r)].setzen(z.text);
  Schaltzeit_txt[Stelle(r)].setzen(z.zeit);
  projekt.Uhr_funktext[ereignis(r)] = 1;
}

void Uhr::Zeile_kopieren(int r, int platz) { zwischenablage_[Stelle(platz)] = Zeile_holen(r); }
void Uhr::Zeile_einfuegen(int r, int platz) { Zeile_setzen(r, zwischenablage_[Stelle(platz)]); }

void Uhr::Zeile_leeren() {
  Zeile_setzen(zeile_, Schaltzeile{});
  Auffrischen();
}

void Uhr::Loeschen() {
  if (Fragen({.text = "Alle Schalt-, Dimm- und Sperrfunktionen dieses Ereignisses werden unwiderruflich "
                      "gelöscht.\n\n"
                      "Möchten Sie das?",
              .titel = "Warnung vor dem Löschen",
              .knoepfe = Knoepfe::Ja_Nein_Abbrechen,
              .symbol = Symbol::Stopp,
              .standard = 2})) {
    Zeile_leeren();
  }
  Tabelle_geaendert();  // whatever the answer
}

// ---- the whole page ---------------------------------------------------------------------------------------

void Uhr::Tag_einfuegen() {
  if (!Fragen(
          {.text =
               "Mit 'Einfügen' werden alle bestehenden Einträge dieses Tages unwiderruflich überschrieben!",
           .titel = "Info",
           .knoepfe = Knoepfe::OK_Abbrechen,
           .symbol = Symbol::Information})) {
    return;
  }
  for (int r = 0; r < zeilen_je_seite; ++r) Zeile_einfuegen(r, r);
  Auffrischen();
  Tabelle_geaendert();
}

// Ascending by the time's text, rows without a time behind, rows of equal time in their order. Every row of
// the page counts as changed.
void Uhr::Sortieren() {
  std::vector<Schaltzeile> seite;
  seite.reserve(zeilen_je_seite);
  for (int r = 0; r < zeilen_je_seite; ++r) seite.push_back(Zeile_holen(r));
  std::ranges::stable_sort(seite, {}, [](const Schaltzeile& z) { return std::pair(z.zeit.empty(), z.zeit); });
  for (int r = 0; r < zeilen_je_seite; ++r) Zeile_setzen(r, seite[Stelle(r)]);
  Auffrischen();
  Tabelle_geaendert();
}

void Uhr::Uebernehmen() {
  Seite_sichern();
  if (!(projekt.Uhr_text == text_ && projekt.Uhr_zeit == zeit_)) sitzung.Projekt_geaendert = 1;
  projekt.Uhr_text = text_;
  projekt.Uhr_zeit = zeit_;
  for (int e = 0; e < uhrereignisse; ++e)
    projekt.Uhr_leer[e] = Funktionszeichen(Ereignisart::Uhr, e).empty() ? 0 : 1;
  Melden("Bitte wenn nötig den Schaltuhr-Sequenzer anpassen");
  schliessen();
}

Anordnung Uhr::anordnung() {
  Anordnung raster = Raster(5, Label2[0], Label2[1], Label2[2], Leer(), Label2[3],
                            Zeilenweise(Label1, Schaltzweck_txt, Schaltzeit_txt, Zeitsetz, Funktion));
  return Spalte(Uhr_auswahl, Reiter(TabStrip1),
                Zeile(Gruppe(Frame1, std::move(raster)),
                      Gruppe(Frame2, Copy, Cut, Paste, Delete, Copy_day, Paste_day, Command1, Feder())),
                Knopfzeile(OK));
}

}  // namespace zav
