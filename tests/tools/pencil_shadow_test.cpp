// The Pencil and Shadow Draw, driven through the paint area's mouse events.
#include "core/Keyboard.h"
#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

constexpr Colour kGray = 0x808080;   // the back colour at start
constexpr Colour kBlue = 0xFF0000;   // the third colour at start

TEST_F(PencilTest, PressWithoutMovementLeavesADotOfTheDrawWidth) {
  m().DrawWidth = 5;
  press(1500, 1500);
  release(1500, 1500);
  EXPECT_EQ(pixel(100, 100), kWhite);
  EXPECT_EQ(pixel(101, 101), kWhite);  // wider than one pixel
  EXPECT_EQ(pixel(110, 100), kBlack);
}

TEST_F(PencilTest, MovesJoinIntoOneLineInTheForeColour) {
  f().lForclr.BackColor = 0x00FF00;
  press(1500, 1500);
  move(3000, 1500);
  move(3000, 3000);
  release(3000, 3000);
  EXPECT_EQ(pixel(150, 100), 0x00FF00);
  EXPECT_EQ(pixel(200, 150), 0x00FF00);
  EXPECT_EQ(pixel(150, 150), kBlack);
  EXPECT_EQ(m().LastX, 3000);
  EXPECT_EQ(m().LastY, 3000);
}

TEST_F(PencilTest, TheNextSegmentStartsAtTheRawEventPosition) {
  press(1500, 1500);
  move(1500, 1507.4f);
  EXPECT_FLOAT_EQ(m().LastY, 1507.4f);  // the segment itself ended at the rounded 1507
}

class ShadowDrawTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    choose(f().mShadow);
    f().vColmode.Value = 0;
  }
  void blank() { f().PicPaint.Picture = QImage(); }
  // A dot at (200, 200) pixels, and the colours at the shifts -2, -1, 0, +1, +2 offsets of 40 px.
  std::vector<Colour> dotAndCopies(int shadowBox, int thirdBox, int offsetTwips = 600) {
    f().ckVal.Value = shadowBox;
    f().ckVal2.Value = thirdBox;
    m().StepSize = offsetTwips;
    press(3000, 3000);
    release(3000, 3000);
    std::vector<Colour> seen;
    for (int k = -2; k <= 2; ++k) seen.push_back(pixel(200 + 40 * k, 200 + 40 * k));
    return seen;
  }
};

TEST_F(ShadowDrawTest, TheTrackIsInTheBackColourAndTheCopiesFollowTheBoxes) {
  using V = std::vector<Colour>;
  //                                 -2O     -O      track  +O      +2O
  EXPECT_EQ(dotAndCopies(0, 0), (V{kBlack, kWhite, kGray, kBlack, kBlack}));
  choose(f().mShadow);
  blank();
  EXPECT_EQ(dotAndCopies(1, 0), (V{kBlack, kBlue, kGray, kWhite, kBlack}));
  choose(f().mShadow);
  blank();
  EXPECT_EQ(dotAndCopies(1, 1), (V{kWhite, kBlue, kGray, kWhite, kBlue}));
  choose(f().mShadow);
  blank();
  EXPECT_EQ(dotAndCopies(0, 1), (V{kBlue, kWhite, kGray, kWhite, kBlue}));
}

TEST_F(ShadowDrawTest, WithNoOffsetTheLastCopyPaintedWins) {
  // Every copy lies on the track, so the one painted last shows.
  EXPECT_EQ(dotAndCopies(0, 0, 0)[2], kWhite);  // -O in the fore colour
  choose(f().mShadow);
  EXPECT_EQ(dotAndCopies(1, 0, 0)[2], kBlue);   // -O in the third colour
  choose(f().mShadow);
  EXPECT_EQ(dotAndCopies(1, 1, 0)[2], kWhite);  // -2O in the fore colour
  choose(f().mShadow);
  EXPECT_EQ(dotAndCopies(0, 1, 0)[2], kBlue);   // -2O in the third colour
}

TEST_F(ShadowDrawTest, AMoveDrawsTheSegmentAndItsCopies) {
  f().ckVal.Value = 0;
  m().StepSize = 600;
  press(3000, 3000);
  move(6000, 3000);
  release(6000, 3000);
  EXPECT_EQ(pixel(300, 200), kGray);   // the track
  EXPECT_EQ(pixel(260, 160), kWhite);  // shifted left and up
  EXPECT_EQ(m().LastX, 6000);
}

TEST_F(ShadowDrawTest, RainbowWithTheShadowBoxCarriesTheTrackColourOnlyWhenMoving) {
  f().ckVal.Value = 1;
  f().vColmode.Value = 1;
  const Long back = m().BackClr;
  press(3000, 3000);
  EXPECT_EQ(m().BackClr, back);  // the press keeps the back colour
  move(4500, 3000);
  EXPECT_EQ(m().BackClr, m().ForeClr);

  choose(f().mShadow);
  m().BackClr = back;
  f().ckVal.Value = 0;
  f().vColmode.Value = 1;
  press(3000, 3000);
  move(4500, 3000);
  EXPECT_EQ(m().BackClr, back);
}

TEST_F(ShadowDrawTest, EnteringTheModeKeepsTheOffset) {
  m().StepSize = 300;
  choose(f().mPencil);
  choose(f().mShadow);
  EXPECT_EQ(m().StepSize, 300);
  EXPECT_EQ(f().vVal1.Value.get(), 300);
}

TEST_F(ShadowDrawTest, AnOffsetPastSixteenBitsEndsTheStepSilently) {
  m().StepSize = 20000;  // twice that overflows
  f().ckVal2.Value = 1;
  press(3000, 3000);
  move(4500, 3000);
  release(4500, 3000);
  EXPECT_EQ(pixel(250, 200), kGray);  // the track before the copies
  m().StepSize = 600;
  press(6000, 6000);
  EXPECT_EQ(pixel(440, 440), kWhite);  // the next stroke works as ever
}

}  // namespace
}  // namespace qp::test
