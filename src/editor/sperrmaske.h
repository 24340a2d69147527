// A function editor whose dimmer rows carry a list for locking the output, in place of what a key can do.
#pragma once

#include <array>
#include <string>

#include "editor/funktionsmaske.h"

namespace zav {

class Sperrmaske : public Funktionsmaske {
 public:
  std::array<Auswahl, dimmer_je_gruppe> Combo3;

 protected:
  Sperrmaske(const std::string& name, const std::string& titel, Ereignisart art, int ereignis,
             const std::string& funktionshinweis);

 private:
  void Zusatz_zeigen(int i, bool an, bool hell) override;
  Anordnungsfolge Zusatzzellen(int i) override;
};

}  // namespace zav
