// What an installer does, as verbs: put up a room, mount a device, program a key, set a switching time. A
// house is a story told with them. Each verb works in the windows of the tool as a person does: it opens
// them, chooses from their lists, types into their fields and presses their buttons. What a window refuses
// ends the story.
#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "store/projekt.h"

namespace zav::beispiel {

using Text = const std::string&;

// ---- outputs: taken in the order in which they are named; a name is typed where the output gets its first
// function --

struct Licht {
  int ausgang;  // relay output
};
struct Dimmlicht {
  int dimmer;  // dimmer output
};
struct Store {
  int auf;  // relay output upward; the one behind it goes down
};
struct Treppenlicht {
  int timer;
};

Licht licht(Text name);          // the next output of a ZAVswitch
Dimmlicht dimmlicht(Text name);  // the next output of a ZAVdimmer
Store storen(Text name);         // the next pair of a ZAVmotor
Licht virtuell(Text name);  // an output that nobody wires: a state that keys and weather functions look at

// ---- functions: what an event does
// ---------------------------------------------------------------------------

struct Wirkung {
  enum class Ziel { relais, dimmer, timer } ziel;
  int nummer;
  int code = 0;             // relays and timers
  int hell = 0, tempo = 0;  // dimmers: 0 no change, 1 off, 2 to 100 percent
  bool bedienen = false;    // dimmers: toggle with memory on a short press, up and down on a long one
};
using Wirkungen = std::vector<Wirkung>;

Wirkung aus(Licht l);
Wirkung ein(Licht l);
Wirkung impuls(Licht l);
Wirkung um(Licht l);
Wirkung thermo(Licht ventil);  // only for keys
Wirkung auf(Store s);
Wirkung ab(Store s);
Wirkung stop(Store s);
Wirkung starte(Treppenlicht t);
Wirkung stoppe(Treppenlicht t);
Wirkung dimmen(Dimmlicht d, int prozent, int tempo = 4);
Wirkung aus(Dimmlicht d, int tempo = 4);
// One key for one lamp: short press on and off, long press brighter and darker.
Wirkung bedienen(Dimmlicht d, int prozent = 80);
// Only for switching times: with the output's keys locked, or free again.
Wirkung gesperrt(Wirkung w);
Wirkung entsperrt(Wirkung w);
// Several after one another.
Wirkungen alle(std::initializer_list<Wirkungen> teile);

// ---- the building ---------------------------------------------------------------------------

struct Raum {
  int kombination;
};
struct Apparat {
  Raum raum;
  int platz;
  int art;
};
struct Taste {
  Apparat apparat;
  int versatz;  // of its event
};

// Frames by their layout number.
enum Rahmen { einzeln = 0, senkrecht_2 = 1, senkrecht_3 = 2, senkrecht_4 = 3, waagrecht_2 = 9, diverse = 16 };

Raum kombination(Text geschoss, Text raum, Rahmen rahmen);
// A device of that kind at the next free place, with the next free addresses.
Apparat apparat(Raum r, int art);
// Text and functions of key slot n. Its LED shows the first output that it switches.
Taste taste(Apparat a, int slot, Text name, const Wirkungen& w);
// The event of an input that changes from 1 to 0, where an input has two; its text is that of the slot.
Taste taste_los(Apparat a, int slot, const Wirkungen& w);
// Room temperature: a thermostat that drives a valve; its LED reads the night setting.
void heizung(Apparat thermostat, Licht ventil, Licht absenkung);
// A blind on two keys, up and down, with the stop that a running blind understands.
void storentasten(Apparat a, int slot_auf, int slot_ab, Text name, Store s);

// ---- radio ---------------------------------------------------------------------------

void empfaenger(int nummer, Text ort);
void funksender(Apparat a, Text id, Text schluessel, int empfaenger);

// ---- time ---------------------------------------------------------------------------

enum Tag { Montag, Dienstag, Mittwoch, Donnerstag, Freitag, Samstag, Sonntag, taeglich };
inline constexpr std::initializer_list<Tag> werktags{Montag, Dienstag, Mittwoch, Donnerstag, Freitag};
inline constexpr std::initializer_list<Tag> wochenende{Samstag, Sonntag};
inline constexpr std::initializer_list<Tag> jeden_tag{taeglich};

// When a row of a clock switches. Texts are "HH.MM.SS", "" = none.
struct Zeitregel {
  int modus;  // 0 fixed, 2 sunrise, 4 sunset; + 1 with a random shift
  std::string zeit;
  int versatz_art = 0;  // 0 none, 1 earlier, 2 later
  std::string versatz{}, nicht_vor{}, nicht_nach{}, zufall_frueher{}, zufall_spaeter{};

  Zeitregel frueher(Text t) const;
  Zeitregel spaeter(Text t) const;
  Zeitregel zwischen(Text von, Text bis) const;
  Zeitregel zufaellig(Text vorher, Text nachher) const;
};
Zeitregel um_zeit(Text t);
Zeitregel bei_sonnenaufgang();
Zeitregel bei_sonnenuntergang();

// The next free row of each of those days; clock 1 or 2.
void schaltzeit(int uhr, std::initializer_list<Tag> tage, Text name, const Zeitregel& regel,
                const Wirkungen& w);
// From that day on that clock, every year.
void sequenz(Text ab_datum, int uhr);

// A staircase light: what happens at its start and, after the times, next and at its end.
Treppenlicht treppenlicht(Text name, const Wirkungen& start, Text zeit, const Wirkungen& ende);
Treppenlicht treppenlicht(Text name, const Wirkungen& start, Text zeit1, const Wirkungen& mitte, Text zeit2,
                          const Wirkungen& ende);

// ---- weather ---------------------------------------------------------------------------

// One condition of a weather function: a reading of the station, how it is compared and with what threshold.
struct Bedingung {
  int zeile;
  const char* vergleich;
  std::optional<int> schwelle;
};
Bedingung wind_ueber(int meter_je_sekunde);
Bedingung sonne_sued_ueber(int kilolux);
Bedingung sonne_west_ueber(int kilolux);
Bedingung licht_unter(int lux);
Bedingung aussen_unter(int grad);
Bedingung aussen_ueber(int grad);
Bedingung regen();

struct Wetterfunktion {
  std::string name;
  std::vector<Bedingung> bedingungen;
  bool alle_noetig;  // all conditions, else one
  Licht freigabe;    // works while this output is on
  std::string warten, warten_danach;
  Wirkungen erfuellt, nicht_erfuellt;
};
// The next function of the weather station.
void wetterfunktion(Apparat station, const Wetterfunktion& f);

// ---- the rest ---------------------------------------------------------------------------

enum class Geraet { telefon = 1, tablet = 2, beide = 3 };
// Shows the key in the phone app; with a question when it must not be pressed by accident.
void in_der_app(Taste t, Text symbol, Geraet g = Geraet::beide);
void mit_frage(Taste t, Text frage, Text ja, Text nein);
void als_szene(Taste t);

struct Kamera {
  std::string titel, ort, ip, port;
  std::string typ;  // Axis, Mobotix, Panasonic
  Taste taste;
  std::string tastentext;
};
void kamera(const Kamera& k);

void wie_vorher_nach_neustart(std::initializer_list<Licht> lichter);
void abschnitt(std::initializer_list<Dimmlicht> lampen);  // trailing edge, for electronic transformers

// An empty project of the present generation, with the owner's notes. Always the same identification and
// date.
void neues_projekt(Text titel, Text notizen);

// A program that tells the story and writes the project file that its only argument names. Gives its exit
// status: 1, with the reason on standard error, where a window refused something or the file cannot be
// written.
int erzaehlen(int argc, char** argv, const std::function<void()>& geschichte);

}  // namespace zav::beispiel
