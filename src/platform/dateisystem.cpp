#include "platform/dateisystem.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace zav {

namespace {

// The result of a system call in the form of the door: repeated while interrupted, -errno on failure.
template <class F>
auto Rufen(F ruf) {
  decltype(ruf()) r{};
  do {
    r = ruf();
  } while (r < 0 && errno == EINTR);
  return r < 0 ? static_cast<decltype(r)>(-errno) : r;
}

Dateisystem echtes_dateisystem;
Dateisystem* aktuelles_dateisystem = nullptr;

}  // namespace

int Dateisystem::Oeffnen(const std::string& pfad, int art) {
  const int d = Rufen([&] { return ::open(pfad.c_str(), art | O_CLOEXEC | O_NONBLOCK); });
  // Not waiting holds for the opening alone.
  if (d >= 0) ::fcntl(d, F_SETFL, ::fcntl(d, F_GETFL) & ~O_NONBLOCK);
  return d;
}

int Dateisystem::Privat_anlegen(std::string& anfang) {
  const std::string muster = anfang + "XXXXXX";
  return Rufen([&] {
    anfang = muster;
    return ::mkostemp(anfang.data(), O_CLOEXEC);
  });
}

int Dateisystem::Stand(int d, struct stat& stand) {
  return Rufen([&] { return ::fstat(d, &stand); });
}

int Dateisystem::Verweis(const std::string& pfad, std::string& ziel) {
  char puffer[4096];
  const auto n = Rufen([&] { return ::readlink(pfad.c_str(), puffer, sizeof puffer); });
  if (n < 0) return static_cast<int>(n);
  ziel.assign(puffer, static_cast<std::size_t>(n));
  return 0;
}

long Dateisystem::Lesen(int d, char* ziel, std::size_t n) {
  return Rufen([&] { return ::read(d, ziel, n); });
}

long Dateisystem::Schreiben(int d, const char* bytes, std::size_t n) {
  return Rufen([&] { return ::write(d, bytes, n); });
}

int Dateisystem::An_den_anfang(int d) {
  return static_cast<int>(Rufen([&] { return ::lseek(d, 0, SEEK_SET); }));
}

int Dateisystem::Kuerzen(int d, std::size_t n) {
  return Rufen([&] { return ::ftruncate(d, static_cast<off_t>(n)); });
}

int Dateisystem::Besitzer_setzen(int d, uid_t besitzer, gid_t gruppe) {
  return Rufen([&] { return ::fchown(d, besitzer, gruppe); });
}

int Dateisystem::Rechte_setzen(int d, mode_t rechte) {
  return Rufen([&] { return ::fchmod(d, rechte); });
}

int Dateisystem::Festschreiben(int d) {
  return Rufen([&] { return ::fsync(d); });
}

// Not repeated when interrupted: the descriptor is gone either way.
int Dateisystem::Schliessen(int d) { return ::close(d) < 0 && errno != EINTR ? -errno : 0; }

int Dateisystem::Umbenennen(const std::string& von, const std::string& nach) {
  return Rufen([&] { return std::rename(von.c_str(), nach.c_str()); });
}

int Dateisystem::Entfernen(const std::string& pfad) {
  return Rufen([&] { return ::unlink(pfad.c_str()); });
}

Dateisystem& dateisystem() {
  return aktuelles_dateisystem != nullptr ? *aktuelles_dateisystem : echtes_dateisystem;
}

Dateisystem* Dateisystem_setzen(Dateisystem* d) { return std::exchange(aktuelles_dateisystem, d); }

}  // namespace zav
