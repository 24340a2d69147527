// The master's status codes and their words, one table for each family of commands. The codes are the
// master's own.
#pragma once

#include <string>
#include <string_view>

namespace zav {

// Family of transfer, erase and clock setting: the whole sentence for "F01" and so on; of a code that is not
// known the sentence of the unknown fault.
std::string_view Uebertragungstext(std::string_view code);

// Families of "X" (telegram on the bus) and "Y" (event): the text that follows the code.
enum class Befehlsfamilie { telegramm, ereignis };
std::string_view Befehlstext(Befehlsfamilie familie, std::string_view code);

}  // namespace zav
