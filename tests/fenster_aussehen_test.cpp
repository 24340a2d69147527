// The pointer and the theme of the window program, as they change while it runs.
#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <chrono>
#include <thread>

#include "fenster_hilfen.h"
#include "platform/uhrwerk.h"
#include "zavlink/qt_oberflaeche.h"

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

}  // namespace

}  // namespace zav::fenster
