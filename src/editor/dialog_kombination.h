// The map of the 256 addresses, to choose where a device's run begins.
#pragma once

#include <optional>
#include <string>

#include "form/formular.h"

namespace zav {

class Dialog_Kombination final : public Formular {
 public:
  // The present first address as text, "" = none yet, and how many addresses the device takes.
  Dialog_Kombination(std::string aktuell, int anzahl);

  // 256 cells. The text is the number and, behind three blanks, room and storey of the device that holds the
  // address; the tool tip reads "frei" or "besetzt".
  Auswahl Zellen{Auswahl::Form::Raster};
  Schild Label_Frei{"Freie Adressen"}, Label_Besetzt{"Besetzte Adressen"},
      Label_Aktuell{"Aktuelle Adresse(n)"};
  Taste Cancel{"&Abbrechen"};

  // The chosen first address; nothing when the dialog was cancelled.
  const std::optional<int>& gewaehlt() const { return gewaehlt_; }

  // Addresses that the device takes, and whether all of them are free from this one on. Its own do not count
  // as free.
  int anzahl() const { return anzahl_; }
  bool Passt_ab(int n) const;

  Anordnung anordnung() override;

 private:
  void Zellen_zeigen();
  void Zelle_gewaehlt(int n);
  bool Wechsel_bestaetigt(int n) const;

  std::string aktuell_;
  int anzahl_;
  std::optional<int> gewaehlt_;
};

}  // namespace zav
