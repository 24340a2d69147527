// "ZAVapp-Eigenschaften" of the keys of one device: how each is shown as a button of the phone app. Works on
// a copy of the device's records, taken over on OK.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "form/formular.h"
#include "store/projekt.h"

namespace zav {

class App_eigenschaften_seite final : public Formular {
 public:
  // d = 16 x Kombination + place of a device with an address; versatz: event offset of the key in hand.
  App_eigenschaften_seite(int d, int versatz);

  Auswahl Tastenwahl{Auswahl::Form::Klappliste, {}, "&Taste"};
  Auswahl Combo2{
      Auswahl::Form::Klappliste, {"Nicht exportieren", "Telefon", "Tablet", "Telefon und Tablet"}, "&Gerät"};
  Auswahl Combo3{Auswahl::Form::Klappliste, {"Im Raum", "Global", "Im Raum und global"}, "&Bereich"};
  Kaestchen Check5{"&Anderer Tastentext"};
  Textfeld Text12;
  Kaestchen Check6{"&Icon"}, Check7{"&Rückmeldung"}, Check8{"B&estätigung"}, Check9{"Als &Szene zeigen"};
  Rahmen Frame1{"Icon"};
  Schild Image5;  // the picture by its index
  Auswahl Combo1;
  Rahmen Frame2{"Rückmeldung"};
  Auswahl Combo4;  // the output, position = stored value
  Rahmen Frame3{"Bestätigung"};
  Auswahl Option1{Auswahl::Form::Optionen,
                  {"Frage 1 bei jedem Tastendruck", "Frage 1 nur, wenn Rückmeldung aus ist",
                   "Frage 2 nur, wenn Rückmeldung ein ist", "Frage 1 und 2 je nach Rückmeldung"}};
  Schild Label25, Label26;
  Textfeld Text15, Text16{"Ja-Text"}, Text17{"Nein-Text"};  // question 1
  Textfeld Text18, Text19{"Ja-Text"}, Text22{"Nein-Text"};  // question 2
  Rahmen Frame4{"Automatisch suchen"};
  Auswahl Option2{Auswahl::Form::Optionen, {"&Diese Taste", "A&lle Tasten"}};
  Schild Label27;
  Taste Command1{"Automatisch s&uchen"};
  Taste Command2{"Eigenschaften dieser Taste lösc&hen"};
  Taste OK{"&OK"}, Cancel{"Abbre&chen"};

  Anordnung anordnung() override;

 private:
  using Satz = std::array<str, app_felder>;

  void Verdrahten();
  void Textfelder_verdrahten();
  void Laden(int versatz);
  void App_seite_zeigen();
  void Sichtbarkeit_setzen();
  void Icon_anzeigen();
  void Iconbild_zeigen();
  void Automatisch_fuellen();
  void Uebernehmen();
  Satz& satz() { return saetze_.at(static_cast<std::size_t>(Tastenwahl.position())); }

  int d_;
  int erstes_ereignis_ = 0;
  std::vector<Satz> saetze_;  // by event offset
};

}  // namespace zav
