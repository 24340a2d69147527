#include "weather/wetterlogik.h"

namespace zav {

Anordnung Wetterlogik::anordnung() {
  Anordnung uebersicht = Raster(3);
  for (std::size_t z = 0; z < und_oder; ++z) {
    uebersicht.kinder.emplace_back(Label3[z]);
    uebersicht.kinder.emplace_back(Label4[z]);
    uebersicht.kinder.emplace_back(Text0[z]);
  }
  Anordnung funktion = Gruppe(
      Frame2, Zeile(Check1, Feder(), Text3),
      Zeile(Gruppe(Frame3, std::move(uebersicht), Zeile(Label3[und_oder], Label4[und_oder], Feder()),
                   Zeile(Command2, Feder())),
            Spalte(
                Label5, Combo2, Label6, Combo3,
                Gruppe(Frame4, Raster(2, Text10, Command6, Text11, Command7), Zeile(Command5[0], Feder())),
                Gruppe(Frame5, Raster(2, Text12, Command8, Text13, Command9), Zeile(Command5[1], Feder())))));

  Anordnung bedingungen = Raster(7, Label8[0], Label8[1], Label8[2], Label8[3], Label8[4], Label8[5], Leer());
  for (std::size_t z = 0; z < zeilen; ++z) {
    bedingungen.kinder.emplace_back(Label7[z]);
    bedingungen.kinder.emplace_back(Combo1[z]);
    if (z < wettersensoren) {
      bedingungen.kinder.insert(bedingungen.kinder.end(),
                                {Slider1[z], Text1[z], Label25[z], ProgressBar[z], Label9[z]});
    } else {
      bedingungen.kinder.push_back(z == und_oder ? Anordnung(Label10) : Leer());
      bedingungen.kinder.insert(bedingungen.kinder.end(), 4, Leer());
    }
  }
  return Spalte(TabStrip1, std::move(funktion),
                Gruppe(Frame1, std::move(bedingungen), Knopfzeile(Command10, Command3, Command4)), Feder(),
                Knopfzeile(Command1));
}

}  // namespace zav
