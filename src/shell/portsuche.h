// Finds the serial port of an adapter by its absence: out, in, and what has come is it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/ports.h"

namespace zav {

// Has the user take the adapter out and put it in again, two boxes with OK and Abbrechen, and tells in a
// third which port it is, or why none was found. `Com_frei` and `Com_ursache` are those of the ports after
// it. Gives the COM number less one of the port found, nothing where there is none, after Abbrechen too.
std::optional<int> Port_suchen();

// "Com 1: FTDI FT232R USB UART (/dev/ttyUSB0)", one line for each COM number that stands for a device.
std::string Portliste();

}  // namespace zav
