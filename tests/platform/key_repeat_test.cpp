// A held key on the real window: Qt's auto-repeat reaches the handlers as repeated key downs and
// one key up at the real release, so a width timer keeps running while the key is held.
#include <QApplication>
#include <QKeyEvent>

#include "core/Keyboard.h"
#include "platform/qt/FormView.h"
#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

class KeyRepeatTest : public ProgramTest {
 protected:
  // Holds the key for ms as Qt delivers it: a press, then after the repeat delay a release and a
  // press marked as auto-repeat every 33 ms, then the real release. The clock runs meanwhile.
  void hold(QWidget* w, int key, int ms) {
    auto send = [&](QEvent::Type type, bool repeat) {
      QKeyEvent e(type, key, Qt::NoModifier, QString(), repeat);
      QApplication::sendEvent(w, &e);
    };
    send(QEvent::KeyPress, false);
    headless.loop.advance(500);
    for (int t = 500; t + 33 <= ms; t += 33) {
      send(QEvent::KeyRelease, true);
      send(QEvent::KeyPress, true);
      headless.loop.advance(33);
    }
    send(QEvent::KeyRelease, false);
  }
};

TEST_F(KeyRepeatTest, HoldingAnArrowKeyKeepsTheWidthTimerRunning) {
  choose(f().mPencil);
  FormView view(f());
  f().Show();
  view.sync();
  QWidget* pic = view.widgetFor(&f().PicPaint);
  ASSERT_NE(pic, nullptr);
  QApplication::setActiveWindow(&view.window());
  pic->setFocus();
  if (QApplication::focusWidget() != pic) GTEST_SKIP() << "this platform gives no keyboard focus";
  int downs = 0, ups = 0;
  auto down = f().PicPaint.KeyDown;
  auto up = f().PicPaint.KeyUp;
  f().PicPaint.KeyDown = [&](int& code, int shift) { ++downs; if (down) down(code, shift); };
  f().PicPaint.KeyUp = [&](int& code, int shift) { ++ups; if (up) up(code, shift); };

  hold(pic, Qt::Key_Up, 2000);
  EXPECT_EQ(ups, 1);
  EXPECT_GT(downs, 40);
  // 120 ms a step for two seconds: about seventeen, where a timer stopped at every repeat gave six.
  EXPECT_GE(m().DrawWidth, 15);
  EXPECT_LE(m().DrawWidth, 18);
  EXPECT_FALSE(f().tPenUp.Enabled);  // the real release stops it
}

}  // namespace
}  // namespace qp::test
