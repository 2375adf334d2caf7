// GeoSpiralz and MiniSpiralz: the figures' geometry, the drawing's pace on the clock, input that
// arrives while it draws, and the floating result's set and cancel.
#include <cmath>

#include "core/Keyboard.h"
#include "support/KeyInput.h"
#include "support/ProgramFixture.h"
#include "tools/GeoSpiral.h"

namespace qp::test {
namespace {

class GeoSpiralTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    choose(f().mSpir2);
    f().vColmode.Value = 0;
    f().PicPaint.Picture = QImage();
  }
  void figure(int equation, int symmetry, int density, int style = 0) {
    f().vVal1.Value = equation;
    f().vVal2.Value = symmetry;
    f().vVal3.Value = density;
    f().vVal4.Value = style;
  }
  // Lit pixels of a surface, by their distance from its centre in pixels.
  struct Spread {
    int lit = 0;
    double nearest = 1e9, farthest = 0;
  };
  static Spread spread(const PictureBox& p) {
    const QImage& img = p.bitmap();
    Spread s;
    const double cx = img.width() / 2.0, cy = img.height() / 2.0;
    for (int y = 0; y < img.height(); ++y)
      for (int x = 0; x < img.width(); ++x) {
        if ((img.pixel(x, y) & 0xFFFFFF) == 0) continue;
        ++s.lit;
        const double d = std::hypot(x + 0.5 - cx, y + 0.5 - cy);
        s.nearest = std::min(s.nearest, d);
        s.farthest = std::max(s.farthest, d);
      }
    return s;
  }
  double radiusPixels() { return f().PicPaint.ScaleHeight * 0.45 / 15.0; }
  std::int64_t now() { return headless.loop.now(); }
  // Runs `what` once, `afterMs` into whatever comes next (a drawing that waits on the loop).
  void during(std::int64_t afterMs, std::function<void()> what) {
    probe = std::make_unique<Timer>(&f(), "tProbe", static_cast<int>(afterMs), true);
    probe->Timer_ = [this, what] {
      probe->Enabled = false;
      what();
    };
  }
  std::unique_ptr<Timer> probe;
};

TEST_F(GeoSpiralTest, EachEquationDrawsItsOwnFigureAroundTheCentre) {
  struct Case {
    int equation;
    double nearest, farthest;  // as fractions of the figure's radius
  };
  // With Density 1 each line turns back by a 72nd of a turn, so the lines hug the curve.
  const Case cases[] = {
      {0, 0.69, 1.01},  // (1 - 0.3 sin^2) between 0.7 and 1
      {1, 0.08, 0.74},  // grows with the step: 1 - 28 / (i + 30), up to i = 73
      {8, 0.0, 1.01},   // only the centre and the circle
      {3, 0.32, 1.01},  // (1 - sin / 2) * 0.67 between a third and the circle
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.equation);
    f().PicPaint.Picture = QImage();
    figure(c.equation, 3, 1);
    f().cCan.raiseClick();
    const Spread s = spread(f().PicPaint);
    const double r = radiusPixels();
    ASSERT_GT(s.lit, 0);
    EXPECT_GE(s.nearest, c.nearest * r - 2);
    EXPECT_LE(s.nearest, c.nearest * r + 0.05 * r + 2);
    EXPECT_LE(s.farthest, c.farthest * r + 2);
  }
}

TEST_F(GeoSpiralTest, RadiusEquationsAtTheirEdges) {
  EXPECT_DOUBLE_EQ(SpiralEquation(6, 0, 90, 3, 4, 1.0), 60.0);  // (4 mod 3 + 1) / 3
  EXPECT_DOUBLE_EQ(SpiralEquation(1, 0, 100, 3, 40, 1.0), 60.0);
  EXPECT_NEAR(SpiralEquation(11, 0, 64, 1, 1, std::asin(0.5)), 1.0, 1e-9);  // sin^6
  EXPECT_DOUBLE_EQ(SpiralEquation(16, 7.5, 100, 3, 1, 1.0), 7.5);  // no such equation: R stays
  EXPECT_DOUBLE_EQ(SpiralEquation(-1, 2.5, 100, 3, 1, 1.0), 2.5);
  EXPECT_THROW(SpiralEquation(13, 0, 100, 1, 1, 0.0), RuntimeError);  // cos / sin at sin 0
  const double at = SpiralEquation(10, 0, 100, 1, 1, 6.283185308 * 2.5);  // Q = 2.5: 2 mod 2 = 0
  EXPECT_NEAR(at, -50.0, 1e-6);
}

TEST_F(GeoSpiralTest, TheDrawingTakesTenMillisecondsALineAndLetsTimersRunBetween) {
  figure(0, 3, 3);
  std::vector<std::int64_t> ticks;
  std::vector<int> litAtTick;
  Timer watch(&f(), "tWatch", 500, true);
  watch.Timer_ = [&] {
    ticks.push_back(now());
    litAtTick.push_back(spread(f().PicPaint).lit);
  };
  const std::int64_t start = now();
  f().cCan.raiseClick();
  watch.Enabled = false;
  EXPECT_EQ(now() - start, (3 * 72 + 1) * 10);  // 217 lines
  ASSERT_EQ(ticks.size(), 4u);
  for (size_t k = 0; k < ticks.size(); ++k) EXPECT_EQ(ticks[k] - start, 500 * std::int64_t(k + 1));
  // The canvas grew between the ticks: the timer ran in the middle of the drawing.
  EXPECT_GT(litAtTick[0], 0);
  EXPECT_LT(litAtTick[0], litAtTick[3]);
  EXPECT_LT(litAtTick[3], spread(f().PicPaint).lit);
}

TEST_F(GeoSpiralTest, InputDuringADrawingNeitherStacksNorBreaksIt) {
  struct Case {
    const char* what;
    std::function<void()> input;
    bool runsToTheEnd;
    int modeAfter;
  };
  const Case cases[] = {
      {"second press", [this] { f().cCan.raiseClick(); }, true, 12},
      {"mode change", [this] { f().mPencil.raiseClick(); }, false, 0},
      {"Esc", [this] { windowKeyDown(f(), vbKeyEscape); }, false, 12},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    probe.reset();
    program = std::make_unique<Program>(headless.rt());
    program->start();
    choose(f().mSpir2);
    figure(2, 5, 3);
    during(500, c.input);
    const std::int64_t start = now();
    f().cCan.raiseClick();
    EXPECT_EQ(now() - start >= 2170, c.runsToTheEnd);
    EXPECT_LE(now() - start, 2170);  // never a second drawing on top
    EXPECT_EQ(m().PaintMode, c.modeAfter);
    EXPECT_FALSE(f().SpiralDrawing);
  }
}

TEST_F(GeoSpiralTest, BarsAtTheirEndsAndTinyRectanglesStillDraw) {
  for (int v : {0, 15}) {
    figure(v, v == 0 ? 1 : 32, v == 0 ? 1 : 8, 2);
    f().cCan.raiseClick();
  }
  figure(0, 3, 1, 0);
  f().ckVal.Value = 1;
  press(3000, 3000);
  release(3000, 3000);  // a rectangle of no size: its scale cannot be set, and nothing draws
  press(3000, 3000);
  move(3030, 3300);
  release(3030, 3300);  // narrower than high: the figure's radius comes from its width
  EXPECT_GT(spread(f().pSpire).lit, 0);
}

class MiniSpiralzTest : public GeoSpiralTest {
 protected:
  void SetUp() override {
    GeoSpiralTest::SetUp();
    f().ckVal.Value = 1;
    figure(0, 3, 1);
    // A rectangle from (100, 100) to (200, 180) pixels, dragged up and to the left.
    press(3000, 2700);
    move(1500, 1500);
    release(1500, 1500);
  }
};

TEST_F(MiniSpiralzTest, ALeftPressSetsItWhereItStoodAndTheFloatsScaleComesBack) {
  const QImage floating = f().pSpire.Image;
  EXPECT_EQ(f().pSpire.ScaleWidth.get(), 1500);  // the canvas's twips while it floats
  f().pSpire.raiseMouseDown(vbLeftButton, 0, 10, 10);
  EXPECT_FALSE(f().pSpire.Visible);
  EXPECT_EQ(QImage(f().PicPaint.Image).copy(100, 100, 100, 80).convertToFormat(QImage::Format_RGB32),
            floating.convertToFormat(QImage::Format_RGB32));
  choose(f().mPencil);
  EXPECT_EQ(f().pSpire.ScaleMode.get(), 1);
}

}  // namespace
}  // namespace qp::test
