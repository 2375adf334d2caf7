// The gradient fills on a bare surface, then Canvas Gradients and Gradient Shapes through the panel,
// the canvas button and the floating block.
#include "support/ProgramFixture.h"
#include "surface/SurfaceFixture.h"
#include "tools/GradientFill.h"

namespace qp::test {
namespace {

using GradientFill = SurfaceTest;

TEST_F(GradientFill, EachOptionFeedsItsOwnChannelsAndSaturates) {
  // Colours read 0xBBGGRR: red in the low byte.
  const Colour expected[] = {0x404040, 0x000040, 0x004000, 0x400000, 0x004040, 0x404000, 0x400040};
  for (int option = 0; option <= 6; ++option) EXPECT_EQ(RampColour(option, 0x40), expected[option]) << option;
  EXPECT_EQ(RampColour(4, 300), 0x00FFFF);
  EXPECT_FALSE(RampColour(7, 10));
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
  EXPECT_EQ(px(b, 5, 0), RGB(1, 2, 0));
  EXPECT_EQ(px(b, 5, 10), RGB(2, 2, 0));
  EXPECT_EQ(px(b, 5, 20), RGB(2, 3, 1));
  EXPECT_EQ(px(b, 5, 5), 0x000000);  // lines 10 units apart, one pixel wide
}

// ---- Canvas Gradients through the panel ----

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
  // In pixels, whatever scale the circles left the canvas in.
  Colour at(int x, int y) { return GetPixel(f().PicPaint, x, y); }
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
    EXPECT_EQ(at(102, 50), c.nearCentre) << c.style;
    release(15, 15, vbRightButton);  // the quick undo goes back to before the button
    EXPECT_EQ(at(100, 50), 0x00FF00) << c.style;
  }
}

TEST_F(CanvasGradients, ADimRowIgnoresItsBarAndALiveOneSaysItsValue) {
  const int before = f().GradStepSize;
  f().vVal2.arrowUp();  // the diamonds use no intensity: the row is dim
  EXPECT_EQ(f().GradStepSize, before);
  EXPECT_EQ(f().lVal2.ToolTipText.get(), "");
  style(1);
  EXPECT_EQ(f().lStats.Caption.get(), "Square");
  f().vVal2.Value = 7;
  EXPECT_EQ(f().GradStepSize, 7);
  EXPECT_EQ(f().lStats.Caption.get(), "Intensity : 7");
  EXPECT_EQ(f().lTell.Caption.get(), "Click arrows to set Squares Intensity   Current Intensity : 7");
  f().vVal3.Value = 12;  // the circles' row is dim while squares are chosen
  EXPECT_EQ(f().lStats.Caption.get(), "Intensity : 7");
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
    EXPECT_EQ(at(f().PicPaint.pixelWidth() - 1, 0), 0xFFFFFF) << w;  // the ramp's first line
  }
}

}  // namespace
}  // namespace qp::test
