// Storey, room and layout of a Kombination: the chooser behind "Neue Kombination..." and "Kombination
// ändern...".
#pragma once

#include <array>

#include "form/formular.h"
#include "store/katalog.h"

namespace zav {

class Layoutwahl final : public Formular {
 public:
  // For slot k, which is empty for a new Kombination.
  explicit Layoutwahl(int k);

  Textfeld Text_Standort{"&Standort"}, Text_Bezeichnung{"&Bezeichnung"};
  std::array<Taste, 17> Image6;  // one picture a layout
  Taste Command1{"&OK"}, Cancel{"&Abbrechen"};

  // True when OK has written the Kombination into the store.
  bool uebernommen() const { return uebernommen_; }

  Anordnung anordnung() override;

 private:
  void Layout_waehlen(int nummer);
  void Uebernehmen();

  int k_;
  int layout_ = 0;
  bool uebernommen_ = false;
};

}  // namespace zav
