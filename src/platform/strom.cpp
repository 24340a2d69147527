#include "platform/strom.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>

namespace zav {

namespace {

using Uhr = std::chrono::steady_clock;

constexpr int sendezeit_ms = 5000;
constexpr int leerungen = 64;  // reads, so that a peer that never stops does not hold us

int Rest_ms(Uhr::time_point ende) {
  const auto rest = std::chrono::ceil<std::chrono::milliseconds>(ende - Uhr::now()).count();
  return static_cast<int>(std::max<std::int64_t>(rest, 0));
}

}  // namespace

Bytestrom::~Bytestrom() { close(fd_); }

bool Bytestrom::Nachlesen() {
  std::array<char, 4096> block;
  ssize_t n = 0;
  do n = read(fd_, block.data(), block.size());
  while (n < 0 && errno == EINTR);
  if (n > 0) {
    // What is left is less than somebody waits for: the queue stays as short as that, however long the flood.
    puffer_.erase(0, anfang_);
    anfang_ = 0;
    puffer_.append(block.data(), static_cast<std::size_t>(n));
    return true;
  }
  if (n == 0) {
    fehler_ = -ECONNRESET;
  } else if (errno != EAGAIN && errno != EWOULDBLOCK) {
    fehler_ = -errno;
  }
  return false;
}

int Bytestrom::Warten(std::size_t n, int ms) {
  const auto ende = Uhr::now() + std::chrono::milliseconds(ms);
  int rest = ms;
  while (gelesen() < n && fehler_ == 0) {
    pollfd warten{.fd = fd_, .events = POLLIN, .revents = 0};
    const int bereit = poll(&warten, 1, rest);
    if (bereit > 0) Nachlesen();
    if (bereit < 0 && errno != EINTR) fehler_ = -errno;
    if (bereit == 0) break;
    rest = Rest_ms(ende);
  }
  return gelesen() < n && fehler_ != 0 ? fehler_ : static_cast<int>(gelesen());
}

int Bytestrom::Anzahl() {
  if (fehler_ == 0) Nachlesen();
  return gelesen() == 0 && fehler_ != 0 ? fehler_ : static_cast<int>(gelesen());
}

int Bytestrom::Senden(std::string_view bytes) {
  const int alle = static_cast<int>(bytes.size());
  while (!bytes.empty()) {
    const ssize_t n = art_ == Art::netz ? send(fd_, bytes.data(), bytes.size(), MSG_NOSIGNAL)
                                        : write(fd_, bytes.data(), bytes.size());
    if (n >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(n));
    } else if (errno == EAGAIN || errno == EWOULDBLOCK) {
      pollfd warten{.fd = fd_, .events = POLLOUT, .revents = 0};
      const int bereit = poll(&warten, 1, sendezeit_ms);
      if (bereit == 0) return -ETIMEDOUT;
      if (bereit < 0 && errno != EINTR) return -errno;
    } else if (errno != EINTR) {
      return -errno;
    }
  }
  return alle;
}

std::size_t Bytestrom::Nehmen(char* ziel, std::size_t n) {
  if (gelesen() < n && fehler_ == 0) Nachlesen();
  n = std::min(n, gelesen());
  std::memcpy(ziel, puffer_.data() + anfang_, n);
  anfang_ += n;
  return n;
}

void Bytestrom::Leeren() {
  for (int n = 0; n < leerungen && fehler_ == 0 && Nachlesen(); ++n) anfang_ = puffer_.size();
  anfang_ = puffer_.size();
}

}  // namespace zav
