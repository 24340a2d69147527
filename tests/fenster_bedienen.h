// Acts of a person on any widget, for those who go through all forms.
#pragma once

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSlider>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <QTreeWidget>

namespace zav::fenster {

// A person's act on a widget; false when it has none here.
inline bool Bedienen(QWidget& w) {
  if (auto* const f = qobject_cast<QLineEdit*>(&w); f != nullptr && !f->isReadOnly()) {
    f->selectAll();
    QTest::keyClicks(f, "7");
  } else if (auto* const p = qobject_cast<QPlainTextEdit*>(&w); p != nullptr && !p->isReadOnly()) {
    QTest::keyClicks(p, "7");
  } else if (auto* const k = qobject_cast<QCheckBox*>(&w)) {
    k->click();
  } else if (auto* const l = qobject_cast<QComboBox*>(&w); l != nullptr && l->count() > 1) {
    QTest::keyClick(l, l->currentIndex() + 1 < l->count() ? Qt::Key_Down : Qt::Key_Up);
  } else if (auto* const z = qobject_cast<QListWidget*>(&w); z != nullptr && z->count() > 1) {
    QTest::keyClick(z, z->currentRow() + 1 < z->count() ? Qt::Key_Down : Qt::Key_Up);
  } else if (auto* const r = qobject_cast<QTabBar*>(&w); r != nullptr && r->count() > 1) {
    QTest::keyClick(r, r->currentIndex() + 1 < r->count() ? Qt::Key_Right : Qt::Key_Left);
  } else if (auto* const s = qobject_cast<QSlider*>(&w)) {
    QTest::keyClick(s, s->value() < s->maximum() ? Qt::Key_Right : Qt::Key_Left);
  } else if (auto* const m = qobject_cast<QCalendarWidget*>(&w)) {
    auto* const tage = m->findChild<QTableView*>();
    QTest::keyClick(tage, Qt::Key_Down);
    QTest::keyClick(tage, Qt::Key_Return);
  } else if (auto* const b = qobject_cast<QTreeWidget*>(&w)) {
    QTest::keyClick(b, Qt::Key_Down);
  } else if (const auto* const g = w.findChild<QButtonGroup*>()) {
    for (QAbstractButton* const knopf : g->buttons()) {
      if (knopf->isEnabled() && !knopf->isChecked()) return knopf->click(), true;
    }
    return false;
  } else {
    return false;
  }
  return true;
}

}  // namespace zav::fenster
