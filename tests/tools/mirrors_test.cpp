// Mirrors N More, driven through the paint area's events on a 600 x 600 canvas (9000 twips a side).
#include "tools/ToolFixture.h"

namespace qp::test {
namespace {

using MirrorsTest = ToolTest;

TEST_F(MirrorsTest, TheMirrorBoxesChooseTheCopies) {
  struct Case {
    int vert, horiz;
    bool leftRight, topBottom, centre;
  };
  for (const Case& c : {Case{0, 0, false, false, false}, Case{1, 0, true, false, false},
                        Case{0, 1, false, true, false}, Case{1, 1, true, true, true}}) {
    enter(f().mGpen);
    f().ckVert.Value = c.vert;
    f().ckHoriz.Value = c.horiz;
    stroke({{1500, 1500}, {3000, 1500}});  // (100, 100) to (200, 100) in pixels
    SCOPED_TRACE(testing::Message() << c.vert << c.horiz);
    EXPECT_EQ(pixel(150, 100), kWhite);
    EXPECT_EQ(pixel(450, 100) == kWhite, c.leftRight);
    EXPECT_EQ(pixel(150, 500) == kWhite, c.topBottom);
    EXPECT_EQ(pixel(450, 500) == kWhite, c.centre);
    EXPECT_EQ(f().PicPaint.ScaleWidth, f().PicPaint.Width);  // the release put the scale back
  }
}

TEST_F(MirrorsTest, LinezFanFromThePressAndFreehandChains) {
  for (int freehand : {0, 1}) {
    enter(f().mGpen);
    f().ckVert.Value = 0;
    f().ckHoriz.Value = 0;
    f().ckVal2.Value = freehand;
    stroke({{1500, 1500}, {3000, 1500}, {3000, 3000}});
    EXPECT_EQ(pixel(150, 150) == kWhite, freehand == 0);  // the spoke from the press point
    EXPECT_EQ(pixel(200, 150) == kWhite, freehand == 1);  // the chained segment
  }
}

TEST_F(MirrorsTest, ThePressPointKeepsTheTwipsItWasReadIn) {
  // On a canvas wider than high the stroke's horizontal unit grows to width / height twips; the
  // press point was read before that and lands further right than the pointer.
  QImage wide(600, 400, QImage::Format_RGB32);
  wide.fill(Qt::black);
  f().PicPaint.Picture = wide;
  choose(f().mGpen);
  f().vColmode.Value = 0;
  f().ckVert.Value = 0;
  f().ckHoriz.Value = 0;
  press(1500, 1500);
  EXPECT_EQ(f().PicPaint.ScaleWidth, f().PicPaint.Height);
  EXPECT_EQ(GetPixel(f().PicPaint, 150, 100), kWhite);
  EXPECT_EQ(GetPixel(f().PicPaint, 100, 100), kBlack);
  release(1500, 1500);
}

TEST_F(MirrorsTest, WithAutoDrawOnTheMouseTakesOnlyTheSnapshot) {
  enter(f().mGpen);
  f().ckVal.Value = 1;
  stroke({{1500, 1500}, {3000, 1500}});
  EXPECT_EQ(count(kWhite), 0);
}

}  // namespace
}  // namespace qp::test
