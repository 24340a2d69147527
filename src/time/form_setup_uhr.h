// "Schaltuhr-Sequenzer": from which day on which of the two switching clocks is active, and what the master
// does at midnight and after a restart when a clock was chosen by hand.
#pragma once

#include <array>
#include <vector>

#include "form/formular.h"
#include "time/sequenzplan.h"

namespace zav {

class Form_Setup_uhr final : public Formular {
 public:
  Form_Setup_uhr();

  static constexpr std::size_t zeilen = 6;

  std::array<Schild, 5> Label1;  // heads of the columns
  std::array<Textfeld, zeilen> Text_dat;
  std::array<Auswahl, zeilen> Combo1;
  std::array<Kaestchen, zeilen> Check1;          // every year
  std::array<Kaestchen, zeilen> Check2, Check3;  // read-outs "Mo-So" and "Täglich"
  std::array<Taste, zeilen> Command1;            // delete the row
  zav::Kalender Kalender;                        // date of the row that was used last
  Taste SortButton{"&Sortieren"};
  Kaestchen Check4{"&Manuelle Schaltuhrauswahl erlauben"};
  Rahmen Frame1{"Verhalten um Mitternacht"};
  Auswahl Option1{Auswahl::Form::Optionen,
                  {"A&uf Sequenzer zurückstellen",
                   "Manuell &gewählte Schaltuhr beibehalten, bis sie manuell aufgehoben wird"}};
  Rahmen Frame2{"Verhalten bei Neustart - zum Beispiel kurzer Stromausfall während Ferienabwesenheit"};
  Auswahl Option2{Auswahl::Form::Optionen,
                  {"Au&f Sequenzer zurückstellen", "Ma&nuell gewählte Schaltuhr wieder aktivieren"}};
  Rahmen Frame3{"Bei Neustart und Uhr richten"};
  std::array<Kaestchen, 3> Check5;  // catch up relays, dimmers, timers
  Taste ok_button{"&OK"}, cancel_button{"&Abbrechen"};

  // What the rows as they stand make of a year; a row without a good date counts for nothing.
  std::vector<Sequenztag> plan(int jahr) const;
  Anordnung anordnung() override;

 private:
  struct Zeilenwerte {
    std::string datum;
    int uhr = 0;
    bool mo_so = false, taeglich = false, jedes_jahr = false;
  };

  void Verdrahten();
  void Laden();
  void Zeile_waehlen(std::size_t i);
  void Datum_ansehen(std::size_t i);
  void Zeile_loeschen(std::size_t i);
  void Sortieren();
  void Uebernehmen();
  // Complains about the first row whose date cannot be read and brings the focus there; true when all can.
  bool Daten_pruefen();
  Zeilenwerte Zeile_holen(std::size_t i) const;
  void Zeile_setzen(std::size_t i, const Zeilenwerte& z);

  std::size_t zeile_ = 0;
};

}  // namespace zav
