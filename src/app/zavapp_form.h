// "ZAVapp": the title of the building in the phone app, and the export of the app's descriptor.
#pragma once

#include <array>

#include "form/formular.h"

namespace zav {

class ZAVapp_Form final : public Formular {
 public:
  ZAVapp_Form();

  Textfeld Text1{"&Titel (z. B. Mein Haus)"};
  Rahmen Frame1{"Wird exportiert"};
  std::array<Schild, 4> Label1, Label3;  // what there is, and how many of it
  Schild Label2;                         // what has been
  Taste Command1{"&Jetzt exportieren für ZAVapp"};
  Taste Command2{"&Schliessen"};

  Anordnung anordnung() override;

 private:
  void Titel_uebernehmen();
  void Exportieren();
};

}  // namespace zav
