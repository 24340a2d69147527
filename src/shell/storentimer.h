// "Storenparameter": the five times and counts that all blinds share.
#pragma once

#include <array>

#include "form/formular.h"

namespace zav {

class Storentimer final : public Formular {
 public:
  Storentimer();

  static constexpr std::size_t werte = 5;

  std::array<Schild, werte> Label1;  // what the value does
  std::array<Textfeld, werte> Text1;
  std::array<Schild, werte> Label2;  // its unit and range
  Taste Command1{"&Standardwerte"};
  Taste OK{"&OK"}, Cancel{"&Abbrechen"};

  Anordnung anordnung() override;

 private:
  void Uebernehmen();
};

}  // namespace zav
