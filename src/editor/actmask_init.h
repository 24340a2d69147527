// The state that each output takes when the bus restarts, and the outputs' texts.
#pragma once

#include <array>
#include <string>

#include "form/formular.h"
#include "store/funktionen.h"

namespace zav {

class Actmask_init final : public Formular {
 public:
  Actmask_init();

  Auswahl TabStrip1{Auswahl::Form::Reiter, {"S&chalten", "&Dimmen"}};

  Auswahl Baugruppe{Auswahl::Form::Leiste};
  Rahmen Frame1;
  std::array<Schild, relais_je_gruppe> Lnr1;
  std::array<Textfeld, relais_je_gruppe> Text1;
  std::array<Auswahl, relais_je_gruppe> Combo1;
  // Off, on, as before: the eight of the group, and all 512.
  std::array<Taste, 3> Alle_8;
  std::array<Taste, 3> Alle_512;

  Auswahl Dimmbaugruppe{Auswahl::Form::Leiste};
  Rahmen Frame2;
  std::array<Schild, dimmer_je_gruppe> Lnr2;
  std::array<Textfeld, dimmer_je_gruppe> Text2;
  std::array<Taste, dimmer_je_gruppe> Command1;
  std::array<Schieber, dimmer_je_gruppe> Slider1;
  std::array<Textfeld, dimmer_je_gruppe> Intens;

  Taste Command5{"&OK"}, Command6{"&Abbrechen"};

  Anordnung anordnung() override;

 private:
  void Relais_einrichten();
  void Dimmer_einrichten();
  int Relais(int i) const { return Baugruppe.position() * relais_je_gruppe + i; }
  int Dimmer(int i) const { return Dimmbaugruppe.position() * dimmer_je_gruppe + i; }
  void Baugruppe_zeigen();
  void Relais_setzen(int von, int anzahl, i16 zustand);
  void Dimmbaugruppe_zeigen();
  void Dimmer_setzen(int i);
  void Faerben();
  void Uebernehmen();

  // The working copy.
  Feld<str, relaisausgaenge> relais_text_ = projekt.Relais_text;
  Feld<str, dimmerausgaenge> dimmer_text_ = projekt.Dimmer_text;
  Feld<i16, relaisausgaenge> relais_ = projekt.Relais_neustart;
  Feld<i16, dimmerausgaenge> dimmer_ = projekt.Dimmer_neustart;
};

}  // namespace zav
