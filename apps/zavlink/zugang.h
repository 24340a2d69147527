// What assistive programs are told of painted widgets, beside name and description.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace zav::fenster {

// The role of a widget that Qt would only know as a piece of window.
void Rolle_setzen(QWidget& w, QAccessible::Role rolle);
// The description that is read aloud; a change is announced.
void Beschreiben(QWidget& w, const QString& text);

}  // namespace zav::fenster
