// The window's layout commands (canvas sizes, lock, custom size, view bars, pointer shapes, guides)
// and Instant Help: the help line of each mode, the key list, the help panel, the film lines in the
// tool tips, and the Toolz menu popping up.
#include "core/Help.h"
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
  choose(f().mCoords);
  EXPECT_FALSE(f().lnX.Visible);
  choose(f().mFF);  // works on the pixel surface
  choose(f().mCoords);
  EXPECT_TRUE(f().lnPX.Visible && !f().lnX.Visible);
}

using Help = ProgramTest;

TEST_F(Help, TheHelpLineFollowsTheModeAndItsSwitches) {
  // The mode chosen, a switch set after, whether the pointer passes over the canvas (else the
  // window), the start of the line.
  const struct { Menu* item; std::function<void()> set; bool canvas; const char* line; } cases[] = {
      {&f().mPencil, {}, false, "Hold left mouse button to draw - Select colors below"},
      {&f().mPencil, [this] { f().ckVal.Value = 1; }, true, "Click paint area to set starting point"},  // AutoDraw
      {&f().mSngBox, [this] { f().vVal3.Value = 2; }, false, "Hold left mouse button and drag to set size of circle"}};
  for (const auto& c : cases) {
    choose(*c.item);
    if (c.set) c.set();
    if (c.canvas) move(100, 100, 0);
    else f().MouseMove(0, 0, 0, 0);
    EXPECT_TRUE(f().lHelp.Caption.get().startsWith(c.line)) << f().lHelp.Caption.get().toStdString();
    EXPECT_EQ(f().lHelpb.Caption.get(), f().lHelp.Caption.get());  // the shadow follows
  }
  // A mode without a line of its own keeps the text it had.
  choose(f().mFF);
  f().lHelp.Caption = "kept";
  f().MouseMove(0, 0, 0, 0);
  EXPECT_EQ(f().lHelp.Caption.get(), "kept");
}

TEST_F(Help, TheHelpPanelClosesAndARightClickPopsTheToolzMenuUp) {
  choose(f().mHelp);
  f().cXhelp.raiseClick();
  EXPECT_TRUE(!f().fHelp.Visible && f().lastPopup() == nullptr);
  f().fVal.raiseMouseUp(vbRightButton, 0, 100, 100);  // a right click on the panel pops the Toolz menu up
  EXPECT_EQ(f().lastPopup(), &f().mToolz);
}

TEST_F(Help, AFilmLineStandsInOneModeOnlyAndGoesAtTheNextPass) {
  choose(f().mBallz);
  f().ckHide.MouseMove(0, 0, 0, 0);
  EXPECT_EQ(f().ckHide.ToolTipText.get(), "Trolls...  NOT TROLLS...!  I HATE TROLLS!");
  choose(f().mPencil);
  EXPECT_FALSE(f().ckHide.ToolTipText.get().isEmpty());  // until the pointer passes again
  f().ckHide.MouseMove(0, 0, 0, 0);
  EXPECT_TRUE(f().ckHide.ToolTipText.get().isEmpty());
  choose(f().mCrazyLn);
  f().lPenVal.MouseMove(0, 0, 0, 0);  // a control with a tip of its own keeps it in parentheses
  EXPECT_TRUE(f().lPenVal.ToolTipText.get().endsWith("(" + f().lPenVal.Caption.get() + ")"));
}

}  // namespace qp::test
