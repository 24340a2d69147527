// The input events of a run of addresses, moved, copied and cleared as a whole: functions, app records,
// flags.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "store/katalog.h"
#include "store/projekt.h"

namespace zav {

// What one input event holds: its rows of Ein_relais, Ein_timer, Ein_dimmer and its app record.
struct Ereigniskopie {
  std::array<i16, relaisausgaenge> relais{};
  std::array<i32, timeranzahl> timer{};
  std::array<i16, dimmerausgaenge * dimmerparameter> dimmer{};
  std::array<str, app_felder> app = App_vorgaben();

  static std::array<str, app_felder> App_vorgaben();
};

// In all of these an address that the thermostat d leaves free, and another device has taken, is that
// device's: its events are neither read nor touched.

// The events of device d in its run, one copy for each event of the run.
std::vector<Ereigniskopie> Lauf_lesen(const Adresslauf& lauf, int d);
// Writes copies from the run's first event on, marks the events for sending and computes Ein_leer. Copies
// that are more than the run's events are left out.
void Lauf_schreiben(const Adresslauf& lauf, int d, const std::vector<Ereigniskopie>& ereignisse);
// Clears functions, LED outputs and app records; marks events and LED groups for sending.
void Lauf_leeren(const Adresslauf& lauf, int d);
// Moves the events of device d from its old run to its new one.
void Lauf_verschieben(const Adresslauf& alt, const Adresslauf& neu, int d);
// Marks the LED groups of the run for sending.
void Lauf_leds_melden(const Adresslauf& lauf);

}  // namespace zav
