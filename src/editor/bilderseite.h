// A page of device pictures to choose one from.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "form/formular.h"

namespace zav {

class Bilderseite : public Formular {
 public:
  struct Bild {
    int nummer;
    int typ;  // kind of the device that it shows
    std::string hinweis;
  };

  // One cell a picture; the text is its number, the tool tip tells what it is.
  Auswahl Bilder{Auswahl::Form::Raster};
  Taste Cancel{"&Abbrechen"};

  // The number of the chosen picture; nothing when the page was cancelled.
  const std::optional<int>& gewaehlt() const { return gewaehlt_; }
  int typ(int i) const { return bilder_.at(static_cast<std::size_t>(i)).typ; }

  Anordnung anordnung() override;

 protected:
  Bilderseite(std::string name, std::string titel, std::vector<Bild> bilder);

 private:
  std::vector<Bild> bilder_;
  std::optional<int> gewaehlt_;
};

}  // namespace zav
