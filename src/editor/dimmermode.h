// Phase control of each dimmer output: leading edge ("AN") or trailing edge ("AB").
#pragma once

#include <array>

#include "form/formular.h"
#include "store/projekt.h"

namespace zav {

class Dimmermode final : public Formular {
 public:
  static constexpr int zeilen = 16;  // of a page

  Dimmermode();

  Auswahl TabStrip1{Auswahl::Form::Reiter};
  Rahmen Frame1{"Definition PhasenANschnitt oder -ABschnitt für jeden Dimmerausgang"};
  Schild Label1{"AN    AB"};
  Schild Label3{"Bezeichnung der Ausgänge"};
  Schild Label2{"Beliebige Definition, wird im elektr. Vorschaltgerät (EVG) definiert"};
  std::array<Schild, zeilen> Lnr;
  std::array<Textfeld, zeilen> Text1;
  std::array<Kaestchen, zeilen> Check1;  // leading edge
  std::array<Kaestchen, zeilen> Check2;  // trailing edge
  Taste OK{"&OK"}, Cancel{"&Abbrechen"};

  Anordnung anordnung() override;

 private:
  int Dimmer(int zeile) const { return TabStrip1.position() * zeilen + zeile; }
  void Seite_zeigen();
  void Modus_zeigen(int zeile);
  void Uebernehmen();

  Feld<i16, dimmerausgaenge> modus_ = projekt.Dimmer_modus;
};

}  // namespace zav
