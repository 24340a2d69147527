// A stream of bytes over a descriptor, with a receive queue: what a serial port and a socket have in common.
// Waiting is done in the kernel; one exchange costs one write, one poll and one read.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zav {

class Bytestrom {
 public:
  enum class Art { seriell, netz };

  // Takes over the descriptor, which must be non-blocking.
  Bytestrom(int fd, Art art) : fd_(fd), art_(art) {}
  ~Bytestrom();
  Bytestrom(const Bytestrom&) = delete;
  Bytestrom& operator=(const Bytestrom&) = delete;

  int fd() const { return fd_; }

  // Waits until at least n bytes are there, at most ms milliseconds. Gives the number of bytes there, or a
  // negative error number once the other side is gone and no n bytes can come any more.
  int Warten(std::size_t n, int ms);
  // Bytes there now; negative when none are and the other side is gone.
  int Anzahl();
  // Sends all bytes. Gives their number or a negative error number; a line that takes nothing for five
  // seconds is one.
  int Senden(std::string_view bytes);
  // Takes up to n bytes that are there; gives their number.
  std::size_t Nehmen(char* ziel, std::size_t n);
  // Drops what is there.
  void Leeren();

 private:
  std::size_t gelesen() const { return puffer_.size() - anfang_; }
  // One read. False when nothing came: nothing there, or fehler_ is set.
  bool Nachlesen();

  int fd_;
  Art art_;
  int fehler_ = 0;          // negative error number once reading has failed for good
  std::string puffer_;      // receive queue
  std::size_t anfang_ = 0;  // first byte of it that has not been taken
};

}  // namespace zav
