// The addresses an installer needs to program a touchpanel: keys and inputs, and the feedback of each output.
#pragma once

#include <string>

#include "form/formular.h"

namespace zav {

// The whole reference of the project, lines closed with CR LF. Addresses are hexadecimal without padding; an
// output's feedback number is its number among all outputs: 0 to 1FF relays, 200 to 27F dimmers.
std::string Touchpanel_text();

class Touchpanel_Referenz final : public Formular {
 public:
  Touchpanel_Referenz();

  Textfeld Text1;
  Taste Command1{"In die &Zwischenablage"};
  Taste Command2{"&Schliessen"};

  Anordnung anordnung() override;
};

}  // namespace zav
