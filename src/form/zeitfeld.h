// The test of a text field that holds a time "HH.MM.SS", and the bounds of such a field. Every complaint goes
// the same way: the field turns yellow, a box tells, the field gets its colour back and the focus.
#pragma once

#include <string>
#include <string_view>

#include "form/steuerelement.h"

namespace zav {

// What is wrong with a time of day, "" when nothing is: "Richtig: hh.mm.ss", "Stunde zu gross", "Minute zu
// gross" or "Sekunde zu gross". Eight characters with a point at the third; the sixth may be any.
std::string Zeittest(std::string_view text);

// Looks at the three numbers of a text of eight characters only. Two characters that are no digits give
// formfehler.
std::string Zeitwerte_pruefen(std::string_view text, std::string_view formfehler);

// Zeittest of the field. On a failure the message replaces the field's text and "Bitte Eingabe korrigieren"
// appears. Returns the message, "" when the field is good.
std::string Zeitfeld_pruefen(Textfeld& feld);

// Puts the bound into a field that is above (below) it and says "Maximalwert eingesetzt" ("Minimalwert
// eingesetzt"). The field has passed the test; `grenze` is a time "HH.MM.SS".
void Hoechstens(Textfeld& feld, std::string_view grenze);
void Mindestens(Textfeld& feld, std::string_view grenze);

}  // namespace zav
