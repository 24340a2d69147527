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
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "hilfen.h"
#include "platform/csc.h"

namespace zav {

// S1 records of 16 bytes each, and the closing one.
inline std::string Firmwaredatei(int saetze) {
  const auto satz = [](char typ, const std::vector<int>& bytes) {
    std::string text = {'S', typ};
    int summe = static_cast<int>(bytes.size()) + 1;
    const auto hex = [&text](int b) {
      char ziffern[3];
      std::snprintf(ziffern, sizeof ziffern, "%02X", b & 0xFF);
      text += ziffern;
    };
    hex(summe);
    for (const int b : bytes) {
      summe += b;
      hex(b);
    }
    hex(~summe);
    return text + "\r\n";
  };
  std::string text = satz('0', {0, 0, 'Z', 'A', 'V'});
  for (int n = 0; n < saetze; ++n) {
    std::vector<int> bytes{n / 16 % 256, n * 16 % 256};
    for (int i = 0; i < 16; ++i) bytes.push_back((n + i) % 256);
    text += satz('1', bytes);
  }
  return text + satz('9', {0, 0});
}

// A line whose other end the test holds itself, raw from the start.
struct Pty {
  Pty() {
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

  int master = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  int geraet = -1;
  std::string name;
};

// A real device server in front of a pseudo-terminal, on a loopback address of this process's own: its TCP
// port is fixed, and several tests may run at once.
class Geraeteserver {
 public:
  Geraeteserver(const Testordner& ordner, const std::string& geraet) {
    const int pid = getpid();
    adresse = "127." + std::to_string(pid / 65536 % 200 + 20) + "." + std::to_string(pid / 256 % 256) + "." +
              std::to_string(pid % 254 + 1);
    const std::string datei = ordner / "ser2net.yaml";
    Datei_anlegen(datei, "%YAML 1.1\n---\nconnection: &zav\n  accepter: telnet(rfc2217),tcp," + adresse +
                             ",4001\n  connector: serialdev(nouucplock=true)," + geraet + ",9600n71,local\n");
    prozess_ = fork();
    if (prozess_ == 0) {
      execlp("ser2net", "ser2net", "-n", "-c", datei.c_str(), nullptr);
      _exit(127);
    }
    for (int n = 0; n < 200; ++n) {
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

  std::string adresse;

 private:
  pid_t prozess_ = -1;
};

#define BRAUCHT_SER2NET() \
  if (!Geraeteserver::vorhanden()) GTEST_SKIP() << "the package ser2net is not installed"

}  // namespace zav
