// "Info": the program, the way to the master, and on request what the master says of itself.
#pragma once

#include "form/formular.h"

namespace zav {

class Infofenster final : public Formular {
 public:
  Infofenster();

  Textfeld Text1{"Programm"};
  Textfeld Text3{"Schnittstelle"};
  Rahmen Frame1{"ZAVmaster"};
  Textfeld Text2{"Version"};
  Textfeld Text6{"Projekt"};
  Taste Command5{"Info &holen"};
  Taste OK{"&Schliessen"};

  Anordnung anordnung() override;

 private:
  void Info_holen();
};

}  // namespace zav
