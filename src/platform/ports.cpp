#include "platform/ports.h"

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
constexpr std::array<std::string_view, 3> arten{"ttyUSB", "ttyACM", "ttyS"};

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
    const std::string hersteller = Erste_zeile(ordner / "manufacturer");
    const std::string produkt = Erste_zeile(ordner / "product");
    return hersteller.empty() ? produkt : hersteller + " " + produkt;
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
  for (fs::directory_iterator i("/dev", fehler), ende; !fehler && i != ende; i.increment(fehler)) {
    const std::string name = i->path().filename().string();
    for (std::size_t art = 0; art < arten.size(); ++art) {
      if (!name.starts_with(arten[art])) continue;
      if (const auto nummer = Zahl_lesen(name.substr(arten[art].size()), 0, 9999)) {
        funde.push_back({art, *nummer, name});
      }
    }
  }
  std::sort(funde.begin(), funde.end());
  return funde;
}

}  // namespace

std::vector<Serielles_geraet> Serielle_geraete() {
  std::vector<Serielles_geraet> geraete;
  for (const Fund& f : Suchen()) geraete.push_back({"/dev/" + f.name, Beschreibung(f.name)});
  return geraete;
}

std::string Portgeraet(int port) {
  if (port == sio_direkt) return einstellungen.Com_geraet;
  if (port < 0 || port >= sio_direkt) return {};
  if (!einstellungen.Ports[port].empty()) return einstellungen.Ports[port];
  const std::vector<Fund> funde = Suchen();
  return static_cast<std::size_t>(port) < funde.size() ? "/dev/" + funde[port].name : std::string();
}

}  // namespace zav
