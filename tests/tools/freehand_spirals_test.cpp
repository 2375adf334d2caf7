// Freehand Spiralz on the pixel surface, its MiniSpirals box, and the full-screen window.
#include <cmath>

#include "core/Keyboard.h"
#include "support/KeyInput.h"
#include "support/ProgramFixture.h"
#include "tools/FreehandSpiral.h"

namespace qp::test {
namespace {

int litPixels(const PictureBox& p, Colour background = 0) {
  const QImage& img = p.bitmap();
  int lit = 0;
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x) lit += (img.pixel(x, y) & 0xFFFFFF) != background;
  return lit;
}

TEST(PointAngle, TheAxesThroughTheCentreTakeFixedAnglesAndTheCentreKeepsTheOldOne) {
  struct Case {
    Single x, y;
    Single angle;
  };
  const Case cases[] = {
      {260, 250, 0.0f},          {240, 250, 3.14159274f},  {250, 240, 4.712388975f},
      {250, 260, 1.5707963f},    {250, 250, 7.0f},         {260, 260, 0.785398185f},
      {240, 260, -3.92699075f},  {240, 240, -2.35619450f},
  };
  for (const Case& c : cases) {
    Single angle = 7.0f;
    PointAngle(250, 250, c.x, c.y, angle);
    EXPECT_NEAR(angle, c.angle, 1e-6) << c.x << ", " << c.y;
  }
}

class FreehandTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();  // the program starts in Freehand Spiralz
    f().vColmode.Value = 0;
  }
  PictureBox& pix() { return f().pPix; }
  void pixPress(Single x, Single y, int b = vbLeftButton) { pix().raiseMouseDown(b, 0, x, y); }
  void pixMove(Single x, Single y) { pix().raiseMouseMove(vbLeftButton, 0, x, y); }
  void pixRelease(Single x, Single y, int b = vbLeftButton) { pix().raiseMouseUp(b, 0, x, y); }
};

TEST_F(FreehandTest, AMoveStampsOneDotPerLineOfThePassOnTheRingOfThePointer) {
  for (int lines : {6, 12, 72}) {
    SCOPED_TRACE(lines);
    pix().BackColor = 0;
    pix().Picture = QImage();
    m().SpiralStep = lines;
    pixPress(330, 250);  // radius 80 from the centre of the square
    pixMove(330, 250);
    EXPECT_EQ(litPixels(pix()), lines);  // the closing point of the turn falls on the first
    EXPECT_EQ(pix().ScaleWidth.get(), 500);  // the spiral's square, whatever the box's size
    EXPECT_EQ(pix().ScaleHeight.get(), 500);
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
  struct Case {
    int ckVal;
    Single remembered;
  };
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
  pixPress(100, 100);
  pixMove(40, 20);
  pixRelease(40, 20);
  PictureBox& box = f().pPX;
  ASSERT_TRUE(box.Visible);
  EXPECT_EQ(box.Left.get(), 40);
  EXPECT_EQ(box.Width.get(), 60);
  pixPress(200, 200);  // the box stands: the surface under it takes no new box
  EXPECT_EQ(box.Left.get(), 40);
  box.raiseMouseDown(vbLeftButton, 0, 300, 250);
  box.raiseMouseMove(vbLeftButton, 0, 350, 300);
  EXPECT_EQ(f().PixLastRadius, 50);  // Orbital: the rings fan out of the press's ring
  box.raiseMouseUp(vbLeftButton, 0, 350, 300);
  EXPECT_GT(litPixels(box, 0), 0);
  EXPECT_EQ(litPixels(pix()), 0);
  f().CtrlDown = -1;
  box.raiseMouseUp(vbRightButton, 0, 350, 300);
  EXPECT_GT(litPixels(pix()), 0);  // set into the surface
}

class FullScreenTest : public FreehandTest {
 protected:
  frmFull& full() { return program->w.full; }
  void fullKey(int code) {
    if (full().KeyDown) full().KeyDown(code, 0);
    if (full().KeyUp) full().KeyUp(code, 0);
  }
  void fullKeyDown(int code) { full().KeyDown(code, 0); }
  void open() { windowKeyDown(f(), vbKeyF9); }
  // Pixels of the full-screen surface off its back colour (which it takes from the canvas's twin).
  int litOnFull() {
    const Colour back = full().pPix.BackColor;
    return litPixels(full().pPix, ((back & 0xFF) << 16) | (back & 0xFF00) | ((back >> 16) & 0xFF));
  }
};

TEST_F(FullScreenTest, F9OpensTheWholeScreenAndBringsTheCanvasBack) {
  open();
  open();  // F9 again on the main window, quickly: still the one window
  ASSERT_TRUE(full().Visible);
  EXPECT_EQ(full().pPix.Width.get(), 1280 * 15 - 960);
  full().pPix.raiseMouseDown(vbLeftButton, 0, 300, 200);
  full().pPix.raiseMouseMove(vbLeftButton, 0, 360, 300);
  EXPECT_GT(litOnFull(), 0);
  EXPECT_EQ(litPixels(pix()), 0);  // nothing reaches the canvas
  fullKey(120);
  // Another screen: the next opening takes its size, afresh; one too small for the margins does no harm.
  headless.screen.setSize(1920, 1080);
  open();
  EXPECT_EQ(full().Width.get(), 1920 * 15);
  EXPECT_EQ(litOnFull(), 0);
  fullKey(120);
  headless.screen.setSize(40, 30);
  open();
  fullKey(120);
  choose(f().mPencil);
  open();  // only Freehand Spiralz has the full screen
  EXPECT_FALSE(full().Visible);
}

TEST_F(FullScreenTest, ItsKeysStopAtTheirEnds) {
  open();
  struct Case {
    const char* what;
    int key, presses;
    std::function<int()> read;
    int expected;
  };
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

TEST_F(FullScreenTest, HeldArrowsRunItsOwnWidthBetweenTheLimitsAndOnlyDownMovesTheOffset) {
  open();
  f().ckHold.Value = 1;
  const int offset = m().StepSize;
  fullKey(vbKeyUp);
  headless.loop.advance(120 * 30);
  EXPECT_EQ(full().FullDrawWidth, 24);  // vMax
  EXPECT_FALSE(full().tPenUp.Enabled);
  EXPECT_EQ(m().StepSize, offset);
  fullKey(vbKeyDown);
  headless.loop.advance(120 * 30);
  EXPECT_EQ(full().FullDrawWidth, 4);  // vMin
  EXPECT_EQ(m().StepSize, offset - 200);
  EXPECT_EQ(full().pPix.DrawWidth.get(), 4);
}

}  // namespace
}  // namespace qp::test
