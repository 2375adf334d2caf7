// What each stroke tool does at its events. In the Gradient colour mode the colour step switches the
// gradient's timer on, which shows that the step ran.
#include "tools/ToolFixture.h"

namespace qp::test {
namespace {

using ColourSteps = ToolTest;

TEST_F(ColourSteps, EachToolStepsAtItsOwnEvents) {
  struct Case { Menu frmCanvas::*mode; bool atPress, atMove; };
  for (const Case& c : {Case{&frmCanvas::mGpen, true, true}, Case{&frmCanvas::mAir, true, true},
                        Case{&frmCanvas::mEr, false, true}, Case{&frmCanvas::mSaw, true, true},
                        Case{&frmCanvas::mCrazyLn, true, true}, Case{&frmCanvas::mSingle, false, false},
                        Case{&frmCanvas::mMirLine, false, false}, Case{&frmCanvas::mCrzyPen, false, false},
                        Case{&frmCanvas::mSngBox, false, false}}) {
    enter(f().*c.mode);
    f().vColmode.Value = 3;
    SCOPED_TRACE(f().lMode.Caption.get().toStdString());
    f().tGrad.Enabled = false;
    press(1500, 1500);
    EXPECT_EQ(f().tGrad.Enabled.get(), c.atPress);
    f().tGrad.Enabled = false;
    move(3000, 1500);
    EXPECT_EQ(f().tGrad.Enabled.get(), c.atMove);
    release(3000, 1500);
  }
}

using MoveCost = ToolTest;

TEST_F(MoveCost, AMoveMarksOnlyWhatItDrew) {
  // bound in pixels; empty: the move draws nothing on the picture
  struct Case { Menu frmCanvas::*mode; QRect bound; };
  // Press at (100, 100), move to (200, 110) pixels, on a 600 x 600 canvas.
  for (const Case& c : {Case{&frmCanvas::mGpen, QRect(90, 90, 420, 420)}, Case{&frmCanvas::mEr, QRect(185, 100, 30, 20)},
                        Case{&frmCanvas::mSaw, QRect(95, 95, 125, 25)}, Case{&frmCanvas::mCrazyLn, QRect(95, 95, 110, 20)},
                        Case{&frmCanvas::mSingle, QRect()}, Case{&frmCanvas::mSngBox, QRect()},
                        Case{&frmCanvas::mMirLine, QRect()}, Case{&frmCanvas::mAir, QRect()}}) {
    enter(f().*c.mode);
    f().vPencil.Value = 4;
    press(1500, 1500);
    const uchar* bits = f().PicPaint.bitmap().constBits();
    f().PicPaint.takeDirty();
    move(3000, 1650);
    const QRect dirty = f().PicPaint.takeDirty();
    SCOPED_TRACE(f().lMode.Caption.get().toStdString());
    EXPECT_EQ(f().PicPaint.bitmap().constBits(), bits);
    if (c.bound.isEmpty()) {
      EXPECT_TRUE(dirty.isEmpty());
    } else {
      EXPECT_FALSE(dirty.isEmpty());
      EXPECT_TRUE(c.bound.contains(dirty)) << dirty.x() << "," << dirty.y() << " " << dirty.width() << "x" << dirty.height();
    }
    release(3000, 1650);
  }
}

TEST_F(MoveCost, StrokesFarOutsideTheCanvasEndQuietly) {
  for (Menu frmCanvas::*mode : {&frmCanvas::mGpen, &frmCanvas::mEr, &frmCanvas::mSaw, &frmCanvas::mCrazyLn,
                                &frmCanvas::mSingle, &frmCanvas::mSngBox, &frmCanvas::mMirLine, &frmCanvas::mAir,
                                &frmCanvas::mCrzyPen}) {
    for (int equation : {13, 17, 21}) {
      enter(f().*mode);
      f().CrazyEquation = equation;
      f().vVal3.Value = equation == 13 ? 2 : 3;  // circles, box runs
      press(1500, 1500);
      move(-40000, 9e8f);
      move(32760, 32760);
      move(1500, 1500);
      headless.loop.advance(50);
      release(1e12f, 30000);  // far off to the right and below
      EXPECT_EQ(f().PicPaint.ScaleWidth, f().PicPaint.Width);
      EXPECT_FALSE(f().tAir.Enabled);
    }
  }
}

}  // namespace
}  // namespace qp::test
