// What a project of an older generation needs after its lines have been read.
#pragma once

#include <string_view>

#include "store/projekt.h"

namespace zav {

// Corrects the dimmer parameters of input events for files written before line 3 held "ETB"; with that marker
// it does nothing. Changed events are flagged for sending.
void Dimmer_korrektur(Projekt& p, std::string_view marke);

// Generation 500: builds the flags of the events in use, which it did not have, and turns the eight simple
// timers (relay codes 6 to 13 of input events, times in Ein_param) into timers 0 to 7.
void Altdaten_umsetzen(Projekt& p);

}  // namespace zav
