// The sockets' functions, as the link and the device server call them.
#include "gegenueber.h"

#include "platform/csc.h"

namespace zav {

Gegenueber* gegenueber = nullptr;

int cscAttach() { return 0; }
void cscRelease() {}
int cscClient(const std::string&, int, double) {
  gegenueber->geoeffnet();
  return gegenueber->weg ? -111 : 1;
}
void cscClose(int) {}
const std::string& cscUrsache() {
  static const std::string leer;
  return leer;
}
int cscPutData(int, const char* bytes, int n) {
  if (gegenueber->weg) return -32;
  gegenueber->hoeren({bytes, static_cast<std::size_t>(n)});
  return n;
}
int cscGetData(int, char* puffer, int n) {
  const auto genommen = gegenueber->da.copy(puffer, static_cast<std::size_t>(n));
  gegenueber->da.erase(0, genommen);
  return static_cast<int>(genommen);
}
int cscAwaitData(int, int, int mindestens) {
  const int da = static_cast<int>(gegenueber->da.size());
  return da < mindestens && gegenueber->weg ? -104 : da;
}
int cscReadSize(int socket) { return cscAwaitData(socket, 0, 1); }
std::uint32_t cscResolve(const std::string&) { return 0; }
int cscMakeDotted(std::uint32_t, char*, int) { return 0; }
int cscMakeDotted4(int, int, int, int, char*, int) { return 0; }

}  // namespace zav
