// Simple Shapes on a 600 x 600 canvas (9000 twips a side).
#include "tools/ToolFixture.h"

namespace qp::test {
namespace {

class ShapesTest : public ToolTest {
 protected:
  void shape(int kind, int fill = 1) {
    enter(f().mSngBox);
    f().vVal3.Value = kind;
    f().vVal2.Value = fill;
  }
};

TEST_F(ShapesTest, RectanglesAreOutlinesWithTheirCopiesUnderneath) {
  // colours on the bottom edge's copies, 20 and 40 pixels further
  struct Case { int shadow, third; Colour atO, at2O; };
  for (const Case& c : {Case{0, 0, kBlack, kBlack}, Case{1, 0, kGray, kBlack}, Case{0, 1, kBlack, kBlue},
                        Case{1, 1, kGray, kBlue}}) {
    shape(0, 0);
    f().ckVal.Value = c.shadow;
    f().ckVal2.Value = c.third;
    m().StepSize = 300;
    // Dragged up and left: the same box as down and right.
    stroke({{4500, 4500}, {3000, 3000}, {1500, 1500}});
    SCOPED_TRACE(testing::Message() << c.shadow << c.third);
    // A box is an outline whatever the fill.
    expectPixels({{200, 300, kWhite}, {200, 200, kBlack}, {220, 320, c.atO}, {240, 340, c.at2O}});
  }
}

TEST_F(ShapesTest, ADragUnderTwelvePixelsDrawsNothing) {
  for (int kind : {0, 1, 2}) {
    shape(kind, 0);
    press(1500, 1500);
    EXPECT_TRUE(f().DrawShape.Visible);  // the rubber band shows from the press on
    move(1500 + 165, 4500);
    release(1500 + 165, 4500);
    EXPECT_EQ(count(kWhite), 0) << kind;
    EXPECT_FALSE(f().DrawShape.Visible);
    EXPECT_EQ(f().PicPaint.ScaleWidth, f().PicPaint.Width);  // the closing steps ran all the same
  }
}

TEST_F(ShapesTest, CirclesTakeTheirAspectAndTheFillStyle) {
  // colours at (300, 200), (300, 201), (304, 201)
  struct Case { int fill; Colour onGridRow, offGrid, onGridColumn; };
  for (const Case& c : {Case{0, kGray, kGray, kGray}, Case{1, kBlack, kBlack, kBlack}, Case{2, kGray, kBlack, kBlack},
                        Case{3, kBlack, kBlack, kGray}, Case{6, kGray, kBlack, kGray}}) {
    shape(2, c.fill);
    stroke({{1500, 1500}, {7500, 4500}});  // 400 x 200 pixels around (300, 200)
    SCOPED_TRACE(c.fill);
    expectPixels({{300, 200, c.onGridRow}, {300, 201, c.offGrid}, {304, 201, c.onGridColumn}, {100, 200, kWhite},
                  {300, 100, kWhite}, {300, 90, kBlack}});  // the outline at half the height, nothing outside
  }
}

TEST_F(ShapesTest, BoxGradientRunsFromTheForeToTheBackColour) {
  shape(1);
  f().lForclr.BackColor = 0x0000FF;
  m().ForeClr = 0x0000FF;
  m().BackClr = 0xFF0000;
  f().CanvasGradDir = -1;  // bands across
  stroke({{1500, 1500}, {4500, 4500}});
  expectPixels({{100, 200, 0x0000FF}, {300, 200, 0xFF0000}});
  const Colour mid = pixel(200, 200);
  EXPECT_NEAR(mid & 0xFF, 0x80, 2);
  EXPECT_NEAR((mid >> 16) & 0xFF, 0x7F, 2);
}

TEST_F(ShapesTest, BoxRunsShareThePressCornerOrChain) {
  shape(3);
  stroke({{1500, 1500}, {3000, 3000}, {4500, 2250}});
  expectPixels({{200, 150, kWhite}, {250, 100, kWhite}});  // the second box's top edge from the press corner
  shape(3);
  f().ckVal.Value = 1;
  f().ckVal2.Value = 1;
  stroke({{1500, 1500}, {3000, 3000}, {4500, 2250}});
  // Filled, and the second chained from the first box's corner.
  expectPixels({{150, 150, kWhite}, {250, 175, kWhite}, {250, 110, kBlack}});
}

}  // namespace
}  // namespace qp::test
