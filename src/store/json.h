// The whole project as one JSON document, under the names of the store.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "store/projekt.h"

namespace zav {

// A text as a JSON string, quotes included. What is no UTF-8 becomes the replacement character.
std::string Json_text(std::string_view text);

// Scalars are values, one-dimensional arrays lists, records lists of lists. A relay or timer matrix becomes
// {"event": {"output": value}} of the cells that are not 0, a dimmer matrix {"event": {"dimmer": [p0, p1, p2,
// p3]}} of the dimmers with a parameter that is not 0. Written as it goes, so that a large project takes no
// memory of its own.
void Projekt_json(const Projekt& p, std::ostream& aus);

}  // namespace zav
