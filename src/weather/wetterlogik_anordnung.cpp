#include "weather/wetterlogik.h"

namespace zav {

Anordnung Wetterlogik::anordnung() {
  Anordnung uebersicht = Raster(3);
  for (std::size_t z = 0; z < zeilen; ++z) {
    uebersicht.kinder.emplace_back(Label3[z]);
    uebersicht.kinder.emplace_back(Label4[z]);
    uebersicht.kinder.push_back(z < Text0.size() ? Anordnung(Text0[z]) : Leer());
  }
  Anordnung funktion =
      Gruppe(Frame2, Zeile(Check1, Feder(), Text3),
             Zeile(Gruppe(Frame3, std::move(uebersicht), Zeile(Command2, Feder())),
                   Spalte(Label5, Combo2, Label6, Combo3,
                          Gruppe(Frame4, Zeile(Text10, Command6), Zeile(Text11, Command7), Command5[0]),
                          Gruppe(Frame5, Zeile(Text12, Command8), Zeile(Text13, Command9), Command5[1]))));

  Anordnung bedingungen = Raster(6);
  for (std::size_t z = 0; z < zeilen; ++z) {
    bedingungen.kinder.emplace_back(Label7[z]);
    bedingungen.kinder.emplace_back(Combo1[z]);
    if (z < wettersensoren) {
      bedingungen.kinder.insert(bedingungen.kinder.end(), {Slider1[z], Text1[z], Label25[z], ProgressBar[z]});
    } else {
      bedingungen.kinder.insert(bedingungen.kinder.end(), 4, Leer());
    }
  }
  return Spalte(TabStrip1, std::move(funktion),
                Gruppe(Frame1, std::move(bedingungen), Knopfzeile(Command10, Command3, Command4)), Feder(),
                Knopfzeile(Command1));
}

}  // namespace zav
