// "Sonderfunktionen": names many outputs or timers at once, with a text and a number that counts up.
#pragma once

#include "form/formular.h"
#include "store/funktionen.h"

namespace zav {

class Eingabehilfe final : public Formular {
 public:
  Eingabehilfe();

  Schild Label1{
      "Benennt Ausgänge oder Timer der Reihe nach: aus dem Text 'Licht #' und der Nummer 1 wird 'Licht 1', "
      "'Licht 2' ..."};
  Auswahl Option1{Auswahl::Form::Optionen, {"&Relaisausgänge", "&Dimmerausgänge", "&Timer"}};
  Auswahl Combo1{Auswahl::Form::Klappliste, {}, "&Von"}, Combo2{Auswahl::Form::Klappliste, {}, "&Bis"};
  Textfeld Text1{"Te&xt, # ist die Nummer"}, Text2{"&Nummer des ersten"};
  Kaestchen Check1{"Bestehende Texte &ersetzen"};
  Schild Label2;  // what it would come to
  Taste OK{"&OK"}, Cancel{"&Abbrechen"};

  Anordnung anordnung() override;

 private:
  void Art_gewaehlt();
  void Vorschau();
  // Text of the n-th in the row.
  std::string Neuer_text(int n, int nummer) const;
  str& Platz(int nummer) const;
  void Uebernehmen();

  Ziel::Art art() const { return static_cast<Ziel::Art>(Option1.position()); }
};

}  // namespace zav
