// The stash, copying the canvas, pasting, and setting the floating picture down.
#include <QImage>

#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

constexpr Colour kRed = 0x0000FF;
using EditTest = PencilTest;

TEST_F(EditTest, TheStashIsFetchedOnlyAfterASendAsOftenAsWantedAtItsOwnSize) {
  EXPECT_FALSE(f().mGet.Enabled);
  drawDot(1500, 1500);
  choose(f().mGet);  // disabled: nothing comes
  EXPECT_EQ(pixel(100, 100), kWhite);
  choose(f().mSendStash);
  choose(f().mClear);
  drawDot(3000, 3000);
  choose(f().mGet);
  EXPECT_EQ(std::pair(pixel(100, 100), pixel(200, 200)), std::pair(kWhite, kBlack));
  choose(f().mnuUndo);  // the fetch can be undone
  EXPECT_EQ(std::pair(pixel(100, 100), pixel(200, 200)), std::pair(kBlack, kWhite));
  const Single w = f().PicPaint.Width, h = f().PicPaint.Height;
  choose(f().m64x48);
  choose(f().mGet);  // and the stash is still there, at the size it was sent
  EXPECT_EQ(pixel(100, 100), kWhite);
  EXPECT_TRUE(f().PicPaint.Width < w && f().PicPaint.Height < h);
}

TEST_F(EditTest, APasteFloatsUnderABlinkingFrameAndAClickSetsItDownWithinTheFrame) {
  drawDot(1500, 1500);
  QImage red(20, 10, QImage::Format_RGB32);
  red.fill(qRgb(255, 0, 0));
  headless.clipboard.SetData(red);
  choose(f().mnuPaste);
  EXPECT_EQ(f().DrawShape.Width.get(), 300);  // the frame fits the picture
  EXPECT_EQ(pixel(33, 33), kBlack);  // not on the canvas yet
  for (Colour border : {0xC0C0C0, 0xE0E0E0, 0xC0C0C0}) {
    EXPECT_EQ(f().DrawShape.BorderColor.get(), border);
    headless.loop.advance(200);
  }
  f().DrawShape.Width = 600;  // a frame stretched to twice the width stretches the picture
  f().pTemp.raiseMouseDown(vbRightButton, 0, 10, 10);  // a right click does not set it down
  EXPECT_TRUE(f().pTemp.Visible);
  EXPECT_EQ(pixel(33, 33), kBlack);
  f().pTemp.raiseMouseDown(vbLeftButton, 0, 10, 10);
  for (const auto& [x, c] : {std::pair{33, kRed}, std::pair{70, kRed}, std::pair{75, kBlack}}) EXPECT_EQ(pixel(x, 33), c) << x;
  EXPECT_FALSE(f().DrawShape.Visible || f().tTemp.Enabled);
  choose(f().mnuUndo);
  EXPECT_EQ(pixel(33, 33), kBlack);
  EXPECT_EQ(pixel(100, 100), kWhite);
}

}  // namespace
}  // namespace qp::test
