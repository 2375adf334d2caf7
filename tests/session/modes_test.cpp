// Choosing a paint mode: the display, the reset of the panel, the panel height, the exceptions.
#include "support/ProgramFixture.h"
#include "core/Panel.h"

namespace qp::test {

using Modes = ProgramTest;

TEST_F(Modes, SelectionItemsKeepTheDisplayOfTheModeBefore) {
  choose(f().mAir);
  choose(f().mSelRect);
  EXPECT_TRUE(m().PaintMode == 19 && f().lMode.Caption.get() == "AirBrush");
  // Transparency selection sets its flag and the smallest panel, without re-arming the panel.
  f().lStats.Caption = "kept";
  choose(f().mTrans);
  EXPECT_TRUE(f().TransparencySelect == -1 && m().PaintMode == 19 && f().PanelHeight == 2040);
  EXPECT_EQ(f().lStats.Caption.get(), "kept");
}

TEST_F(Modes, ModeChangeResetsThePanelBeforeTheModesOwnSettings) {
  choose(f().mBallz);  // four live rows
  EXPECT_TRUE(f().vVal4.Visible);
  f().PicPaint.DrawMode = 7;
  f().PicPaint.FillStyle = 0;
  f().vInt.Value = 300;
  choose(f().mPencil);
  EXPECT_FALSE(f().vVal4.Visible);
  EXPECT_EQ(f().Shadow(1).BorderColor.get(), kDimFrame);  // the speed row waits for AutoDraw
  const int reset[] = {f().PicPaint.DrawMode, f().PicPaint.FillStyle, f().vInt.Value};
  EXPECT_EQ(std::vector(std::begin(reset), std::end(reset)), (std::vector{13, 1, 20}));
  f().ckVal2.Value = 1;  // a ticked box does not carry over into a mode that has no use for it
  choose(f().mFF);
  EXPECT_EQ(f().ckVal2.Value.get(), 0);
}

TEST_F(Modes, ChoosingTheSameModeAgainBakesTheCanvasAndResetsTheArrowPointer) {
  choose(f().mPencil);
  f().mArrow.raiseClick();
  f().PointerShape = 1;
  f().PicPaint.Line(0, 0, 1500, 0, 0x0000FF);
  choose(f().mPencil);
  EXPECT_EQ(f().PointerShape, 2);
  release(30, 30, vbRightButton);  // the drawing is now the snapshot: a quick undo keeps it
  EXPECT_EQ(pixel(50, 0), 0x0000FF);
}

TEST_F(Modes, PanelHeightFollowsTheModeAndSomeModesKeepTheHeightBefore) {
  // The item chosen, the panel height and where the help line then stands.
  for (const auto& [item, height, helpTop] : {std::tuple{&f().mSngBox, 3000, 3015},
                                              std::tuple{&f().mCircFx, 3000, 3615},  // keeps the height before
                                              std::tuple{&f().mPencil, 2040, 2055}}) {
    choose(*item);
    EXPECT_EQ(f().PanelHeight, height) << item->Name().toStdString();
    EXPECT_EQ(f().lHelp.Top.get(), helpTop) << item->Name().toStdString();
  }
}

TEST_F(Modes, LeavingAModeTakesItsOwnSurfacesAway) {
  ASSERT_TRUE(f().pPix.Visible);  // Freehand Spiralz works in pixels
  f().pPix.Line(10, 10, 20, 10, 0xFF00FF);
  choose(f().mPencil);
  EXPECT_EQ(pixel(15, 10), 0xFF00FF);  // the pixel drawing moves back onto the canvas
  choose(f().mShadTx);
  ASSERT_TRUE(f().fShad.Visible);
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
  for (const Control* c : std::initializer_list<const Control*>{&f().ckVal, &f().ckVal2, &f().cSwap, &f().fBow})
    EXPECT_TRUE(c->Visible) << c->key().toStdString();
  EXPECT_EQ(f().lStats.Caption.get(), "Proceed...");
  EXPECT_EQ(std::pair(int(f().vVal1.Value), int(m().StepSize)), std::pair(960, 960));
}

}  // namespace qp::test
