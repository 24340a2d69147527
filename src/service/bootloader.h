// "Update-Assistent": replaces the master's operating system.
#pragma once

#include <array>
#include <string>

#include "form/formular.h"
#include "service/firmware.h"

namespace zav {

class Bootloader final : public Formular, private Updatebeobachter {
 public:
  Bootloader();

  static constexpr std::size_t schritte = 6;

  std::array<Schild, schritte> Label1;
  Taste Command9{"Update-Datei wählen und ZAVmaster updaten (über &COM-Port)"};
  Taste Command10{"Update-Datei wählen und ZAVmaster updaten (über &Ethernet)"};
  Rahmen Frame1{"ASCII-Verzögerung"};
  Auswahl Option1{Auswahl::Form::Optionen,
                  {"Keine", "1 Millisekunde pro Zeile", "10 Millisekunden pro Zeile"}};
  Textfeld Text1{"Ablauf"};
  Balken ProgressBar1;
  Taste Command8{"&Schliessen"};

  Anordnung anordnung() override;
  void schliessen_wuenschen() override;

 private:
  void Schritt_zeigen(int nr, const std::string& text) override;
  void Protokoll(const std::string& text) override { Text1.anhaengen(text); }
  void Fortschritt_zeigen(double wert, double bis) override;
  void Abbruch_freigeben(bool frei) override;

  void Starten(Updateweg weg);
  void Beschriften();
  void Schliessen();

  Firmware_update update_{*this};
  std::string Update_datei_;
  bool laeuft_ = false;
};

}  // namespace zav
