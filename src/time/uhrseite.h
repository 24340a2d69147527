// The clock page of the main window: sets the master's clock and tells it how to change between summer and
// winter time. Fields hold what was last taken over, not the running time. Mode and change-over dates are
// settings of the program, not of the project.
#pragma once

#include <array>

#include "form/formular.h"
#include "platform/einstellungen.h"

namespace zav {

class Uhrseite final : public Formular {
 public:
  Uhrseite();

  // Field 0 is the date of the clock, 2i + 1 and 2i + 2 are the change-over dates of year i.
  static constexpr std::size_t felder = 21;

  Rahmen Frame1{"Zeit und Datum"};
  Textfeld Akt_zeit{"Zeit"};
  Taste Command2{"Zeit und Datum des PCs übernehmen"};
  Rahmen Frame2{"Datum für die automatische Zeitumstellung"};
  Auswahl Option1{Auswahl::Form::Optionen,
                  {"Keine Zeitumstellung", "Automatische Zeitumstellung", "Funkuhr"}};
  std::array<Schild, 2> Label1;  // heads of the dates
  std::array<Textfeld, felder> Dat;
  std::array<Schild, felder> Wotag;
  Kalender MonthView1;  // for the current date field
  Taste Command8{"Sommer-/Winterzeitumstellung berechnen"};
  Taste Command3{"&Senden"}, Command4{"S&chliessen"};

  Anordnung anordnung() override;

 private:
  void Verdrahten();
  void PC_zeit_uebernehmen();
  // Takes over the typed time; false after a complaint, the time to send is then the last good one.
  bool Zeit_eingegeben();
  void Datum_angeklickt(std::size_t n);
  void Datum_geaendert(std::size_t n);
  void Kalender_gewaehlt();
  void Modus_gewaehlt();
  void Umstellungen_berechnen();
  void Senden();
  // Complains about the first date field that cannot be read; an empty change-over date is one.
  bool Daten_pruefen();
  bool Datum_gut(std::size_t n);

  std::string Akt_zeit_text_;  // time to send
  bool zeit_getippt_ = false;  // the field holds something that has not been looked at
  int Akt_wochentag_ = 0;      // 0 Monday to 6 Sunday
  std::size_t feld_ = 0;       // current date field
};

}  // namespace zav
