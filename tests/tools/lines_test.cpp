// Single Line, Mirror Lines, Crazy Linez and Mirrors N More on a 600 x 600 canvas (9000 twips a side).
#include "tools/ToolFixture.h"

namespace qp::test {
namespace {

using LinesTest = ToolTest;

TEST_F(LinesTest, SingleLineCopiesLieUnderneath) {
  // colours at -O, on the line, at +O
  struct Case { int shadow, third, offset; Colour before, on, after; };
  for (const Case& c : {Case{0, 0, 300, kBlack, kWhite, kBlack}, Case{0, 1, 300, kBlue, kWhite, kBlack},
                        Case{1, 0, 300, kBlack, kWhite, kGray}, Case{1, 1, 300, kBlue, kWhite, kGray},
                        Case{1, 1, 0, kBlack, kWhite, kBlack}}) {  // no offset: the main line lies on top
    enter(f().mSingle);
    f().ckVal.Value = c.shadow;
    f().ckVal2.Value = c.third;
    m().StepSize = c.offset;
    press(1500, 3000);
    move(6000, 3000);
    EXPECT_EQ(std::pair(Single(f().lnDraw.X2), pixel(250, 200)), std::pair(Single(6000), kBlack));  // only the band
    release(6000, 3000);
    EXPECT_FALSE(f().lnDraw.Visible);
    SCOPED_TRACE(testing::Message() << c.shadow << c.third << " " << c.offset);
    expectPixels({{250, 180, c.before}, {250, 200, c.on}, {250, 220, c.after}});
  }
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
  // The second line starts where the first ended; nothing comes from the press points.
  expectPixels({{150, 100, kWhite}, {200, 150, kWhite}, {250, 250, kBlack}});
}

TEST_F(LinesTest, CrazyLinezEquationsDrawAndMoveTheLastPoint) {
  // painted: a pixel of the move's line; last: the last point after the move
  struct Case { int equation; QPoint painted; float lastX, lastY; };
  // Press at (100, 100), move to (200, 150) pixels.
  for (const Case& c : {Case{2, QPoint(300, 300), 1500, 1500},   // through the centre
                        Case{3, QPoint(150, 100), 3000, 2250},    // across, then advance
                        Case{24, QPoint(150, 125), 1500, 1500},   // a spoke, the press kept
                        Case{13, QPoint(380, 300), 1500, 1500},   // four times, past the canvas
                        Case{36, QPoint(200, 50), 1500, 1500},    // from above the canvas
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

TEST_F(LinesTest, TheMirrorBoxesChooseTheCopies) {
  // lit: the stroke, its left-right copy, its top-bottom copy, the copy across the centre
  struct Case { int vert, horiz, autoDraw; std::vector<bool> lit; };
  for (const Case& c : {Case{0, 0, 0, {true, false, false, false}}, Case{1, 0, 0, {true, true, false, false}},
                        Case{0, 1, 0, {true, false, true, false}}, Case{1, 1, 0, {true, true, true, true}},
                        Case{1, 1, 1, {false, false, false, false}}}) {  // AutoDraw: the mouse only snapshots
    enter(f().mGpen);
    f().ckVert.Value = c.vert;
    f().ckHoriz.Value = c.horiz;
    f().ckVal.Value = c.autoDraw;
    stroke({{1500, 1500}, {3000, 1500}});  // (100, 100) to (200, 100) in pixels
    const std::vector<bool> lit = {pixel(150, 100) == kWhite, pixel(450, 100) == kWhite, pixel(150, 500) == kWhite,
                                   pixel(450, 500) == kWhite};
    EXPECT_EQ(lit, c.lit) << c.vert << c.horiz << c.autoDraw;
  }
}

}  // namespace
}  // namespace qp::test
