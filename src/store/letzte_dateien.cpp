#include "store/letzte_dateien.h"

#include "platform/einstellungen.h"
#include "store/projekt.h"

namespace zav {

void Letzte_dateien_eintragen() {
  const str& name = projekt.Projekt_name;
  auto& liste = einstellungen.last_file;
  const auto vorher = liste;
  // The name moves to the head from each place where it stands, those before it move back by one.
  const auto vorziehen = [&](int platz) {
    for (int n = platz; n > 0; --n) liste[n] = liste[n - 1];
    liste[0] = name;
  };
  for (const int platz : {1, 2, 3}) {
    if (liste[platz] == name) vorziehen(platz);
  }
  if (liste[0] != name) vorziehen(3);
  if (liste != vorher) Letzte_dateien_schreiben();
}

}  // namespace zav
