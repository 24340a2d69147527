// The function editor: what an event does to the 512 relay outputs, the 128 dimmers and the 16 timers. One
// design for the three kinds of event; `Actmask`, `Actmask_uhr` and `Actmask_timer` add what is their own.
//
// The editor works on a copy of the event's rows and of the outputs' texts; OK compares the copy with the
// store, so that an event is marked for sending only when a function of it has changed.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "form/formular.h"
#include "store/funktionen.h"

namespace zav {

class Funktionsmaske : public Formular {
 public:
  // Group shown last, of relays and of dimmers; every opening sets them to the lowest one in use.
  static inline int baugruppe_aktuell = 0;
  static inline int dimmbaugruppe_aktuell = 0;
  // Doors to forms that stand higher up in the house; what has no door is disabled.
  static inline std::function<void()> ansicht_oeffnen;
  static inline std::function<void()> ausgangssimulation_oeffnen;

  enum Seite { schalten, dimmen, timer };
  Auswahl TabStrip1{Auswahl::Form::Reiter};
  Schild Label1{"Schalten"}, Label2{"Dimmen"}, Label3{"Timer"};  // coloured while the page is in use

  // Schalten: the eight outputs of a group
  Auswahl Baugruppe{Auswahl::Form::Leiste};
  Rahmen Frame1;
  std::array<Kaestchen, relais_je_gruppe> Check1;  // the output has a function
  std::array<Textfeld, relais_je_gruppe> Text1;
  std::array<Auswahl, relais_je_gruppe> Combo1;
  Taste Alle_8_aus{"Alle 8 Ausgänge aus"}, Alle_8_ein{"Alle 8 Ausgänge ein"},
      Alle_8_neutral{"Alle 8 Ausgänge neutral"};
  Taste Storen_auf{"Alle 4 Storen auf"}, Storen_ab{"Alle 4 Storen ab"}, Storen_stop{"Alle 4 Storen stop"};
  Taste Alle_512_aus{"Alle 512 Ausgänge aus"}, Alle_512_neutral{"Alle 512 Ausgänge neutral"};
  Taste Ausgaenge_testen{"Ausgänge testen"};

  // Dimmen: the four dimmers of a group
  Auswahl Dimmbaugruppe{Auswahl::Form::Leiste};
  Rahmen Frame2{"Szenenlicht einstellen"};
  std::array<Kaestchen, dimmer_je_gruppe> Check2;  // the dimmer has a function
  std::array<Textfeld, dimmer_je_gruppe> Text2;
  std::array<Taste, dimmer_je_gruppe> Command1;
  std::array<Schieber, dimmer_je_gruppe> Slider1;
  std::array<Schild, dimmer_je_gruppe> Intens;
  std::array<Auswahl, dimmer_je_gruppe + 1> Tempo;  // the last one serves all four
  Schieber Slider2;                                 // brightness of all four
  Taste Alle_4_neutral{"Alle 4 Ausgänge neutral"};
  Taste Alle_128_aus{"Alle 128 Dimmer aus"}, Alle_128_neutral{"Alle 128 Dimmer neutral"};

  // Timer; not in the editor of timer events
  std::array<Kaestchen, timeranzahl> Check4;
  std::array<Textfeld, timeranzahl> Txtbox_timerbez;
  std::array<Auswahl, timeranzahl> Combo_timerfkt;

  Taste Command5{"&OK"}, Command6{"&Abbrechen"};
  std::array<Taste, 2> Ansicht;

  Anordnung anordnung() override;

  // Marks tabs, group buttons and labels by the working copy; runs after every change. Gives the lowest
  // groups in use, -1 for none.
  struct Belegung {
    int baugruppe = -1;
    int dimmbaugruppe = -1;
    bool timer = false;
  };
  Belegung Reiter_auffrischen();

 protected:
  // Name and title of the form, kind and number of the event, and the tool tip of its relay functions.
  Funktionsmaske(const std::string& name, const std::string& titel, Ereignisart art, int ereignis,
                 const std::string& funktionshinweis);
  // At the end of the derived constructor: shows the lowest groups in use and the first page in use.
  void Anfang_zeigen();

  // What a derived editor adds to the row of a dimmer. Shows its controls of row i; `an`: the dimmer takes
  // part, `hell`: and its brightness is set.
  virtual void Zusatz_zeigen(int i, bool an, bool hell) = 0;
  virtual void Zusatz_loeschen(int /*dimmer*/) {}
  virtual bool Zusatz_benutzt(int /*dimmer*/) const { return false; }
  virtual void Sammelzusatz_ruecksetzen() {}  // its controls that serve all four rows
  // Runs at OK, before the dimmer parameters are compared with the store.
  virtual void Zusatz_einrechnen() {}
  // Its cells in row i of the dimmer grid; i = 4 is the row that serves all four.
  virtual Anordnungsfolge Zusatzzellen(int i) = 0;
  virtual Anordnung Timerseite();

  int Dimmer(int i) const { return Dimmbaugruppe.position() * dimmer_je_gruppe + i; }
  i16& Parameter(int dimmer, Dimmerparameter p) { return dimmer_(dimmer, static_cast<std::size_t>(p)); }
  // Shows row i by the working copy. Its box, once on, stays on.
  void Dimmerzeile_zeigen(int i);
  // A handler that changes something of row i and shows what follows from it; of all four rows.
  std::function<void()> Zeilenhandler(int i, std::function<void()> aenderung);
  std::function<void()> Sammelhandler(std::function<void(int i)> aenderung);

 private:
  bool mit_timer() const { return art_ != Ereignisart::Timer; }
  void Kopieren();
  void Reiter_einrichten();
  void Schalten_einrichten(const std::string& funktionshinweis);
  void Dimmen_einrichten();
  void Timer_einrichten();
  void Befehle_einrichten();

  int Relais(int i) const { return Baugruppe.position() * relais_je_gruppe + i; }
  bool Dimmer_benutzt(int dimmer) const;
  void Dimmer_loeschen(int dimmer);
  void Baugruppe_zeigen();
  // Shows row i by the working copy, with its box on or off.
  void Relaiszeile_zeigen(int i, bool an);
  void Relais_funktion_gewaehlt(int i);
  // Keeps the two outputs of a blind from being switched on at once, after output i got a new code. Gives the
  // text of the message that is due, nullptr for none.
  const char* Storenregel_anwenden(int i);
  // Codes of a run of outputs, on the even and on the odd ones.
  void Relais_setzen(int von, int anzahl, i16 gerade, i16 ungerade);
  void Dimmbaugruppe_zeigen();
  // A run of dimmers gets this brightness and nothing else.
  void Dimmer_setzen(int von, int anzahl, i16 helligkeit);
  void Testen();
  void Uebernehmen();

  const Ereignisart art_;
  const int ereignis_;
  // The working copy.
  Feld<i16, relaisausgaenge> relais_;
  Feld<i16, dimmerausgaenge, dimmerparameter> dimmer_;
  Feld<i32, timeranzahl> timer_;
  Feld<str, relaisausgaenge> relais_text_;
  Feld<str, dimmerausgaenge> dimmer_text_;
  Feld<str, timeranzahl> timer_text_;
};

}  // namespace zav
