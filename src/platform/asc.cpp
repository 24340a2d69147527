#include "platform/asc.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <string_view>
#include <thread>

#include "platform/datei.h"
#include "platform/sio.h"

namespace zav {

namespace {

struct Sender {
  int port = -1;
  std::chrono::microseconds pause{0};
  std::string text{};
  std::size_t gesendet = 0;
  int fehler = 0;
};

Sender sender;

}  // namespace

int ascInit(int port, int pause, int flag) {
  if (port < 0 || port >= sio_ports || pause < 0 || flag != 1) return -EINVAL;
  sender = {.port = port, .pause = std::chrono::microseconds(pause)};
  return 0;
}

int ascStartTx(const std::string& pfad, int laenge, int zeitgrenze, int zeichengrenze) {
  sender.text.clear();
  sender.gesendet = 0;
  sender.fehler = 0;
  if (laenge < 0 || static_cast<std::size_t>(laenge) != pfad.size() || zeitgrenze != 0 ||
      zeichengrenze != 0) {
    sender.fehler = EINVAL;
  } else {
    sender.fehler = Datei_lesen(pfad, sender.text).fehler;
  }
  return -sender.fehler;
}

int ascDriver() {
  const std::string_view rest = std::string_view(sender.text).substr(sender.gesendet);
  if (sender.fehler != 0 || rest.empty()) return 1;
  const std::size_t n = std::min(rest.find('\n'), rest.size() - 1) + 1;
  const int ergebnis = SioPuts(sender.port, rest.data(), static_cast<int>(n));
  if (ergebnis < 0) {
    sender.fehler = -ergebnis;
    return 1;
  }
  sender.gesendet += n;
  std::this_thread::sleep_for(sender.pause);
  return sender.gesendet == sender.text.size() ? 1 : 0;
}

int ascGetMessage(char* puffer, int n) {
  const std::string stand =
      std::to_string(sender.gesendet) + " von " + std::to_string(sender.text.size()) + " Zeichen";
  const std::string text =
      sender.fehler == 0 ? stand + " gesendet" : stand + ", dann " + Systemfehler_text(sender.fehler);
  return std::min(std::snprintf(puffer, static_cast<std::size_t>(n), "%s", text.c_str()), n - 1);
}

int ascFehler() { return -sender.fehler; }
std::size_t ascLaenge() { return sender.text.size(); }
std::size_t ascGesendet() { return sender.gesendet; }

}  // namespace zav
