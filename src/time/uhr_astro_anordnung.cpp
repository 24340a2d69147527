#include "time/uhr_astro.h"

namespace zav {

Anordnung Uhr_Astro::anordnung() {
  return Spalte(
      Zeile(Combo_Astro, Text14, Label3, Feder()),
      Gruppe(Frame3, Gruppe(Frame4, Zeile(Option3, Text15, Feder())),
             Gruppe(Frame5, Zeile(Check1, Text16, Option4, Feder())),
             Gruppe(Frame7, Zeile(Check2, Text17, Option5, Feder()))),
      Gruppe(Frame6, Zeile(Check3, Text18, Check4, Text19, Feder())),
      // The scale reads the form's picture; its frame of the day is missing for the fixed times.
      Besonders("Tagesskala", Zeile(Label11, Feder(), Label10),
                Gruppe(Frame8, Zeile(Label2, Label4, Feder()), Zeile(Command2, Slider1, Command3, Command6))),
      Knopfzeile(Command7, Command5, Feder(), Command1, Command4));
}

}  // namespace zav
