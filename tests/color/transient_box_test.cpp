// The Transient box only says whether a press or a key starts the generator and their release stops
// it: unticking it in the middle of a stroke leaves the generator running.
#include "support/ProgramFixture.h"

namespace qp::test {

using TransientBox = PencilTest;

TEST_F(TransientBox, UntickingMidStrokeLeavesTheGeneratorRunning) {
  f().vColmode.Value = 2;  // Glow shows the box
  ASSERT_TRUE(f().ckDcolz.Visible);
  f().ckDcolz.Value = 1;
  press(1500, 1500);
  ASSERT_TRUE(f().tDclrz.Enabled);
  f().ckDcolz.raiseClick();  // the box toggles to 0
  ASSERT_EQ(f().ckDcolz.Value.get(), 0);
  EXPECT_TRUE(f().tDclrz.Enabled);
  const Colour before = m().TransientClr;
  headless.loop.advance(100);
  EXPECT_NE(m().TransientClr, before);
}

}  // namespace qp::test
