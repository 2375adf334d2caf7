// Both undo levels hold and give back the whole canvas at the canvas's size, whatever size the
// canvas took before.
#include "core/Keyboard.h"
#include "support/KeyInput.h"
#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

class UndoLevelsTest : public PencilTest {
 protected:
  void ctrlBackspace() {
    windowKeyDown(f(), vbKeyControl);
    windowKeyDown(f(), vbKeyBack);
    windowKeyUp(f(), vbKeyBack);
    windowKeyUp(f(), vbKeyControl);
  }
  int canvasWidth() { return static_cast<int>(f().PicPaint.Width / 15); }
  int canvasHeight() { return static_cast<int>(f().PicPaint.Height / 15); }
};

TEST_F(UndoLevelsTest, TheSecondLevelGivesBackTheWholeCanvas) {
  const int w = canvasWidth(), h = canvasHeight();
  ASSERT_GT(w, 100);
  drawDot(15.0f * (w - 5), 15.0f * (h - 5));  // a dot far from the corner a small holder keeps
  drawDot(1500, 1500);
  choose(f().mShadow);
  ctrlBackspace();
  EXPECT_EQ(canvasWidth(), w);
  EXPECT_EQ(canvasHeight(), h);
  EXPECT_EQ(pixel(100, 100), kBlack);         // the last stroke is gone
  EXPECT_EQ(pixel(w - 5, h - 5), kWhite);     // the one before it is there, far out
  EXPECT_TRUE(f().Caption.get().endsWith(QString("%1 x %2").arg(w).arg(h)));
}

// A new canvas size, then a stroke and undo: the canvas stays at the size the title gives.
TEST_F(UndoLevelsTest, UndoKeepsTheSizeChosenForTheCanvas) {
  choose(f().m64x48);
  drawDot(1500, 1500);
  press(1500, 1500, vbRightButton);
  release(1500, 1500, vbRightButton);
  EXPECT_EQ(canvasWidth(), 640);
  EXPECT_EQ(canvasHeight(), 480);
  EXPECT_EQ(f().PicUndo.Width.get(), f().PicPaint.Width.get());
  EXPECT_EQ(pixel(100, 100), kBlack);
  EXPECT_TRUE(f().Caption.get().endsWith("640 x 480"));
}

}  // namespace
}  // namespace qp::test
