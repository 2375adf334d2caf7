// The window's layout commands: canvas sizes, lock, custom size, view bars, pointer shapes, guides.
#include "core/Layout.h"
#include "support/ProgramFixture.h"

namespace qp::test {

class Layout : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    choose(f().mPencil);  // a mode on the twip canvas
  }
};

TEST_F(Layout, LockKeepsTheCanvasWhenTheWindowChangesAndASizeItemUnlocks) {
  // The item tells what choosing it again will do.
  choose(f().mLock);
  EXPECT_TRUE(f().mLock.Checked && f().CanvasLocked == -1);
  EXPECT_EQ(f().mLock.Caption.get(), "Unlock Canvas");
  const QSizeF kept(f().PicPaint.Width, f().fMax.Width);
  f().Width = f().Width + 3000;
  EXPECT_EQ(QSizeF(f().PicPaint.Width, f().fMax.Width), kept);
  choose(f().m768);
  EXPECT_FALSE(f().mLock.Checked);
  EXPECT_EQ(f().mLock.Caption.get(), "Lock Canvas");
}

TEST_F(Layout, ALargerPictureBringsTheViewBarsAndTheyScroll) {
  EXPECT_FALSE(f().vWidth.Visible);
  m().CurrentFile = "big.bmp";  // a titled picture keeps its own size
  f().PicPaint.Width = f().fMax.Width + 1500;
  Form_Resize(s());
  EXPECT_TRUE(f().vWidth.Visible && !f().vHigh.Visible);
  choose(f().mCustm);
  EXPECT_TRUE(f().fCust.Visible && f().PicPaint.MousePointer == 1);
  f().hCustm.Value = 24000;
  f().vCustm.Value = 9000;
  f().cCustm.raiseClick();
  EXPECT_TRUE(!f().fCust.Visible && f().PicPaint.Width == 24000);
  EXPECT_TRUE(f().vWidth.Visible && f().vHigh.Visible && f().mLo.Visible);
  f().vWidth.Value = 3000;
  EXPECT_EQ(QSizeF(f().PicPaint.Left, f().pPix.Left), QSizeF(-3000, -3000));
  // Without a file the canvas goes back to its frame at the next resize.
  m().CurrentFile = "";
  f().Width = f().Width + 15;
  EXPECT_TRUE(f().PicPaint.Width == f().fMax.Width && !f().vWidth.Visible);
}

TEST_F(Layout, GridAndPointerItems) {
  choose(f().mCoords);
  EXPECT_TRUE(f().lnX.Visible && f().lLnY.Visible);
  EXPECT_EQ(f().lnX.X1.get(), f().PicPaint.Width.get() / 2);
  choose(f().mCoords);
  EXPECT_FALSE(f().lnX.Visible);
  choose(f().mFF);  // works on the pixel surface
  choose(f().mCoords);
  EXPECT_TRUE(f().lnPX.Visible && !f().lnX.Visible);
  // The arrow pointer lasts until the next mode change.
  choose(f().mArrow);
  EXPECT_TRUE(f().PicPaint.MousePointer == 1 && f().mArrow.Checked);
  choose(f().mAir);
  EXPECT_TRUE(f().PicPaint.MousePointer == 2 && f().PointerShape == 2);
}

}  // namespace qp::test
