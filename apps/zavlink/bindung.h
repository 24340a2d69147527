// One widget for one control: the widget forwards the user's act, a change of the control refreshes the
// widget.
#pragma once

#include <QAction>
#include <QWidget>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "form/steuerelement.h"

namespace zav::fenster {

// Collects the controls of a form that have changed and refreshes their widgets once, on the next turn of the
// event loop: a command that touches hundreds of controls costs one repaint.
class Auffrischer final : public QObject {
  Q_OBJECT
 public:
  explicit Auffrischer(QObject* eltern);
  ~Auffrischer() override;

  // auffrischen() brings a widget to the state of the control. Runs once at once, later after every change. A
  // control may have several: its own widget's first, then captions and the like in the order of binding.
  void binden(Steuerelement& e, std::function<void()> auffrischen);
  // Refreshes what is waiting now.
  void nachholen();
  // Refreshes everything on the next turn: what widgets have taken over from the palette has changed.
  void alles_vormerken();

 private:
  struct Eintrag {
    Steuerelement* element;
    std::vector<std::function<void()>> auffrischen{};
    bool wartet = false;
  };
  void vormerken(Eintrag& e);
  std::vector<std::unique_ptr<Eintrag>> eintraege_;
  std::unordered_map<const Steuerelement*, Eintrag*> nach_element_;
  bool bestellt_ = false;
};

// The widget of a control, bound.
QWidget* Bauen(Steuerelement& e, Auffrischer& auffrischer, QWidget* eltern);

// The menu action of a key or a check box, bound likewise.
QAction* Aktion_bauen(Steuerelement& e, Auffrischer& auffrischer, QObject* eltern);

// Runs a user's act on a form. An error in a rule shows as a box and does not end the program.
void Handeln(const std::function<void()>& tat);
// Handeln() for an act on a control; brings the widget back where the form has refused.
void Handeln(Steuerelement& e, const std::function<void()>& tat);

// What every widget takes from its control: enabled, visible, tool tip, names.
void Gemeinsames(QWidget& w, const Steuerelement& e);

}  // namespace zav::fenster
