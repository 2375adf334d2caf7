// Which events of each tool run the colour step: in the Gradient colour mode the step switches the
// gradient's timer on, which shows that it ran.
#include "tools/ToolFixture.h"

namespace qp::test {
namespace {

using ColourSteps = ToolTest;

TEST_F(ColourSteps, EachToolStepsAtItsOwnEvents) {
  struct Case {
    Menu frmCanvas::*mode;
    bool atPress, atMove;
  };
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
    EXPECT_FALSE(f().tGrad.Enabled);
  }
}

}  // namespace
}  // namespace qp::test
