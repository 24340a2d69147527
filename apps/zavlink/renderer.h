// Turns a form's layout tree into widgets.
#pragma once

#include <QMenu>
#include <QWidget>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "form/anordnung.h"
#include "form/formular.h"
#include "zavlink/bindung.h"

namespace zav::fenster {

// What came of a layout tree.
struct Gebautes {
  QWidget* inhalt = nullptr;
  std::vector<QMenu*> menues;                        // top-level menus, in order
  std::map<std::string, QMenu*> kontextmenues;       // by title
  std::map<const Steuerelement*, QWidget*> widgets;  // of every control but menu items
};

Gebautes Aufbauen(const Anordnung& a, Auffrischer& auffrischer, QWidget* eltern);

// A painted widget for a node Besonders(name, ...): gets the node (its children are the controls that it shows and
// serves) and builds the widget. Registered once at program start; an unknown name is laid out as a column.
using Besonderer_bau = std::function<QWidget*(const Anordnung&, Auffrischer&, QWidget* eltern, Gebautes&)>;
void Besonders_anmelden(const std::string& name, Besonderer_bau bau);

}  // namespace zav::fenster
