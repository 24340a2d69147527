// Widgets need their application before the first test.
#include <gtest/gtest.h>

#include <QApplication>

#include "zavlink/aussehen.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication programm(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  zav::fenster::Aussehen_setzen(zav::fenster::Thema::hell);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
