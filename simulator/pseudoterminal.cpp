#include "simulator/pseudoterminal.h"

#include <fcntl.h>
#include <sys/inotify.h>
#include <termios.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

namespace zav::simulator {

Fd Pseudoterminal::oeffnen() {
  const auto scheitern = [] {
    throw std::runtime_error(std::string("Pseudo-Terminal kann nicht angelegt werden: ") +
                             std::strerror(errno));
  };
  schliessen();
  Fd masterseite(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK));
  char name[64];
  if (!masterseite || ::grantpt(masterseite.nummer()) != 0 || ::unlockpt(masterseite.nummer()) != 0 ||
      ::ptsname_r(masterseite.nummer(), name, sizeof name) != 0)
    scheitern();
  benutzerseite = Fd(::open(name, O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK));
  termios einstellung{};
  if (!benutzerseite || ::tcgetattr(benutzerseite.nummer(), &einstellung) != 0) scheitern();
  ::cfmakeraw(&einstellung);
  ::cfsetspeed(&einstellung, B115200);
  if (::tcsetattr(benutzerseite.nummer(), TCSANOW, &einstellung) != 0) scheitern();
  wache = Fd(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK));
  if (wache && ::inotify_add_watch(wache.nummer(), name, IN_OPEN | IN_CLOSE) < 0) wache.schliessen();
  geraet = name;
  return masterseite;
}

void Pseudoterminal::schliessen() {
  wache.schliessen();
  benutzerseite.schliessen();
  benutzer = 0;
  geraet.clear();
}

bool Pseudoterminal::benutzer_gewechselt() {
  bool gewechselt = false;
  alignas(inotify_event) char puffer[4096];
  for (ssize_t n; wache && (n = ::read(wache.nummer(), puffer, sizeof puffer)) > 0;)
    for (ssize_t ab = 0; ab < n;) {
      inotify_event e;
      std::memcpy(&e, puffer + ab, sizeof e);
      benutzer += (e.mask & IN_OPEN) != 0 ? 1 : -1;
      gewechselt |= benutzer == ((e.mask & IN_OPEN) != 0 ? 1 : 0);
      ab += static_cast<ssize_t>(sizeof e + e.len);
    }
  if (gewechselt) ::tcflush(benutzerseite.nummer(), TCIFLUSH);
  return gewechselt;
}

}  // namespace zav::simulator
