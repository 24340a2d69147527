// Faults put on the line on purpose, told as ART[=WERT][@[BEFEHL][NR][xMAL]]:
//
//   ART       F01 to F99  this status instead of carrying the message out
//             stumm       not carried out, no reply
//             verloren    carried out, reply lost
//             kurz        the reply lacks its last WERT bytes (1)
//             lang        WERT bytes too many behind the reply (1)
//             muell       WERT bytes of noise before the reply (3)
//             trenn       not carried out, connection closed
//   BEFEHL    counts messages of this command only; an "x" right behind "@" is the command "x"
//   NR        message that it starts with, from 1; without it every message is meant
//   MAL       number of messages in a row; with NR once, without NR for ever
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zav::simulator {

enum class Fehlerart { code, stumm, verloren, kurz, lang, muell, trenn };

struct Fehlerregel {
  Fehlerart art = Fehlerart::code;
  std::string code;    // "F07", for Fehlerart::code
  int wert = 0;        // bytes, for kurz, lang, muell
  std::string befehl;  // "" = all messages
  long nr = 1;
  long mal = 1;

  bool operator==(const Fehlerregel&) const = default;
};

// Throws std::invalid_argument with a German text that names the rule and what is wrong with it.
Fehlerregel Fehlerregel_lesen(std::string_view text);

// Counts the messages since it was set and tells which rule holds for each.
class Fehlerplan {
 public:
  void setzen(std::vector<Fehlerregel> neue);
  // Counts one message; nullptr when no rule holds. The first rule in the list wins.
  const Fehlerregel* zaehlen(const std::string& befehl);

 private:
  std::vector<Fehlerregel> regeln;
  std::map<std::string, long> nummer;  // by command, "" = all
};

}  // namespace zav::simulator
