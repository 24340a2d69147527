// Every window of the program over the loaded project, in the states worth seeing: for the pictures of the
// manual, for the test that walks all forms and for the benchmark of their opening.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "form/formular.h"
#include "form/oberflaeche.h"

namespace zav::fenster {

class Formfenster;

// A command that works for longer, stopped where its window has something to show.
struct Vorgang {
  std::function<void(Formular&)> beginnen;
  std::function<bool(const Formular&)> sehenswert;  // asked at every turn of the event loop
  std::function<void(Formular&)> beenden;
};

struct Schaustueck {
  std::string name;  // of the picture
  std::function<std::unique_ptr<Formular>()> bauen;
  Vorgang vorgang{};
};

// Boxes answer themselves with what changes nothing, and are remembered; other forms do not open.
class Stille_oberflaeche final : public Oberflaeche {
 public:
  Antwort Melden(const Meldung& m) override {
    texte.push_back(m.text);
    return Vorsichtige_antwort(m.knoepfe);
  }
  void DoEvents() override {
    if (bei_doevents) bei_doevents();
  }
  void Zeigen(Formular& /*f*/) override {}
  std::optional<Dateiwahl> Datei_oeffnen(const Dateifrage& /*f*/) override { return std::nullopt; }
  std::optional<Dateiwahl> Datei_speichern(const Dateifrage& /*f*/) override { return std::nullopt; }
  std::vector<std::string> texte;
  std::function<void()> bei_doevents;
};

// Forms read the project when they are built: load it before. Weather and the pieces with a Vorgang ask the
// master of the settings.
std::vector<Schaustueck> Formenschau();

// Builds the piece's form and its window, shows it as a user would find it, and calls betrachten when there
// is something to see: at once, or in the middle of its Vorgang, which is then ended. False when the Vorgang
// never came that far.
bool Vorfuehren(const Schaustueck& stueck, Stille_oberflaeche& oberflaeche,
                const std::function<void(Formfenster&)>& betrachten);

}  // namespace zav::fenster
