// The functions of an input event: what a key or an input does.
#pragma once

#include <array>
#include <bitset>
#include <string>

#include "editor/funktionsmaske.h"

namespace zav {

class Actmask final : public Funktionsmaske {
 public:
  // ereignis 0 to 1023; text: what the event is, for the title.
  Actmask(int ereignis, const std::string& text);

  // One for each dimmer of the group, and the last for all four.
  std::array<Kaestchen, dimmer_je_gruppe + 1> Check_auf, Check_ab;  // while the key is held
  std::array<Kaestchen, dimmer_je_gruppe + 1> Check3, Check_mem;    // toggle, memory: on a short press

 private:
  void Zusatz_zeigen(int i, bool an, bool hell) override;
  void Zusatz_loeschen(int dimmer) override;
  bool Zusatz_benutzt(int dimmer) const override;
  void Sammelzusatz_ruecksetzen() override;
  void Zusatz_einrechnen() override;
  Anordnungsfolge Zusatzzellen(int i) override;

  void Kurzwirkungen_lesen();

  // Kept apart from the parameters while the editor is open.
  std::bitset<dimmerausgaenge> um_, memory_;
};

}  // namespace zav
