// A page of device pictures to choose a kind from.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "form/formular.h"

namespace zav {

// The kinds on the page of `mnuChoose` and on that of `mnuChooseEnocean`.
std::vector<int> Apparate_feller();
std::vector<int> Apparate_enocean();

class Apparatwahl final : public Formular {
 public:
  Apparatwahl(std::string titel, std::vector<int> typen);

  // One cell a kind; the text is its number, the tool tip tells what it is.
  Auswahl Bilder{Auswahl::Form::Raster};
  Taste Cancel{"&Abbrechen"};

  // The chosen kind; nothing when the page was cancelled.
  const std::optional<int>& gewaehlt() const { return gewaehlt_; }

  Anordnung anordnung() override;

 private:
  std::vector<int> typen_;
  std::optional<int> gewaehlt_;
};

}  // namespace zav
