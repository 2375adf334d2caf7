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
  release(1500, 1500);
  // A tick that comes after the mode changed under a held button draws nothing and stops.
  f().ckVal2.Value = 1;
  press(1500, 1500);
  choose(f().mPencil);
  f().PicPaint.Picture = QImage();
  headless.loop.advance(500);
  EXPECT_EQ(pixel(105, 100), 0x000000);
  EXPECT_FALSE(f().tSphere.Enabled);
}

// Every bar at either end, in both modes, with mixing on and off: the rings draw and nothing fails.
TEST_F(Spheres, EveryBarAtEitherEndStillDraws) {
  for (Menu* mode : {&f().mBallz, &f().mCircFx}) {
    choose(*mode);
    for (int end = 0; end <= 1; ++end) {
      for (int row = 1; row <= 5; ++row) {
        ScrollBar& bar = f().valueBar(row);
        if (bar.Visible) bar.Value = end ? bar.Max.get() : bar.Min.get();
      }
      f().ckVal.Value = 1 - end;  // white has no mixed colour
      f().PicPaint.Picture = QImage();
      press(3000, 3000);
      release(3000, 3000);
      EXPECT_NE(pixel(203, 200), 0x000000) << mode->key().toStdString() << end;
    }
  }
}

}  // namespace
}  // namespace qp::test
