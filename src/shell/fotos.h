// "Schemas": drawings for the electrician's cabinet, one at a time.
#pragma once

#include "form/formular.h"

namespace zav {

class Fotos final : public Formular {
 public:
  Fotos();

  // Foto_nr of the page on the module's outputs.
  static constexpr int nummern_der_ausgaenge = 2;

  Auswahl List1{Auswahl::Form::Liste};
  Textfeld Text1;  // the drawing, in letters of one width
  Taste Command1{"&Vorheriges"}, Command2{"&Nächstes"};
  Taste OK{"&Schliessen"};

  Anordnung anordnung() override;

 private:
  void Zeigen();
};

}  // namespace zav
