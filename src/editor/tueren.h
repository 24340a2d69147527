// The doors of the installation editor: what it opens but does not own. Whoever builds the editor wires them;
// a door left out does nothing.
#pragma once

#include <functional>

namespace zav {

struct Tueren {
  std::function<void()> senden;                       // the transfer dialog
  std::function<void()> wetterlogik;                  // functions of the weather station
  std::function<void(int platz)> enocean_definition;  // radio sender at a place of Komb_aktuell
  std::function<void()> enocean_schatten_kopieren;    // remembers the radio senders as they are
  std::function<void()> enocean_abgleichen;           // flags the receivers whose senders have changed since
  std::function<void(int platz, int versatz)>
      app_seite;  // app properties of a key at a place of Komb_aktuell
};

// Goes through a door if it is there.
template <class... A, class... B>
void Durch(const std::function<void(A...)>& tuer, B... argumente) {
  if (tuer) tuer(argumente...);
}

}  // namespace zav
