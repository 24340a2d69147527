// What a person does in the windows and boxes that open one after the other. Each step waits for its window,
// as long as that moves at all; a story that stands still names the step and what is on the screen, and ends
// the test.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <cstdlib>
#include <deque>
#include <functional>
#include <iostream>

#include "fenster_hilfen.h"
#include "zavlink/qt_text.h"

namespace zav::fenster {

class Schritte final : public QObject {
 public:
  using Tat = std::function<void(Formfenster&)>;
  using Bereit = std::function<bool(Formfenster&)>;

  Schritte() { bestellen(); }
  // In the topmost window of that form, as soon as it is ready.
  void in_fenster(const QString& form, std::string was, Tat tat, Bereit bereit = nullptr) {
    offen_.push_back({form, std::move(was), std::move(tat), std::move(bereit)});
  }
  // A box with this text, answered by the key of that caption.
  void antworten(const QString& text, const QString& knopf) {
    offen_.push_back({"", "box: " + S(text), nullptr, nullptr, text, knopf});
  }
  bool fertig() const { return offen_.empty(); }

 private:
  static constexpr qint64 geduld_ms = 20'000;
  struct Schritt {
    QString form;  // "" = a box
    std::string was;
    Tat tat;
    Bereit bereit;
    QString text{}, knopf{};
  };

  // A step may open a window and come back only when that has closed: the next look is ordered before it
  // begins.
  void bestellen() {
    QTimer::singleShot(2, this, [this] { versuchen(); });
  }

  void versuchen() {
    bestellen();
    QWidget* const oben = QApplication::activeModalWidget();
    if (offen_.empty() || oben == nullptr) return;
    if (auto* const kasten = qobject_cast<QMessageBox*>(oben)) return antworten_auf(*kasten);
    auto& fenster = static_cast<Formfenster&>(*oben);
    const Schritt& naechster = offen_.front();
    if (!oben->isActiveWindow()) {
      oben->activateWindow();  // no desktop does it here; without it there are no shortcuts
    } else if (!naechster.form.isEmpty() && oben->objectName() == naechster.form) {
      fenster.nachholen();
      if (!naechster.bereit || naechster.bereit(fenster)) return tun(fenster);
    }
    if (seit_.elapsed() > geduld_ms) stillstand("in " + S(oben->objectName()));
  }

  void tun(Formfenster& fenster) {
    const Schritt s = std::move(offen_.front());
    offen_.pop_front();
    seit_.restart();
    SCOPED_TRACE(s.was);
    s.tat(fenster);
    seit_.restart();
  }

  void antworten_auf(QMessageBox& kasten) {
    if (kasten.property("beantwortet").toBool()) return;
    kasten.setProperty("beantwortet", true);
    const Schritt s = offen_.front();
    if (s.form.isEmpty() && kasten.text() == s.text) {
      for (QAbstractButton* const k : kasten.buttons()) {
        if (k->text().remove('&') != s.knopf) continue;
        offen_.pop_front();
        seit_.restart();
        return k->click();
      }
    }
    stillstand("before the box \"" + S(kasten.text()) + "\"");
  }

  // Windows over windows cannot be taken down from within: the process ends.
  [[noreturn]] void stillstand(const std::string& wo) {
    std::cout << "the story stands still " << wo << "; the next step would be: " << offen_.front().was
              << std::endl;
    ADD_FAILURE();
    std::_Exit(EXIT_FAILURE);
  }

  std::deque<Schritt> offen_;
  QElapsedTimer seit_ = [] {
    QElapsedTimer t;
    t.start();
    return t;
  }();
};

// ---- acts in a window ----

template <class W = QWidget>
W& Teil(Formfenster& f, const std::string& name) {
  f.nachholen();
  const Steuerelement* const e = f.formular().element(name);
  auto* const w = e == nullptr ? nullptr : qobject_cast<W*>(Widget_von(f, *e));
  EXPECT_NE(w, nullptr) << name;
  EXPECT_TRUE(w->isVisible() && w->isEnabled()) << name << " cannot be used";
  return *w;
}

inline void Klick(Formfenster& f, const std::string& name) {
  QTest::mouseClick(&Teil<QAbstractButton>(f, name), Qt::LeftButton);
}

inline void Tippen(Formfenster& f, const std::string& name, const QString& text) {
  auto& feld = Teil(f, name);
  feld.setFocus();
  QTest::keyClick(&feld, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&feld, text);
}

// By keyboard: to the top of the list and down.
inline void Waehlen(Formfenster& f, const std::string& name, const QString& text) {
  auto& liste = Teil<QComboBox>(f, name);
  const int i = liste.findText(text);
  ASSERT_GE(i, 0) << name << " has no " << S(text);
  QTest::keyClick(&liste, Qt::Key_Home);
  for (int n = 0; n < i; ++n) QTest::keyClick(&liste, Qt::Key_Down);
}

inline void Menuebefehl(Formfenster& f, const std::string& name) {
  f.nachholen();
  auto* const aktion = f.findChild<QAction*>(Q(name));
  ASSERT_TRUE(aktion != nullptr && aktion->isEnabled()) << name;
  aktion->trigger();
}

// The right button on a control opens its popup; one command of that.
inline void Rechtsbefehl(Formfenster& f, const std::string& name, const std::string& menue,
                         const std::string& befehl) {
  auto& w = Teil(f, name);
  QContextMenuEvent rechts(QContextMenuEvent::Mouse, QPoint(5, 5), w.mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(&w, &rechts);
  QMenu* const popup = f.gebautes().kontextmenues.at(menue);
  ASSERT_TRUE(popup->isVisible()) << menue;
  popup->close();
  Menuebefehl(f, befehl);
}

}  // namespace zav::fenster
