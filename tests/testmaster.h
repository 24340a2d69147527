// A simulated master that listens on the network and on a pseudo-terminal.
#pragma once

#include "link/leitung.h"
#include "platform/einstellungen.h"
#include "simulator/simulator.h"

namespace zav {

struct Testmaster : simulator::Simulator {
  Testmaster() : Simulator({.pty = true}) { start(); }

  // Points the settings at it.
  void verbinden(Verbindung art = Verbindung::tcp) {
    einstellungen.Com_art = art == Verbindung::com ? 0 : 1;
    einstellungen.Com_geraet = pty_name();  // a new one after each disappearance
    einstellungen.Host_ip = einstellungen.Host_name = "127.0.0.1";
    einstellungen.Host_port = tcp_port();
    Com_art_setzen();
  }
};

}  // namespace zav
