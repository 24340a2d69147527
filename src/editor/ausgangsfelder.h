// Controls that every editor of outputs has.
#pragma once

#include "form/anordnung.h"
#include "form/steuerelement.h"
#include "store/funktionen.h"

namespace zav {

// The strip of the 64 relay groups or of the 32 dimmer groups.
void Gruppenleiste_einrichten(Auswahl& leiste, Ziel::Art art);
// The grid of a relay group, one array a column: the two outputs of a blind stand close together.
template <class... Felder>
Anordnung Storenpaare(Felder&... felder) {
  constexpr std::size_t spalten = sizeof...(Felder);
  Anordnung raster = Platz_haltend(Raster(static_cast<int>(spalten)));
  for (std::size_t i = 0; i < relais_je_gruppe; ++i) {
    if (i > 0 && i % 2 == 0) raster.kinder.insert(raster.kinder.end(), spalten, Leer());
    (raster.kinder.emplace_back(felder[i]), ...);
  }
  return raster;
}
// The text of an output, 25 characters at most.
void Ausgangstext_einrichten(Textfeld& feld);

}  // namespace zav
