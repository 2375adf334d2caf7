// The undo levels as the user meets them: the menu, the keys, the right click, clearing, new
// canvases and the canvas colour; the stash, and pasting with setting the floating picture down.
#include <QImage>

#include "core/Keyboard.h"
#include "support/KeyInput.h"
#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

constexpr Colour kRed = 0x0000FF;

class UndoTest : public PencilTest {
 protected:
  void ctrlBackspace() {
    windowKeyDown(f(), vbKeyControl);
    windowKey(f(), vbKeyBack);
    windowKeyUp(f(), vbKeyControl);
  }
  QSize canvasSize() { return {static_cast<int>(f().PicPaint.Width / 15), static_cast<int>(f().PicPaint.Height / 15)}; }
};

TEST_F(UndoTest, OneLevelTakesTheLastStrokeAndRepeatingItChangesNothing) {
  // Each way to undo once, after two dots: the first dot stays, the second goes.
  const std::function<void()> ways[] = {[this] { choose(f().mnuUndo); }, [this] { windowKey(f(), vbKeyBack); },
                                        [this] { release(30, 30, vbRightButton); }};
  for (const auto& undo : ways) {
    choose(f().mClear);
    drawDot(1500, 1500);
    drawDot(3000, 3000);
    undo();
    const QImage once = f().PicPaint.Image;
    EXPECT_EQ(std::pair(pixel(100, 100), pixel(200, 200)), std::pair(kWhite, kBlack));
    undo();
    EXPECT_EQ(QImage(f().PicPaint.Image), once);
  }
}

TEST_F(UndoTest, AfterAModeChangeTheSecondLevelGivesBackTheWholeCanvas) {
  const QSize size = canvasSize();
  const int w = size.width(), h = size.height();
  drawDot(15.0f * (w - 5), 15.0f * (h - 5));  // a dot far from the corner a small holder keeps
  drawDot(1500, 1500);
  choose(f().mShadow);  // the mode change takes a snapshot of its own
  choose(f().mnuUndo);
  EXPECT_EQ(pixel(100, 100), kWhite);  // the canvas as it stood at the change
  ctrlBackspace();
  EXPECT_EQ(canvasSize(), size);
  EXPECT_EQ(pixel(100, 100), kBlack);      // the last stroke is gone
  EXPECT_EQ(pixel(w - 5, h - 5), kWhite);  // the one before it is there, far out
  EXPECT_TRUE(f().Caption.get().endsWith(QString("%1 x %2").arg(w).arg(h)));
}

TEST_F(UndoTest, ClearAndTheCanvasColourReplaceThePictureForGoodAndUndoStopsTheTools) {
  drawDot(1500, 1500);
  m().CurrentFile = "C:\\pictures\\sky.bmp";
  choose(f().mClear);
  EXPECT_TRUE(pixel(100, 100) == kBlack && m().CurrentFile == "C:\\pictures\\sky.bmp");
  choose(f().mnuUndo);
  EXPECT_EQ(pixel(100, 100), kBlack);
  drawDot(1500, 1500);
  f().lColor.BackColor = 0x0000FF;
  f().lColor.raiseDblClick();
  EXPECT_EQ((std::vector<Colour>{pixel(100, 100), f().lBg.BackColor, f().PicPaint.BackColor}), std::vector<Colour>(3, 0x0000FF));
  f().tPenUp.Enabled = true;
  f().tAir.Enabled = true;
  choose(f().mnuUndo);
  EXPECT_EQ(pixel(100, 100), 0x0000FF);  // undo gives the new empty canvas
  EXPECT_FALSE(f().tPenUp.Enabled || f().tAir.Enabled);
}

// New's file name, lock and mode are checked with the file commands; here the picture it leaves.
TEST_F(UndoTest, ResetForgetsTheFileButKeepsThePictureAndNewFillsTheCanvasColour) {
  drawDot(1500, 1500);
  m().CurrentFile = "C:\\pictures\\sky.bmp";
  choose(f().mCvReset);
  EXPECT_TRUE(m().CurrentFile.isEmpty() && pixel(100, 100) == kWhite);
  choose(f().mShadow);
  f().lBg.BackColor = 0x00FF00;
  choose(f().mnuNew);
  EXPECT_EQ(pixel(100, 100), 0x00FF00);
}

TEST_F(UndoTest, TheStashIsFetchedOnlyAfterASendAsOftenAsWantedAtItsOwnSize) {
  EXPECT_FALSE(f().mGet.Enabled);
  drawDot(1500, 1500);
  choose(f().mGet);  // disabled: nothing comes
  EXPECT_EQ(pixel(100, 100), kWhite);
  choose(f().mSendStash);
  choose(f().mClear);
  drawDot(3000, 3000);
  choose(f().mGet);
  EXPECT_EQ(std::pair(pixel(100, 100), pixel(200, 200)), std::pair(kWhite, kBlack));
  choose(f().mnuUndo);  // the fetch can be undone
  EXPECT_EQ(std::pair(pixel(100, 100), pixel(200, 200)), std::pair(kBlack, kWhite));
  const Single w = f().PicPaint.Width, h = f().PicPaint.Height;
  choose(f().m64x48);
  drawDot(1500, 1500);
  release(1500, 1500, vbRightButton);  // an undo keeps the size chosen for the canvas
  EXPECT_TRUE(canvasSize() == QSize(640, 480) && f().PicUndo.Width == f().PicPaint.Width && pixel(100, 100) == kBlack);
  choose(f().mGet);  // and the stash is still there, at the size it was sent
  EXPECT_EQ(pixel(100, 100), kWhite);
  EXPECT_TRUE(f().PicPaint.Width < w && f().PicPaint.Height < h);
}

TEST_F(UndoTest, APasteFloatsUnderABlinkingFrameAndAClickSetsItDownWithinTheFrame) {
  drawDot(1500, 1500);
  QImage red(20, 10, QImage::Format_RGB32);
  red.fill(qRgb(255, 0, 0));
  headless.clipboard.SetData(red);
  choose(f().mnuPaste);
  EXPECT_EQ(f().DrawShape.Width.get(), 300);  // the frame fits the picture
  EXPECT_TRUE(f().tTemp.Enabled);             // and blinks
  EXPECT_EQ(pixel(33, 33), kBlack);  // not on the canvas yet
  f().DrawShape.Width = 600;  // a frame stretched to twice the width stretches the picture
  f().pTemp.raiseMouseDown(vbRightButton, 0, 10, 10);  // a right click does not set it down
  EXPECT_TRUE(f().pTemp.Visible);
  EXPECT_EQ(pixel(33, 33), kBlack);
  f().pTemp.raiseMouseDown(vbLeftButton, 0, 10, 10);
  for (const auto& [x, c] : {std::pair{33, kRed}, std::pair{70, kRed}, std::pair{75, kBlack}}) EXPECT_EQ(pixel(x, 33), c) << x;
  EXPECT_FALSE(f().DrawShape.Visible || f().tTemp.Enabled);
}

}  // namespace
}  // namespace qp::test
