// How the effects of the story get into the function editors, and the names of the outputs with them.
#pragma once

#include "arbeitsplatz.h"
#include "editor/funktionsmaske.h"
#include "installateur.h"
#include "store/funktionen.h"

namespace zav::beispiel {

// Types the name of an output into its text field, where it has not been typed before.
void benennen(Textfeld& feld, Ziel ausgang);
// An output that no function uses has not got its name: ends the work.
void namen_pruefen();

void eintragen(Funktionsmaske& m, const Wirkungen& wirkungen);

// Opens a function editor by its button and enters the functions, if there are any.
template <class Maske>
void funktionen(zav::Taste& knopf, const Wirkungen& wirkungen) {
  if (!wirkungen.empty()) arbeitsplatz().dialog<Maske>(knopf, [&](Maske& m) { eintragen(m, wirkungen); });
}

}  // namespace zav::beispiel
