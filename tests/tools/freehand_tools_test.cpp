// The freehand tools and AutoDraw, driven through the paint area's events and the virtual clock.
#include "core/Keyboard.h"
#include "support/KeyInput.h"
#include "tools/ToolFixture.h"

namespace qp::test {
namespace {

using ShadowDrawTest = ToolTest;

TEST_F(ShadowDrawTest, TheTrackIsInTheBackColourAndTheCopiesFollowTheBoxes) {
  // seen: at -2O, -O, the track, +O, +2O (offsets of 40 pixels)
  struct Case { int shadow, third, offset; std::vector<Colour> seen; };
  const Case cases[] = {
      {0, 0, 600, {kBlack, kWhite, kGray, kBlack, kBlack}}, {1, 0, 600, {kBlack, kBlue, kGray, kWhite, kBlack}},
      {0, 1, 600, {kBlue, kWhite, kGray, kWhite, kBlue}},
      // With no offset every copy lies on the track and the one painted last shows.
      {0, 0, 0, {kBlack, kBlack, kWhite, kBlack, kBlack}},  {1, 0, 0, {kBlack, kBlack, kBlue, kBlack, kBlack}},
      {1, 1, 0, {kBlack, kBlack, kWhite, kBlack, kBlack}},  {0, 1, 0, {kBlack, kBlack, kBlue, kBlack, kBlack}},
  };
  for (const Case& c : cases) {
    enter(f().mShadow);
    f().ckVal.Value = c.shadow;
    f().ckVal2.Value = c.third;
    m().StepSize = c.offset;
    stroke({{3000, 3000}});
    std::vector<Colour> seen;
    for (int k = -2; k <= 2; ++k) seen.push_back(pixel(200 + 40 * k, 200 + 40 * k));
    EXPECT_EQ(seen, c.seen) << c.shadow << c.third << " " << c.offset;
  }
  // A move carries the last point on (the copies along a move are the shadow scenario's).
  stroke({{3000, 3000}, {6000, 3000}});
  EXPECT_EQ(m().LastX, 6000);
}

TEST_F(ShadowDrawTest, RainbowWithTheShadowBoxCarriesTheTrackColourOnlyWhenMoving) {
  const Long back = m().BackClr;
  for (int box : {1, 0}) {
    enter(f().mShadow);
    m().BackClr = back;
    f().ckVal.Value = box;
    f().vColmode.Value = 1;
    press(3000, 3000);
    EXPECT_EQ(m().BackClr, back);  // the press keeps the back colour
    move(4500, 3000);
    EXPECT_EQ(std::pair(m().BackClr == m().ForeClr, m().BackClr == back), std::pair(box == 1, box == 0));
    release(4500, 3000);
  }
}

TEST_F(ShadowDrawTest, TheOffsetSurvivesEntryAndAnOverflowEndsOnlyItsStep) {
  enter(f().mShadow);
  m().StepSize = 300;
  choose(f().mPencil);
  choose(f().mShadow);
  EXPECT_EQ(f().vVal1.Value.get(), 300);
  f().vColmode.Value = 0;
  m().StepSize = 20000;  // twice that overflows
  f().ckVal2.Value = 1;
  stroke({{3000, 3000}, {4500, 3000}});
  EXPECT_EQ(pixel(250, 200), kGray);  // the track before the copies
  m().StepSize = 600;
  press(6000, 6000);
  EXPECT_EQ(pixel(440, 440), kWhite);  // the next stroke works as ever
}

TEST_F(ToolTest, TheAirBrushSpraysAroundThePointerWithinTheSpreadUntilTheRelease) {
  // reach in pixels: rings of 18 twips, up to 18 x spread
  struct Case { int spread; double atLeast, atMost; };
  for (const Case& c : {Case{0, 0, 0}, Case{10, 8, 13}, Case{160, 120, 193}}) {
    enter(f().mAir);
    if (c.spread > 0) f().vVal1.Value = c.spread;
    else f().AirSpread = 0;  // below the bar's range
    EXPECT_EQ(f().AirSpread, c.spread);
    press(3000, 3000);
    move(1500, 1500);  // the spray follows the pointer to (100, 100)
    headless.loop.advance(4000);
    const int sprayed = count(kWhite);
    release(1500, 1500);
    headless.loop.advance(1000);
    EXPECT_EQ(count(kWhite), sprayed);  // the release stopped the timer
    const Ink ink = inkOf(f().PicPaint, {100.5, 100.5});
    EXPECT_GE(ink.farthest, c.atLeast) << c.spread;
    EXPECT_LE(ink.farthest, c.atMost) << c.spread;
    EXPECT_TRUE(c.spread > 0 || sprayed == 1);  // no spread: every dot on the one pixel
  }
}

TEST_F(ToolTest, EraserAndSawToothDrawOnePieceAnEvent) {
  enter(f().mEr);
  f().vVal1.Value = 300;  // 20 pixels a side
  stroke({{1500, 1500}, {3000, 1500}});
  // The press's square in the third colour, the move's in the fore colour, nothing in between.
  expectPixels({{91, 91, kBlue}, {109, 109, kBlue}, {200, 108, kWhite}, {150, 100, kBlack}});
  enter(f().mSaw);
  f().vVal1.Value = 60;
  m().StepSize = 0;
  stroke({{1500, 1500}});
  EXPECT_EQ(pixel(100, 100), kWhite);  // with no offset the fore colour's dot wins over the tooth
}

TEST_F(ToolTest, CrazyPencilStepsThroughTheEvenDrawModesOnePerPress) {
  enter(f().mCrzyPen);
  f().ckVal.Value = 0;
  m().DrawWidth = 1;
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
  stroke({{1500, 1500}});
  EXPECT_EQ(pixel(100, 100), 0xFF00FF);  // not (pen or canvas) over black
}

TEST_F(ToolTest, CrazyPencilRandomColoursComeFromTheSixteen) {
  enter(f().mCrzyPen);
  f().ckVal.Value = 1;
  f().ckVal2.Value = 1;
  f().vVal1.Value = 10;  // copy pen
  for (int i = 0; i < 40; ++i) {
    stroke({{1500 + 150.0 * i, 1500}});
    const Colour c = pixel(100 + 10 * i, 100);
    bool known = false;
    for (int n = 0; n < 16; ++n) known |= c == QBColor(n);
    EXPECT_TRUE(known) << i;
  }
}

class AutoDrawTest : public ToolTest {
 protected:
  void SetUp() override {
    ToolTest::SetUp();
    f().vColmode.Value = 0;
    f().ckVal.Value = 1;
    stroke({{1500, 1500}});  // a click puts the pen where it was released
  }
  void keyDown(int code) { canvasKeyDown(f(), code); }
  void keyUp(int code) { canvasKeyUp(f(), code); }
  // Runs n ticks of the pen.
  void ticks(int n) { headless.loop.advance(static_cast<std::int64_t>(f().tDraw.Interval) * n); }
  QPoint pen() { return QPoint(f().AutoDrawX, f().AutoDrawY); }
};

TEST_F(AutoDrawTest, AHeldArrowMovesThePenAndDrawsItsTrack) {
  f().vVal1.Value = 15;
  keyDown(vbKeyRight);
  EXPECT_TRUE(f().tDraw.Enabled);
  ticks(4);
  EXPECT_EQ(pen(), QPoint(1500 + 4 * 15, 1500));
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
  EXPECT_EQ(pen(), QPoint(1500, 1500 - 3 * 4));

  keyUp(vbKeyLeft);
  keyUp(vbKeyUp);
  keyDown(vbKeyDown);  // Right is still held: its flag stays
  ticks(2);
  EXPECT_EQ(pen(), QPoint(1500 + 2 * 4, 1488 + 2 * 4));
}

TEST_F(AutoDrawTest, ThePenMayLeaveTheCanvasButNotSixteenBits) {
  f().vVal1.Value = 40;
  release(30, 30);  // any release moves the pen
  keyDown(vbKeyLeft);
  ticks(1);
  EXPECT_EQ(f().AutoDrawX, -10);
  ticks(1);
  EXPECT_EQ(f().lX.Caption.get(), "X : -3");
  keyUp(vbKeyLeft);
  // Past 16 bits the tick ends before it draws or shows anything.
  f().AutoDrawX = 32760;
  const QString shown = f().lX.Caption;
  keyDown(vbKeyRight);
  ticks(3);
  EXPECT_EQ(f().AutoDrawX, 32760);
  EXPECT_EQ(f().lX.Caption.get(), shown);
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
  expectPixels({{102, 100, kBlack}, {100, 100, kBlack}});  // the click's dot went with it
}

}  // namespace
}  // namespace qp::test
