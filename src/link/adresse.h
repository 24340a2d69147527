// Check of what the user typed as the master's network address.
#pragma once

#include <string>

namespace zav {

inline const std::string Adresse_err_ip = "errIP";      // the address is at fault
inline const std::string Adresse_err_port = "errPORT";  // the TCP port is at fault
inline const std::string Adresse_err_div = "errDIV";    // neither, for a reason unknown

// Gives the good dotted address without leading zeros, or one of the three words; then the box has been
// shown. A host name is looked up, and ip is rewritten with the address found.
std::string Adresse_pruefen(std::string& ip, const std::string& port);

}  // namespace zav
