// Choosing a paint mode: the display, the reset of the panel, the panel height, the exceptions.
#include "support/ProgramFixture.h"
#include "core/Panel.h"

namespace qp::test {

using Modes = ProgramTest;

TEST_F(Modes, SelectionItemsKeepTheDisplayOfTheModeBefore) {
  choose(f().mAir);
  choose(f().mSelClr);
  EXPECT_EQ(m().PaintMode, 18);
  EXPECT_EQ(f().lMode.Caption.get(), "AirBrush");
  choose(f().mSelRect);
  EXPECT_EQ(m().PaintMode, 19);
  choose(f().mSelCpy);
  EXPECT_EQ(m().PaintMode, 19);
  EXPECT_EQ(f().lMode.Caption.get(), "AirBrush");
  EXPECT_FALSE(f().pPix.Visible);

  // Transparency selection sets its flag and the smallest panel, without re-arming the panel.
  f().lStats.Caption = "kept";
  choose(f().mTrans);
  EXPECT_EQ(f().TransparencySelect, -1);
  EXPECT_EQ(m().PaintMode, 19);
  EXPECT_EQ(f().PanelHeight, 2040);
  EXPECT_EQ(f().lStats.Caption.get(), "kept");
}

TEST_F(Modes, ModeChangeResetsThePanelBeforeTheModesOwnSettings) {
  choose(f().mBallz);  // four live rows
  EXPECT_TRUE(f().vVal4.Visible);
  f().PicPaint.DrawMode = 7;
  f().PicPaint.FillStyle = 0;
  f().vInt.Value = 300;
  choose(f().mPencil);
  EXPECT_FALSE(f().vVal2.Visible);
  EXPECT_FALSE(f().vVal4.Visible);
  EXPECT_TRUE(f().vVal1.Visible);
  EXPECT_EQ(f().Shadow(1).BorderColor.get(), kDimFrame);  // the speed row waits for AutoDraw
  EXPECT_EQ(f().Shadow(4).BorderColor.get(), kDimFrame);
  EXPECT_EQ(f().PicPaint.DrawMode.get(), 13);
  EXPECT_EQ(f().PicPaint.FillStyle.get(), 1);
  EXPECT_EQ(f().vInt.Value.get(), 20);
  EXPECT_EQ(f().lStats.Caption.get(), "Proceed...");
  EXPECT_EQ(f().lHelp.Caption.get(), "");
  EXPECT_TRUE(f().vMax.Visible);
  EXPECT_TRUE(f().fPencil.Visible);
  EXPECT_FALSE(f().ckVal2.Visible);
}

TEST_F(Modes, ChoosingTheSameModeAgainBakesTheCanvasAndResetsTheArrowPointer) {
  choose(f().mPencil);
  f().mArrow.raiseClick();
  f().PointerShape = 1;
  f().PicPaint.Line(0, 0, 1500, 0, 0x0000FF);
  choose(f().mPencil);
  EXPECT_EQ(f().PointerShape, 2);
  // The drawing is now the snapshot: a quick undo keeps it.
  release(30, 30, vbRightButton);
  EXPECT_EQ(pixel(50, 0), 0x0000FF);
}

TEST_F(Modes, PanelHeightFollowsTheModeAndSomeModesKeepTheHeightBefore) {
  choose(f().mSngBox);
  EXPECT_EQ(f().PanelHeight, 3000);
  EXPECT_EQ(f().lHelp.Top.get(), 3015);
  choose(f().mCircFx);  // never sizes the panel itself
  EXPECT_EQ(f().PanelHeight, 3000);
  // ... but the reset of every mode change puts the help line back at its place.
  EXPECT_EQ(f().lHelp.Top.get(), 3615);
  choose(f().mSpir2);
  EXPECT_EQ(f().PanelHeight, 3600);
  choose(f().mShadTx);
  EXPECT_EQ(f().PanelHeight, 4000);
  choose(f().mBubble);
  EXPECT_EQ(f().PanelHeight, 2520);
  choose(f().mPencil);
  EXPECT_EQ(f().PanelHeight, 2040);
}

TEST_F(Modes, CrazyPencilMapsItsBarToMixingModesAndSkipsEleven) {
  choose(f().mCrzyPen);
  EXPECT_EQ(f().PicPaint.DrawMode.get(), 15);  // value 13 at entry
  EXPECT_EQ(f().lVal1.Caption.get(), "DrawMode : 13");
  const int expected[] = {2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 13};
  for (int v = 0; v <= 10; ++v) {
    f().vVal1.Value = v;
    ApplyCrazyDrawMode(s());
    EXPECT_EQ(f().PicPaint.DrawMode.get(), expected[v]) << v;
    EXPECT_EQ(f().lVal1.Caption.get(), QString("DrawMode : %1").arg(v));
  }
  f().vVal1.Value = 11;
  ApplyCrazyDrawMode(s());
  EXPECT_EQ(f().PicPaint.DrawMode.get(), 13);
  EXPECT_EQ(f().lVal1.Caption.get(), "DrawMode : 10");
  f().vVal1.Value = 12;
  ApplyCrazyDrawMode(s());
  EXPECT_EQ(f().PicPaint.DrawMode.get(), 14);
}

TEST_F(Modes, LeavingAPixelModeMovesTheCanvasBackFromThePixelSurface) {
  ASSERT_TRUE(f().pPix.Visible);  // Freehand Spiralz works in pixels
  f().pPix.Line(10, 10, 20, 10, 0xFF00FF);
  choose(f().mPencil);
  EXPECT_FALSE(f().pPix.Visible);
  EXPECT_EQ(pixel(15, 10), 0xFF00FF);
}

TEST_F(Modes, ShadowTextOpensItsSampleFrameAndTheNextModeClosesIt) {
  choose(f().mShadTx);
  EXPECT_TRUE(f().fShad.Visible);
  EXPECT_TRUE(f().fBow.Visible);
  EXPECT_EQ(f().lStats.Caption.get(), "Proceed...");
  choose(f().mPencil);
  EXPECT_FALSE(f().fShad.Visible);
}

// A mode's bar may take its value from a session variable that another mode's wider bar has
// pushed past this bar's end. The mode still builds its whole panel, the bar standing at its end.
TEST_F(Modes, AnOffsetTooWideForTheNextModesBarStillGivesThatModeItsPanel) {
  choose(f().mSingle);
  f().ckVal.Value = 1;  // the offset row answers once the shadow line is on
  f().vVal1.Value = 1200;
  ASSERT_EQ(m().StepSize, 1200);
  choose(f().mShadow);  // its offset bar ends at 960
  EXPECT_TRUE(f().ckVal.Visible);
  EXPECT_TRUE(f().ckVal2.Visible);
  EXPECT_TRUE(f().cSwap.Visible);
  EXPECT_TRUE(f().fBow.Visible);
  EXPECT_EQ(f().lStats.Caption.get(), "Proceed...");
  EXPECT_EQ(f().vVal1.Value.get(), 960);
  EXPECT_EQ(m().StepSize, 960);
}

TEST_F(Modes, StopAllToolsStopsThePaintTimersButNotTheTransientColours) {
  for (Timer* t : {&f().tAir, &f().tDraw, &f().tGrad, &f().tBrush, &f().tDclrz}) t->Enabled = true;
  f().lTell.Caption = "Maximum";
  f().PicPaint.ScaleWidth = 100;
  StopAllTools(s());
  for (Timer* t : {&f().tAir, &f().tDraw, &f().tGrad, &f().tBrush}) EXPECT_FALSE(t->Enabled);
  EXPECT_TRUE(f().tDclrz.Enabled);
  EXPECT_EQ(f().lTell.Caption.get(), "");
  EXPECT_EQ(f().PicPaint.ScaleWidth.get(), f().PicPaint.Width.get());
}

}  // namespace qp::test
