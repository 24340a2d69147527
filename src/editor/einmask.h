// The flat editor of the inputs: address groups without Kombinationen, sixteen on a page, each with its text
// and its four keys; below them what the current group and its keys are. It writes into the project as the
// user types.
#pragma once

#include <array>

#include "form/formular.h"
#include "store/projekt.h"

namespace zav {

class Einmask final : public Formular {
 public:
  static constexpr int gruppen_je_seite = 16;
  static constexpr int tasten = 4;  // of a group

  Einmask();

  Auswahl TabStrip1{Auswahl::Form::Reiter};
  std::array<Schild, 1 + tasten> Label_kopf;   // headings of the texts
  std::array<Taste, gruppen_je_seite> Nummer;  // makes the group the current one
  std::array<Textfeld, gruppen_je_seite> Text_grp;
  std::array<Textfeld, gruppen_je_seite * tasten> Text_ein;

  Rahmen Frame1;
  Schild Label_bild;
  Taste Command_taster{"&Taster oder Beo4..."}, Command_due{"&Edizio Due..."}, Command_mehrfach;
  Kaestchen Check_thermo{"Thermostat"};
  std::array<Schild, tasten> Label_taste;
  std::array<Auswahl, tasten> Combo_LED;
  std::array<Taste, tasten> Command_fkt;
  Taste Command_loeschen{"&Löschen..."};
  Taste Command_schliessen{"&Schliessen"};

  Anordnung anordnung() override;

 private:
  void Seite_einrichten();
  void Gruppe_einrichten();
  int adresse() const { return TabStrip1.position() * gruppen_je_seite + zeile_; }
  int ereignis(int taste) const { return tasten * adresse() + taste; }
  void Seite_zeigen();
  void Gruppe_waehlen(int zeile);
  void Gruppe_zeigen();
  void Bild_zeigen();
  void Led_listen_fuellen();
  void Faerben();
  template <class Wahl>
  void Bild_waehlen();
  void Bild_setzen(int bildtyp);
  void Funktion_oeffnen(int taste);
  void Loeschen();

  int zeile_ = 0;  // current group on the page
};

}  // namespace zav
