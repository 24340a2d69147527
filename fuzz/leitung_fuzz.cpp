// The link's replies through whole operations. In place of the sockets stands a master in this process: the
// simulated one, whose replies the input cuts, stretches, replaces and withholds.
#include <algorithm>
#include <string>

#include "basis/melder.h"
#include "eingabe.h"
#include "enocean/programmieren.h"
#include "gegenueber.h"
#include "link/leitung.h"
#include "link/protokoll.h"
#include "platform/einstellungen.h"
#include "platform/uhrwerk.h"
#include "simulator/master.h"
#include "store/sitzung.h"
#include "transfer/uebertragung.h"
#include "transfer/uhr_stellen.h"

namespace zav {
namespace {

// A master that does what the input says to its replies.
struct Launischer_master : Gegenueber {
  explicit Launischer_master(Eingabe& e) : eingabe(e) {}

  void hoeren(std::string_view bytes) override {
    simulator::Ausgabe aus;
    for (const char c : bytes) master.empfangen(zustand, c, aus);
    switch (const std::size_t wahl = eingabe.leer() ? 0 : eingabe.byte(); wahl % 8) {
      case 0:
      case 1:
      case 2: da += aus.bytes; break;
      case 3:  // cut
        da += aus.bytes.substr(0, aus.bytes.size() - std::min(aus.bytes.size(), wahl / 8));
        break;
      case 4:  // something else
        da += eingabe.text(wahl / 8);
        break;
      case 5:  // something before
        da += eingabe.text(wahl / 8);
        da += aus.bytes;
        break;
      case 6:  // something behind
        da += aus.bytes;
        da += eingabe.text(wahl / 8);
        break;
      case 7: weg = wahl / 8 < 4; break;
    }
  }

  Eingabe& eingabe;
  simulator::Master master{"REV 09.04"};
  simulator::Zustand zustand;
};

// Agrees to everything.
class Jasager : public Melder {
 public:
  Antwort Melden(const Meldung& m) override { return m.knoepfe == Knoepfe::OK ? Antwort::OK : Antwort::Ja; }
};

void Projekt_anlegen() {
  projekt.Projekt_name = "Haus";
  projekt.Datei_version = "910";
  projekt.Projekt_kennung = "0000000000000000";
  projekt.Ein_relais(5, 7) = 3;
  projekt.Uhr_timer(9, 1) = 2;
  projekt.Tev_dimmer(63, 127, 3) = 50;
  projekt.Enocean_empf_da[3] = 1;
}

void Vormerken() {
  projekt.Ein_leer[5] = projekt.Ein_funktext[5] = 1;
  projekt.Uhr_leer[9] = projekt.Uhr_funktext[9] = 1;
  projekt.Tev_leer[63] = projekt.Tev_funktext[63] = 1;
  projekt.Uhr_tabelle_geaendert = 0;
  std::ranges::fill(projekt.Grp_led.alle(), i16{0});
  projekt.Grp_led[0] = 1;
}

void Ausfuehren(std::size_t vorgang) {
  Beobachter niemand;
  Uebertragung u(niemand);
  u.Check1 = vorgang & 8;
  Enocean_anzeige anzeige;
  switch (vorgang % 8) {
    case 0:
    case 1: u.Senden_starten(); break;
    case 2: Enocean_programmieren(true, anzeige); break;
    case 3:
      if (u.Initialisieren()) u.Senden_starten();
      break;
    case 4: Uhr_stellen({.Akt_zeit_text = "08:15:30", .Akt_datum_text = "04.05.2026"}); break;
    case 5: Master_abfragen(); break;
    case 6: Neustart_ausfuehren(); break;
    case 7:
      Can_senden("0201", "02", "5341000000000000");
      Ereignis_erzeugen("0400", "00", "01");
      break;
  }
}

}  // namespace

}  // namespace zav

using namespace zav;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  static Jasager jasager;
  Melder_setzen(&jasager);
  Zeitraffer_setzen(1e6);
  Heute_setzen({2026, 5, 4});
  Zufall_saeen(7);
  einstellungen.Com_art = 1;
  Com_art_setzen();
  Projekt_anlegen();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t n) {
  Eingabe e(bytes, n);
  const std::size_t vorgang = e.byte();
  Launischer_master launisch(e);
  gegenueber = &launisch;
  Vormerken();
  Ausfuehren(vorgang);
  Verlangen(leitung.Tcp_socket < 0, "the line is closed after every operation");
  if (vorgang % 8 > 1) return 0;
  // A master that answers as it should gets everything, whatever came before.
  Eingabe nichts(nullptr, 0);
  Launischer_master brav(nichts);
  gegenueber = &brav;
  Beobachter niemand;
  Uebertragung u(niemand);
  Verlangen(u.Senden_starten() == Sendeergebnis::gesendet, "the next good run is good");
  Verlangen(
      projekt.Ein_funktext[5] + projekt.Uhr_funktext[9] + projekt.Tev_funktext[63] + projekt.Grp_led[0] == 0,
      "nothing is left to send");
  return 0;
}
