// Turns a form's layout tree into widgets.
#pragma once

#include <QLayout>
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

// Property of a widget that has a place of its own in the manual.
inline constexpr const char* handbuchstelle = "handbuchstelle";

// What came of a layout tree.
struct Gebautes {
  QWidget* inhalt = nullptr;
  bool randlos = false;                              // the content reaches to the window's edges
  QWidget* knopfzeile = nullptr;                     // the dialog's own buttons, when they end the tree
  std::vector<QMenu*> menues;                        // top-level menus, in order
  std::map<std::string, QMenu*> kontextmenues;       // by title
  std::map<const Steuerelement*, QWidget*> widgets;  // of every control but menu items
};

// Fills `ergebnis`, which painted widgets keep: it must live as long as they do. A popup menu opens on the
// controls whose name is its title ("Command15" for Command15(0) to Command15(23)).
// `titel` names what has no name of its own.
void Aufbauen(const Anordnung& a, Auffrischer& auffrischer, QWidget* eltern, Gebautes& ergebnis,
              const QString& titel);

// Opens the popup menu of a control at a place of the screen, after the control's own handler for the right
// button.
void Kontextmenue_zeigen(Steuerelement& e, const Gebautes& g, Auffrischer& auffrischer, QPoint stelle);

// A painted widget for a node Besonders(name, ...): gets the node (its children are the controls that it
// shows and serves) and builds the widget; adds to `widgets` what it shows. An unknown name is laid out as a
// column.
using Besonderer_bau = QWidget* (*)(const Anordnung&, Auffrischer&, QWidget* eltern, Gebautes&);
Besonderer_bau Besonderer_bau_von(const std::string& name);

// For the builders of painted widgets: the tree below a node as one widget.
QWidget* Teil_bauen(const Anordnung& a, Auffrischer& auffrischer, QWidget* eltern, Gebautes& ergebnis);

}  // namespace zav::fenster
