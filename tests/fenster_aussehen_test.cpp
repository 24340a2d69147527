// The pointer and the theme of the window program, as they change while it runs.
#include <QApplication>
#include <QDialog>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <chrono>
#include <thread>

#include "editor/einmask8.h"
#include "fenster_hilfen.h"
#include "platform/uhrwerk.h"
#include "weather/wetterdisplay.h"
#include "zavlink/aussehen.h"
#include "zavlink/farben.h"
#include "zavlink/qt_oberflaeche.h"
#include "zavlink/symbole.h"

namespace zav::fenster {

namespace {

class Aussehen : public Fenster {
 protected:
  ~Aussehen() override { Zeitraffer_setzen(1); }
};

TEST_F(Aussehen, DerZeigerWartetErstBeiLangerArbeitUndNieUeberEinerFrage) {
  Qt_oberflaeche o;
  const auto wartet = [] { return QApplication::overrideCursor() != nullptr; };
  const auto arbeiten = [&o](int ms) {
    std::this_thread::sleep_for(std::chrono::milliseconds(ms));
    o.DoEvents();
  };
  o.Zeiger_setzen(Zeiger::warten);
  arbeiten(0);
  EXPECT_FALSE(wartet()) << "short";
  Zeitraffer_setzen(100);
  arbeiten(10);
  EXPECT_TRUE(wartet()) << "long";
  bool gefragt = false;
  QTimer::singleShot(0, [&] {
    gefragt = true;
    EXPECT_FALSE(wartet()) << "over a box";
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
    static_cast<QDialog*>(QApplication::activeModalWidget())->reject();
  });
  o.Melden({.text = "Weiter?"});
  EXPECT_TRUE(gefragt);
  Zeitraffer_setzen(1);
  arbeiten(0);
  EXPECT_FALSE(wartet()) << "the time of the question is not the work's";
  Zeitraffer_setzen(100);
  arbeiten(10);
  EXPECT_TRUE(wartet());
  o.Zeiger_setzen(Zeiger::normal);
  EXPECT_FALSE(wartet());
  arbeiten(10);
  EXPECT_FALSE(wartet()) << "nothing waits";
}

bool Zeigt(const QPixmap& bild, QPalette::ColorRole rolle) {
  const QImage punkte = bild.toImage();
  const QRgb farbe = QApplication::palette().color(rolle).rgba();
  for (int y = 0; y < punkte.height(); ++y) {
    for (int x = 0; x < punkte.width(); ++x) {
      if (punkte.pixel(x, y) == farbe) return true;
    }
  }
  return false;
}

TEST_F(Aussehen, FolgtDemArbeitsplatzAuchInBildernUndFeldern) {
  Aussehen_setzen(Thema::wie_arbeitsplatz);
  Wetterdisplay form;
  Formfenster f(form, nullptr);
  f.show();
  const QIcon symbol = Symbolbild("haus");
  const auto bild = [&symbol](QIcon::Mode modus) { return symbol.pixmap(48, 48, modus); };
  const auto erwarte = [&](bool dunkel) {
    for (int runde = 0; runde < 4; ++runde) QApplication::processEvents();
    EXPECT_EQ(Ist_dunkel(QApplication::palette()), dunkel);
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), Palette(dunkel).color(QPalette::Base));
    EXPECT_TRUE(Zeigt(bild(QIcon::Normal), QPalette::WindowText));
    EXPECT_TRUE(Zeigt(bild(QIcon::Selected), QPalette::HighlightedText)) << "readable on the highlight";
    EXPECT_FALSE(Zeigt(bild(QIcon::Selected), QPalette::WindowText));
    for (const auto* schild : f.findChildren<QLabel*>()) {
      const QPixmap gezeigt = schild->pixmap();
      EXPECT_TRUE(gezeigt.isNull() || Zeigt(gezeigt, QPalette::WindowText));
    }
    for (const auto* feld : f.findChildren<QLineEdit*>())
      EXPECT_EQ(feld->palette().color(QPalette::Base), QApplication::palette().color(QPalette::Window));
  };
  erwarte(false);
  QApplication::setPalette(QPalette(Qt::black));  // as a desktop does that has turned dark
  erwarte(true);
  QEvent neues_thema(QEvent::ThemeChange);  // the desktop of the tests is light
  QApplication::sendEvent(f.windowHandle(), &neues_thema);
  erwarte(false);
}

TEST_F(Aussehen, WasNichtAufDenSchirmPasstRolltUndBleibtErreichbar) {
  const QFont vorher = QApplication::font();
  QFont gross = vorher;
  gross.setPointSizeF(2 * gross.pointSizeF());
  QApplication::setFont(gross);
  Einmask8 form;
  Formfenster f(form, nullptr);
  f.show();
  QApplication::processEvents();
  EXPECT_LE(f.width(), 1366);
  EXPECT_LE(f.height(), 768);
  const QWidget& letzter = *Widget_von(f, form.Cancel);
  EXPECT_TRUE(letzter.visibleRegion().isEmpty());
  for (int schritt = 0; schritt < 200 && !letzter.hasFocus(); ++schritt)
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(letzter.visibleRegion().boundingRect(), letzter.rect());
  QApplication::setFont(vorher);
}

}  // namespace

}  // namespace zav::fenster
