// Rules about placed devices and their Kombinationen that need no form.
#pragma once

#include <string>

#include "store/projekt.h"

namespace zav {

inline const std::string meldung_diverse = "Bitte wählen Sie für diesen Apparat die Kombination 'Diverse'";
inline const std::string meldung_zweite_wetterstation =
    "Es ist bereits ein Wettersensor definiert. Pro ZAVmaster kann nur EIN Wettersensor definiert werden.";

// Is there a weather station in the project?
bool Wetterstation_da();

// Why kind typ cannot stand at device place d, in the words for the user; "" when it can.
std::string Setzen_verweigert(int d, int typ);
// Puts kind typ at place d; no check. A radio sender gets its class.
void Apparat_setzen(int d, int typ);
// Writes the number of addresses of its kind into App_text2. A place with an unknown kind keeps what it
// holds.
void Adressanzahl_nachfuehren(int d);

// Takes Kombination k out: those above it move down one slot with all that belongs to their places, and the
// last slot is as after a reset.
void Kombination_entfernen(int k);

// Brings what follows from the placed devices up to date: Grp_thermo of all groups, Ein_led of every event of
// a device. A group whose LED outputs change is marked for sending.
void Leds_und_thermostate_nachfuehren();

}  // namespace zav
