// zavmaster: the simulated master as a program of its own.

#include <csignal>
#include <iostream>

#include "simulator/simulator.h"

int main(int argc, char** argv) {
  namespace sim = zav::simulator;
  auto aufruf = sim::Aufruf_lesen({argv + 1, argv + argc});
  if (!aufruf.optionen) {
    (aufruf.status == 0 ? std::cout : std::cerr) << aufruf.text << std::flush;
    return aufruf.status;
  }

  // Taken by sigwait below; blocked before the simulator's thread inherits the mask.
  sigset_t signale;
  sigemptyset(&signale);
  for (const int s : {SIGINT, SIGTERM, SIGUSR1}) sigaddset(&signale, s);
  pthread_sigmask(SIG_BLOCK, &signale, nullptr);

  bool gut = true;
  aufruf.optionen->melden = [&gut](const std::string& text) {
    const bool ort = text.starts_with("PTY ");
    if (!ort) gut = false;
    (ort ? std::cout : std::cerr << "zavmaster: ") << text << std::endl;
  };
  try {
    sim::Simulator simulator(std::move(*aufruf.optionen));
    if (simulator.tcp_port() != 0) std::cout << "TCP " << simulator.tcp_port() << '\n';
    if (!simulator.pty_name().empty()) std::cout << "PTY " << simulator.pty_name() << '\n';
    std::cout << std::flush;
    simulator.start();
    for (int s = 0; sigwait(&signale, &s) == 0 && s == SIGUSR1;) simulator.aus_ein();
    simulator.stop();
  } catch (const std::exception& fehler) {
    std::cerr << "zavmaster: " << fehler.what() << '\n';
    return 1;
  }
  return gut ? 0 : 1;
}
