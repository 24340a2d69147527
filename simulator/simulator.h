// The simulated master, ready to be embedded: it listens on loopback TCP and on a pseudo-terminal and runs in
// a thread of its own. All public functions may be called from any thread at any time.
//
//   Simulator sim({.pty = true});  // opens the lines; std::runtime_error (German) when they cannot be opened
//   sim.start();
//   ... talk to 127.0.0.1:sim.tcp_port() or to sim.pty_name() ...
//   EXPECT_EQ(sim.speicher(0x6000, 1)[0], 0xFC);
//
// Both lines reach the same master: window, memory and restart state are shared. A line holds one user at a
// time: a new TCP connection takes the place of the old one, whose messages are carried out first, so that no
// fast reconnect is lost.
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "simulator/empfaenger.h"
#include "simulator/geraet.h"
#include "simulator/optionen.h"
#include "simulator/wetter.h"

namespace zav::simulator {

class Simulator {
 public:
  explicit Simulator(Optionen optionen = {});
  ~Simulator();  // stops

  void start();
  // Ends the thread, keeps the memory file. Lines stay closed; an error of the memory file goes to
  // Optionen::melden.
  void stop();

  int tcp_port() const;          // 0 when there is none
  std::string pty_name() const;  // "" when there is none; changes with a fault "trenn"

  // Waits until fertig, asked after each thing that the master did; false after the time.
  bool warten(const std::function<bool()>& fertig,
              std::chrono::milliseconds zeit = std::chrono::seconds(10)) const;

  // -- What the master holds --
  Bytes speicher(std::uint32_t adresse, std::size_t n) const;  // erased bytes are 0
  std::string block(
      const std::string& befehl) const;  // digits of A Q T P H M LS U as last received, "" = never
  unsigned nachhol_flags() const;        // byte of "LS", 0 = never
  std::string uhr() const;               // 16 digits of "U", "" = never
  bool gesperrt() const;                 // "LD"
  Empfaenger::Tabelle empfaengertabelle(int r) const;  // as taken up by its "AI"

  // -- What it was told --
  std::map<std::string, std::size_t> zaehler()
      const;  // messages by command since the start, "" = unknown ones
  std::size_t anzahl(const std::string& befehl) const;
  std::vector<std::string> mitschrift()
      const;  // messages without checksum and CR, and "%", "*"; the last 16384
  void mitschrift_leeren();
  std::vector<Ereignis> ereignisse() const;   // made by "Y"
  std::vector<Telegramm> telegramme() const;  // sent by "X"
  int neustarts() const;
  Firmware firmware() const;

  // -- What happens in the house --
  void wetter_setzen(const Wetter& w);
  void ereignis(const Ereignis& e);     // a key is used; shown where the event display is on
  void zeile(const std::string& text);  // any line for the event display
  void teilnehmer_setzen(std::vector<std::string> zeilen);  // what the listing names
  void funk(int r, std::uint32_t id, int pegel);  // receiver r hears a sender; level 0 best to 199 weakest
  void empfaengerseite_setzen(int r, int seite, const Bytes& bytes);
  void empfaengerseite_defekt(int r, int seite, bool defekt = true);  // what is written there does not hold
  void speicher_setzen(std::uint32_t adresse, const Bytes& bytes);
  void version_setzen(const std::string& text);
  void flash_defekt(bool defekt = true);  // the test of an erase finds a fault
  void fehler_setzen(
      const std::vector<std::string>& regeln);  // counting starts anew; std::invalid_argument (German)
  void aus_ein();     // power off and on: bootloader, then after some seconds the master
  void startladen();  // the same, but the bootloader stays

 private:
  struct Kern;
  std::unique_ptr<Kern> kern;
};

}  // namespace zav::simulator
