// The radio sender at a place of a Kombination: its ID and its receiver. Shows on demand which sender each
// receiver has heard last, so that an installer presses a key and takes over the ID.
#pragma once

#include <array>
#include <string>

#include "form/formular.h"
#include "store/projekt.h"

namespace zav {

class Enocean_Definition final : public Formular {
 public:
  // d = 16 x Kombination + place
  explicit Enocean_Definition(int d);

  Textfeld ID_Text{"&ID des Senders"};
  Textfeld Key_Text{"Schlüssel des &Senders"};
  Schild Label1{"Empfänger"};
  Auswahl Option1{Auswahl::Form::Leiste};  // the receiver, none at first
  Textfeld Text1;                          // senders of the receiver

  Rahmen Frame1{"Eingebaute Empfänger"};
  std::array<Schild, 6> Label2;                // heads of the columns
  std::array<Kaestchen, empfaenger> Check1;    // the receiver exists
  std::array<Textfeld, empfaenger> Text2;      // where it stands
  std::array<Schild, empfaenger> Label3;       // ID heard last; a click takes it over
  std::array<Balken, empfaenger> ProgressBar;  // its level, left is best
  std::array<Schild, empfaenger> Label4;
  std::array<Schild, empfaenger> Label5;  // version and data
  Taste Command5{"ID an&zeigen nach einem Funkereignis"};
  Kaestchen Check2{"&Alle Empfänger abfragen, nicht nur eingebaute"};
  Kaestchen Check3{"&Details anzeigen"};

  Taste Command1{"&OK"}, Command2{"A&bbrechen"};

  Anordnung anordnung() override;
  void schliessen_wuenschen() override;

 private:
  void Verdrahten();
  void Laden();
  void Empfaengerleiste_anzeigen();
  void Details_anzeigen();

  // "" when ID and receiver may be taken; else the complaint.
  std::string Eingaben_pruefen() const;
  bool Neue_id_erlaubt();
  bool Verschieben_erlaubt();
  void Uebernehmen();

  void Nachsehen();
  bool Alle_fragen();
  bool Telegramm_holen(int r, char buchstabe, std::string& antwort);
  void Gehoertes_leeren();
  void Gehoertes_zeigen(std::size_t r, const std::string& antwort);
  void Id_uebernehmen(std::size_t r);

  int d_;
  std::array<int, empfaenger> anzahl_{};  // senders of each receiver
};

}  // namespace zav
