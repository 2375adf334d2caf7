// A stroke step draws in place: no copy of the canvas, and only the segment's rectangle is marked
// for the screen to repaint.
#include "support/ProgramFixture.h"

namespace qp::test {

using StrokeCost = ProgramTest;

TEST_F(StrokeCost, AMoveDrawsInPlaceAndMarksOnlyItsSegment) {
  choose(f().mPencil);
  f().vPencil.Value = 8;
  press(1500, 1500);  // the press bakes the canvas: the one copy of the stroke
  const uchar* bits = f().PicPaint.bitmap().constBits();
  f().PicPaint.takeDirty();
  move(3000, 1500);
  EXPECT_EQ(f().PicPaint.bitmap().constBits(), bits);
  const QRect dirty = f().PicPaint.takeDirty();
  EXPECT_TRUE(QRect(90, 90, 120, 20).contains(dirty)) << dirty.x() << "," << dirty.y() << " "
                                                       << dirty.width() << "x" << dirty.height();
  EXPECT_GE(dirty.width(), 100);
  move(3000, 3000);
  EXPECT_EQ(f().PicPaint.bitmap().constBits(), bits);
  release(3000, 3000);
  EXPECT_EQ(f().PicPaint.bitmap().constBits(), bits);
}

}  // namespace qp::test
