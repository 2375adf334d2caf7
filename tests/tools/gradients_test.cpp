// The gradient fills, Canvas Gradients, Gradient Spheres and Circle FX.
#include "tools/ToolFixture.h"
#include "tools/Spheres.h"
#include "surface/SurfaceFixture.h"
#include "tools/GradientFill.h"

namespace qp::test {
namespace {

using GradientFill = SurfaceTest;

TEST_F(GradientFill, EachOptionFeedsItsOwnChannelsAndSaturatesInRampsAndRings) {
  // Colours read 0xBBGGRR: red in the low byte.
  const Colour expected[] = {0x404040, 0x000040, 0x004000, 0x400000, 0x004040, 0x404000, 0x400040};
  for (int option = 0; option <= 6; ++option) EXPECT_EQ(RampColour(option, 0x40), expected[option]) << option;
  EXPECT_EQ(RampColour(4, 300), 0x00FFFF);
  EXPECT_FALSE(RampColour(7, 10));
  // The rings' colours: the colour boxes hold red 1, green 2, blue 3.
  struct Case { int option; bool mixed; Colour expected; };
  for (const Case c : {Case{0, false, 0x808080}, Case{3, false, 0x800000}, Case{5, false, 0x808000},
                       Case{1, true, 0x030280}, Case{2, true, 0x038001}, Case{6, true, 0x800280}}) {
    EXPECT_EQ(RingColour(c.option, 0x80, c.mixed, 1, 2, 3), c.expected) << c.option << c.mixed;
  }
  EXPECT_FALSE(RingColour(0, 10, true, 1, 2, 3));  // white has no mixed colour
  EXPECT_THROW(RingColour(1, -1, false, 0, 0, 0), RuntimeError);
}

TEST_F(GradientFill, SquaresStepFromBlackAtTheEdgeToTheCentre) {
  struct Case { int step; int fromEdge; int grey; };
  // A pixel k from the edge lies last under the box of ramp value k * step.
  for (const Case c : {Case{2, 0, 0}, Case{2, 50, 100}, Case{2, 100, 200}, Case{20, 12, 240}, Case{20, 13, 255}}) {
    PictureBox& b = box(201, 201);
    b.ScaleWidth = 200;
    b.ScaleHeight = 200;
    DrawSquares(b, 0, c.step);
    EXPECT_EQ(px(b, c.fromEdge, 100), RGB(c.grey, c.grey, c.grey)) << c.step << " " << c.fromEdge;
  }
}

TEST_F(GradientFill, DiamondsCloseInFromBlackToTheLastStep) {
  PictureBox& b = box(101, 101, 1, 0x00FF00);
  int rings = 0;
  EXPECT_TRUE(DrawDiamonds(b, 3, [&] { return ++rings > 0; }));
  EXPECT_EQ(rings, 256);
  EXPECT_LT(px(b, 0, 50), 0x080000);  // the outer rings, nearly black
  EXPECT_EQ(px(b, 50, 50), 0xFE0000);  // the centre, blue 254
  EXPECT_EQ(px(b, 2, 2), 0x00FF00);    // outlines only: the corners keep what was there
}

TEST_F(GradientFill, CircleChannelsMoveOnlyWhenTheirDistanceIsLarge) {
  PictureBox& b = box(512, 512, 3, 0x00FF00);
  DrawGradientCircles(b, 0xFFFFFF, 0x000000, 1.0, 3);
  EXPECT_EQ(px(b, 256 + 1, 256), 0xFFFFFF);  // the first ring, white
  EXPECT_NEAR(px(b, 256 + 101, 256) & 0xFF, 155, 2);  // one step darker per ring
  EXPECT_EQ(px(b, 5, 5), 0x00FF00);                    // outside the last ring
  EXPECT_EQ(b.ScaleWidth, 512);  // the scale stays
  EXPECT_EQ(b.DrawStyle, 6);

  PictureBox& dull = box(512, 512);
  DrawGradientCircles(dull, RGB(127, 0, 255), 0x000000, 1.0, 3);
  // Red is 127 from black, under half the range: it never moves. Blue is 255 away: it does.
  EXPECT_EQ(redOf(px(dull, 256 + 200, 256)), 127);
  EXPECT_NEAR(blueOf(px(dull, 256 + 200, 256)), 56, 2);
}

TEST_F(GradientFill, LinearRampRoundsHalvesToEven) {
  PictureBox& b = box(30, 30);
  // Three lines, at 0, 10 and 20: the middle one falls on 1.5, 2.5 and 0.5 of its channels.
  DrawLinearRamp(b, RGB(1, 2, 0), RGB(2, 3, 1), 0, 0, 29, 20, false);
  // Lines 10 units apart, one pixel wide.
  expectAt(b, {{5, 0, RGB(1, 2, 0)}, {5, 10, RGB(2, 2, 0)}, {5, 20, RGB(2, 3, 1)}, {5, 5, 0x000000}});
}

class CanvasGradients : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    m().CurrentFile = "test.bmp";  // a titled canvas keeps its size
    choose(f().mtCvShapes);
    f().PicPaint.Width = 200 * 15;
    f().PicPaint.Height = 100 * 15;
    m().DrawWidth = 1;
  }
  void style(int v) { f().vVal1.Value = v; }
  void draw() { f().cCan.raiseClick(); }
};

TEST_F(CanvasGradients, EveryStyleFillsTheCanvasAndIsAnUndoPoint) {
  struct Case { int style; Colour nearCentre; };
  m().ColorOption = 1;
  m().ForeClr = 0x0000FF;
  m().BackClr = 0xFF0000;
  // Two pixels right of the centre: the diamonds' fifth ring from the centre, the squares' third
  // box, the circles' fifth ring, the ramp half way down.
  for (const Case c : {Case{0, 0x0000FA}, Case{1, 0x0000C4}, Case{2, 0x0000F9}, Case{3, 0x80007F}}) {
    f().PicPaint.Picture = QImage();
    f().PicPaint.BackColor = 0x00FF00;
    style(c.style);
    draw();
    EXPECT_EQ(pixel(102, 50), c.nearCentre) << c.style;
    release(15, 15, vbRightButton);  // the quick undo goes back to before the button
    EXPECT_EQ(pixel(100, 50), 0x00FF00) << c.style;
  }
}

TEST_F(CanvasGradients, AnEventDuringTheDiamondsStopsThemOrStartsAnew) {
  // A second press of the button while the diamonds close in: the new drawing takes over.
  m().ColorOption = 2;
  headless.loop.post([this] { m().ColorOption = 3; draw(); });
  draw();
  EXPECT_EQ(pixel(100, 50), 0xFE0000);  // the centre of the blue drawing, not overdrawn in green
  // A change of mode during the drawing ends it.
  f().PicPaint.Picture = QImage();
  headless.loop.post([this] { choose(f().mPencil); });
  choose(f().mtCvShapes);
  draw();
  EXPECT_EQ(pixel(100, 50), 0x000000);
  EXPECT_EQ(m().PaintMode, 0);
}

TEST_F(CanvasGradients, TinyAndWideCanvasesTakeEveryStyle) {
  for (Single w : {15.0f, 16384 * 15.0f}) {
    f().PicPaint.Width = w;
    f().PicPaint.Height = 15;
    m().ForeClr = 0xFFFFFF;
    m().BackClr = 0xFFFFFF;  // one colour: whatever scale the circles left, the ramp is white
    for (int v = 0; v <= 3; ++v) {
      style(v);
      draw();
    }
    EXPECT_EQ(pixel(f().PicPaint.pixelWidth() - 1, 0), 0xFFFFFF) << w;  // the ramp's first line
  }
}

class Spheres : public ToolTest {
 protected:
  void SetUp() override {
    ToolTest::SetUp();
    f().PicPaint.Picture = QImage();
    choose(f().mBallz);
    m().ColorOption = 0;
  }
};

TEST_F(Spheres, WhiteWithMixingTurnsTheOptionRedForTheNextSphere) {
  f().ckVal.Value = 1;
  f().vVal2.Value = 1;
  stroke({{3000, 3000}});
  EXPECT_EQ(f().vColors.Value, 1);
  EXPECT_EQ(pixel(205, 200), 0x000000);  // this sphere drew nothing
  stroke({{3000, 3000}});
  EXPECT_EQ(redOf(pixel(205, 200)), 249);
}

TEST_F(Spheres, TheTimerRepeatsAtThePointerWhileTheButtonIsHeld) {
  f().ckVal2.Value = 1;
  press(1500, 1500);
  move(4500, 1500);
  const uchar* bits = f().PicPaint.bitmap().constBits();
  f().PicPaint.takeDirty();
  headless.loop.advance(f().tSphere.Interval);
  EXPECT_EQ(f().PicPaint.bitmap().constBits(), bits);  // drawn in place, at the pointer
  EXPECT_TRUE(QRect(270, 70, 61, 61).contains(f().PicPaint.takeDirty()));
  release(4500, 1500);
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
      stroke({{3000, 3000}});
      EXPECT_NE(pixel(203, 200), 0x000000) << mode->key().toStdString() << end;
    }
  }
}

}  // namespace
}  // namespace qp::test
