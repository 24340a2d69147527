#include "editor/einmask8.h"

namespace zav {

// Left the tree, in the middle the devices as they hang on the wall, right the page of the chosen device. The
// front end paints the two "Besonders"; a device page by Tastenzeilen().
Anordnung Einmask8::anordnung() {
  Anordnung zeilen = Besonders("apparatseite", Alle(Label_Zeile));
  for (std::size_t n = 0; n < TTxt.size(); ++n) {
    zeilen.kinder.emplace_back(Label_Taste.at(n));
    zeilen.kinder.emplace_back(TTxt.at(n));
    if (n < Combo_LED.size()) {
      zeilen.kinder.emplace_back(Label_LED.at(n));
      zeilen.kinder.emplace_back(Combo_LED.at(n));
    }
    zeilen.kinder.emplace_back(Command15.at(n));
  }
  return Spalte(
      Menue("Ko&mbination", mnuImport, mnuSend),
      Zeile(Spalte(Text_Suche, TreeView1, Zeile(Text6, Text7), Label1),
            Gruppe(Frame1, Besonders("apparaterahmen", Alle(Image3))),
            Gruppe(Frame2, Zeile(Label_Adresse, Command2), Zeile(Command_Wetter, Command_Enocean),
                   Zeile(Slider20, Label_Lux), std::move(zeilen))),
      Kontextmenue("Image3", mnuChoose, mnuChooseEnocean, mnuCut, mnuCopy, mnuPaste, mnuDelete),
      Kontextmenue("Command15", mnuCommand7, mnuEigenschaften, mnuRucksuch, mnuOn, mnuOff, mnuShort),
      Knopfzeile(Command9, Command_Layout, Command13, Feder(), Command11, Command12, Command4, Command3,
                 Feder(), Cancel));
}

}  // namespace zav
