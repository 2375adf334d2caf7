// Start-up, the exits and the window title.
#include "support/ProgramFixture.h"
#include "core/Layout.h"

namespace qp::test {

using Startup = ProgramTest;

TEST_F(Startup, SessionStartsInFreehandSpiralzWithItsDefaults) {
  EXPECT_EQ(m().PaintMode, 16);
  EXPECT_EQ(f().lMode.Caption.get(), "Freehand Spiralz");
  EXPECT_EQ(f().lModeB.Caption.get(), "Freehand Spiralz");  // the shadow label follows
  const std::pair<int, int> values[] = {{m().ForeClr, 0xFFFFFF}, {m().BackClr, 0x808080}, {m().StepSize, 40},
                                        {m().SpiralStep, 12},    {f().AirSpread, 5},      {f().AutoDrawX, 500},
                                        {f().AutoDrawSpeed, 4},  {m().DrawWidth, 1},      {int(f().fX.Left), 2400},
                                        {int(f().fHelp.Top), 1020},
                                        {int(f().Width), 13760},    {int(f().Height), 10545}};
  for (size_t i = 0; i < std::size(values); ++i) EXPECT_EQ(values[i].first, values[i].second) << "value " << i;
  EXPECT_EQ(m().CurrentFile, "");
  EXPECT_EQ(f().PicPaint.FontName.get(), "Arial");
  EXPECT_FALSE(f().vHigh.Visible);
  EXPECT_GT(f().fHide.Top.get(), f().Height.get());
  // Every screen font but the first is offered.
  const QStringList fonts = headless.screen.Fonts();
  ASSERT_GE(fonts.size(), 2);
  EXPECT_EQ(f().lstFont.ListCount(), fonts.size() - 1);
  EXPECT_EQ(f().lstFont.List(0), fonts[1]);
  EXPECT_EQ(f().lstShad.ListCount(), fonts.size() - 1);
  EXPECT_TRUE(headless.msgbox.shown().empty());  // 1280 pixels are wide enough
}

// The timers come with their own intervals; the mode change that ends start-up puts every paint
// timer on the shared interval of 20 ms, so a Boxes N Bubblez stroke right after start-up runs at
// 20 ms and not at its design 60. The colour timers and the key timers keep their own pace.
TEST(StartupTimers, DesignIntervalsGiveWayToTheSharedIntervalAtTheFirstModeChange) {
  HeadlessRuntime h;
  Program p(h.rt());
  const std::tuple<Timer*, int, int> intervals[] = {
      {&p.f.tAir, 1, 20},    {&p.f.tBrush, 60, 20}, {&p.f.tBrushTime, 100, 20}, {&p.f.tSphere, 100, 20},
      {&p.f.tGrad, 1, 1},    {&p.f.tDclrz, 10, 10}, {&p.f.tGrdTx, 200, 20},     {&p.f.tDraw, 10, 20},
      {&p.f.tPix, 100, 20},  {&p.f.tTemp, 200, 200}, {&p.f.tPenUp, 120, 120},   {&p.f.tPenDwn, 120, 120}};
  for (const auto& [timer, design, started] : intervals) {
    EXPECT_EQ(timer->Interval.get(), design) << timer->Name().toStdString();
    EXPECT_FALSE(timer->Enabled) << timer->Name().toStdString();
  }
  p.start();
  for (const auto& [timer, design, started] : intervals)
    EXPECT_EQ(timer->Interval.get(), started) << timer->Name().toStdString();
  p.f.mBubble.raiseClick();
  EXPECT_EQ(p.f.tBrush.Interval.get(), 20);
}

TEST_F(Startup, TitleNamesTheCanvasAndItsSize) {
  const int w = static_cast<int>(CInt(f().PicPaint.Width / 15.0));
  const int h = static_cast<int>(CInt(f().PicPaint.Height / 15.0));
  EXPECT_EQ(f().Caption.get(), QString(" Quillora Pro - Untitled.bmp - %1 x %2").arg(w).arg(h));
  m().CurrentFile = "/home/ann/pictures/cat.bmp";
  SetTitle(s());
  EXPECT_EQ(f().Caption.get(), QString(" Quillora Pro - cat.bmp   %1 x %2").arg(w).arg(h));
}

TEST_F(Startup, ClosingTheWindowLeavesThePictureOnTheClipboardAndExitDoesNot) {
  choose(f().mPencil);
  f().PicPaint.Line(0, 0, 300, 300, 0x00FF00);
  f().mnuExit.raiseClick();
  EXPECT_TRUE(program->quitRequested());
  EXPECT_TRUE(headless.clipboard.GetData().isNull());
  f().Unload();
  const QImage clip = headless.clipboard.GetData();
  ASSERT_FALSE(clip.isNull());
  EXPECT_EQ(clip.pixel(5, 5) & 0xFFFFFF, 0x00FF00u);  // a green line, on the clipboard as drawn
}

}  // namespace qp::test
