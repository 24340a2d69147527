// What stands between the program and a terminal. Texts of a project and of a master come from outside: their
// control characters could move the cursor, change the title or make the terminal answer.
#pragma once

#include <streambuf>
#include <string>
#include <string_view>

namespace zav {

// The text with "?" for every control character but line ends and tabs; CR stands only before LF. UTF-8.
std::string Klartext(std::string_view text);

// Passes on what is written to it as Klartext.
class Klartextpuffer final : public std::streambuf {
 public:
  explicit Klartextpuffer(std::streambuf& ziel) : ziel_(ziel) {}

 protected:
  int_type overflow(int_type c) override;
  std::streamsize xsputn(const char* text, std::streamsize n) override;
  int sync() override { return ziel_.pubsync(); }

 private:
  std::streambuf& ziel_;
};

}  // namespace zav
