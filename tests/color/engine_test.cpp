// The colour walks of Rainbow and Glow, the Transient Color Generator and the Gradient ramp.
#include "color/ColourEngine.h"
#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

struct Rgb { int r, g, b; bool operator==(const Rgb&) const = default; };

class ColourEngineTest : public ProgramTest {
 protected:
  Rgb running() { return {m().ClrRed, m().ClrGreen, m().ClrBlue}; }
  void setRunning(Rgb c) { m().ClrRed = c.r, m().ClrGreen = c.g, m().ClrBlue = c.b; }
};

TEST_F(ColourEngineTest, RainbowStepsMayReachTheCeilingAndFloorButNotPassThem) {
  // Every component at start; the value after a step up and down, start when refused.
  struct Case { int start, variance, up, down; };
  for (const Case c : {Case{250, 10, 250, 240}, Case{245, 10, 255, 235}, Case{30, 10, 40, 20}, Case{25, 10, 35, 25}}) {
    bool sawUp = false, sawDown = false;
    for (int i = 0; i < 60; ++i) {
      setRunning({c.start, c.start, c.start});
      StepRainbowColor(s(), c.variance);
      const Rgb now = running();
      const int moved = (now.r != c.start) + (now.g != c.start) + (now.b != c.start);
      EXPECT_TRUE(c.up == c.start || c.down == c.start || moved == 1) << "every step moves one component";
      for (int v : {now.r, now.g, now.b}) {
        EXPECT_TRUE(v == c.start || v == c.up || v == c.down) << c.start << ": " << v;
        sawUp |= v == c.start + c.variance;
        sawDown |= v == c.start - c.variance;
      }
    }
    EXPECT_EQ(sawUp, c.up != c.start) << "from " << c.start;
    EXPECT_EQ(sawDown, c.down != c.start) << "from " << c.start;
  }
}

TEST_F(ColourEngineTest, GlowStaysInTheHueFamilyItsOwnComponentDrivesAndLeavesOthersUntilAStepSucceeds) {
  f().vColors.Value = 1, f().vColmode.Value = 2;  // red, Glow
  setRunning({250, 100, 70});
  // At 250 a step up of 10 is refused and writes nothing; the first step down clears green, blue.
  for (int i = 0; i < 100 && m().ClrRed == 250; ++i) {
    StepGlowColor(s(), 10);
    EXPECT_TRUE(m().ClrRed != 250 || running() == (Rgb{250, 100, 70}));
  }
  ASSERT_EQ(running(), (Rgb{240, 0, 0}));
  for (int i = 0; i < 200; ++i) {
    StepGlowColor(s(), 30);
    EXPECT_TRUE(m().ClrRed >= 20 && m().ClrRed <= 255 && m().ClrGreen == 0) << m().ClrRed << "," << m().ClrGreen;
    // The colour the tools draw with, the two colour boxes and the hidden bars follow the walk.
    const Colour rgb = RGB(m().ClrRed, m().ClrGreen, m().ClrBlue);
    EXPECT_EQ((std::vector<Colour>{m().ForeClr.value(), f().lForclr.BackColor, f().lColor.BackColor}), std::vector<Colour>(3, rgb));
    EXPECT_EQ(std::pair(int(f().vRed.Value), int(f().vBlu.Value)), std::pair(int(m().ClrRed), int(m().ClrBlue)));
  }
  // Each Colour Option: the component that drives it, and the components of its family.
  struct Case { int option; int Rgb::*driver; Rgb family; };
  for (const Case c : {Case{0, &Rgb::b, {1, 1, 1}}, Case{1, &Rgb::r, {1, 0, 0}}, Case{2, &Rgb::g, {0, 1, 0}},
                       Case{3, &Rgb::b, {0, 0, 1}}, Case{4, &Rgb::r, {1, 1, 0}}, Case{5, &Rgb::b, {0, 1, 1}},
                       Case{6, &Rgb::b, {1, 0, 1}}}) {
    f().vColors.Value = c.option;
    const Rgb start{100, 150, 200};
    setRunning(start);
    StepGlowColor(s(), 10);
    const int d = start.*c.driver;
    const Rgb now = running();
    for (const auto part : {&Rgb::r, &Rgb::g, &Rgb::b}) {
      if (c.family.*part) EXPECT_TRUE(now.*part == d + 10 || now.*part == d - 10) << c.option << ": " << now.*part;
      else EXPECT_EQ(now.*part, 0) << "option " << c.option;
    }
  }
}

// The Transient box says whether a press starts the generator and its release stops it: unticking
// the box in the middle of a stroke leaves the generator running.
TEST_F(ColourEngineTest, TransientGeneratorShakesTheComponentsDuringAStrokeOnly) {
  choose(f().mPencil);
  f().vColmode.Value = 2;  // Glow shows the box
  ASSERT_TRUE(f().ckDcolz.Visible);
  f().ckDcolz.Value = 1;
  setRunning({120, 120, 120});
  press(1500, 1500);
  const Colour fore = m().ForeClr;
  const Rgb start = running();
  ASSERT_TRUE(f().tDclrz.Enabled);
  f().ckDcolz.raiseClick();  // the box toggles to 0
  headless.loop.advance(500);  // 50 ticks
  EXPECT_NE(running(), start);
  EXPECT_EQ(m().ForeClr, fore);  // the draw colour moves only at the next draw step
  const Rgb c = running();
  EXPECT_EQ(m().TransientClr, RGB(c.r, c.g, c.b));
  for (int v : {c.r, c.g, c.b}) EXPECT_TRUE(v >= 20 && v <= 255) << v;
  f().ckDcolz.raiseClick();
  release(1500, 1500);
  headless.loop.advance(500);
  EXPECT_TRUE(!f().tDclrz.Enabled && running() == c);
}

TEST_F(ColourEngineTest, GradientRampsByTimerFromPhaseFiveToFullAndAgain) {
  choose(f().mPencil);
  f().vColors.Value = 3, f().vColmode.Value = 3;  // blue, Gradient
  press(1500, 1500);
  ASSERT_TRUE(f().tGrad.Enabled);
  for (int tick = 1; tick <= 53; ++tick) {
    headless.loop.advance(1);
    const int phase = tick <= 51 ? 5 * tick : 5 * (tick - 51);  // 5 .. 255, then 5, 10
    ASSERT_EQ(m().GradPhase, phase) << tick;
    EXPECT_EQ(std::pair(m().ForeClr.value(), m().BackClr.value()), std::pair(RGB(0, 0, phase), RGB(0, 0, phase)));
  }
  release(1500, 1500);
  headless.loop.advance(20);
  EXPECT_TRUE(!f().tGrad.Enabled && m().GradPhase == 10) << m().GradPhase;
}

}  // namespace
}  // namespace qp::test
