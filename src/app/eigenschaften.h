// How an input event becomes a button of the phone app: the icons, and finding good properties by itself.
#pragma once

#include <bitset>
#include <span>
#include <string_view>
#include <vector>

#include "store/projekt.h"

namespace zav {

// The icons of the app by name, position = index of the picture. Never renumber: files hold the index.
std::span<const std::string_view> App_icons();
// The front end's symbol for the icon of that number; that of a key for a number without an icon.
std::string_view App_icon_symbol(int nummer);

// Looks through a project once for the outputs that some key's LED shows; then fills records.
class App_automatik {
 public:
  explicit App_automatik(const Projekt& p);

  // Properties of event offset `versatz` of device d = 16 x Kombination + place, into a record of app_felder
  // texts: shown on all devices (kinds whose inputs are no keys: not exported), in its room, with an icon by
  // what its text says or else by what it does, and with the state of the output that it switches as
  // feedback, first one that an LED shows. Questions and scene stay as they are.
  void fuellen(int d, int versatz, std::span<str> satz) const;

 private:
  int Icon(int d, int versatz, int ereignis) const;
  // -1: the event switches no output.
  int Rueckmeldung(int ereignis) const;

  const Projekt& p_;
  std::bitset<ausgang_keiner> mit_led_;
};

}  // namespace zav
