// Helpers of the tests that replace firmware: a file, a line and a device server.
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <string>
#include <thread>

#include "hilfen.h"
#include "platform/csc.h"
#include "simulator/hex.h"

namespace zav {

// S1 records of 16 bytes each, and the closing one.
inline std::string Firmwaredatei(int saetze) {
  const auto satz = [](char typ, simulator::Bytes bytes) {
    bytes.insert(bytes.begin(), static_cast<std::uint8_t>(bytes.size() + 1));
    bytes.push_back(static_cast<std::uint8_t>(~std::accumulate(bytes.begin(), bytes.end(), 0U)));
    return std::string{'S', typ} + simulator::hex(bytes) + "\r\n";
  };
  std::string text = satz('0', {0, 0, 'Z', 'A', 'V'});
  for (int n = 0; n < saetze; ++n) {
    simulator::Bytes bytes(18);
    bytes[0] = static_cast<std::uint8_t>(n / 16);
    bytes[1] = static_cast<std::uint8_t>(n * 16);
    std::iota(bytes.begin() + 2, bytes.end(), static_cast<std::uint8_t>(n));
    text += satz('1', bytes);
  }
  return text + satz('9', {0, 0});
}

// A line whose other end the test holds itself, raw from the start.
struct Pty {
  explicit Pty(int art = 0) : master(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | art)) {
    grantpt(master);
    unlockpt(master);
    name = ptsname(master);
    geraet = open(name.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios t{};
    tcgetattr(geraet, &t);
    cfmakeraw(&t);
    tcsetattr(geraet, TCSANOW, &t);
  }
  ~Pty() {
    close(geraet);
    close(master);
  }
  Pty(const Pty&) = delete;
  Pty& operator=(const Pty&) = delete;

  int master;
  int geraet = -1;
  std::string name;
};

// A loopback address of this process's own: the TCP port of a device server is fixed, and several tests may
// run at once.
inline std::string Eigene_adresse() {
  const int pid = getpid();
  return "127." + std::to_string(pid / 65536 % 200 + 20) + "." + std::to_string(pid / 256 % 256) + "." +
         std::to_string(pid % 254 + 1);
}

// A real device server in front of a pseudo-terminal.
class Geraeteserver {
 public:
  Geraeteserver(const Testordner& ordner, const std::string& geraet) {
    const std::string datei = ordner / "ser2net.yaml";
    Datei_anlegen(datei, "%YAML 1.1\n---\nconnection: &zav\n  accepter: telnet(rfc2217),tcp," + adresse +
                             ",4001\n  connector: serialdev(nouucplock=true)," + geraet +
                             ",9600n71,local\n  options:\n    kickolduser: true\n");
    prozess_ = fork();
    if (prozess_ == 0) {
      execlp("ser2net", "ser2net", "-n", "-c", datei.c_str(), nullptr);
      _exit(127);
    }
    for (int n = 0; n < 3000; ++n) {  // a minute: a loaded machine takes its time
      const int s = cscClient(adresse, 4001);
      if (s >= 0) {
        cscClose(s);
        return;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    ADD_FAILURE() << "ser2net does not listen on " << adresse;
  }
  ~Geraeteserver() {
    kill(prozess_, SIGTERM);
    waitpid(prozess_, nullptr, 0);
  }
  static bool vorhanden() {
    const std::string pfade = std::string(getenv("PATH")) + ":/usr/sbin";
    setenv("PATH", pfade.c_str(), 1);
    return std::system("command -v ser2net >/dev/null 2>&1") == 0;
  }

  const std::string adresse = Eigene_adresse();

 private:
  pid_t prozess_ = -1;
};

#define BRAUCHT_SER2NET() \
  if (!Geraeteserver::vorhanden()) GTEST_SKIP() << "the package ser2net is not installed"

}  // namespace zav
