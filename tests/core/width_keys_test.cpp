// The draw width on the fly: arrow keys on the paint area, the width timers, their limits and Hold.
#include "core/Keyboard.h"
#include "support/KeyInput.h"
#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

class WidthKeysTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    choose(f().mPencil);
  }
  void keyDown(int code) { canvasKeyDown(f(), code); }
  void keyUp(int code) { canvasKeyUp(f(), code); }
  void ticks(Timer& t, int n) { headless.loop.advance(static_cast<std::int64_t>(t.Interval) * n); }
};

TEST_F(WidthKeysTest, UpAndRightWidenWhileHeldLeftAndDownNarrow) {
  const int step = m().StepSize;
  keyDown(vbKeyUp);
  ticks(f().tPenUp, 3);
  EXPECT_EQ(m().DrawWidth, 4);
  EXPECT_EQ(m().StepSize, step + 30);
  EXPECT_EQ(f().vPencil.Value.get(), 4);
  EXPECT_EQ(f().PicPaint.DrawWidth.get(), 4);
  EXPECT_EQ(f().lPenVal.Caption.get(), "Draw Width : 4");
  keyUp(vbKeyUp);
  EXPECT_FALSE(f().tPenUp.Enabled);
  ticks(f().tPenUp, 3);
  EXPECT_EQ(m().DrawWidth, 4);

  keyDown(vbKeyRight);
  ticks(f().tPenUp, 4);
  keyUp(vbKeyRight);
  EXPECT_EQ(m().DrawWidth, 8);
  keyDown(vbKeyLeft);
  ticks(f().tPenDwn, 1);
  keyUp(vbKeyLeft);
  EXPECT_EQ(m().DrawWidth, 7);
  keyDown(vbKeyDown);
  ticks(f().tPenDwn, 2);
  keyUp(vbKeyDown);
  EXPECT_EQ(m().DrawWidth, 5);
  EXPECT_EQ(f().lPenVal.Caption.get(), "Draw Width : 5");
}

TEST_F(WidthKeysTest, TheWidthStopsWhenItMeetsItsLimit) {
  keyDown(vbKeyUp);
  ticks(f().tPenUp, 40);
  EXPECT_EQ(m().DrawWidth, 24);
  EXPECT_FALSE(f().tPenUp.Enabled);
  EXPECT_EQ(f().lTell.Caption.get(), "Maximum");
  EXPECT_EQ(f().lHelp.ForeColor.get(), 0xC0C0FF);
  keyUp(vbKeyUp);
  EXPECT_EQ(f().lTell.Caption.get(), "");

  m().StepSize = 70;  // the spacing falls with the width, but not under 50
  keyDown(vbKeyDown);
  ticks(f().tPenDwn, 40);
  EXPECT_EQ(m().DrawWidth, 4);
  EXPECT_EQ(m().StepSize, 50);
  EXPECT_FALSE(f().tPenDwn.Enabled);
  EXPECT_EQ(f().lTell.Caption.get(), "Minimum");
  EXPECT_EQ(f().lHelp.ForeColor.get(), 0x00FFFF);
}

TEST_F(WidthKeysTest, AWidthAlreadyPastTheLimitRunsOnToTheBarsEnd) {
  m().DrawWidth = 30;
  keyDown(vbKeyUp);
  ticks(f().tPenUp, 200);
  EXPECT_EQ(m().DrawWidth, 160);
  EXPECT_TRUE(f().tPenUp.Enabled);  // nothing but equality with the limit stops it
  EXPECT_EQ(m().StepSize, 951 + 9);  // the spacing has its own ceiling
}

TEST_F(WidthKeysTest, HoldKeepsTheWidthMovingUntilTheLimit) {
  f().ckHold.Value = 1;
  keyDown(vbKeyUp);
  ticks(f().tPenUp, 2);
  keyUp(vbKeyUp);
  EXPECT_TRUE(f().tPenUp.Enabled);
  ticks(f().tPenUp, 40);
  EXPECT_EQ(m().DrawWidth, 24);
  EXPECT_FALSE(f().tPenUp.Enabled);
}

TEST_F(WidthKeysTest, TheTwoWidthTimersNeverRunTogether) {
  keyDown(vbKeyUp);
  keyDown(vbKeyLeft);
  EXPECT_TRUE(f().tPenUp.Enabled);
  EXPECT_TRUE(f().tPenDwn.Enabled);
  ticks(f().tPenUp, 1);
  EXPECT_NE(f().tPenUp.Enabled.get(), f().tPenDwn.Enabled.get());
}

TEST_F(WidthKeysTest, TheSprayGrowsWithTheWidthOnlyWithTheSecondBox) {
  m().PaintMode = 3;
  const int spread = f().AirSpread;
  keyDown(vbKeyUp);
  ticks(f().tPenUp, 2);
  keyUp(vbKeyUp);
  EXPECT_EQ(f().AirSpread, spread);
  f().ckVal2.Value = 1;
  keyDown(vbKeyUp);
  ticks(f().tPenUp, 2);
  keyUp(vbKeyUp);
  EXPECT_EQ(f().AirSpread, spread + 4);
  f().ckVal2.Value = 0;  // and narrows with it only with the box too
  f().AirSpread = 20;
  keyDown(vbKeyDown);
  ticks(f().tPenDwn, 2);
  keyUp(vbKeyDown);
  EXPECT_EQ(f().AirSpread, 20);
}

TEST_F(WidthKeysTest, ModesWithoutAWidthIgnoreTheArrows) {
  for (int mode : {14, 17, 18, 19, 21, 25, 26, 29}) {
    m().PaintMode = mode;
    keyDown(vbKeyUp);
    keyDown(vbKeyDown);
    EXPECT_FALSE(f().tPenUp.Enabled) << "mode " << mode;
    EXPECT_FALSE(f().tPenDwn.Enabled) << "mode " << mode;
  }
  // Simple Shapes widens only for its box run.
  m().PaintMode = 2;
  f().vVal3.Min = 3;
  f().vVal3.Max = 0;
  f().vVal3.Value = 0;
  keyDown(vbKeyUp);
  EXPECT_FALSE(f().tPenUp.Enabled);
  f().vVal3.Value = 3;
  keyDown(vbKeyUp);
  EXPECT_TRUE(f().tPenUp.Enabled);
}

TEST_F(WidthKeysTest, TheTextBrushGrowsItsFontInstead) {
  m().PaintMode = 20;
  f().vFont.Value = 108;
  keyDown(vbKeyUp);
  ticks(f().tPenUp, 5);
  EXPECT_EQ(f().vFont.Value.get(), 110);
  EXPECT_EQ(f().lTell.Caption.get(), "Maximum");
  EXPECT_EQ(m().DrawWidth, 1);
  keyUp(vbKeyUp);
  f().vFont.Value = 14;
  keyDown(vbKeyDown);
  ticks(f().tPenDwn, 5);
  EXPECT_EQ(f().vFont.Value.get(), 12);
  EXPECT_EQ(f().lTell.Caption.get(), "Minimum");
}

}  // namespace
}  // namespace qp::test
