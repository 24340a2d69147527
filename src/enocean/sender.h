// Radio senders and their receivers: which sender belongs to which of the 16 receivers on the bus, and which
// receivers' tables have changed.
#pragma once

#include <string>

#include "store/projekt.h"

namespace zav {

inline constexpr i16 kein_empfaenger = 255;      // App_enocean_empf of a sender without a receiver
inline constexpr int sender_je_empfaenger = 32;  // entries of a receiver's table
inline constexpr std::size_t sender_id_laenge = 8;

// Bus address of receiver 0 to 15, four digits: "0101" to "011F".
std::string Empfaenger_adresse(int r);
// Eight characters of 0-9 and A-F.
bool Ist_sender_id(std::string_view id);

// Remembers the senders as they are (`App_enocean_alt_*`), when the installation editor opens.
void Enocean_schatten_nehmen();
// Flags every receiver whose senders differ from what was remembered, or that has won or lost one, and
// remembers anew. Without a memory it does nothing.
void Enocean_abgleichen();

// The senders of receiver r as text below a heading, one a line; lines end with CR LF.
std::string Enocean_sender_liste(int r);

}  // namespace zav
