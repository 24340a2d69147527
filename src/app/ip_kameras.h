// "IP-Kameras": the up to four cameras that the phone app shows.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "form/formular.h"
#include "store/kamera.h"
#include "store/projekt.h"

namespace zav {

class IP_Kameras final : public Formular {
 public:
  IP_Kameras();

  Auswahl TabStrip1{Auswahl::Form::Reiter};
  Kaestchen Check1{"&Aktiv"};
  Auswahl Combo1{Auswahl::Form::Klappliste, {}, "&Kameratyp auswählen"};
  Textfeld Text1{"&Titel Kamera"}, Text2{"&Untertitel Kamera"};
  Textfeld Text3{"&IP-Adresse"}, Text4{"&Port"};
  Textfeld Text5{"&Controlport"}, Text6{"&Streampool"}, Text7{"Mo&dell"};
  Taste Command5{"IP C&heck"};
  Schild Label1;  // outcome of the check
  Rahmen Frame1{"Möglichkeiten"};
  std::array<Kaestchen, 6> Check2;
  Rahmen Frame2{"Tasten"};
  Auswahl Combo2{Auswahl::Form::Klappliste, {}, "Taste 1"}, Combo3{Auswahl::Form::Klappliste, {}, "Taste 2"};
  Textfeld Text8{"Tastentext 1"}, Text9{"Tastentext 2"};
  Taste Command3{"Kamera &löschen..."};
  Taste Command1{"&OK"}, Command2{"Abb&rechen"};

  Anordnung anordnung() override;

 private:
  // One camera as it is being edited: its fields in the order of the file, and the line that it was.
  struct Kamera {
    std::array<str, kamerafelder.size()> felder;
    str zeile;
    bool operator==(const Kamera&) const = default;
  };

  void Verdrahten();
  void Tasten_sammeln();
  void Laden();
  void Kamera_zeigen();
  void Seite_lesen();
  void Modell_setzen();
  void Pruefen();
  void Loeschen();
  void Uebernehmen();
  // Complains about the first field that cannot be kept or used; true when all can.
  bool Daten_pruefen();
  Kamera& kamera() { return kameras_.at(static_cast<std::size_t>(kamera_)); }

  std::array<Kamera, kameras> kameras_;
  int kamera_ = 0;
  std::vector<int> tasten_;  // event of each entry of Combo2 and Combo3, 0 = none
};

}  // namespace zav
