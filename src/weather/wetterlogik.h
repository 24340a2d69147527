// "Wettersensor": the eight weather functions. Each compares sensor values with thresholds, waits until the
// outcome is stable, and runs one of two sets of functions, which stand in the ordinary matrices of the input
// events.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "form/formular.h"
#include "store/projekt.h"
#include "weather/wetterwerte.h"

namespace zav {

// Opens the editor of an input event's functions under a title, and returns when it has closed.
using Funktionen_oeffnen = std::function<void(int ereignis, const std::string& titel)>;

// Input event of weather function 0 to 7 of the station at that address; erfuellt: the set for a condition
// that is met. One station uses 16 events in a row.
constexpr int Wetterereignis(int adresse, int funktion, bool erfuellt) {
  return 4 * adresse + 2 * funktion + (erfuellt ? 0 : 1);
}

// Opens `Wetterlogik` for the project's weather station; without one, or while it has no address that holds
// its 16 events, "Bitte Adresse definieren" appears instead.
void Wetterlogik_oeffnen(Funktionen_oeffnen funktionen);

class Wetterlogik final : public Formular {
 public:
  static constexpr std::size_t zeilen = 11;    // conditions: seven sensors, direction, rain, defect, and/or
  static constexpr std::size_t und_oder = 10;  // the last of them

  // adresse: first address of the station, 0 to 252.
  Wetterlogik(int adresse, Funktionen_oeffnen funktionen);

  Auswahl TabStrip1{Auswahl::Form::Reiter};

  Rahmen Frame2;  // the function
  Kaestchen Check1{"Diese Wetterfunktion grundsätzlich &ausführen"};
  Textfeld Text3{"Bezeichnung"};
  Rahmen Frame3{"Bedingungen"};
  std::array<Schild, zeilen> Label3;     // what is compared
  std::array<Schild, zeilen> Label4;     // how, in words
  std::array<Schild, zeilen - 1> Text0;  // the threshold
  Taste Command2{"&Prüfbedingungen"};
  Schild Label5, Label6;
  Auswahl Combo2, Combo3;
  Rahmen Frame4{"Wenn Prüfbedingung erfüllt, dann..."}, Frame5{"Wenn Prüfbedingung nicht erfüllt, dann..."};
  Textfeld Text10{"Zustand muss so lange stabil sein (Wartezeit 1)"};
  Textfeld Text11{"und diese periodisch wiederholen (Wiederholzeit 1)"};
  Textfeld Text12{"Zustand muss so lange stabil sein (Wartezeit 2)"};
  Textfeld Text13{"und diese periodisch wiederholen(Wiederholzeit 2)"};
  Taste Command6, Command7, Command8, Command9;  // each takes a time away
  std::array<Taste, 2> Command5;                 // functions of both sets

  Rahmen Frame1;                 // its conditions, in place of the function
  std::array<Schild, 6> Label8;  // heads of the columns
  std::array<Schild, zeilen> Label7;
  std::array<Auswahl, zeilen> Combo1;
  std::array<Schieber, wettersensoren> Slider1;
  std::array<Textfeld, wettersensoren> Text1;
  std::array<Schild, wettersensoren> Label25;
  Wetterbalken ProgressBar = Leere_wetterbalken();
  std::array<Schild, wettersensoren> Label9;  // the live values
  Schild Label10;                             // and/or in words
  Taste Command10{"&Wetterwerte blau anzeigen"};
  Taste Command3{"Ü&bernehmen"}, Command4{"Abb&rechen"};

  Taste Command1{"&Schliessen"};

  Anordnung anordnung() override;
  void schliessen_wuenschen() override;

 private:
  void Verdrahten();
  void Bedingungen_verdrahten();
  void Laden();
  void Zusammenfassung_zeigen();
  void Funktionen_zeigen(std::size_t satz);
  // False where a time was refused; the focus is on it then, and nothing has been written.
  bool Seite_uebernehmen();
  void Reiter_wechseln();
  void Reiter_beschriften();
  bool Zeit_pruefen(std::size_t nummer);

  void Bedingungen_oeffnen();
  void Bedingungen_uebernehmen();
  void Bedingungen_tauschen(bool offen);
  void Vergleich_anzeigen(std::size_t zeile);
  void Schwelle_anzeigen(std::size_t sensor);
  void Wetterwerte_anzeigen();
  void Wetterwerte_leeren();

  int adresse_;
  Funktionen_oeffnen funktionen_oeffnen_;
  int funktion_ = 0;
};

}  // namespace zav
