#include "shell/fotos.h"

#include <algorithm>
#include <array>

#include "basis/liste.h"
#include "store/sitzung.h"

namespace zav {

namespace {

struct Schema {
  const char* titel;
  const char* bild;
};
constexpr std::array schemas{
    Schema{"Aufbau von ZAVnet",
           "  PC mit ZAVlink\r\n"
           "       │ RS232 / USB / Ethernet, 115200 8N1\r\n"
           "  ┌────┴─────┐\r\n"
           "  │ ZAVmaster│\r\n"
           "  └────┬─────┘\r\n"
           "       │ ZAVnet\r\n"
           "  ┌────┴────┬──────────┬──────────┬──────────┐\r\n"
           "ZAVin    ZAVswitch  ZAVmotor  ZAVdimmer  ZAVmodul\r\n"
           "Tasten,  8 Relais   4 Storen  4 Dimmer\r\n"
           "Melder   O0-0..     O1-0..    D0-0..\r\n"},
    Schema{"Nummern der Ausgänge",
           "Relais:  Baugruppe 0 bis 63 zu acht     Dimmer:  Baugruppe 0 bis 31 zu vier\r\n\r\n"
           "   O3-0 O3-1 O3-2 O3-3 O3-4 O3-5 O3-6 O3-7     D1-0 D1-1 D1-2 D1-3\r\n"
           "   └─────┬────┘                                Nummer 512 + 4 x 1 + n\r\n"
           "   Nummer 8 x 3 + n\r\n"},
    Schema{"Storen an zwei Relaisausgängen",
           "                gerade  (O1-0)   auf ▲\r\n"
           "   L ──┬───────── Relais ─────────┐\r\n"
           "       │                          M  Storenmotor ── N\r\n"
           "       └───────── Relais ─────────┘\r\n"
           "                ungerade (O1-1)  ab ▼\r\n\r\n"
           "   Nie beide zugleich: das Funktionsfenster sperrt den anderen Ausgang.\r\n"},
    Schema{"Adressen und Ereignisse",
           "   Eine Adresse ist eine Gruppe von vier Eingängen, 0 bis 255.\r\n\r\n"
           "   Adresse i12:   Taste 1   Taste 2   Taste 3   Taste 4\r\n"
           "   Ereignis         48        49        50        51      = 4 x Adresse + Taste\r\n\r\n"
           "   Ein Sechsfachtaster braucht zwei Adressen, die zweite nur halb.\r\n"},
    Schema{"Timer, ein Ablauf in vier Schritten",
           "   Start ──── Zeit 1 ───► 2 ──── Zeit 2 ───► 3 ──── Zeit 3 ───► Ende\r\n"
           "   Startfunktion 1    Zwischenfunktion 2    Zwischenfunktion 3    Endfunktion 4\r\n\r\n"
           "   Treppenhaus: Startfunktion 1 = Ein, Zeit 1 = 00.03.00, Endfunktion 4 = Aus\r\n"},
};

}  // namespace

Fotos::Fotos() : Formular("Fotos", "Schemas") {
  anmelden("List1", List1);
  anmelden("Text1", Text1);
  anmelden("Command1", Command1);
  anmelden("Command2", Command2);
  anmelden("OK", OK);

  List1.fuellen(Texte(schemas, &Schema::titel));
  List1.wenn_geaendert = [this] { Zeigen(); };
  Text1.nur_lesen = true;
  Text1.mehrzeilig = Text1.festbreit = true;
  Text1.breite = 56;
  Command1.wenn_gedrueckt = [this] { List1.setzen(List1.position() - 1); };
  Command2.wenn_gedrueckt = [this] { List1.setzen(List1.position() + 1); };
  OK.wenn_gedrueckt = [this] { schliessen(); };
  OK.standard = true;
  OK.abbruch = true;
  List1.setzen(std::clamp<int>(sitzung.Foto_nr, 1, List1.anzahl()) - 1);
}

void Fotos::Zeigen() {
  const int n = List1.position();
  sitzung.Foto_nr = static_cast<u8>(n + 1);
  Text1.setzen(schemas.at(static_cast<std::size_t>(n)).bild);
  Command1.sperren(n <= 0, "Dies ist das erste Schema");
  Command2.sperren(n + 1 >= List1.anzahl(), "Dies ist das letzte Schema");
}

Anordnung Fotos::anordnung() {
  return Spalte(Zeile(List1, Text1), Knopfzeile(Command1, Command2, Feder(), OK));
}

}  // namespace zav
