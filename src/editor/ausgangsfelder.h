// Controls that every editor of outputs has.
#pragma once

#include "form/steuerelement.h"
#include "store/funktionen.h"

namespace zav {

// The strip of the 64 relay groups or of the 32 dimmer groups.
void Gruppenleiste_einrichten(Auswahl& leiste, Ziel::Art art);
// The text of an output, 25 characters at most.
void Ausgangstext_einrichten(Textfeld& feld);

}  // namespace zav
