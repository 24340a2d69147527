#include "simulator/anschluss.h"

#include <poll.h>

#include <algorithm>
#include <cerrno>
#include <limits>

namespace zav::simulator {

namespace {

constexpr std::size_t eingang_hoechstens = 4096;                    // bytes under way to the master
constexpr std::size_t ausgang_hoechstens = std::size_t{64} * 1024;  // bytes that nobody has read yet
constexpr double stueck = 0.005;  // s; a long reply appears in pieces of this length

}  // namespace

void Anschluss::oeffnen(Fd neu) {
  schliessen();
  fd = std::move(neu);
}

void Anschluss::schliessen() { *this = Anschluss(byte_zeit); }

short Anschluss::interesse() const {
  short ereignisse = 0;
  if (ein.size() - ein_ab < eingang_hoechstens && aus.size() - aus_ab < ausgang_hoechstens)
    ereignisse |= POLLIN;
  if (verstopft) ereignisse |= POLLOUT;
  return ereignisse;
}

double Anschluss::naechste() const {
  double zeit = std::numeric_limits<double>::infinity();
  if (ein_ab < ein.size()) {
    const auto wichtig = ein.find_first_of("\r*%", ein_ab);
    const auto bis = wichtig == std::string::npos ? ein.size() : wichtig + 1;
    zeit = takt_ende(ein_frei, bis - ein_ab);
  }
  if (aus_ab < aus.size() && !verstopft) {
    const auto bytes_je_stueck = static_cast<std::size_t>(stueck / std::max(takt(), 1e-9));
    const auto n = std::min(aus.size() - aus_ab, std::max<std::size_t>(1, bytes_je_stueck));
    zeit = std::min(zeit, takt_ende(aus_frei, n));
  }
  return zeit;
}

int Anschluss::lesen(double jetzt) {
  char puffer[eingang_hoechstens];
  const auto n = ::read(fd.nummer(), puffer, sizeof puffer);
  if (n < 0 && (errno == EAGAIN || errno == EINTR)) return 0;
  if (n <= 0) return -1;
  if (ein.empty()) ein_frei = std::max(ein_frei, jetzt);
  ein.append(puffer, static_cast<std::size_t>(n));
  return static_cast<int>(n);
}

void Anschluss::senden(std::string_view bytes, double ab, double jetzt, bool verzichtbar) {
  if (!offen() || (verzichtbar && aus.size() - aus_ab + bytes.size() > ausgang_hoechstens)) return;
  if (aus.empty()) aus_frei = std::max(aus_frei, ab);
  aus += bytes;
  schreiben(jetzt);
}

bool Anschluss::schreiben(double jetzt) {
  verstopft = false;
  std::size_t n = aus.size() - aus_ab;
  if (takt() > 0)
    n = std::min(n, static_cast<std::size_t>(std::max(0.0, (jetzt - aus_frei) / takt() + 1e-6)));
  while (n > 0) {
    const auto geschrieben = ::write(fd.nummer(), aus.data() + aus_ab, n);
    if (geschrieben < 0 && errno == EINTR) continue;
    if (geschrieben < 0) {
      verstopft = errno == EAGAIN;
      return verstopft;
    }
    n -= static_cast<std::size_t>(geschrieben);
    aus_ab += static_cast<std::size_t>(geschrieben);
    aus_frei = takt_ende(aus_frei, static_cast<std::size_t>(geschrieben));
  }
  if (aus_ab == aus.size()) {
    aus.clear();
    aus_ab = 0;
  }
  return true;
}

void Anschluss::ausgang_leeren() {
  aus.clear();
  aus_ab = 0;
  verstopft = false;
}

}  // namespace zav::simulator
