#include "store/letzte_dateien.h"

#include <algorithm>

#include "platform/einstellungen.h"
#include "store/projekt.h"

namespace zav {

void Letzte_dateien_eintragen() {
  const str name = projekt.Projekt_name;
  auto& liste = einstellungen.last_file;
  const auto vorher = liste;
  // The name moves to the head from each place where it stands, those before it move back by one.
  const auto vorziehen = [&](int platz) {
    const auto bis = liste.alle().first(static_cast<std::size_t>(platz) + 1);
    std::rotate(bis.begin(), bis.end() - 1, bis.end());
    bis.front() = name;
  };
  for (int platz = 1; platz <= 3; ++platz) {
    if (liste[platz] == name) vorziehen(platz);
  }
  if (liste[0] != name) vorziehen(3);
  if (liste != vorher) Letzte_dateien_schreiben();
}

}  // namespace zav
