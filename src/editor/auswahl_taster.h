// Pictures of the flat editor's groups, to choose a Grp_typ from: the older keys and remote controls, and the
// newer range of flush keys. A picture's number is the value of Grp_typ.
#pragma once

#include "editor/bilderseite.h"

namespace zav {

class Auswahl_Taster final : public Bilderseite {
 public:
  Auswahl_Taster();
};

class Auswahl_Taster_2 final : public Bilderseite {
 public:
  Auswahl_Taster_2();
};

}  // namespace zav
