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

TEST_F(AutoDrawTest, TheBoxSwitchesThePenAndItsPanel) {
  f().ckVal.Value = 0;
  f().ckVal.Value = 1;
  EXPECT_EQ(f().lStats.Caption.get(), "AutoDraw Enabled");
  EXPECT_EQ(f().Shadow(1).BackColor.get(), 0xFF8080);
  EXPECT_EQ(f().Shadow(2).BackColor.get(), 0xFF8080);
  EXPECT_FALSE(f().vMax.Enabled);
  EXPECT_FALSE(f().vMin.Enabled);
  EXPECT_TRUE(f().fInt.Visible);
  f().ckVal.Value = 0;
  EXPECT_EQ(f().lStats.Caption.get(), "AutoDraw Disabled");
  EXPECT_EQ(f().Shadow(1).BackColor.get(), 0x808080);
  EXPECT_TRUE(f().vMax.Enabled);
  EXPECT_TRUE(f().vMin.Enabled);
  EXPECT_FALSE(f().fInt.Visible);
}

TEST_F(AutoDrawTest, TheSpeedBarSetsTheStepAndSaysSo) {
  f().vVal1.Value = 10;
  EXPECT_EQ(f().AutoDrawSpeed, 10);
  EXPECT_EQ(f().lStats.Caption.get(), "Speed : 10");
  EXPECT_EQ(f().lVal1.ToolTipText.get(), "Speed : 10");
  EXPECT_EQ(f().lHelp.Caption.get(),
            "Click arrows to set AutoDraw Speed    Current Speed : 10    Set interval with the Interval "
            "arrows located to the left of the draw width controls");
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
  EXPECT_EQ(f().AutoDrawRight, 0);
  ticks(4);
  EXPECT_EQ(f().AutoDrawX, 1560);  // stopped with the key
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

TEST_F(AutoDrawTest, ClearingTheBoxStopsTheDrawingAtTheNextTick) {
  keyDown(vbKeyDown);
  ticks(1);
  f().ckVal.Value = 0;
  ticks(3);
  EXPECT_EQ(f().AutoDrawY, 1504);
  EXPECT_TRUE(f().tDraw.Enabled);  // the key up stops the timer
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

TEST_F(AutoDrawTest, WithTheBoxClearArrowsDriveTheWidthInstead) {
  f().ckVal.Value = 0;
  keyDown(vbKeyRight);
  EXPECT_FALSE(f().tDraw.Enabled);
  EXPECT_TRUE(f().tPenUp.Enabled);
}

}  // namespace
}  // namespace qp::test
