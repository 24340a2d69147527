// The time rule of one switching time, with its picture on the 24 hours of any day of the year.
#pragma once

#include <optional>
#include <string>

#include "form/formular.h"
#include "time/schaltregel.h"
#include "time/tagesbild.h"

namespace zav {

class Uhr_Astro final : public Formular {
 public:
  // Clock event 0 to 255, what the switching time is for, and the time text of its row.
  Uhr_Astro(int ereignis, const std::string& bezeichnung, const std::string& zeit);

  // The row's new time text after OK; nothing as long as the row stays as it was. The rule itself stands in
  // the project then.
  std::optional<std::string> zeit_neu;

  // What the scale shows; nothing before the first good check.
  const std::optional<Tagesbild>& bild() const { return bild_; }
  // Checks the fields that the mode uses, with its messages; false when one has failed. A bound that was
  // broken has been put in and does not count as a failure.
  bool Uhr_Astro_pruefen();

  Auswahl Combo_Astro{Auswahl::Form::Klappliste, {}, "Schaltart"};
  Textfeld Text14{"Schaltzeit"};
  Schild Label3;

  Rahmen Frame3;  // all that follows the sun
  Rahmen Frame4{"Art des Zeitversatzes"};
  Auswahl Option3;
  Textfeld Text15;
  Rahmen Frame5{"Verhalten bestimmen, wenn die berechnete Schaltzeit früher als die folgende Zeitlimite ist"};
  Kaestchen Check1{"Wenn früher als"};
  Textfeld Text16;
  Auswahl Option4;
  Rahmen Frame7{"Verhalten bestimmen, wenn die berechnete Schaltzeit später als die folgende Zeitlimite ist"};
  Kaestchen Check2{"Wenn später als"};
  Textfeld Text17;
  Auswahl Option5;

  Rahmen Frame6{"Schaltzeit innerhalb folgender Grenzen mit einem Zufallswert verändern"};
  Kaestchen Check3{"Früher (bis max. 30 Minuten):"};
  Textfeld Text18;
  Kaestchen Check4{"Später (bis max. 30 Minuten):"};
  Textfeld Text19;

  Rahmen Frame8{"Tag"};  // the day that the picture shows; only the sun rules have one
  Schild Label2, Label4, Label10;
  Schild Label11;  // the picture in words; tells the front end of every new picture
  Schieber Slider1{1, 365, 1, 30};
  Taste Command2{"<"}, Command3{">"}, Command6{"&Heute"};

  Taste Command7{"&Werte von oben übernehmen"}, Command5{"&Sonnen-Info"};
  Taste Command1{"&OK"}, Command4{"&Abbrechen"};

  Anordnung anordnung() override;
  void beim_oeffnen() override;

 private:
  void Verdrahten();
  void Laden(const std::string& zeit);
  void Modus_gewaehlt();
  // Enables and empties the fields by their boxes and the offset; shows the frames of the mode.
  void Felder_freigeben();
  void Versatz_gewaehlt();
  // Checks, and shows the picture of what has passed.
  void Vorschau();
  // The picture of fields that stand as they are, without a word where one does not.
  void Mitzeichnen();
  void Zeichnen();
  void Bestaetigen();

  Zeitregel modus() const { return static_cast<Zeitregel>(Combo_Astro.position()); }
  bool ohne_versatz() const { return Option3.position() == 0; }
  // The rule as the fields hold it.
  Schaltregel regel() const;
  Datum tag() const;

  const int ereignis_;
  std::string feste_zeit_;  // last content of Text14 in a fixed mode, for the way back from a sun mode
  std::optional<Tagesbild> bild_;
};

}  // namespace zav
