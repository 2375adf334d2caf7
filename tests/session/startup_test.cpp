// Start-up, the exits and the window title.
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

// The mode change that ends start-up puts every paint timer on the shared interval of 20 ms (Boxes
// N Bubblez then runs at 20 ms, not at its design 60); the key timers keep their own pace.
TEST(StartupTimers, DesignIntervalsGiveWayToTheSharedIntervalAtTheFirstModeChange) {
  HeadlessRuntime h;
  Program p(h.rt());
  EXPECT_EQ(p.f.tBrush.Interval.get(), 60);
  p.start();
  for (const auto& [timer, started] : {std::pair{&p.f.tBrush, 20}, std::pair{&p.f.tAir, 20}, std::pair{&p.f.tPenUp, 120}})
    EXPECT_EQ(timer->Interval.get(), started) << timer->Name().toStdString();
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

}  // namespace qp::test
