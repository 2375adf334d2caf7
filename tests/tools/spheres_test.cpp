// Gradient Spheres and Circle FX: the rings' colours, where a sphere stops, and the timer that
// repeats them while the button is held.
#include "support/ProgramFixture.h"
#include "tools/Spheres.h"

namespace qp::test {
namespace {

TEST(RingColour, PureAndMixedColoursFillTheirOwnChannels) {
  struct Case { int option; bool mixed; Colour expected; };
  // The colour boxes hold red 1, green 2, blue 3; colours read 0xBBGGRR.
  for (const Case c : {Case{0, false, 0x808080}, Case{3, false, 0x800000}, Case{5, false, 0x808000},
                       Case{1, true, 0x030280}, Case{2, true, 0x038001}, Case{6, true, 0x800280}}) {
    EXPECT_EQ(RingColour(c.option, 0x80, c.mixed, 1, 2, 3), c.expected) << c.option << c.mixed;
  }
  EXPECT_FALSE(RingColour(0, 10, true, 1, 2, 3));  // white has no mixed colour
  EXPECT_THROW(RingColour(1, -1, false, 0, 0, 0), RuntimeError);
}

class Spheres : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    f().PicPaint.Picture = QImage();
    choose(f().mBallz);
    m().ColorOption = 0;
  }
  void click(Single x, Single y) {
    press(x, y);
    release(x, y);
  }
};

TEST_F(Spheres, TheRampEndsTheSphereBeforeTheLimit) {
  f().vVal2.Value = 25;  // 255, 230, ..., 5, then below 0
  click(3000, 3000);
  // A ring a pixel out is three wide: the last ring over a pixel gives its colour.
  EXPECT_EQ(pixel(200 + 8, 200), RGB(30, 30, 30));
  EXPECT_EQ(pixel(200 + 10, 200) & 0xFF, 5);
  EXPECT_EQ(pixel(200 + 13, 200), 0x000000);
  EXPECT_FALSE(f().tSphere.Enabled);
}

TEST_F(Spheres, WhiteWithMixingTurnsTheOptionRedForTheNextSphere) {
  f().ckVal.Value = 1;
  f().vVal2.Value = 1;
  click(3000, 3000);
  EXPECT_EQ(f().vColors.Value, 1);
  EXPECT_EQ(pixel(205, 200), 0x000000);  // this sphere drew nothing
  click(3000, 3000);
  EXPECT_EQ(redOf(pixel(205, 200)), 249);
}

TEST_F(Spheres, TheTimerRepeatsAtThePointerWhileTheButtonIsHeld) {
  f().ckVal2.Value = 1;
  press(1500, 1500);
  EXPECT_TRUE(f().tSphere.Enabled);
  move(4500, 1500);  // a move draws nothing itself
  EXPECT_EQ(pixel(305, 100), 0x000000);
  const uchar* bits = f().PicPaint.bitmap().constBits();
  f().PicPaint.takeDirty();
  headless.loop.advance(f().tSphere.Interval);
  EXPECT_NE(pixel(305, 100), 0x000000);
  EXPECT_EQ(f().PicPaint.bitmap().constBits(), bits);  // no copy of the canvas
  EXPECT_TRUE(QRect(270, 70, 61, 61).contains(f().PicPaint.takeDirty()));
  release(4500, 1500);
  EXPECT_FALSE(f().tSphere.Enabled);
  f().ckVal2.Value = 0;
  press(1500, 1500);
  EXPECT_FALSE(f().tSphere.Enabled);
}

TEST_F(Spheres, ATickAfterAChangeOfModeDrawsNothingAndStops) {
  f().ckVal2.Value = 1;
  press(1500, 1500);
  choose(f().mPencil);
  f().PicPaint.Picture = QImage();
  headless.loop.advance(500);
  EXPECT_EQ(pixel(100, 100), 0x000000);
  EXPECT_FALSE(f().tSphere.Enabled);
}

class CircleFx : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    f().PicPaint.Picture = QImage();
    choose(f().mCircFx);
  }
};

TEST_F(CircleFx, RingsBrightenOutwardsAndAStrideBeyondTheRadiusDrawsOne) {
  m().ColorOption = 0;
  f().vVal4.Value = 1;  // one-pixel rings
  press(3000, 3000);
  release(3000, 3000);
  // Step 3, intensity 12: the ring at radius 30 is the eleventh, 120 bright.
  EXPECT_EQ(pixel(230, 200), RGB(120, 120, 120));
  EXPECT_EQ(pixel(231, 200), 0x000000);
  f().PicPaint.Picture = QImage();
  f().vVal1.Value = 10;
  f().vVal2.Value = 20;
  f().vVal3.Value = 20;
  press(3000, 3000);
  release(3000, 3000);
  EXPECT_EQ(pixel(200, 200), 0x000000);  // radius 0, colour 0
  EXPECT_EQ(pixel(210, 200), RGB(20, 20, 20));
}

TEST_F(CircleFx, EachBarSaysItsValue) {
  struct Case { int row; int value; const char* stats; const char* tell; };
  for (const Case c : {Case{1, 4, "Step : 4", "Click arrows to set Step   Current Step : 4"},
                       Case{2, 60, "Radius : 60", "Click arrows to set Radius   Current Radius : 60"},
                       Case{3, 7, "Intensity : 7", "Click arrows to set Color Intensity    Current Intensity : 7"},
                       Case{4, 9, "Depth : 9", "Click arrows to set Depth   Current Depth : 9"},
                       Case{5, 8, "Aspect : 8", "Click arrows to set Aspect ratio   Current Aspect : 8"}}) {
    f().valueBar(c.row).Value = c.value;
    EXPECT_EQ(f().lStats.Caption.get(), c.stats);
    EXPECT_EQ(f().valueLabel(c.row).ToolTipText.get(), c.stats);
    EXPECT_EQ(f().lTell.Caption.get(), c.tell);
  }
}

}  // namespace
}  // namespace qp::test
