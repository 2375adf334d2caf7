// Entering Crazy Pencil: the entry sets DrawMode 13 and only the bar's Change applies the mixing
// map, so an entry with the bar already at 13 keeps DrawMode 13 and the row's earlier words.
#include "support/ProgramFixture.h"

namespace qp::test {

using CrazyPencilEntry = ProgramTest;

TEST_F(CrazyPencilEntry, TheMapRunsOnlyWhenTheBarMoves) {
  choose(f().mCrzyPen);  // the bar moves from the pencil's 4 to 13: the map gives 15
  EXPECT_EQ(f().PicPaint.DrawMode.get(), 15);
  EXPECT_EQ(f().lVal1.Caption.get(), "DrawMode : 13");
  choose(f().mCrzyPen);  // the bar stays at 13: no Change, the entry's 13 stands
  EXPECT_EQ(f().PicPaint.DrawMode.get(), 13);
  EXPECT_EQ(f().lVal1.Caption.get(), "DrawMode : 13");
}

}  // namespace qp::test
