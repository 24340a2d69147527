// The functions of a clock event: what happens at a switching time.
#pragma once

#include <string>

#include "editor/sperrmaske.h"

namespace zav {

class Actmask_uhr final : public Sperrmaske {
 public:
  // ereignis 0 to 255; text: what the switching time is, for the title.
  Actmask_uhr(int ereignis, const std::string& text);
};

}  // namespace zav
