// The installation editor: the building as a tree of storeys and Kombinationen, the devices of a Kombination
// as they hang on the wall, and the page of the chosen device with its key texts, LED links and events.
//
// It writes into the project at once; closing brings up to date what follows from the devices. One source a
// subject: einmask8_baum (tree and Kombinationen), _seite (places and the device page), _adressen, _ablage
// (cut, copy, paste), _befehle (events, live commands, LED search, sending, closing), _anordnung.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "editor/apparatseite.h"
#include "editor/ereignislauf.h"
#include "editor/tueren.h"
#include "form/formular.h"
#include "store/projekt.h"

namespace zav {

class Bilderseite;

class Einmask8 final : public Formular {
 public:
  explicit Einmask8(Tueren tueren = {});

  // ---- tree
  Textfeld Text_Suche{"Suc&hen"};
  Baum TreeView1;
  Textfeld Text6{"Kombination"}, Text7{"Nächste freie"};
  Taste Command9{"&Neue Kombination..."}, Command_Layout{"Kombination än&dern..."},
      Command13{"Kombination &löschen"};
  Schild Label1;

  // ---- devices as they hang on the wall
  Rahmen Frame1{"Kombination"};
  std::array<Taste, plaetze> Image3;
  Taste mnuChoose{"Feller + Diverse auswählen"}, mnuChooseEnocean{"Enocean + Diverse auswählen"};
  Taste mnuCut{"Ausschneiden"}, mnuCopy{"Kopieren"}, mnuPaste{"Einfügen"}, mnuDelete{"Löschen"};
  Taste Command11{"A&usschneiden"}, Command12{"&Kopieren"}, Command4{"&Einfügen"}, Command3{"Lös&chen"};

  // ---- the chosen device
  Rahmen Frame2;
  Schild Label_Adresse;
  Taste Command2{"Ad&resse..."}, Command_Wetter{"&Wetterfunktionen..."},
      Command_Enocean{"En&Ocean-Definition..."};
  Schieber Slider20{0, 255, 1, 10};
  Schild Label_Lux;
  std::array<Schild, Apparatseite::zeilen_max> Label_Zeile;
  std::array<Schild, Apparatseite::tasten_max> Label_Taste;
  std::array<Textfeld, Apparatseite::tasten_max> TTxt;
  std::array<Schild, Apparatseite::leds_max> Label_LED;
  std::array<Auswahl, Apparatseite::leds_max> Combo_LED;
  std::array<Taste, Apparatseite::tasten_max> Command15;

  // ---- popup of an event button
  Taste mnuCommand7{"Funktionen bearbeiten..."}, mnuEigenschaften{"ZAVapp-Eigenschaften"},
      mnuRucksuch{"LED-Rückmeldung finden"};
  Taste mnuOn{"Taste drücken"}, mnuOff{"Taste lösen"}, mnuShort{"Kurzimpuls Taste auslösen"};

  // ---- the whole
  Taste mnuImport{"Import"}, mnuSend{"Daten zum ZAVmaster senden"}, Cancel{"&Schliessen"};

  // What a front end needs to draw the device page: its rows from above, each with what belongs side by side.
  // A pointer is null where the row has none.
  struct Tastenzeile {
    Schild* ueberschrift = nullptr;
    Schild* name = nullptr;
    Textfeld* text = nullptr;
    Schild* led_name = nullptr;
    Auswahl* led = nullptr;
    std::vector<Taste*> ereignisse{};
  };
  std::vector<Tastenzeile> Tastenzeilen();

  // Number of the shown Kombination and place; -1 = none.
  int kombination() const { return komb_; }
  int platz() const { return platz_; }
  // Has an event of the key at the place functions? For the painted devices.
  bool Taste_belegt(int platz, int slot) const;

  Anordnung anordnung() override;

 private:
  // A device taken from its place, with everything that is its own.
  struct Apparatkopie {
    struct Funk {
      str id, schluessel, text3;
      i16 empf = 255, art = 0, wert = 0, res1 = 0, res2 = 0;
    };
    struct Slot {
      std::optional<str> text;
      std::optional<i16> led;
    };
    int typ = apparat_leer;
    str adresse, anzahl;
    Funk funk;
    std::array<Slot, Apparatseite::tasten_max> slots{};
    std::vector<Ereigniskopie> ereignisse;
    bool kopie = false;  // from copy; else from cut or delete
  };
  // The arguments of a key that is held down in the master.
  struct Tastendruck {
    std::string geraet, taste;
  };

  // einmask8.cpp
  void Elemente_anmelden();
  void Handler_setzen();
  void Befehle_freigeben();
  int apparat() const { return plaetze * komb_ + platz_; }

  // einmask8_baum.cpp
  void Baum_zeigen();
  void Knoten_gewaehlt();
  void Kombination_zeigen(int k);
  void Kombination_abwaehlen();
  void Kombination_bearbeiten(int k);
  void Neue_kombination();
  void Kombination_loeschen();
  std::string Gesucht() const;
  void Suchen(int beginn);
  void Importbefehl();

  // einmask8_seite.cpp
  void Plaetze_zeigen();
  void Platz_waehlen(int p);
  void Seite_zeigen();
  void Tasten_zeigen(const Apparatseite& seite);
  void Leds_zeigen(const Apparatseite& seite);
  void Ereignisse_faerben();
  void Led_listen_fuellen();
  void Apparat_auswaehlen(Bilderseite&& wahl);
  int Text_slot(int n) const;
  int Led_slot(int n) const;
  void Text_geaendert(int n);
  void Led_geaendert(int n);
  void Lux_geaendert();

  // einmask8_adressen.cpp
  void Adresse_vergeben();

  // einmask8_ablage.cpp
  bool Etwas_da(const std::string& ohne_anzahl, const std::string& leerer_platz) const;
  Apparatkopie Apparat_kopieren(bool kopie) const;
  static void Funk_schreiben(int d, const Apparatkopie::Funk& funk);
  void Platz_leeren();
  void In_ablage_ausschneiden();
  void Ausschneiden();
  void Kopieren();
  void Loeschen();
  void Einfuegen();
  bool Neue_adresse_fuer_einfuegen();
  void Einfuegen_erlauben(bool erlaubt);

  // einmask8_befehle.cpp
  bool Adresse_da() const;
  std::optional<int> Ereignis(int versatz) const;
  void Ereignis_oeffnen(int versatz);
  void Rueckmeldungen_suchen();
  void App_seite_oeffnen();
  void Taste_druecken();
  void Taste_loesen();
  void Kurzimpuls();
  std::optional<Tastendruck> Gewaehlte_taste() const;
  void Abgleichen();
  void Senden();
  void Schliessen();

  Tueren tueren_;
  int komb_ = -1;
  int platz_ = -1;
  int versatz_ = 0;  // event whose popup was opened
  bool einfuegbar_ = false;
  std::optional<Apparatkopie> ablage_;
  std::optional<Tastendruck> gedrueckt_;
  std::vector<std::string> led_texte_;
};

}  // namespace zav
