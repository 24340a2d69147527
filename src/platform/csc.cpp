#include "platform/csc.h"

#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <future>
#include <map>
#include <memory>
#include <thread>
#include <vector>

#include "basis/melder.h"
#include "basis/text.h"
#include "basis/zahl.h"
#include "platform/datei.h"
#include "platform/strom.h"
#include "platform/uhrwerk.h"

namespace zav {

namespace {

using Uhr = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr double auskunftszeit_s = 10.0;
constexpr milliseconds runde{50};  // between two turns of the front end

std::map<int, std::unique_ptr<Bytestrom>> offen;
std::string ursache;

Bytestrom* Finden(int socket) {
  const auto i = offen.find(socket);
  return i == offen.end() ? nullptr : i->second.get();
}

Uhr::time_point Fristende(double sekunden) {
  return Uhr::now() + milliseconds(Echte_millisekunden(sekunden));
}

struct Adresse {
  sockaddr_storage wert{};
  socklen_t laenge = 0;
};

Adresse Ipv4(std::uint32_t adresse, int port) {
  Adresse a;
  auto* ziel = reinterpret_cast<sockaddr_in*>(&a.wert);
  ziel->sin_family = AF_INET;
  ziel->sin_port = htons(static_cast<std::uint16_t>(port));
  ziel->sin_addr.s_addr = htonl(adresse);
  a.laenge = sizeof(sockaddr_in);
  return a;
}

// Not left to the system's own reader: that one takes a leading zero for octal, and addresses are commonly
// written as 192.168.001.010 here.
bool Gepunktet_lesen(std::string_view text, std::uint32_t& adresse) {
  const auto teile = Teilen(text, ".");
  if (teile.size() != 4) return false;
  adresse = 0;
  for (const auto& teil : teile) {
    const auto zahl = Zahl_lesen(teil, 0, 255);
    if (!zahl) return false;
    adresse = adresse << 8 | static_cast<std::uint32_t>(*zahl);
  }
  return true;
}

struct Auskunft {
  int fehler = EAI_AGAIN;  // of getaddrinfo; a time-out counts as "try again"
  std::vector<Adresse> adressen;
};

Auskunft Nachschlagen(const std::string& name, int familie, int port) {
  Auskunft auskunft;
  addrinfo wunsch{};
  wunsch.ai_family = familie;
  wunsch.ai_socktype = SOCK_STREAM;
  addrinfo* liste = nullptr;
  auskunft.fehler = getaddrinfo(name.c_str(), std::to_string(port).c_str(), &wunsch, &liste);
  for (const addrinfo* i = liste; i != nullptr; i = i->ai_next) {
    Adresse a;
    std::memcpy(&a.wert, i->ai_addr, i->ai_addrlen);
    a.laenge = i->ai_addrlen;
    auskunft.adressen.push_back(a);
  }
  if (liste != nullptr) freeaddrinfo(liste);
  return auskunft;
}

// The system's look-up cannot be interrupted and may hang for minutes. It gets a thread that is left behind
// when the time is over.
Auskunft Namen_aufloesen(const std::string& name, int familie, int port, Uhr::time_point ende) {
  std::packaged_task<Auskunft()> aufgabe([=] { return Nachschlagen(name, familie, port); });
  auto ergebnis = aufgabe.get_future();
  std::thread(std::move(aufgabe)).detach();
  while (ergebnis.wait_for(runde) != std::future_status::ready) {
    if (Uhr::now() >= ende) return {};
    melder().DoEvents();
  }
  return ergebnis.get();
}

// Waits for the connection that has been begun; 0 or an error number.
int Verbindung_abwarten(int fd, Uhr::time_point ende) {
  for (;;) {
    pollfd warten{.fd = fd, .events = POLLOUT, .revents = 0};
    const int bereit = poll(&warten, 1, static_cast<int>(runde.count()));
    if (bereit < 0 && errno != EINTR) return errno;
    if (bereit > 0) {
      int fehler = 0;
      socklen_t laenge = sizeof fehler;
      return getsockopt(fd, SOL_SOCKET, SO_ERROR, &fehler, &laenge) == 0 ? fehler : errno;
    }
    if (Uhr::now() >= ende) return ETIMEDOUT;
    melder().DoEvents();
  }
}

// A connected socket or a negative error number.
int Verbinden(const Adresse& a, Uhr::time_point ende) {
  const int fd = socket(a.wert.ss_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (fd < 0) return -errno;
  int fehler = connect(fd, reinterpret_cast<const sockaddr*>(&a.wert), a.laenge) == 0 ? 0 : errno;
  if (fehler == EINPROGRESS) fehler = Verbindung_abwarten(fd, ende);
  if (fehler != 0) {
    close(fd);
    return -fehler;
  }
  // A message is one small write that waits for its reply: nothing to gain from collecting.
  const int ein = 1;
  setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &ein, sizeof ein);
  return fd;
}

std::string Ursache(int fehler, const std::string& ziel) {
  switch (fehler) {
    case ECONNREFUSED: return ziel + " nimmt keine Verbindung an.";
    case ETIMEDOUT: return ziel + " antwortet nicht.";
    case ENETUNREACH:
    case EHOSTUNREACH: return ziel + " ist über das Netzwerk nicht erreichbar.";
    default: return ziel + ": " + Systemfehler_text(fehler) + ".";
  }
}

}  // namespace

int cscAttach() { return 0; }

void cscRelease() { offen.clear(); }

int cscClient(const std::string& host, int port, double sekunden) {
  if (port < 0 || port > 65535) {
    ursache = "Der TCP-Port " + std::to_string(port) + " liegt nicht im Bereich von 0 bis 65535.";
    return -EINVAL;
  }
  const auto ende = Fristende(sekunden);
  std::vector<Adresse> adressen;
  if (std::uint32_t adresse = 0; Gepunktet_lesen(host, adresse)) {
    adressen.push_back(Ipv4(adresse, port));
  } else {
    adressen = Namen_aufloesen(host, AF_UNSPEC, port, ende).adressen;
  }
  int fd = -EHOSTUNREACH;
  if (adressen.empty()) {
    ursache = "Der Name " + host + " kann nicht aufgelöst werden.";
    return fd;
  }
  for (const Adresse& a : adressen) {
    fd = Verbinden(a, ende);
    if (fd >= 0) break;
  }
  if (fd < 0) {
    ursache = Ursache(-fd, host + " (Port " + std::to_string(port) + ")");
    return fd;
  }
  ursache.clear();
  offen[fd] = std::make_unique<Bytestrom>(fd, Bytestrom::Art::netz);
  return fd;
}

void cscClose(int socket) { offen.erase(socket); }

const std::string& cscUrsache() { return ursache; }

int cscPutData(int socket, const char* bytes, int n) {
  Bytestrom* s = Finden(socket);
  return s == nullptr ? -EBADF : s->Senden({bytes, static_cast<std::size_t>(n)});
}

int cscGetData(int socket, char* puffer, int n) {
  Bytestrom* s = Finden(socket);
  return s == nullptr ? -EBADF : static_cast<int>(s->Nehmen(puffer, static_cast<std::size_t>(n)));
}

int cscAwaitData(int socket, int ms, int mindestens) {
  Bytestrom* s = Finden(socket);
  if (s == nullptr) return -EBADF;
  const int da = s->Warten(static_cast<std::size_t>(mindestens), ms);
  return da >= mindestens || da < 0 ? da : 0;
}

int cscReadSize(int socket) {
  Bytestrom* s = Finden(socket);
  return s == nullptr ? -EBADF : s->Anzahl();
}

std::uint32_t cscResolve(const std::string& name) {
  const Auskunft auskunft = Namen_aufloesen(name, AF_INET, 0, Fristende(auskunftszeit_s));
  if (auskunft.adressen.empty()) return 0;
  return ntohl(reinterpret_cast<const sockaddr_in*>(&auskunft.adressen.front().wert)->sin_addr.s_addr);
}

int cscMakeDotted(std::uint32_t adresse, char* puffer, int n) {
  const auto teil = [adresse](int stelle) { return static_cast<int>(adresse >> (24 - 8 * stelle) & 0xFF); };
  return cscMakeDotted4(teil(0), teil(1), teil(2), teil(3), puffer, n);
}

int cscMakeDotted4(int a, int b, int c, int d, char* puffer, int n) {
  for (const int teil : {a, b, c, d}) {
    if (teil < 0 || teil > 255) return 0;
  }
  const int laenge = std::snprintf(puffer, static_cast<std::size_t>(n), "%d.%d.%d.%d", a, b, c, d);
  return laenge < n ? laenge : 0;
}

}  // namespace zav
