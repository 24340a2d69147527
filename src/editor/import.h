// Makes Kombinationen of a project of the older flat kind, which knows only address groups: one for each
// group in use.
#pragma once

#include <optional>
#include <string_view>

namespace zav {

struct Importart {
  int typ;       // kind of device
  int adressen;  // how many it takes
  bool operator==(const Importart&) const = default;
};

// What stands for a picture type of the flat editor (the values of Grp_typ); nothing for one that has no
// kind.
std::optional<Importart> Importart_von(int bildtyp);
// The source type of a group: by the first three characters of its text, else its picture type.
int Importtyp(std::string_view gruppentext, int bildtyp);

// Builds the Kombinationen. Shows its box and returns false where Kombinationen exist already.
bool Importieren();

}  // namespace zav
