#include "platform/ports.h"

#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <tuple>

#include "basis/text.h"
#include "basis/zahl.h"
#include "platform/einstellungen.h"
#include "platform/sio.h"

namespace zav {

namespace fs = std::filesystem;

namespace {

// Kinds of device in the order in which they are counted.
struct Geraeteart {
  std::string_view name;
  std::string_view bezeichnung;  // of a device that does not name itself
};
constexpr std::array<Geraeteart, 3> arten{
    {{"ttyUSB", "USB-Adapter"}, {"ttyACM", "USB-Modem"}, {"ttyS", "eingebaute Schnittstelle"}}};

std::string geraeteordner = "/dev";

// Number of the kind that a device file's name begins with, arten.size() when none does.
std::size_t Art_von(std::string_view name) {
  const auto art =
      std::ranges::find_if(arten, [name](const Geraeteart& a) { return name.starts_with(a.name); });
  return static_cast<std::size_t>(art - arten.begin());
}

std::string Erste_zeile(const fs::path& datei) {
  std::ifstream strom(datei);
  std::string zeile;
  std::getline(strom, zeile);
  return std::string(Ohne_rand(zeile));
}

// The kernel shows the USB device one or more folders above the interface that the tty hangs on.
std::string Beschreibung(const std::string& name) {
  std::error_code fehler;
  fs::path ordner = fs::canonical(fs::path("/sys/class/tty") / name / "device", fehler);
  if (fehler) return {};
  for (int hoch = 0; hoch < 4 && ordner.has_relative_path(); ++hoch, ordner = ordner.parent_path()) {
    if (!fs::exists(ordner / "product", fehler)) continue;
    std::string adapter = Erste_zeile(ordner / "manufacturer");
    if (!adapter.empty()) adapter += ' ';
    adapter += Erste_zeile(ordner / "product");
    return adapter;
  }
  return {};
}

struct Fund {
  std::size_t art;
  int nummer;
  std::string name;

  bool operator<(const Fund& b) const { return std::tie(art, nummer) < std::tie(b.art, b.nummer); }
};

std::vector<Fund> Suchen() {
  std::vector<Fund> funde;
  std::error_code fehler;
  for (fs::directory_iterator i(geraeteordner, fehler), ende; !fehler && i != ende; i.increment(fehler)) {
    const std::string name = i->path().filename().string();
    const std::size_t art = Art_von(name);
    if (art == arten.size()) continue;
    if (const auto nummer = Zahl_lesen(name.substr(arten[art].name.size()), 0, 9999)) {
      funde.push_back({art, *nummer, name});
    }
  }
  std::sort(funde.begin(), funde.end());
  return funde;
}

bool Zugaenglich(const std::string& datei) { return access(datei.c_str(), R_OK | W_OK) == 0; }

// A setting may name a device by one of its links in /dev/serial.
bool Dieselbe_datei(const std::string& a, const std::string& b) {
  std::error_code fehler;
  return !a.empty() && (a == b || fs::equivalent(a, b, fehler));
}

std::string Pfad(const Fund& f) { return geraeteordner + "/" + f.name; }

}  // namespace

std::vector<Serielles_geraet> Serielle_geraete() {
  std::vector<Serielles_geraet> geraete;
  for (const Fund& f : Suchen()) {
    const std::string datei = Pfad(f);
    geraete.push_back({datei, Beschreibung(f.name), Zugaenglich(datei)});
  }
  return geraete;
}

std::string Bezeichnung(const Serielles_geraet& g) {
  if (!g.beschreibung.empty()) return g.beschreibung;
  const std::size_t art = Art_von(fs::path(g.datei).filename().string());
  return art < arten.size() ? std::string(arten[art].bezeichnung) : std::string();
}

std::string Portgeraet(int port) {
  if (port == sio_direkt) return einstellungen.Com_geraet;
  if (port < 0 || port >= sio_direkt) return {};
  if (!einstellungen.Ports[port].empty()) return einstellungen.Ports[port];
  const std::vector<Fund> funde = Suchen();
  return static_cast<std::size_t>(port) < funde.size() ? Pfad(funde[port]) : std::string();
}

std::array<Serielles_geraet, 8> Comports() {
  std::array<Serielles_geraet, 8> ports;
  const std::vector<Serielles_geraet> geraete = Serielle_geraete();
  for (std::size_t port = 0; port < ports.size(); ++port) {
    const std::string& eigene = einstellungen.Ports[static_cast<int>(port)];
    if (eigene.empty()) {
      if (port < geraete.size()) ports[port] = geraete[port];
      continue;
    }
    const auto g =
        std::ranges::find_if(geraete, [&eigene](const auto& e) { return Dieselbe_datei(e.datei, eigene); });
    ports[port] = g != geraete.end() ? *g : Serielles_geraet{eigene, "", Zugaenglich(eigene)};
  }
  return ports;
}

int Portnummer(const std::string& datei) {
  const auto ports = Comports();
  const auto p =
      std::ranges::find_if(ports, [&datei](const auto& g) { return Dieselbe_datei(g.datei, datei); });
  return p == ports.end() ? -1 : static_cast<int>(p - ports.begin());
}

Geraetewache::Geraetewache() : fd_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
  if (fd_ >= 0) inotify_add_watch(fd_, geraeteordner.c_str(), IN_CREATE | IN_DELETE | IN_ATTRIB);
}

Geraetewache::~Geraetewache() {
  if (fd_ >= 0) close(fd_);
}

bool Geraetewache::Warten(int ms) const {
  pollfd p{.fd = fd_, .events = POLLIN, .revents = 0};  // a negative one is passed over
  if (poll(&p, 1, ms) <= 0) return false;
  std::array<char, 4096> ereignisse{};  // what it was is seen by looking anew
  while (read(fd_, ereignisse.data(), ereignisse.size()) > 0) {
  }
  return true;
}

void Geraeteordner_setzen(const std::string& ordner) { geraeteordner = ordner; }

}  // namespace zav
