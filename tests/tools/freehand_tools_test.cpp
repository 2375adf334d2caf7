// AirBrush, Eraser, SawTooth and Crazy Pencil, driven through the paint area's events and the
// virtual clock.
#include <cmath>

#include "tools/ToolFixture.h"

namespace qp::test {
namespace {

class AirBrushTest : public ToolTest {
 protected:
  void SetUp() override {
    ToolTest::SetUp();
    enter(f().mAir);
  }
  // The painted pixels' largest distance from (100, 100), in pixels.
  double reach() {
    double far = 0;
    for (int y = 0; y < 300; ++y)
      for (int x = 0; x < 300; ++x)
        if (GetPixel(f().PicPaint, x, y) == kWhite) far = std::max(far, std::hypot(x - 100, y - 100));
    return far;
  }
};

TEST_F(AirBrushTest, TheTimerSpraysWithinTheSpreadUntilTheRelease) {
  struct Case {
    int spread;
    double atLeast, atMost;  // pixels: rings of 18 twips, up to 18 x spread
  };
  for (const Case& c : {Case{0, 0, 0}, Case{10, 8, 13}, Case{160, 120, 193}}) {
    enter(f().mAir);
    if (c.spread > 0) f().vVal1.Value = c.spread;
    else f().AirSpread = 0;  // below the bar's range
    EXPECT_EQ(f().AirSpread, c.spread);
    press(1500, 1500);
    headless.loop.advance(4000);
    const int sprayed = count(kWhite);
    release(1500, 1500);
    headless.loop.advance(1000);
    EXPECT_EQ(count(kWhite), sprayed);  // the release stopped the timer
    EXPECT_GE(reach(), c.atLeast) << c.spread;
    EXPECT_LE(reach(), c.atMost) << c.spread;
    if (c.spread == 0) {
      EXPECT_EQ(sprayed, 1);
    }
  }
}

TEST_F(AirBrushTest, TheSprayPointFollowsTheMouse) {
  f().vVal1.Value = 1;
  press(1500, 1500);
  move(4500, 4500);
  headless.loop.advance(2000);
  release(4500, 4500);
  EXPECT_EQ(pixel(300, 300), kWhite);
  EXPECT_EQ(pixel(100, 100), kBlack);
}

TEST_F(ToolTest, EraserStampsTheThirdColourThenTheForeColourUnderItsOutline) {
  enter(f().mEr);
  f().vVal1.Value = 300;  // 20 pixels a side
  press(1500, 1500);
  EXPECT_TRUE(f().shErase.Visible);
  EXPECT_EQ(f().shErase.Left, 1350);
  EXPECT_EQ(pixel(91, 91), kBlue);
  EXPECT_EQ(pixel(109, 109), kBlue);
  EXPECT_EQ(pixel(112, 100), kBlack);
  move(3000, 1500);
  EXPECT_EQ(pixel(200, 108), kWhite);
  EXPECT_EQ(pixel(150, 100), kBlack);  // a square per event, nothing in between
  release(3000, 1500);
  EXPECT_FALSE(f().shErase.Visible);
}

TEST_F(ToolTest, SawToothDrawsTeethInTheBackColourAndSpokesInTheForeColour) {
  enter(f().mSaw);
  f().vVal1.Value = 150;  // 10 pixels
  stroke({{1500, 1500}, {3000, 1500}});
  EXPECT_EQ(pixel(155, 105), kGray);   // tooth from (110, 110) to the pointer
  EXPECT_EQ(pixel(205, 105), kWhite);  // spoke from the pointer shifted
  enter(f().mSaw);
  f().vVal1.Value = 60;
  m().StepSize = 0;
  stroke({{1500, 1500}});
  EXPECT_EQ(pixel(100, 100), kWhite);  // with no offset the fore colour's dot wins
}

TEST_F(ToolTest, CrazyPencilStepsThroughTheEvenDrawModesOnePerPress) {
  enter(f().mCrzyPen);
  f().ckVal.Value = 0;
  m().DrawWidth = 1;
  f().lForclr.BackColor = 0x00FF00;
  for (int expected : {2, 4, 6, 8, 10, 12, 14, 16, 2}) {
    press(1500, 1500);
    EXPECT_EQ(f().PicPaint.DrawMode, expected);
    release(1500, 1500);
  }
  enter(f().mCrzyPen);
  f().ckVal.Value = 0;
  m().ForeClr = 0x00FF00;
  f().ckVal2.Value = 1;  // the bar's mode stays
  f().vVal1.Value = 0;   // not merge pen
  press(1500, 1500);
  EXPECT_EQ(f().PicPaint.DrawMode, 2);
  release(1500, 1500);
  EXPECT_EQ(pixel(100, 100), 0xFF00FF);  // not (pen or canvas) over black
}

TEST_F(ToolTest, CrazyPencilRandomColoursComeFromTheSixteen) {
  enter(f().mCrzyPen);
  f().ckVal.Value = 1;
  f().ckVal2.Value = 1;
  f().vVal1.Value = 10;  // copy pen
  for (int i = 0; i < 40; ++i) {
    press(1500 + 150 * i, 1500);
    release(1500 + 150 * i, 1500);
    const Colour c = pixel(100 + 10 * i, 100);
    bool known = false;
    for (int n = 0; n < 16; ++n) known |= c == QBColor(n);
    EXPECT_TRUE(known) << i;
  }
}

}  // namespace
}  // namespace qp::test
