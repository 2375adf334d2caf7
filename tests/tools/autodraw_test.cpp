// AutoDraw: the arrow keys steer a pen that the draw timer moves and draws with.
#include "core/Keyboard.h"
#include "support/KeyInput.h"
#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

class AutoDrawTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    choose(f().mPencil);
    f().vColmode.Value = 0;
    f().ckVal.Value = 1;
    // A click puts the pen where it was released.
    press(1500, 1500);
    release(1500, 1500);
  }
  void keyDown(int code) { canvasKeyDown(f(), code); }
  void keyUp(int code) { canvasKeyUp(f(), code); }
  // Runs n ticks of the pen.
  void ticks(int n) { headless.loop.advance(static_cast<std::int64_t>(f().tDraw.Interval) * n); }
};

TEST_F(AutoDrawTest, TheBoxSwitchesThePenAndTheArrowsDriveTheWidthWhenItIsClear) {
  EXPECT_FALSE(f().vMax.Enabled);
  EXPECT_TRUE(f().fInt.Visible);
  f().vVal1.Value = 10;
  EXPECT_EQ(f().AutoDrawSpeed, 10);
  f().ckVal.Value = 0;
  EXPECT_TRUE(f().vMax.Enabled);
  EXPECT_FALSE(f().fInt.Visible);
  keyDown(vbKeyRight);
  EXPECT_FALSE(f().tDraw.Enabled);
  EXPECT_TRUE(f().tPenUp.Enabled);
}

TEST_F(AutoDrawTest, AHeldArrowMovesThePenAndDrawsItsTrack) {
  f().vVal1.Value = 15;
  keyDown(vbKeyRight);
  EXPECT_TRUE(f().tDraw.Enabled);
  ticks(4);
  EXPECT_EQ(f().AutoDrawX, 1500 + 4 * 15);
  EXPECT_EQ(f().AutoDrawY, 1500);
  EXPECT_EQ(f().lX.Caption.get(), "X : 104");
  EXPECT_EQ(pixel(102, 100), 0xFFFFFF);
  keyUp(vbKeyRight);
  EXPECT_FALSE(f().tDraw.Enabled);
  ticks(4);
  EXPECT_EQ(f().AutoDrawX, 1560);  // stopped with the key
  // Clearing the box stops the drawing at the next tick; only the key up stops the timer.
  keyDown(vbKeyDown);
  ticks(1);
  f().ckVal.Value = 0;
  ticks(3);
  EXPECT_EQ(f().AutoDrawY, 1500 + 15);
  EXPECT_TRUE(f().tDraw.Enabled);
}

TEST_F(AutoDrawTest, OppositeKeysCancelAndCrossingKeysGoDiagonally) {
  keyDown(vbKeyLeft);
  keyDown(vbKeyRight);
  keyDown(vbKeyUp);
  ticks(3);
  EXPECT_EQ(f().AutoDrawX, 1500);
  EXPECT_EQ(f().AutoDrawY, 1500 - 3 * 4);

  keyUp(vbKeyLeft);
  keyUp(vbKeyUp);
  keyDown(vbKeyDown);  // Right is still held: its flag stays
  ticks(2);
  EXPECT_EQ(f().AutoDrawX, 1500 + 2 * 4);
  EXPECT_EQ(f().AutoDrawY, 1488 + 2 * 4);
}

TEST_F(AutoDrawTest, ThePenMayLeaveTheCanvasAndShowsWhereItIs) {
  f().vVal1.Value = 40;
  release(30, 30);  // any release moves the pen
  keyDown(vbKeyLeft);
  ticks(1);
  EXPECT_EQ(f().AutoDrawX, -10);
  ticks(1);
  EXPECT_EQ(f().lX.Caption.get(), "X : -3");
}

TEST_F(AutoDrawTest, APenPastSixteenBitsEndsTheTickWithoutDrawing) {
  f().vVal1.Value = 40;
  f().AutoDrawX = 32760;
  const QString shown = f().lX.Caption;
  keyDown(vbKeyRight);
  ticks(3);
  EXPECT_EQ(f().AutoDrawX, 32760);
  EXPECT_EQ(f().lX.Caption.get(), shown);  // no tick got as far as the display
  keyUp(vbKeyRight);
  keyDown(vbKeyLeft);
  ticks(1);
  EXPECT_EQ(f().AutoDrawX, 32720);  // the way back still works
}

TEST_F(AutoDrawTest, AnUndoReturnsToBeforeTheLastMouseStrokeNotTheRun) {
  keyDown(vbKeyRight);
  ticks(10);
  keyUp(vbKeyRight);
  ASSERT_EQ(pixel(102, 100), 0xFFFFFF);
  choose(f().mnuUndo);
  EXPECT_EQ(pixel(102, 100), 0x000000);
  EXPECT_EQ(pixel(100, 100), 0x000000);  // the click's dot went with it
}

}  // namespace
}  // namespace qp::test
