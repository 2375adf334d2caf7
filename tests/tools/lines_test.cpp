// Single Line, Mirror Lines and Crazy Linez on a 600 x 600 canvas (9000 twips a side).
#include "tools/ToolFixture.h"

namespace qp::test {
namespace {

using LinesTest = ToolTest;

TEST_F(LinesTest, SingleLineDrawsAtReleaseWithItsCopiesUnderneath) {
  struct Case {
    int shadow, third;
    Colour before, on, after;  // at -O, on the line, at +O
  };
  for (const Case& c : {Case{0, 0, kBlack, kWhite, kBlack}, Case{1, 0, kBlack, kWhite, kGray},
                        Case{0, 1, kBlue, kWhite, kBlack}, Case{1, 1, kBlue, kWhite, kGray}}) {
    enter(f().mSingle);
    f().ckVal.Value = c.shadow;
    f().ckVal2.Value = c.third;
    m().StepSize = 300;  // 20 pixels
    press(1500, 3000);
    move(6000, 3000);
    EXPECT_TRUE(f().lnDraw.Visible);
    EXPECT_EQ(f().lnDraw.X2, 6000);
    EXPECT_EQ(pixel(250, 200), kBlack);  // nothing on the picture before the release
    release(6000, 3000);
    EXPECT_FALSE(f().lnDraw.Visible);
    SCOPED_TRACE(testing::Message() << c.shadow << c.third);
    EXPECT_EQ(pixel(250, 180), c.before);
    EXPECT_EQ(pixel(250, 200), c.on);
    EXPECT_EQ(pixel(250, 220), c.after);
  }
  enter(f().mSingle);
  f().ckVal.Value = 1;
  f().ckVal2.Value = 1;
  m().StepSize = 0;
  stroke({{1500, 3000}, {6000, 3000}});
  EXPECT_EQ(pixel(250, 200), kWhite);  // the main line lies on top
}

TEST_F(LinesTest, MirrorLinesDrawTheLineAndItsMirrorsAtRelease) {
  enter(f().mMirLine);
  stroke({{1500, 1500}, {3000, 1500}});
  for (QPoint p : {QPoint(150, 100), QPoint(450, 100), QPoint(150, 500), QPoint(450, 500)})
    EXPECT_EQ(pixel(p.x(), p.y()), kWhite) << p.x() << "," << p.y();
  EXPECT_EQ(f().PicPaint.ScaleWidth, f().PicPaint.Width);
}

TEST_F(LinesTest, MirrorLinesJoinIntoAPolygonWithTheFirstBox) {
  enter(f().mMirLine);
  f().ckVert.Value = 0;
  f().ckHoriz.Value = 0;
  f().ckVal.Value = 1;
  m().LastX = 1500;
  m().LastY = 1500;
  stroke({{4500, 4500}, {3000, 1500}});  // drawn from the last end, not from the press
  stroke({{4500, 4500}, {3000, 3000}});
  EXPECT_EQ(pixel(150, 100), kWhite);
  EXPECT_EQ(pixel(200, 150), kWhite);  // the second line starts where the first ended
  EXPECT_EQ(pixel(250, 250), kBlack);  // nothing from the press points
}

TEST_F(LinesTest, CrazyLinezEquationsDrawAndMoveTheLastPoint) {
  struct Case {
    int equation;
    QPoint painted;     // a pixel of the move's line
    float lastX, lastY;  // the last point after the move
  };
  // Press at (100, 100), move to (200, 150) pixels.
  for (const Case& c : {Case{2, QPoint(300, 300), 1500, 1500},   // through the centre
                        Case{3, QPoint(150, 100), 3000, 2250},    // across, then advance
                        Case{4, QPoint(100, 125), 3000, 2250},    // down, then advance
                        Case{24, QPoint(150, 125), 1500, 1500},   // a spoke, the press kept
                        Case{9, QPoint(220, 90), 1500, 1500},     // doubled and halved
                        Case{13, QPoint(380, 300), 1500, 1500},   // four times, past the canvas
                        Case{18, QPoint(160, 90), 1500, 1500},    // a third
                        Case{19, QPoint(150, 200), 1500, 1500},
                        Case{33, QPoint(200, 200), 1500, 1500},
                        Case{36, QPoint(200, 50), 1500, 1500},    // from above the canvas
                        Case{37, QPoint(150, 50), 1500, 1500},
                        Case{47, QPoint(250, 275), 1500, 1500},   // the second line, to the mirror
                        Case{50, QPoint(150, 125), 2250, 3000},   // the coordinates exchanged
                        Case{51, QPoint(-1, -1), 1500, 1500}}) {  // no such equation
    enter(f().mCrazyLn);
    f().CrazyEquation = c.equation;
    press(1500, 1500);
    const int dot = count(kWhite);
    move(3000, 2250);
    SCOPED_TRACE(c.equation);
    if (c.painted.x() >= 0) {
      EXPECT_EQ(pixel(c.painted.x(), c.painted.y()), kWhite);
    } else {
      EXPECT_EQ(count(kWhite), dot);
    }
    EXPECT_EQ(m().LastX, c.lastX);
    EXPECT_EQ(m().LastY, c.lastY);
    release(3000, 2250);
  }
}

}  // namespace
}  // namespace qp::test
