// Start-up, the exits and the window title.
#include "support/ProgramFixture.h"
#include "core/Layout.h"

namespace qp::test {

using Startup = ProgramTest;

TEST_F(Startup, SessionStartsInFreehandSpiralzWithItsDefaults) {
  EXPECT_EQ(m().PaintMode, 16);
  EXPECT_EQ(f().lMode.Caption.get(), "Freehand Spiralz");
  EXPECT_EQ(f().lModeB.Caption.get(), "Freehand Spiralz");  // the shadow label follows
  EXPECT_EQ(m().ForeClr, 0xFFFFFF);
  EXPECT_EQ(m().BackClr, 0x808080);
  EXPECT_EQ(m().StepSize, 40);
  EXPECT_EQ(m().SpiralStep, 12);
  EXPECT_EQ(f().AirSpread, 5);
  EXPECT_EQ(f().AutoDrawX, 500);
  EXPECT_EQ(f().AutoDrawSpeed, 4);
  EXPECT_EQ(m().DrawWidth, 1);
  EXPECT_EQ(m().CurrentFile, "");
  EXPECT_EQ(f().PicPaint.FontName.get(), "Arial");
  EXPECT_EQ(f().fX.Left.get(), 2400);
  EXPECT_EQ(f().fHelp.Top.get(), 1020);
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
// 20 ms and not at its design 60.
TEST(StartupTimers, DesignIntervalsGiveWayToTheSharedIntervalAtTheFirstModeChange) {
  HeadlessRuntime h;
  Program p(h.rt());
  const std::pair<Timer*, int> design[] = {
      {&p.f.tAir, 1},      {&p.f.tBrush, 60},  {&p.f.tBrushTime, 100}, {&p.f.tSphere, 100},
      {&p.f.tGrad, 1},     {&p.f.tDclrz, 10},  {&p.f.tGrdTx, 200},     {&p.f.tDraw, 10},
      {&p.f.tPix, 100},    {&p.f.tTemp, 200},  {&p.f.tPenUp, 120},     {&p.f.tPenDwn, 120}};
  for (const auto& [timer, interval] : design) {
    EXPECT_EQ(timer->Interval.get(), interval) << timer->Name().toStdString();
    EXPECT_FALSE(timer->Enabled) << timer->Name().toStdString();
  }
  p.start();
  for (Timer* t : {&p.f.tAir, &p.f.tDraw, &p.f.tGrdTx, &p.f.tBrushTime, &p.f.tBrush, &p.f.tSphere, &p.f.tPix})
    EXPECT_EQ(t->Interval.get(), 20) << t->Name().toStdString();
  // The colour timers and the key timers keep their own pace.
  EXPECT_EQ(p.f.tGrad.Interval.get(), 1);
  EXPECT_EQ(p.f.tDclrz.Interval.get(), 10);
  EXPECT_EQ(p.f.tPenUp.Interval.get(), 120);
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

TEST_F(Startup, WideWindowShowsTheViewBarsOnlyForALargerPicture) {
  EXPECT_FALSE(f().vWidth.Visible);
  m().CurrentFile = "big.bmp";  // a picture keeps its own size
  f().PicPaint.Width = f().fMax.Width + 1500;
  Form_Resize(s());
  EXPECT_TRUE(f().vWidth.Visible);
  EXPECT_FALSE(f().vHigh.Visible);
  EXPECT_TRUE(f().mLo.Visible);
  f().CanvasLocked = -1;  // a locked canvas ignores the window
  const Single before = f().fMax.Width;
  f().Width = f().Width + 1500;
  EXPECT_EQ(f().fMax.Width.get(), before);
}

}  // namespace qp::test
