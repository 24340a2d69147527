// Check of a firmware file: S-records, one a line, each "S", type, count, address, data and sum.
#pragma once

#include <string>
#include <string_view>

namespace zav {

// What is wrong with the first line that is no good record, as a German sentence; "" for a well-formed file:
// good records only, at least one with data, and a closing one at the end.
std::string Srecord_mangel(std::string_view datei);

}  // namespace zav
