// Test programs run headless: a QApplication on the offscreen platform gives fonts and painting
// the same as on screen, with no window shown.
#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? QByteArray("offscreen")
                                                                   : qgetenv("QT_QPA_PLATFORM"));
  QApplication app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
