// "Datei": the commands on whole projects. Closes after each of them.
#pragma once

#include <string>

#include "form/formular.h"

namespace zav {

class Datei final : public Formular {
 public:
  Datei();

  Rahmen Frame1{"Dateioperationen"};
  Schild Label1;  // generation of the project
  Taste New{"&Neues Projekt erstellen..."};
  Taste Command2{"&Bestehendes Projekt öffnen..."};
  Taste Command3{"Projekt &speichern"};
  Taste Command1{"P&rojekt speichern unter..."};
  Taste Command4{"ZAVa&pp..."};
  Taste Drucken{"&Drucken in Datei..."};
  Taste Cancel{"&Abbrechen"};

  Anordnung anordnung() override;

 private:
  void Neu();
  void Oeffnen();
  void Speichern_befehl();
  void Exportieren();
  void App_oeffnen();
  void Bericht_schreiben();
};

}  // namespace zav
