// Pictures of the flat editor's groups, to choose a Grp_typ from: the older keys and remote controls, and the
// newer range of flush keys.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>

#include "form/formular.h"

namespace zav {

class Tasterwahl : public Formular {
 public:
  // One cell a picture; the tool tip tells what it is.
  Auswahl Bilder{Auswahl::Form::Raster};
  Taste Cancel{"&Abbrechen"};

  // The chosen value of Grp_typ; nothing when cancelled.
  const std::optional<int>& gewaehlt() const { return gewaehlt_; }

  Anordnung anordnung() override;

 protected:
  Tasterwahl(std::string name, std::string titel, std::span<const int> bildtypen);

 private:
  std::optional<int> gewaehlt_;
};

class Auswahl_Taster final : public Tasterwahl {
 public:
  Auswahl_Taster();
};

class Auswahl_Taster_2 final : public Tasterwahl {
 public:
  Auswahl_Taster_2();
};

}  // namespace zav
