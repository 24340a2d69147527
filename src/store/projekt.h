// The project: everything that is edited, saved and sent. One instance, `projekt`, is the one being worked
// on.
//
// Outputs have one numbering: 0 to 511 relay outputs, 512 to 639 dimmer outputs, 640 none, 641 LED always on.
// An address is a group of four input events; input event = 4 x address + offset.
// Clock event = clock x 128 + day page x 16 + row. Timer event = 4 x timer + step.
#pragma once

#include <cstddef>
#include <string>

#include "basis/feld.h"

namespace zav {

inline constexpr int adressen = 256;
inline constexpr int eingangsereignisse = 1024;
inline constexpr int uhrereignisse = 256;
inline constexpr int timerereignisse = 64;
inline constexpr int timeranzahl = 16;
inline constexpr int relaisausgaenge = 512;
inline constexpr int dimmerausgaenge = 128;
inline constexpr int dimmerparameter = 4;
inline constexpr int kombinationen = 256;
inline constexpr int plaetze = 16;       // places of a Kombination
inline constexpr int tastenplaetze = 8;  // key slots of a place
inline constexpr int apparate = kombinationen * plaetze;
inline constexpr int wetterfunktionen = 8;
inline constexpr int empfaenger = 16;
inline constexpr int kameras = 4;

inline constexpr int ausgang_keiner = 640;
inline constexpr int ausgang_dauernd_ein = 641;
inline constexpr int erster_dimmer = 512;  // number of dimmer output 0 among all outputs
inline constexpr int apparat_leer = 80;    // App_typ of an empty place

// Fields of a record of App_eigenschaften. Never renumber: the order is that of the file.
enum App_feld : std::size_t {
  App_geraet,            // "0" not exported, "1" phone, "2" tablet, "3" both
  App_bereich,           // "0" in its room, "1" global, "2" both
  App_eigener_text,      // "1": App_tastentext is the title
  App_mit_icon,          // "1": write the icon
  App_mit_rueckmeldung,  // "1": write a feedback address
  App_mit_bestaetigung,  // "1": write confirmations
  App_als_szene,         // "1": class scene
  App_tastentext,
  App_icon_bild,  // index of the picture
  App_icon_name,  // name written into <icon>
  App_res11,
  App_rueckmeldung,  // output number 0 to 641
  App_frage_art,     // "0" to "3"
  App_frage1,
  App_ja1,
  App_nein1,
  App_frage2,
  App_ja2,
  App_nein2,
  App_res20,
  App_res21,
  App_res22,
  app_felder
};

// Reset value of one field of an app record.
const char* App_vorgabe(std::size_t feld);

struct Projekt {
  // ---- identity -------------------------------------------------------------------------------------------
  str Projekt_name;     // path without the extension; "Namenlos" without a file. Untouched by a reset
  str Datei_version;    // generation: "910", "900", "800", or an older one as read. Untouched by a reset
  str Notizen;          // free text, CR LF between lines
  str Projekt_kennung;  // 16 upper-case hexadecimal digits; also held by the master
  i16 Uhr_tabelle_geaendert{0};  // 1: the table of switching times must be sent

  // ---- texts and flags by event ---------------------------------------------------------------------------
  Feld<str, 256> Grp_text;         // text of a group of four input events
  Feld<i16, 256> Grp_led{1};       // 1: the group's LED table must be sent
  Feld<i16, 256> Grp_thermo{0};    // not 0: thermo inputs
  Feld<i16, 256> Grp_typ{5};       // picture of the group in the flat editor
  Feld<str, 1024> Ein_text;        // text of an input event
  Feld<u8, 1024> Ein_leer{0};      // 1: the event has functions (despite the name)
  Feld<u8, 1024> Ein_funktext{0};  // 1: the event must be sent
  Feld<i16, 1024> Ein_led{640};    // output shown by the key's LED, 640 = none
  Feld<u8, 256> Uhr_leer{0};       // as Ein_leer
  Feld<u8, 256> Uhr_funktext{0};   // as Ein_funktext
  Feld<str, 256> Uhr_text;         // what the switching time is for
  Feld<str, 256> Uhr_zeit;       // "HH.MM.SS", with " mit Zufall", or a word of the sun; "" = row not in use
  Feld<u8, 64> Tev_leer{0};      // as Ein_leer
  Feld<u8, 64> Tev_funktext{0};  // as Ein_funktext
  Feld<str, 512> Relais_text;
  Feld<str, 128> Dimmer_text;
  Feld<str, 16> Timer_text;
  Feld<str, 48> Timer_zeit;  // three for each timer, "HH.MM.SS" or ""

  // ---- function matrices: what an event does to each output -----------------------------------------------
  Feld<i16, 1024, 512> Ein_relais;  // function code, 0 = none
  Feld<i32, 1024, 16> Ein_timer;
  Feld<i16, 1024, 128, 4> Ein_dimmer;  // parameters: dim up + toggle, dim down + memory, level, tempo
  Feld<i16, 256, 512> Uhr_relais;
  Feld<i32, 256, 16> Uhr_timer;
  Feld<i16, 256, 128, 4> Uhr_dimmer;  // parameters: 0, lock, level, tempo
  Feld<i16, 64, 512> Tev_relais;
  Feld<i16, 64, 128, 4> Tev_dimmer;  // parameters: 0, 0, level, tempo

  // ---- outputs --------------------------------------------------------------------------------------------
  Feld<i16, 512> Relais_neustart;    // at restart: 0 off, 1 on, 2 as before
  Feld<i16, 512> Relais_neustart_a;  // carried through the file, otherwise unused
  Feld<i16, 128> Dimmer_neustart;    // at restart: 0 as before, 1 off, 2 to 100 percent
  Feld<i16, 128> Dimmer_modus;       // 0 leading edge, 1 trailing edge
  Feld<i16, 8, 3> Ein_param{
      [](std::size_t i) { return i % 3 == 0 ? 1 : 0; }};  // timers of generation 5: s, min, h

  // ---- blinds, all outputs alike --------------------------------------------------------------------------
  i16 Store_p1{120};  // s until the output goes off
  i16 Store_p2{110};  // ms of a tilt upward
  i16 Store_p3{110};  // ms of a tilt downward
  i16 Store_p4{300};  // ms between two tilts
  i16 Store_p5{6};    // tilts of one long key press

  // ---- switching clocks -----------------------------------------------------------------------------------
  Feld<i16, 256> Uhr_astro;  // mode: 0 normal, 2 sunrise, 4 sunset; + 1 with a random shift
  Feld<i16, 256> Uhr_tag;    // offset: 0 none, 1 earlier, 2 later
  Feld<str, 256> Uhr_f1;     // offset "HH.MM.SS"
  Feld<str, 256> Uhr_f2;     // lower limit, "" = none
  Feld<str, 256> Uhr_f3;     // upper limit, "" = none
  Feld<str, 256> Uhr_f4;     // greatest random shift to earlier, "" = none
  Feld<str, 256> Uhr_f5;     // greatest random shift to later, "" = none
  Feld<i16, 256> Uhr_f6;     // at the lower limit: 0 switch at the limit, 1 do not switch
  Feld<i16, 256> Uhr_f7;     // at the upper limit, likewise
  Feld<str, 6> Seq_datum;    // first day, DD.MM.YYYY; "" = row empty
  Feld<i16, 6> Seq_uhr;      // 0 none, 1 or 2 the clock
  Feld<i16, 6> Seq_mo_so;
  Feld<i16, 6> Seq_taeglich;
  Feld<i16, 6> Seq_flag;  // 1: every year
  i16 Seq_manuell{0};
  i16 Seq_mitternacht{0};
  i16 Seq_neustart{0};
  Feld<i16, 3> Sowi_modus{1};  // catch up at restart: relays, dimmers, timers

  // ---- weather functions, in the order of the file --------------------------------------------------------
  Feld<str, 8> Wetter_aktiv{"1"};
  Feld<str, 8> Wetter_text;
  Feld<str, 8> Wetter_sonne_ost{"1"};   // kLux
  Feld<str, 8> Wetter_sonne_sued{"1"};  // kLux
  Feld<str, 8> Wetter_sonne_west{"1"};  // kLux
  Feld<str, 8> Wetter_licht{"1"};       // Lux
  Feld<str, 8> Wetter_aussen{"1"};      // degrees Celsius
  Feld<str, 8> Wetter_innen{"1"};       // degrees Celsius
  Feld<str, 8> Wetter_wind{"1"};        // m/s
  Feld<str, 8> Wetter_r1{"1"};
  Feld<str, 8> Wetter_r2{"0"};
  Feld<str, 8> Wetter_r3{"0"};
  Feld<str, 8> Wetter_warte1{"nicht warten"};
  Feld<str, 8> Wetter_wiederh1{"nicht wiederholen"};
  Feld<str, 8> Wetter_warte2{"nicht warten"};
  Feld<str, 8> Wetter_wiederh2{"nicht wiederholen"};
  Feld<i16, 8> Wetter_undoder;  // 0 or, 1 and
  Feld<i16, 8> Wetter_v_ost;    // 0 not tested, 1 less than, 2 greater than; the next six alike
  Feld<i16, 8> Wetter_v_sued;
  Feld<i16, 8> Wetter_v_west;
  Feld<i16, 8> Wetter_v_licht;
  Feld<i16, 8> Wetter_v_aussen;
  Feld<i16, 8> Wetter_v_innen;
  Feld<i16, 8> Wetter_v_wind;
  Feld<i16, 8> Wetter_v_richtung;                                    // 0 not tested, 1 to 8 the direction
  Feld<i16, 8> Wetter_v_regen;                                       // 0 not tested, 1 yes, 2 no
  Feld<i16, 8> Wetter_v_defekt;                                      // 1: a broken station counts as met
  Feld<i16, 8> Wetter_ausgang{[](std::size_t i) { return i + 1; }};  // relay output that enables the function
  Feld<i16, 8> Wetter_start;                                         // 1: act at once

  // ---- Kombinationen and their devices --------------------------------------------------------------------
  Feld<i16, 256> Komb_typ;    // 1 in use
  Feld<str, 256> Komb_text;   // storey; "" = slot not in use
  Feld<str, 256> Komb_text2;  // room
  Feld<i16, 256> Komb_layout;
  Feld<i16, 4096> App_typ{80};    // kind of the device, 80 = empty place; entry 16 x Kombination + place
  Feld<str, 4096> App_text;       // first address, "" = none
  Feld<str, 4096> App_text2;      // number of addresses
  Feld<str, 32768> Dev_text;      // text of a key; entry 128 x Kombination + 8 x place + slot
  Feld<i16, 32768> Dev_adr{640};  // output of the key's LED

  // ---- radio ----------------------------------------------------------------------------------------------
  Feld<str, 4096> App_enocean_id;  // 8 hexadecimal digits, "" = none
  Feld<str, 4096> App_enocean_schluessel;
  Feld<str, 4096> App_enocean_text3;
  Feld<i16, 4096> App_enocean_empf{255};  // receiver 0 to 15, 255 = none
  Feld<i16, 4096> App_enocean_art;        // class of the sender, 1 to 5
  Feld<i16, 4096> App_enocean_wert;       // parameter; its low byte goes to the receiver
  Feld<i16, 4096> App_enocean_res1;
  Feld<i16, 4096> App_enocean_res2;
  Feld<u8, 16> Enocean_empf_da;         // 1: the receiver is built in
  Feld<u8, 16> Enocean_empf_geaendert;  // 1: its table must be programmed
  Feld<str, 16> Enocean_empf_ort;

  // ---- phone app and cameras ------------------------------------------------------------------------------
  Feld<str, 10> App_allgemein;  // entry 0: title of the building
  Feld<str, 1024, 22> App_eigenschaften{[](std::size_t i) { return App_vorgabe(i % app_felder); }};
  Feld<str, 100> Kamera_text{"X"};  // entries 0 to 3: one camera as a line; "X" = none
  Feld<str, 4> Kamera_titel;
  Feld<str, 4> Kamera_untertitel;
  Feld<str, 4> Kamera_ip;
  Feld<str, 4> Kamera_port;
  Feld<str, 4> Kamera_controlport;
  Feld<str, 4> Kamera_stream_von;
  Feld<str, 4> Kamera_modell;
  Feld<str, 4> Kamera_res8;
  Feld<str, 4> Kamera_aktiv{"0"};
  Feld<str, 4> Kamera_usecase{"0"};
  Feld<str, 4> Kamera_taste1{"0"};
  Feld<str, 4> Kamera_taste2{"0"};
  Feld<str, 4> Kamera_tastentext1{"0"};
  Feld<str, 4> Kamera_tastentext2{"0"};

  bool operator==(const Projekt&) const = default;
};

extern Projekt projekt;

// Every value back to its initialiser, but Projekt_name and Datei_version; a new Projekt_kennung; the
// session's values that belong to a project reset too.
void Projekt_reset();
// One app record back to its reset values; i 0 to 1023.
void App_reset(int i);
// A new random Projekt_kennung: four groups of four digits, each 0000 to 7530.
void Kennung_neu();

}  // namespace zav
