// The port of the forms, as windows.
#pragma once

#include <QElapsedTimer>
#include <vector>

#include "form/oberflaeche.h"

class QCheckBox;
class QFileDialog;
class QWidget;

namespace zav::fenster {

class Formfenster;

class Qt_oberflaeche final : public Oberflaeche {
 public:
  Antwort Melden(const Meldung& m) override;
  void Piep() override;
  // The busy pointer comes with a turn, once the work has taken longer than half a second.
  void Zeiger_setzen(Zeiger z) override;
  void Hinweis(const std::string& text) override;
  void DoEvents() override;
  void Zeigen(Formular& f) override;
  std::optional<Dateiwahl> Datei_oeffnen(const Dateifrage& f) override;
  std::optional<Dateiwahl> Datei_speichern(const Dateifrage& f) override;
  std::optional<std::string> Ordner_waehlen(const std::string& beginn) override;
  Umschalttasten Tasten() override;
  void Zwischenablage(const std::string& text) override;

 private:
  class Wartepause;
  // The window in front: what opens next stands over it, also while another program has the keyboard.
  QWidget* vorne() const;
  void Hinweis_zeigen(const std::string& text);
  std::optional<Dateiwahl> Fragen(QFileDialog& d, const QCheckBox* schutz);
  std::vector<Formfenster*> offene_;
  QElapsedTimer wartezeit_;  // valid while a longer work is under way
  bool zeiger_wartet_ = false;
  bool hinweis_da_ = false;
};

}  // namespace zav::fenster
