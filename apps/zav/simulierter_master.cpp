#include "simulierter_master.h"

#include "platform/einstellungen.h"
#include "simulator/simulator.h"

namespace zav {

struct Simulierter_master::Teile {
  simulator::Simulator simulator;
};

Simulierter_master::Simulierter_master() : teile_(std::make_unique<Teile>()) {
  teile_->simulator.start();
  einstellungen.Com_art = 1;
  einstellungen.Host_name = einstellungen.Host_ip = "127.0.0.1";
  einstellungen.Host_port = teile_->simulator.tcp_port();
}

Simulierter_master::~Simulierter_master() = default;

}  // namespace zav
