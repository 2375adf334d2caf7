// The undo levels as the user meets them: the menu, the keys, clearing and the canvas colour.
#include <QImage>

#include "core/Keyboard.h"
#include "support/KeyInput.h"
#include "support/ProgramFixture.h"

namespace qp::test {
namespace {


class UndoTest : public PencilTest {
 protected:
  void key(int code) {
    windowKeyDown(f(), code);
    windowKeyUp(f(), code);
  }
};

TEST_F(UndoTest, UndoTwiceFromTheMenuGivesTheSamePictureAsOnce) {
  drawDot(1500, 1500);
  drawDot(3000, 3000);
  choose(f().mnuUndo);
  const QImage once = f().PicPaint.Image;
  choose(f().mnuUndo);
  EXPECT_EQ(QImage(f().PicPaint.Image), once);
  EXPECT_EQ(pixel(100, 100), kWhite);
  EXPECT_EQ(pixel(200, 200), kBlack);
}

TEST_F(UndoTest, UndoStopsTheToolsRunning) {
  f().tPenUp.Enabled = true;
  f().tAir.Enabled = true;
  choose(f().mnuUndo);
  EXPECT_FALSE(f().tPenUp.Enabled);
  EXPECT_FALSE(f().tAir.Enabled);
}

TEST_F(UndoTest, DeleteCanBeUndoneButTheClearCommandCannot) {
  drawDot(1500, 1500);
  key(vbKeyDelete);
  choose(f().mnuUndo);
  EXPECT_EQ(pixel(100, 100), kWhite);

  m().CurrentFile = "C:\\pictures\\sky.bmp";
  choose(f().mClear);
  EXPECT_EQ(pixel(100, 100), kBlack);
  EXPECT_EQ(m().CurrentFile, "C:\\pictures\\sky.bmp");  // the menu command keeps the file
  choose(f().mnuUndo);
  EXPECT_EQ(pixel(100, 100), kBlack);
}

TEST_F(UndoTest, AfterAModeChangeTheStrokeNeedsTheSecondLevel) {
  drawDot(1500, 1500);
  choose(f().mShadow);  // the mode change takes a snapshot of its own
  choose(f().mnuUndo);
  EXPECT_EQ(pixel(100, 100), kWhite);  // the canvas as it stood at the change
  windowKeyDown(f(), vbKeyControl);
  key(vbKeyBack);
  windowKeyUp(f(), vbKeyControl);
  EXPECT_EQ(pixel(100, 100), kBlack);
}

TEST_F(UndoTest, TheCanvasColourReplacesThePictureForGood) {
  drawDot(1500, 1500);
  f().lColor.BackColor = 0x0000FF;
  f().lColor.raiseDblClick();
  EXPECT_EQ(pixel(100, 100), 0x0000FF);
  EXPECT_EQ(f().lBg.BackColor.get(), 0x0000FF);
  EXPECT_EQ(f().PicPaint.BackColor.get(), 0x0000FF);
  choose(f().mnuUndo);
  EXPECT_EQ(pixel(100, 100), 0x0000FF);  // undo gives the new empty canvas
  EXPECT_EQ(pixel(300, 300), 0x0000FF);
}

TEST_F(UndoTest, NewGivesAnEmptyUntitledPencilCanvasInTheCanvasColour) {
  choose(f().mShadow);
  drawDot(1500, 1500);
  m().CurrentFile = "C:\\pictures\\sky.bmp";
  f().mLock.Checked = true;
  f().CanvasLocked = -1;
  f().lBg.BackColor = 0x00FF00;
  choose(f().mnuNew);
  EXPECT_EQ(m().PaintMode, 0);
  EXPECT_EQ(m().CurrentFile, "");
  EXPECT_FALSE(f().mLock.Checked);
  EXPECT_EQ(f().mLock.Caption.get(), "Lock Canvas");
  EXPECT_EQ(f().CanvasLocked, 0);
  EXPECT_EQ(pixel(100, 100), 0x00FF00);
  EXPECT_TRUE(f().Caption.get().contains("Untitled.bmp"));
}

TEST_F(UndoTest, ResetForgetsTheFileAndKeepsThePicture) {
  drawDot(1500, 1500);
  m().CurrentFile = "C:\\pictures\\sky.bmp";
  choose(f().mCvReset);
  EXPECT_EQ(m().CurrentFile, "");
  EXPECT_EQ(pixel(100, 100), kWhite);
}

}  // namespace
}  // namespace qp::test
