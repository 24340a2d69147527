// A device server in the network that says what it likes: Telnet and the control of its port.
#include <array>

#include "eingabe.h"
#include "gegenueber.h"
#include "platform/nsio.h"
#include "platform/uhrwerk.h"

using namespace zav;

namespace {

struct Server : Gegenueber {
  explicit Server(Eingabe& e) : eingabe(e) {}
  void hoeren(std::string_view) override {
    da += eingabe.text(eingabe.byte());
    weg = eingabe.leer();
  }
  void geoeffnet() override {}
  Eingabe& eingabe;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t n) {
  Zeitraffer_setzen(1e6);
  Eingabe e(bytes, n);
  Server server(e);
  gegenueber = &server;
  nsio_init();
  const int port = nsio_open("127.0.0.1", 1, 1000);
  if (port > 0) {
    nsio_ioctl(port, nsio_baud_115200, nsio_acht_bits);
    nsio_flowctrl(port, 0);
    nsio_DTR(port, 1);
    nsio_RTS(port, 1);
    std::array<char, 64> puffer{};
    while (!server.weg || nsio_warten(port, 0) > 0) {
      Verlangen(
          nsio_read(port, puffer.data(), static_cast<int>(puffer.size())) <= static_cast<int>(puffer.size()),
          "no more bytes than asked for");
      if (!server.weg && nsio_write(port, "S9\xFF\r", 4) < 0) break;
    }
  }
  nsio_end();
  return 0;
}
