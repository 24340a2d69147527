#include "platform/sio.h"

#include <fcntl.h>
#include <linux/serial.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <optional>

#include "platform/datei.h"
#include "platform/ports.h"
#include "platform/strom.h"

namespace zav {

namespace {

constexpr int code_115200 = 9;

struct Offener_port {
  explicit Offener_port(int fd) : strom(fd, Bytestrom::Art::seriell) {}

  Bytestrom strom;
  std::optional<int> treiberflags;  // the driver's flags before low latency was asked for
};

std::array<std::optional<Offener_port>, sio_ports> offen;
std::string ursache;

bool Gibt_es(int port) { return port >= 0 && port < sio_ports; }

Offener_port* Finden(int port) { return Gibt_es(port) && offen[port] ? &*offen[port] : nullptr; }

std::string Ursache(int fehler, const std::string& geraet) {
  switch (fehler) {
    case ENOENT:
    case ENODEV:
    case ENXIO: return "Das Gerät " + geraet + " gibt es nicht. Ist der Adapter eingesteckt?";
    case EACCES:
    case EPERM:
      return "Kein Zugriff auf " + geraet +
             ": Ihr Konto muss zur Gruppe dialout gehören. Geben Sie in einem Terminal \"sudo adduser $USER "
             "dialout\" ein und melden Sie sich dann ab und wieder an.";
    case EBUSY:
    case EWOULDBLOCK:
      return "Das Gerät " + geraet +
             " ist durch ein anderes Programm belegt: Beenden Sie es. Nach dem Einstecken eines Adapters "
             "prüft ihn oft der ModemManager; warten Sie zehn Sekunden und versuchen Sie es noch einmal.";
    case ENOTTY:
    case EISDIR:
    case EINVAL: return geraet + " ist keine serielle Schnittstelle.";
    case EIO: return "Hinter " + geraet + " ist keine Schnittstelle vorhanden.";
    default: return geraet + ": " + Systemfehler_text(fehler) + ".";
  }
}

// 115200 8N1, raw. Closing leaves the modem lines alone (no HUPCL): the port is opened and closed many times
// within one transfer.
int Leitung_einstellen(int fd) {
  termios t{};
  if (tcgetattr(fd, &t) != 0) return errno;
  cfmakeraw(&t);
  t.c_iflag &= ~(IXON | IXOFF | IXANY | INPCK);
  t.c_cflag &= ~(CSTOPB | PARENB | CRTSCTS | HUPCL);
  t.c_cflag |= CS8 | CREAD | CLOCAL;
  t.c_cc[VMIN] = 1;
  t.c_cc[VTIME] = 0;
  cfsetispeed(&t, B115200);
  cfsetospeed(&t, B115200);
  if (tcsetattr(fd, TCSANOW, &t) != 0) return errno;
  tcflush(fd, TCIFLUSH);
  return 0;
}

// A USB adapter collects bytes for up to 16 ms unless told otherwise: at several thousand replies that
// decides how long a transfer takes. Pseudo-terminals and some drivers know nothing of it.
std::optional<int> Schnell_schalten(int fd) {
  serial_struct treiber{};
  if (ioctl(fd, TIOCGSERIAL, &treiber) != 0) return std::nullopt;
  const int vorher = treiber.flags;
  if ((vorher & ASYNC_LOW_LATENCY) != 0) return std::nullopt;
  treiber.flags |= ASYNC_LOW_LATENCY;
  if (ioctl(fd, TIOCSSERIAL, &treiber) != 0) return std::nullopt;
  return vorher;
}

void Treiber_zuruecksetzen(int fd, int flags) {
  serial_struct treiber{};
  if (ioctl(fd, TIOCGSERIAL, &treiber) != 0) return;
  treiber.flags = flags;
  ioctl(fd, TIOCSSERIAL, &treiber);
}

// Opens the device for this program alone; the descriptor or a negative error number.
int Allein_oeffnen(const std::string& geraet) {
  const int fd = open(geraet.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (fd < 0) return -errno;
  int fehler = 0;
  // The lock also keeps out a second ZAVlink of the administrator, whom TIOCEXCL does not stop.
  if (isatty(fd) == 0) {
    fehler = ENOTTY;
  } else if (flock(fd, LOCK_EX | LOCK_NB) != 0) {
    fehler = errno;
  } else {
    fehler = Leitung_einstellen(fd);
  }
  if (fehler != 0) {
    close(fd);
    return -fehler;
  }
  ioctl(fd, TIOCEXCL);
  return fd;
}

int Modemleitung(int port, int leitung, char c) {
  Offener_port* p = Finden(port);
  if (p == nullptr) return -EBADF;
  return ioctl(p->strom.fd(), c == 'S' ? TIOCMBIS : TIOCMBIC, &leitung) == 0 ? 0 : -errno;
}

}  // namespace

int SioBaud(int port, int code) { return port == -1 && code == code_115200 ? 0 : -EINVAL; }

int SioParms(int port, int parity, int stop, int bits) {
  return port == -1 && parity == 0 && stop == 0 && bits == 8 ? 0 : -EINVAL;
}

int SioReset(int port, int /*rxSize*/, int /*txSize*/) {
  const std::string geraet = Portgeraet(port);
  if (geraet.empty()) {
    ursache = "COM " + std::to_string(port + 1) + " ist kein Gerät zugeordnet. Ist der Adapter eingesteckt?";
    return -ENODEV;
  }
  const int fd = Finden(port) != nullptr ? -EBUSY : Allein_oeffnen(geraet);
  if (fd < 0) {
    ursache = Ursache(-fd, geraet);
    return fd;
  }
  ursache.clear();
  offen[port].emplace(fd);
  offen[port]->treiberflags = Schnell_schalten(fd);
  return 0;
}

int SioDone(int port) {
  Offener_port* p = Finden(port);
  if (p == nullptr) return -EBADF;
  if (p->treiberflags) Treiber_zuruecksetzen(p->strom.fd(), *p->treiberflags);
  // Where somebody else holds the device open too, the mark would outlive this program's turn.
  ioctl(p->strom.fd(), TIOCNXCL);
  offen[port].reset();
  return 0;
}

int SioPuts(int port, const char* bytes, int n) {
  Offener_port* p = Finden(port);
  return p == nullptr ? -EBADF : p->strom.Senden({bytes, static_cast<std::size_t>(n)});
}

int SioPutc(int port, char byte) { return SioPuts(port, &byte, 1); }

int SioGets(int port, char* puffer, int n) {
  Offener_port* p = Finden(port);
  return p == nullptr ? -EBADF : static_cast<int>(p->strom.Nehmen(puffer, static_cast<std::size_t>(n)));
}

int SioGetc(int port) {
  char byte = 0;
  return SioGets(port, &byte, 1) == 1 ? static_cast<unsigned char>(byte) : -EAGAIN;
}

int SioRxQue(int port) {
  Offener_port* p = Finden(port);
  return p == nullptr ? -EBADF : p->strom.Anzahl();
}

int SioRxClear(int port) {
  Offener_port* p = Finden(port);
  if (p == nullptr) return -EBADF;
  p->strom.Leeren();
  return 0;
}

int SioDTR(int port, char c) { return Modemleitung(port, TIOCM_DTR, c); }
int SioRTS(int port, char c) { return Modemleitung(port, TIOCM_RTS, c); }

int SioWarten(int port, int n, int ms) {
  Offener_port* p = Finden(port);
  return p == nullptr ? -EBADF : p->strom.Warten(static_cast<std::size_t>(n), ms);
}

const std::string& SioUrsache() { return ursache; }

}  // namespace zav
