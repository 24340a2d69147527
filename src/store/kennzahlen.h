// The key figures of a project: what the main window and the command line show of it at a glance.
#pragma once

#include "store/projekt.h"

namespace zav {

struct Kennzahlen {
  int kombinationen = 0;
  int geschosse = 0;
  int apparate = 0;
  int adressen = 0;            // taken by devices
  int eingangsereignisse = 0;  // with functions, and those to be sent
  int eingang_zu_senden = 0;
  int schaltzeiten = 0;
  int uhrereignisse = 0;
  int uhr_zu_senden = 0;
  int timerereignisse = 0;
  int timer_zu_senden = 0;
  int led_zu_senden = 0;   // groups
  int relais_benutzt = 0;  // outputs and timers that some event touches
  int dimmer_benutzt = 0;
  int timer_benutzt = 0;
  int wetterfunktionen = 0;
  int funksender = 0;
  int funkempfaenger = 0;
  int apptasten = 0;
  int kameras = 0;
};

Kennzahlen Kennzahlen_von(const Projekt& p);

}  // namespace zav
