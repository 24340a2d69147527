// The other end of a line, on a real pseudo-terminal or a real socket: plays a script of what it must hear
// and what it says to that, in a thread of its own.
#pragma once

#include <arpa/inet.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <stdlib.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include "link/leitung.h"
#include "platform/einstellungen.h"

namespace zav {

// A socket that listens on a port of this machine, 0 = a free one, which comes back, with that many
// connections waiting at the most.
inline int Lauscher(int& port, const std::string& adresse = "127.0.0.1", int warteschlange = 4) {
  const int fd = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const int ja = 1;
  setsockopt(fd, SOL_SOCKET, SO_REUSEADDR, &ja, sizeof ja);
  sockaddr_in ort{};
  ort.sin_family = AF_INET;
  ort.sin_port = htons(static_cast<std::uint16_t>(port));
  ort.sin_addr.s_addr = inet_addr(adresse.c_str());
  socklen_t laenge = sizeof ort;
  auto* const name = reinterpret_cast<sockaddr*>(&ort);
  EXPECT_TRUE(bind(fd, name, laenge) == 0 && listen(fd, warteschlange) == 0 &&
              getsockname(fd, name, &laenge) == 0)
      << adresse;
  port = ntohs(ort.sin_port);
  return fd;
}

class Gegenstelle {
 public:
  // Prepares the line and points the settings at it.
  explicit Gegenstelle(Verbindung art) : art_(art) {
    art == Verbindung::com ? Pty_anlegen() : Lauschen();
    einstellungen.Com_art = art == Verbindung::com ? 0 : 1;
    Com_art_setzen();
  }
  ~Gegenstelle() {
    ende_ = true;
    if (faden_.joinable()) faden_.join();
    EXPECT_EQ(gehoert_, erwartet_);
    for (const int fd : {master_, slave_, lauscher_, leitung_}) {
      if (fd >= 0) close(fd);
    }
  }
  Gegenstelle(const Gegenstelle&) = delete;
  Gegenstelle& operator=(const Gegenstelle&) = delete;

  // Hears the bytes, then says the parts with a short pause between them.
  Gegenstelle& antworte(const std::string& auf, std::vector<std::string> teile) {
    schritte_.push_back({auf, std::move(teile), false});
    return *this;
  }
  Gegenstelle& antworte(const std::string& auf, const std::string& text) {
    return antworte(auf, std::vector{text});
  }
  Gegenstelle& schweige(const std::string& auf) { return antworte(auf, ""); }
  // Hears the bytes, then is gone for good.
  Gegenstelle& verschwinde(const std::string& auf, const std::string& text = "") {
    schritte_.push_back({auf, {text}, true});
    return *this;
  }
  void los() {
    for (const auto& s : schritte_) erwartet_ += s.auf;
    faden_ = std::thread([this] { Spielen(); });
  }
  const std::string& geraet() const { return geraet_; }

 private:
  struct Schritt {
    std::string auf;
    std::vector<std::string> teile;
    bool danach_weg;
  };

  void Pty_anlegen() {
    master_ = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    ASSERT_EQ(grantpt(master_) | unlockpt(master_), 0);
    geraet_ = ptsname(master_);
    // Held open, as a device that stays plugged in while the port is closed between two commands.
    slave_ = open(geraet_.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    einstellungen.Com_geraet = geraet_;
  }
  void Lauschen() {
    einstellungen.Host_port = 0;
    lauscher_ = Lauscher(einstellungen.Host_port);
    einstellungen.Host_ip = "127.0.0.1";
  }

  bool Bereit(int fd) const {
    while (!ende_) {
      pollfd p{.fd = fd, .events = POLLIN, .revents = 0};
      if (poll(&p, 1, 20) > 0) return true;
    }
    return false;
  }
  // Up to n bytes, at least one, put to what has been heard. Over a socket a closed connection is followed by
  // the next one.
  std::size_t Hoeren(std::size_t n) {
    std::string block(std::min<std::size_t>(n, 65536), '\0');
    for (;;) {
      if (art_ == Verbindung::tcp && leitung_ < 0) {
        if (!Bereit(lauscher_)) return 0;
        leitung_ = accept(lauscher_, nullptr, nullptr);
      }
      const int fd = art_ == Verbindung::com ? master_ : leitung_;
      if (!Bereit(fd)) return 0;
      const ssize_t da = read(fd, block.data(), block.size());
      if (da > 0) {
        gehoert_.append(block, 0, static_cast<std::size_t>(da));
        return static_cast<std::size_t>(da);
      }
      if (art_ == Verbindung::com) return 0;
      close(leitung_);
      leitung_ = -1;
    }
  }
  void Spielen() {
    for (const auto& schritt : schritte_) {
      for (std::size_t rest = schritt.auf.size(); rest > 0;) {
        const std::size_t da = Hoeren(rest);
        if (da == 0) return;
        rest -= da;
      }
      for (std::size_t i = 0; i < schritt.teile.size(); ++i) {
        if (i > 0) std::this_thread::sleep_for(std::chrono::milliseconds(15));
        const auto& teil = schritt.teile[i];
        const ssize_t n = write(art_ == Verbindung::com ? master_ : leitung_, teil.data(), teil.size());
        if (n != static_cast<ssize_t>(teil.size())) return;
      }
      if (schritt.danach_weg) {
        for (int* fd : {&leitung_, &lauscher_, &slave_, &master_}) {
          if (*fd >= 0) close(*fd);
          *fd = -1;
        }
        return;
      }
    }
    // Whatever else comes shows in the comparison at the end.
    while (Hoeren(1) > 0) {
    }
  }

  Verbindung art_;
  int master_ = -1, slave_ = -1, lauscher_ = -1, leitung_ = -1;
  std::string geraet_;
  std::vector<Schritt> schritte_;
  std::string erwartet_, gehoert_;
  std::atomic<bool> ende_ = false;
  std::thread faden_;
};

}  // namespace zav
