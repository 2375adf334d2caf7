// GeoSpiralz, MiniSpiralz, Freehand Spiralz and the full-screen window, on the virtual clock.
#include "core/Keyboard.h"
#include "support/KeyInput.h"
#include "tools/ToolFixture.h"
#include "tools/FreehandSpiral.h"
#include "tools/GeoSpiral.h"

namespace qp::test {
namespace {

class GeoSpiralTest : public ToolTest {
 protected:
  void SetUp() override {
    ToolTest::SetUp();
    enter(f().mSpir2);
  }
  void figure(int equation, int symmetry, int density, int style = 0) {
    f().vVal1.Value = equation;
    f().vVal2.Value = symmetry;
    f().vVal3.Value = density;
    f().vVal4.Value = style;
  }
  // Lit pixels of a surface, measured from its centre.
  static Ink spread(const PictureBox& p) { return inkOf(p, QPointF(p.bitmap().width(), p.bitmap().height()) / 2); }
};

TEST_F(GeoSpiralTest, EachEquationDrawsItsOwnFigureAroundTheCentre) {
  // distances as fractions of the figure's radius
  struct Case { int equation; double nearest, farthest; };
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
    const Ink s = spread(f().PicPaint);
    const double r = f().PicPaint.ScaleHeight * 0.45 / 15.0;
    ASSERT_GT(s.lit, 0);
    EXPECT_GE(s.nearest, c.nearest * r - 2);
    EXPECT_LE(s.nearest, c.nearest * r + 0.05 * r + 2);
    EXPECT_LE(s.farthest, c.farthest * r + 2);
  }
}

TEST(SpiralEquation, RadiusEquationsAtTheirEdges) {
  EXPECT_DOUBLE_EQ(SpiralEquation(6, 0, 90, 3, 4, 1.0), 60.0);  // (4 mod 3 + 1) / 3
  EXPECT_NEAR(SpiralEquation(11, 0, 64, 1, 1, std::asin(0.5)), 1.0, 1e-9);  // sin^6
  EXPECT_DOUBLE_EQ(SpiralEquation(16, 7.5, 100, 3, 1, 1.0), 7.5);  // no such equation: R stays
  EXPECT_DOUBLE_EQ(SpiralEquation(-1, 2.5, 100, 3, 1, 1.0), 2.5);
  EXPECT_THROW(SpiralEquation(13, 0, 100, 1, 1, 0.0), RuntimeError);  // cos / sin at sin 0
  EXPECT_NEAR(SpiralEquation(10, 0, 100, 1, 1, 6.283185308 * 2.5), -50.0, 1e-6);  // Q = 2.5: 2 mod 2 = 0
}

TEST_F(GeoSpiralTest, TheDrawingLetsTimersRunBetweenItsLines) {
  figure(0, 3, 3);
  std::vector<int> litAtTick;
  Timer watch(&f(), "tWatch", 500, true);
  watch.Timer_ = [&] { litAtTick.push_back(spread(f().PicPaint).lit); };
  f().cCan.raiseClick();
  watch.Enabled = false;
  // 217 lines of 10 ms: four ticks, the canvas growing between them.
  ASSERT_EQ(litAtTick.size(), 4u);
  EXPECT_GT(litAtTick[0], 0);
  EXPECT_LT(litAtTick[0], litAtTick[3]);
  EXPECT_LT(litAtTick[3], spread(f().PicPaint).lit);
}

TEST_F(GeoSpiralTest, InputDuringADrawingNeitherStacksNorBreaksIt) {
  struct Case { const char* what; std::function<void()> input; bool runsToTheEnd; int modeAfter; };
  const Case cases[] = {
      {"second press", [this] { f().cCan.raiseClick(); }, true, 12},
      {"mode change", [this] { f().mPencil.raiseClick(); }, false, 0},
      {"Esc", [this] { windowKeyDown(f(), vbKeyEscape); }, false, 12},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    program = std::make_unique<Program>(headless.rt());
    program->start();
    choose(f().mSpir2);
    figure(2, 5, 3);
    Timer probe(&f(), "tProbe", 500, true);  // the input comes half a second into the drawing
    probe.Timer_ = [&] {
      probe.Enabled = false;
      c.input();
    };
    const std::int64_t start = headless.loop.now();
    f().cCan.raiseClick();
    // 217 lines of 10 ms each, never a second drawing on top
    EXPECT_EQ(headless.loop.now() - start >= 2170, c.runsToTheEnd);
    EXPECT_LE(headless.loop.now() - start, 2170);
    EXPECT_EQ(m().PaintMode, c.modeAfter);
    EXPECT_FALSE(f().SpiralDrawing);
  }
}

TEST_F(GeoSpiralTest, TinyRectanglesStillDraw) {
  figure(0, 3, 1, 0);
  f().ckVal.Value = 1;
  stroke({{3000, 3000}});  // a rectangle of no size: its scale cannot be set, and nothing draws
  stroke({{3000, 3000}, {3030, 3300}});  // narrower than high: the figure's radius comes from its width
  EXPECT_GT(spread(f().pSpire).lit, 0);
}

TEST_F(GeoSpiralTest, AMiniSpiralIsSetWhereItFloatedAndItsFloatGetsItsScaleBack) {
  f().ckVal.Value = 1;
  figure(0, 3, 1);
  drag(200, 180, 100, 100);  // up and to the left
  const QImage floating = f().pSpire.Image;
  EXPECT_EQ(f().pSpire.ScaleWidth.get(), 1500);  // the canvas's twips while it floats
  f().pSpire.raiseMouseDown(vbLeftButton, 0, 10, 10);
  EXPECT_FALSE(f().pSpire.Visible);
  EXPECT_EQ(QImage(f().PicPaint.Image).copy(100, 100, 100, 80).convertToFormat(QImage::Format_RGB32),
            floating.convertToFormat(QImage::Format_RGB32));
  choose(f().mPencil);
  EXPECT_EQ(f().pSpire.ScaleMode.get(), 1);
}

TEST(PointAngle, TheAxesThroughTheCentreTakeFixedAnglesAndTheCentreKeepsTheOldOne) {
  struct Case { Single x, y; Single angle; };
  const Case cases[] = {
      {260, 250, 0.0f},   {240, 250, 3.14159274f},   {250, 240, 4.712388975f}, {250, 260, 1.5707963f},
      {250, 250, 7.0f},   {260, 260, 0.785398185f},  {240, 260, -3.92699075f}, {240, 240, -2.35619450f},
  };
  for (const Case& c : cases) {
    Single angle = 7.0f;
    PointAngle(250, 250, c.x, c.y, angle);
    EXPECT_NEAR(angle, c.angle, 1e-6) << c.x << ", " << c.y;
  }
}

// The program starts in Freehand Spiralz, on the pixel surface.
class FreehandTest : public ToolTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    f().vColmode.Value = 0;
  }
  PictureBox& pix() { return f().pPix; }
};

TEST_F(FreehandTest, AMoveStampsOneDotPerLineOfThePassOnTheRingOfThePointer) {
  for (int lines : {6, 72}) {
    SCOPED_TRACE(lines);
    pix().BackColor = 0;
    pix().Picture = QImage();
    m().SpiralStep = lines;
    pixPress(330, 250);  // radius 80 from the centre of the square
    pixMove(330, 250);
    EXPECT_EQ(inkOf(pix()).lit, lines);  // the closing point of the turn falls on the first
    // The spiral's square is 500 units a side, whatever the box's size.
    const QImage& img = pix().bitmap();
    for (int y = 0; y < img.height(); ++y)
      for (int x = 0; x < img.width(); ++x) {
        if ((img.pixel(x, y) & 0xFFFFFF) == 0) continue;
        const double u = (x + 0.5) * 500.0 / img.width() - 250, v = (y + 0.5) * 500.0 / img.height() - 250;
        EXPECT_NEAR(std::hypot(u, v), 80, 1.5);
      }
    pixRelease(330, 250);
  }
}

TEST_F(FreehandTest, RadialModeJoinsEachRingToTheLastAndOrbitalToThePress) {
  struct Case { int ckVal; Single remembered; };
  for (const Case c : {Case{0, 150}, Case{1, 50}}) {
    f().ckVal.Value = c.ckVal;
    pixPress(300, 250);
    pixMove(350, 250);
    pixMove(400, 250);
    EXPECT_EQ(f().PixLastRadius, c.remembered);
    pixRelease(400, 250);
  }
}

TEST_F(FreehandTest, MiniSpiralsDrawInTheDraggedBoxOnlyUntilCtrlAndARightClickSetIt) {
  f().ckVal2.raiseClick();
  stroke({{100, 100}, {40, 20}}, &pix());
  PictureBox& box = f().pPX;
  pixPress(200, 200);  // the box stands: the surface under it takes no new box
  EXPECT_EQ(box.Left.get(), 40);
  stroke({{300, 250}, {350, 300}}, &box);
  EXPECT_EQ(f().PixLastRadius, 50);  // Orbital: the rings fan out of the press's ring
  EXPECT_GT(inkOf(box).lit, 0);
  EXPECT_EQ(inkOf(pix()).lit, 0);
  f().CtrlDown = -1;
  box.raiseMouseUp(vbRightButton, 0, 350, 300);
  EXPECT_GT(inkOf(pix()).lit, 0);  // set into the surface
}

class FullScreenTest : public FreehandTest {
 protected:
  frmFull& full() { return program->w.full; }
  void fullKey(int code) {
    if (full().KeyDown) full().KeyDown(code, 0);
    if (full().KeyUp) full().KeyUp(code, 0);
  }
  void open() { windowKeyDown(f(), vbKeyF9); }
  // Pixels of the full-screen surface off its back colour (which it takes from the canvas's twin).
  int litOnFull() { return inkOf(full().pPix, {}, full().pPix.BackColor).lit; }
};

TEST_F(FullScreenTest, F9OpensTheWholeScreenAndBringsTheCanvasBack) {
  open();
  open();  // F9 again on the main window, quickly: still the one window
  stroke({{300, 200}, {360, 300}}, &full().pPix);
  EXPECT_GT(litOnFull(), 0);
  EXPECT_EQ(inkOf(pix()).lit, 0);  // nothing reaches the canvas
  fullKey(120);
  open();
  EXPECT_EQ(litOnFull(), 0);  // reopened blank
  fullKey(120);
  // Another screen: the next opening takes its size; one too small for the margins does no harm.
  headless.screen.setSize(1920, 1080);
  open();
  EXPECT_EQ(full().Width.get(), 1920 * 15);
  headless.screen.setSize(40, 30);
  fullKey(120);
  open();
  fullKey(120);
  choose(f().mPencil);
  open();  // only Freehand Spiralz has the full screen
  EXPECT_FALSE(full().Visible);
}

TEST_F(FullScreenTest, ItsKeysAndHeldArrowsStopAtTheirEnds) {
  open();
  // Held arrows run its own width between the limits; only Down moves the offset.
  f().ckHold.Value = 1;
  const int offset = m().StepSize;
  fullKey(vbKeyUp);
  headless.loop.advance(120 * 30);
  EXPECT_EQ(std::tuple(int(full().FullDrawWidth), bool(full().tPenUp.Enabled), int(m().StepSize)), std::tuple(24, false, offset));
  fullKey(vbKeyDown);
  headless.loop.advance(120 * 30);
  EXPECT_EQ(std::tuple(int(full().FullDrawWidth), int(full().pPix.DrawWidth), int(m().StepSize)), std::tuple(4, 4, offset - 200));
  struct Case { const char* what; int key, presses; std::function<int()> read; int expected; };
  const Case cases[] = {
      {"plus", 107, 5, [this] { return f().vVal1.Value.get(); }, 24},
      {"minus", 109, 5, [this] { return f().vVal1.Value.get(); }, 6},
      {"F8", 119, 12, [this] { return full().tPenUp.Interval.get(); }, 20},
      {"F7", 118, 40, [this] { return full().tPenDwn.Interval.get(); }, 400},
      {"F12", 123, 5, [this] { return f().vColmode.Value.get(); }, 3},
      {"F11", 122, 5, [this] { return f().vColmode.Value.get(); }, 0},
      {"F1", 112, 3, [this] { return f().ckVal.Value.get(); }, 0},
      {"numeric 5", 101, 1, [this] { return int(m().ColorOption); }, 5},
  };
  for (const Case& c : cases) {
    for (int k = 0; k < c.presses; ++k) fullKey(c.key);
    EXPECT_EQ(c.read(), c.expected) << c.what;
  }
  EXPECT_EQ(m().SpiralStep, 6);
  fullKey(vbKeyEscape);
  EXPECT_TRUE(program->quitRequested());
}

}  // namespace
}  // namespace qp::test
