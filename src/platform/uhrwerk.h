// Clock, date and chance, as the rest of the system sees them. All three can be replaced: the command line
// fixes date and seed, tests make time-outs quick.
#pragma once

#include <cstdint>

#include "basis/datum.h"

namespace zav {

// Seconds since midnight with fractions, by the computer's local time.
double Timer();
// The date that counts as today.
Datum Heute();
// The computer's time of day, whole seconds since midnight.
int Tageszeit();

// A number in [0, 1) from the process's random source.
double Zufall();
// The same after seeding from the clock; with a fixed seed the next number of its sequence.
double Zufall_neu_gesaet();

// Fixes the date that counts as today.
void Heute_setzen(Datum d);
// Fixes the seed of the random source and starts its sequence anew.
void Zufall_saeen(std::uint32_t saat);
// Makes Timer() run faster by the factor from now on (1 = real). Waits take the real time of the shorter
// span, so a time-out of 15 s takes 15 ms at 1000.
void Zeitraffer_setzen(double faktor);
// Real milliseconds that `sekunden` of Timer() take, rounded up, at least 0.
int Echte_millisekunden(double sekunden);

}  // namespace zav
