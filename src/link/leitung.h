// The connection to the master: one at a time, open for one user command. Every command runs
// Port_oeffnen, test Port_fehler, exchanges, Port_schliessen.
#pragma once

#include <string>
#include <string_view>

#include "basis/feld.h"

namespace zav {

enum class Verbindung : i16 { com = 0, tcp = 1, geraeteserver = 2 };

// State of the link. `Link_art` and the two values behind it follow from the settings by Com_art_setzen().
struct Leitung {
  Verbindung Link_art = Verbindung::com;
  i16 Eth_modus = 0;          // 0 serial port, 1 network
  i16 Antwort_zeit = 2;       // s until a reply counts as missing: 2 COM, 10 wired network, 15 WLAN
  i32 Tcp_socket = -1;        // handle of the open socket, negative when none
  i32 Lib_status = 0;         // result of the last library call
  i16 Port_fehler = 0;        // 0 after a good open, 1 after a failed one
  i16 Abbruch_flag = 0;       // 1: the next exchange shall end the run ("F97")
  u8 Abbruch_gemeldet = 0;    // 1: an exchange has done so
  i16 Fehler_korrigiert = 0;  // checksum complaints mended by sending again
  i16 Empfang_status = 0;     // 0 reply received, 1 none or cancelled
  str Sende_text;             // message being sent; checksum and CR are appended in place
  str Empfang_text;           // last reply: payload + CR, or "portopen"
  Feld<i16, 8> Com_frei;      // 1: serial port n + 1 could be opened
  Feld<str, 8> Com_ursache;   // why serial port n + 1 could not be opened and what helps, "" where it could
  i16 Com_gesucht = 0;        // 1: the search for free ports has run
};

extern Leitung leitung;

// Replies that every caller compares with.
inline const std::string Antwort_gut = "F00\r";
inline const std::string Antwort_pruefsumme = "F07\r";
inline const std::string Antwort_port = "F96\r";
inline const std::string Antwort_abbruch = "F97\r";
inline const std::string Antwort_keine = "F98\r";
inline const std::string Antwort_neustart = "F99\r";
inline const std::string Port_zu = "portopen";

// Derives Link_art, Eth_modus and Antwort_zeit from the setting Com_art: 0 COM 2 s, 1 TCP 10 s, 2 TCP 15 s.
void Com_art_setzen();

// The serial library's number of the chosen port: the user's COM number less one, or the port of his device
// file.
int Sio_port();

// Opens the link. Every failure has shown its box before Port_fehler is 1.
void Port_oeffnen();
void Port_schliessen();

// Sends a text and waits for a reply of antwortlaenge bytes (checksum and CR included). With anhang the text
// gets its checksum and CR first. zeit in whole seconds. The result stands in Empfang_text (payload + CR,
// else "F98"/"F97"/"F07" + CR) and Empfang_status. A reply "F07" is answered by sending again, nine times at
// most. Surplus bytes of a reply stay and are read as the beginning of the next one.
void Meldung_senden(std::string& text, i16 zeit, bool anhang, int antwortlaenge);

// True when the last exchange brought "F00".
bool Antwort_ist_gut();

// The raw line, for streams that are no exchange of one message and one reply.

// Sends one byte as it stands, without waiting for a reply. Over TCP too: "%" before a transfer and a clock
// setting is for serial links only, so those callers test Eth_modus.
void Byte_senden(char byte);
// Sends a text as it stands. Negative on failure.
int Bytes_senden(std::string_view text);
// Takes up to n bytes, waiting at most ms real milliseconds for the first; the front end gets its turns
// meanwhile. Their number, 0 when none came, negative when the other side is gone.
int Bytes_lesen(char* puffer, int n, int ms);
// Drops what has come and what still trickles in: returns after 50 ms of silence, or after a second of noise.
void Empfang_leeren();

// Looks which of the serial ports 1 to 8 can be opened; does nothing when that is known already.
void Com_suche();

}  // namespace zav
