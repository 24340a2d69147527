// The greeting: where the user chooses what to work on. A project is in the store when it has closed, unless
// the user ends the program.
#pragma once

#include <array>

#include "form/formular.h"

namespace zav {

class Gruss final : public Formular {
 public:
  Gruss();

  static constexpr std::size_t dateien = 4;

  Schild Label_name{"ZAVlink"}, Label_zweck{"Konfiguration und Service des ZAVnet-Bussystems"};
  Rahmen Frame1{"Zuletzt bearbeitet"};
  std::array<Taste, dateien> Command1;
  Taste OK{"&Neues Projekt"}, Oeffnen{"Projekt ö&ffnen..."};
  Taste Command2{"Neue&rungen"}, Command4{"&Haftung"}, Command3{"&Verbergen"};
  Textfeld Text1;
  Schild Label1;  // progress of the reader
  Taste Command5{"&Beenden"};

  // True when the user has ended the program.
  bool beendet() const { return beendet_; }

  Anordnung anordnung() override;

 private:
  void Anderes_laden();
  void Text_zeigen(const char* text);
  void Laden(std::size_t n);

  bool beendet_ = false;
};

}  // namespace zav
