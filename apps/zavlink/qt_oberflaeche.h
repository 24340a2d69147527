// The port of the forms, as windows.
#pragma once

#include "form/oberflaeche.h"

class QWidget;

namespace zav::fenster {

class Qt_oberflaeche final : public Oberflaeche {
 public:
  Antwort Melden(const Meldung& m) override;
  void Piep() override;
  void Zeiger_setzen(Zeiger z) override;
  void Hinweis(const std::string& text) override;
  void DoEvents() override;
  void Zeigen(Formular& f) override;
  std::optional<Dateiwahl> Datei_oeffnen(const Dateifrage& f) override;
  std::optional<Dateiwahl> Datei_speichern(const Dateifrage& f) override;
  std::optional<std::string> Ordner_waehlen(const std::string& beginn) override;
  Umschalttasten Tasten() override;
  void Zwischenablage(const std::string& text) override;
};

}  // namespace zav::fenster
