// The window's layout commands: canvas sizes, lock, custom size, pointer shapes, guides.
#include "core/Grid.h"
#include "support/ProgramFixture.h"

namespace qp::test {

class Layout : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    choose(f().mPencil);  // a mode on the twip canvas
  }
};

TEST_F(Layout, SizeItemsSetWindowFrameAndCanvas) {
  choose(f().m64x48);
  EXPECT_EQ(f().Width.get(), 11360);
  EXPECT_EQ(f().Height.get(), 8985);
  EXPECT_EQ(f().PicPaint.Width.get(), f().fMax.Width.get());
  EXPECT_EQ(f().fMax.Width.get(), 11360 - 1440 - 320);
  EXPECT_EQ(f().PicPaint.bitmap().width(), (11360 - 1760) / 15);
  choose(f().m8x6);
  EXPECT_EQ(f().Width.get(), 13760);
  EXPECT_EQ(f().Height.get(), 10785);
  EXPECT_TRUE(f().Caption.get().endsWith(QString("%1 x %2").arg(f().PicPaint.bitmap().width())
                                             .arg(f().PicPaint.bitmap().height())));
}

TEST_F(Layout, LockKeepsTheCanvasWhenTheWindowChangesAndASizeItemUnlocks) {
  choose(f().mLock);
  EXPECT_TRUE(f().mLock.Checked);
  EXPECT_EQ(f().mLock.Caption.get(), "Unlock Canvas");
  EXPECT_EQ(f().CanvasLocked, -1);
  const Single w = f().PicPaint.Width;
  f().Width = f().Width + 3000;
  EXPECT_EQ(f().PicPaint.Width.get(), w);
  choose(f().m768);
  EXPECT_FALSE(f().mLock.Checked);
  EXPECT_EQ(f().mLock.Caption.get(), "Lock Canvas");
  EXPECT_EQ(f().Width.get(), 13280);
}

TEST_F(Layout, CustomSizeLargerThanTheFrameBringsTheViewBarsAndTheyScroll) {
  choose(f().mCustm);
  EXPECT_TRUE(f().fCust.Visible);
  EXPECT_EQ(f().PicPaint.MousePointer.get(), 1);
  m().CurrentFile = "big.bmp";  // a titled picture keeps its size through the resize
  f().hCustm.Value = 24000;
  f().vCustm.Value = 9000;
  f().cCustm.raiseClick();
  EXPECT_FALSE(f().fCust.Visible);
  EXPECT_EQ(f().PicPaint.Width.get(), 24000);
  EXPECT_TRUE(f().vWidth.Visible);
  EXPECT_TRUE(f().vHigh.Visible);
  EXPECT_TRUE(f().mLo.Visible);
  f().vWidth.Value = 3000;
  EXPECT_EQ(f().PicPaint.Left.get(), -3000);
  EXPECT_EQ(f().pPix.Left.get(), -3000);
  // Reset forgets the file, and the canvas goes back to its frame.
  m().CurrentFile = "";
  f().Width = f().Width + 15;
  EXPECT_EQ(f().PicPaint.Width.get(), f().fMax.Width.get());
  EXPECT_FALSE(f().vWidth.Visible);
}

TEST_F(Layout, ArrowPointerLastsUntilTheNextModeChange) {
  choose(f().mArrow);
  EXPECT_EQ(f().PicPaint.MousePointer.get(), 1);
  EXPECT_TRUE(f().mArrow.Checked);
  EXPECT_FALSE(f().mCross.Checked);
  choose(f().mAir);
  EXPECT_EQ(f().PicPaint.MousePointer.get(), 2);
  EXPECT_EQ(f().PointerShape, 2);
}

TEST_F(Layout, GridTogglesTheGuidesOfTheSurfaceInUseAndTakesTheColours) {
  choose(f().mCoords);
  EXPECT_TRUE(f().lnX.Visible);
  EXPECT_TRUE(f().lLnY.Visible);
  EXPECT_EQ(f().lnX.X1.get(), f().PicPaint.Width.get() / 2);
  choose(f().mCoords);
  EXPECT_FALSE(f().lnX.Visible);
  choose(f().mFF);  // works on the pixel surface
  choose(f().mCoords);
  EXPECT_TRUE(f().lnPX.Visible);
  EXPECT_FALSE(f().lnX.Visible);
  m().ForeClr = 0x0000FF;
  m().BackClr = 0x00FF00;
  SetGridColors(s());
  EXPECT_EQ(f().lnX.BorderColor.get(), 0x0000FF);
  EXPECT_EQ(f().lLnY.ForeColor.get(), 0x00FF00);
}

}  // namespace qp::test
