// Owner of one file descriptor.
#pragma once

#include <unistd.h>

#include <utility>

namespace zav::simulator {

class Fd {
 public:
  Fd() = default;
  explicit Fd(int nummer) : fd(nummer) {}
  Fd(Fd&& anderer) noexcept : fd(std::exchange(anderer.fd, -1)) {}
  Fd& operator=(Fd&& anderer) noexcept {
    if (this != &anderer) {
      schliessen();
      fd = std::exchange(anderer.fd, -1);
    }
    return *this;
  }
  ~Fd() { schliessen(); }

  explicit operator bool() const { return fd >= 0; }
  int nummer() const { return fd; }
  void schliessen() {
    if (fd >= 0) ::close(std::exchange(fd, -1));
  }

 private:
  int fd = -1;
};

}  // namespace zav::simulator
