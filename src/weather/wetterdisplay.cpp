#include "weather/wetterdisplay.h"

#include "basis/melder.h"

namespace zav {

namespace {

constexpr const char* nichts = "---";
constexpr std::size_t zeile_richtung = 7;
constexpr std::size_t zeile_niederschlag = 8;

}  // namespace

Wetterdisplay::Wetterdisplay() : Formular("Wetterdisplay", "Wetterinfos") {
  anmelden("Image5", Image5);
  anmelden("Image1", Image1);
  anmelden("Label2", Label2);
  anmelden("Label24", Label24);
  anmelden("ProgressBar", ProgressBar);
  anmelden("Label1", Label1);
  anmelden("Text2", Text2);
  anmelden("Command2", Command2);
  anmelden("Command1", Command1);

  Image5.ueberschrift = true;
  for (std::size_t s = 0; s < wettersensoren; ++s) {
    Label2[s].titel = std::string(Sensor_name(s));
    Image1[s].bild = std::string(Sensor_bild(s));
  }
  Image1[zeile_richtung].bild = "kompass";
  Image1[zeile_niederschlag].bild = "regen";
  for (Schild& s : Label24) s.zahl = true;
  Label1.zahl = true;
  Wetterbild_zeigen({});
  Label2[zeile_richtung].titel = "Windrichtung";
  Label2[zeile_niederschlag].titel = "Niederschlag";
  Text2.nur_lesen = true;
  Command2.hinweis = "Die aktuellen Werte nochmals vom ZAVmaster holen";
  Command2.wenn_gedrueckt = [this] { Abfragen(); };
  Command2.standard = true;
  Command1.wenn_gedrueckt = [this] { schliessen(); };
  Command1.abbruch = true;
}

void Wetterdisplay::Wetterbild_zeigen(const Wetterwerte& w) {
  const Wetterbild b = Wetterbild_von(w);
  Image5.bild = std::string(b.bild);
  Image5.titel = Image5.hinweis = std::string(b.worte);
}

void Wetterdisplay::Abfragen() {
  for (Schild& s : Label24) s.titel = nichts;
  Label1.titel = nichts;
  Wetterbalken_leeren(ProgressBar);
  Wetterbild_zeigen({});
  Text2.setzen(nichts);
  // The line serves one command at a time, and the window stays alive meanwhile.
  Command2.frei = Command1.frei = false;
  const std::string antwort = Wetter_abfragen();
  Command2.frei = Command1.frei = true;
  if (antwort.empty()) return;

  Text2.setzen(antwort);
  using Stand = Wetterwerte::Stand;
  const Wetterwerte w = Wetter_entschluesseln(antwort);
  Wetterbild_zeigen(w);
  if (w.stand == Stand::gut || w.stand == Stand::defekt) {
    Label24[zeile_niederschlag].titel = std::string(Niederschlag_text(w));
  }
  if (w.stand != Stand::gut) {
    Melden(std::string(Wetterstand_text(w.stand)));
    return;
  }
  for (std::size_t s = 0; s < wettersensoren; ++s) Label24[s].titel = Wetterwert_text(s, w.werte[s]);
  Wetterbalken_zeigen(ProgressBar, w);
  Label1.titel = Wind_in_kmh(*ProgressBar[windgeschwindigkeit].wert);
}

Anordnung Wetterdisplay::anordnung() {
  Anordnung raster = Raster(5);
  for (std::size_t z = 0; z < Label24.size(); ++z) {
    raster.kinder.emplace_back(Image1[z]);
    raster.kinder.emplace_back(Label2[z]);
    raster.kinder.emplace_back(Label24[z]);
    raster.kinder.push_back(z < wettersensoren ? Anordnung(ProgressBar[z]) : Leer());
    raster.kinder.push_back(z == windgeschwindigkeit ? Anordnung(Label1) : Leer());
  }
  return Spalte(Zeile(Image5, std::move(raster)), Zeile(Text2), Feder(), Knopfzeile(Command2, Command1));
}

}  // namespace zav
