// The main window: start-up and the exits; then on screen (offscreen), real menu choices, pointer
// events and held keys reach the program through the view exactly as a user's would, and a stroke
// step costs no canvas copy.
#include <QAction>
#include <QApplication>
#include <QKeyEvent>

#include "platform/qt/FormView.h"
#include "support/ProgramFixture.h"

namespace qp::test {

using Startup = ProgramTest;

// The start-up values themselves are checked by the start-up scenario; here what it cannot see.
TEST_F(Startup, EveryScreenFontButTheFirstIsOfferedAndTheFreeAreasStayHidden) {
  EXPECT_TRUE(!f().vHigh.Visible && f().fHide.Top > f().Height);
  const QStringList fonts = headless.screen.Fonts();
  ASSERT_GE(fonts.size(), 2);
  EXPECT_EQ(f().lstFont.List(0), fonts[1]);
  EXPECT_EQ(QSize(f().lstFont.ListCount(), f().lstShad.ListCount()), QSize(fonts.size() - 1, fonts.size() - 1));
}

TEST_F(Startup, ClosingTheWindowLeavesThePictureOnTheClipboardAndExitDoesNot) {
  choose(f().mPencil);
  f().PicPaint.Line(0, 0, 300, 300, 0x00FF00);
  f().mnuExit.raiseClick();
  EXPECT_TRUE(program->quitRequested() && headless.clipboard.GetData().isNull());
  f().Unload();
  const QImage clip = headless.clipboard.GetData();
  ASSERT_FALSE(clip.isNull());
  EXPECT_EQ(clip.pixel(5, 5) & 0xFFFFFF, 0x00FF00u);  // a green line, on the clipboard as drawn
}

class Window : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    view = std::make_unique<FormView>(f());
    view->actionFor(&f().mPencil)->trigger();  // a menu item chosen on screen
    ASSERT_EQ(m().PaintMode, 0);
    view->sync();
    pic = view->widgetFor(&f().PicPaint);
    ASSERT_NE(pic, nullptr);
  }

  // Holds the key for ms as Qt delivers it: a press, then after the repeat delay a release and a
  // press marked as auto-repeat every 33 ms, then the real release. The clock runs meanwhile.
  void hold(int key, int ms) {
    auto send = [&](QEvent::Type type, bool repeat) {
      QKeyEvent e(type, key, Qt::NoModifier, QString(), repeat);
      QApplication::sendEvent(pic, &e);
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
  std::unique_ptr<FormView> view;
  QWidget* pic = nullptr;
};

// A held key: Qt's auto-repeat reaches the handlers as repeated key downs and one key up at the
// real release, so a width timer keeps running while the key is held.
TEST_F(Window, HoldingAnArrowKeyKeepsTheWidthTimerRunning) {
  f().Show();
  view->sync();
  QApplication::setActiveWindow(&view->window());
  pic->setFocus();
  if (QApplication::focusWidget() != pic) GTEST_SKIP() << "this platform gives no keyboard focus";
  int downs = 0, ups = 0;
  auto down = f().PicPaint.KeyDown, up = f().PicPaint.KeyUp;
  f().PicPaint.KeyDown = [&](int& code, int shift) { ++downs; if (down) down(code, shift); };
  f().PicPaint.KeyUp = [&](int& code, int shift) { ++ups; if (up) up(code, shift); };
  hold(Qt::Key_Up, 2000);
  EXPECT_TRUE(ups == 1 && downs > 40) << ups << " ups, " << downs << " downs";
  // 120 ms a step for two seconds: about seventeen, where a timer stopped at every repeat gave six.
  EXPECT_TRUE(m().DrawWidth >= 15 && m().DrawWidth <= 18) << m().DrawWidth;
  EXPECT_FALSE(f().tPenUp.Enabled);  // the real release stops it
}

TEST_F(Window, AMoveDrawsInPlaceAndMarksOnlyItsSegment) {
  f().vPencil.Value = 8;
  press(1500, 1500);  // the press bakes the canvas: the one copy of the stroke
  const uchar* bits = f().PicPaint.bitmap().constBits();
  f().PicPaint.takeDirty();
  move(3000, 1500);
  EXPECT_EQ(f().PicPaint.bitmap().constBits(), bits);
  const QRect dirty = f().PicPaint.takeDirty();
  EXPECT_TRUE(QRect(90, 90, 120, 20).contains(dirty) && dirty.width() >= 100) << dirty.x() << "," << dirty.y() << " " << dirty.width();
  move(3000, 3000);
  release(3000, 3000);
  EXPECT_EQ(f().PicPaint.bitmap().constBits(), bits);
}

}  // namespace qp::test
