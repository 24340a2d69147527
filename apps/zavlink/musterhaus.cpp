#include "zavlink/musterhaus.h"

#include <stdexcept>
#include <string>

#include "link/leitung.h"
#include "platform/einstellungen.h"
#include "platform/uhrwerk.h"
#include "store/projekt.h"

namespace zav::fenster {

namespace {

constexpr int ueblicher_port = 4001;  // what the main window shows then
constexpr int tastenabstand_ms = 20;
constexpr Datum tag{2026, 3, 29};  // the change to summer time

std::unique_ptr<simulator::Simulator> Master() {
  try {
    return std::make_unique<simulator::Simulator>(simulator::Optionen{.tcp = ueblicher_port});
  } catch (const std::runtime_error&) {  // taken
    return std::make_unique<simulator::Simulator>();
  }
}

}  // namespace

simulator::Bytes Kennung_bytes() {
  simulator::Bytes bytes;
  for (std::size_t i = 0; i + 1 < projekt.Projekt_kennung.size(); i += 2) {
    bytes.push_back(static_cast<std::uint8_t>(std::stoi(projekt.Projekt_kennung.substr(i, 2), nullptr, 16)));
  }
  return bytes;
}

void Verbinden(const simulator::Simulator& master) {
  einstellungen.Com_art = 1;
  einstellungen.Host_name = einstellungen.Host_ip = "127.0.0.1";
  einstellungen.Host_port = master.tcp_port();
  Com_art_setzen();
}

Musterhaus::Musterhaus() : master_(Master()) {
  const std::string ordner = "/home/installateur/Projekte/";
  projekt.Projekt_name = ordner + "Einfamilienhaus";
  int n = 0;
  for (const char* name : {"Schulhaus", "Praxis Süd", "Werkstatt"})
    einstellungen.last_file[n++] = ordner + name;
  Heute_setzen(tag);
  master_->start();
  master_->speicher_setzen(kennung_adresse, Kennung_bytes());
  Verbinden(*master_);
  QObject::connect(&bewohner_, &QTimer::timeout, [this] { taste_druecken(); });
  bewohner_.start(tastenabstand_ms);
}

void Musterhaus::taste_druecken() {
  using simulator::Tastenaktion;
  const int adresse = 12 + taste_ / 2 % 5;
  const int taste = 1 + taste_ / 2 % 3;
  master_->ereignis({adresse, taste, taste_ % 2 == 0 ? Tastenaktion::druecken : Tastenaktion::loesen});
  ++taste_;
}

}  // namespace zav::fenster
