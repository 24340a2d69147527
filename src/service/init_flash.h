// "Daten ---> ZAVmaster senden": the transfer of the project, the erase of the master, and the query of what
// it holds.
#pragma once

#include "form/formular.h"
#include "transfer/uebertragung.h"

namespace zav {

class Init_flash final : public Formular, private Beobachter {
 public:
  Init_flash();

  Rahmen Frame1{"ZAVmaster"};
  Textfeld Text2{"Version"};
  Textfeld Text6{"Projekt im ZAVmaster"};
  Taste Command5{"Info &holen"};
  Kaestchen Check1{"Eingangs- und Wetterfunktionen beim Senden sperren (= Zeitgewinn)"};
  Textfeld Text1{"Ablauf"};
  Textfeld Text3{"Korrigierte Fehler"};
  Schild Label1{"Gesamter Vorgang"}, Label2{"Aktueller Vorgang"};
  Balken ProgressBar1, ProgressBar2;
  Taste Command1{"&Initialisieren"}, Command6{"&Neustart ZAVmaster"};
  Taste Command3{"&Daten zum ZAVmaster senden"};
  Taste Command2{"&Übertragung abbrechen"}, Cancel{"&Schliessen"};

  Anordnung anordnung() override;
  void schliessen_wuenschen() override;

 private:
  // Beobachter: what the running operation reports.
  void Protokoll_leeren() override { Text1.setzen(""); }
  void Protokoll(std::string_view text) override { Text1.anhaengen(text); }
  void Fortschritt_zeigen(const Fortschritt& f) override;
  void Korrigiert_zeigen(int anzahl) override { Text3.setzen(std::to_string(anzahl)); }
  void Version_zeigen(std::string_view version) override { Text2.setzen(std::string(version)); }
  void Befehle_freigeben(bool frei) override;

  void Senden();
  void Initialisieren();
  void Info_holen();
  // After a transfer, when a receiver's table has changed.
  static void Empfaenger_aktualisieren();

  Uebertragung uebertragung_{*this};
  bool sendet_ = false;
};

}  // namespace zav
