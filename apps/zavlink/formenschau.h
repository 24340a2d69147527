// Every window of the program over the loaded project, in a state worth seeing: for the pictures of the
// manual and for the test that walks all forms.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "form/formular.h"
#include "form/oberflaeche.h"

namespace zav::fenster {

struct Schaustueck {
  std::string name;  // of the picture
  std::function<std::unique_ptr<Formular>()> bauen;
};

// Boxes answer themselves with what changes nothing, and are remembered; other forms do not open.
class Stille_oberflaeche final : public Oberflaeche {
 public:
  Antwort Melden(const Meldung& m) override {
    texte.push_back(m.text);
    return Vorsichtige_antwort(m.knoepfe);
  }
  void Zeigen(Formular& /*f*/) override {}
  std::optional<Dateiwahl> Datei_oeffnen(const Dateifrage& /*f*/) override { return std::nullopt; }
  std::optional<Dateiwahl> Datei_speichern(const Dateifrage& /*f*/) override { return std::nullopt; }
  std::vector<std::string> texte;
};

// Forms read the project when they are built: load it before.
std::vector<Schaustueck> Formenschau();

}  // namespace zav::fenster
