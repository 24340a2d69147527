// The two switching clocks: eight day pages of 16 switching times each. Functions and time rules stand in the
// project as soon as they are set; texts and times are working copies until the editor closes.
#pragma once

#include <array>
#include <string>

#include "form/formular.h"
#include "time/schaltzeile.h"

namespace zav {

class Uhr final : public Formular {
 public:
  Uhr();

  static constexpr std::size_t zeilen = zeilen_je_seite;

  Auswahl Uhr_auswahl{Auswahl::Form::Optionen, {"Schaltuhr &1", "Schaltuhr &2"}};
  Auswahl TabStrip1{
      Auswahl::Form::Reiter,
      {"Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag", "Sonntag", "Täglich"}};
  Rahmen Frame1;
  std::array<Schild, 4> Label2;  // heads of the columns
  std::array<Schild, zeilen> Label1;
  std::array<Textfeld, zeilen> Schaltzweck_txt, Schaltzeit_txt;
  std::array<Taste, zeilen> Zeitsetz, Funktion;
  Rahmen Frame2{"Zeile und Tag bearbeiten"};
  Taste Copy{"&Kopieren"}, Cut{"&Ausschneiden"}, Paste{"&Einfügen"}, Delete{"&Löschen"};
  Taste Copy_day{"&Tag kopieren"}, Paste_day{"Ta&g einfügen"};
  Taste Command1{"S&ortieren"};
  Taste OK{"&Schliessen"};

  Anordnung anordnung() override;

 private:
  void Verdrahten();
  void Uhr_gewaehlt();
  void Tag_gewaehlt();
  void Zeile_waehlen(int r);
  void Funktion_bearbeiten(int r);
  void Zeit_bearbeiten(int r);
  void Zeile_kopieren(int r, int platz);
  void Zeile_einfuegen(int r, int platz);
  void Zeile_leeren();
  void Loeschen();
  void Tag_einfuegen();
  void Sortieren();
  void Uebernehmen();

  // The page on screen: from the working tables, back into them, and its marks.
  void Seite_zeigen();
  void Seite_sichern();
  void Auffrischen();
  // The page of a day has a switching time.
  bool Tag_belegt(int tag) const;

  // Every row command raises the flag of the table of switching times.
  static void Tabelle_geaendert();

  int ereignis(int r) const { return Uhrereignis(uhr_, tag_, r); }
  // Row r as it stands, with its fields.
  Schaltzeile Zeile_holen(int r) const;
  void Zeile_setzen(int r, const Schaltzeile& z);

  Feld<str, uhrereignisse> text_, zeit_;  // working tables
  int uhr_ = 0, tag_ = 0, zeile_ = 0;
  // Rows of Copy_day; row 0 is also the clipboard of the single row.
  std::array<Schaltzeile, zeilen> zwischenablage_;
};

}  // namespace zav
