// The Selection Tool: the drag, the float, setting it, and what undo and the menus do to it.
#include "platform/Headless.h"
#include "tools/ToolFixture.h"
#include "tools/Selection.h"

namespace qp::test {
namespace {

// Every pixel of the pattern tells where it came from.
Colour at(int x, int y) { return RGB(x % 256, y % 256, 7); }

class SelectionTest : public ToolTest {
 protected:
  void SetUp() override {
    ToolTest::SetUp();
    QImage pattern(200, 150, QImage::Format_RGB32);
    for (int y = 0; y < 150; ++y)
      for (int x = 0; x < 200; ++x) pattern.setPixel(x, y, qRgb(x % 256, y % 256, 7));
    f().PicPaint.Picture = pattern;
  }
  Colour floatPixel(int x, int y) { return GetPixel(f().pSpire, x, y); }
};

TEST_F(SelectionTest, ADragOfTwelvePixelsEachWaySelectsAndOneTwipLessDoesNot) {
  struct Case { Single w, h; bool selects; };
  for (const Case c : {Case{179, 400, false}, Case{400, 179, false}, Case{180, 180, true}, Case{-180, -400, true}}) {
    choose(f().mSelCpy);
    stroke({{1500, 1500}, {1500 + c.w, 1500 + c.h}});
    EXPECT_EQ(f().pSpire.Visible.get(), c.selects) << c.w << " x " << c.h;
    EXPECT_EQ(f().tTemp.Enabled.get(), c.selects);
  }
}

TEST_F(SelectionTest, SelectAndCopyFloatsTheRectangleAndSetsItWhereItWasCarried) {
  choose(f().mSelCpy);
  drag(50, 40, 10, 20);  // to the upper left: the rectangle is the same
  EXPECT_EQ(f().pSpire.Left.get(), 150);
  EXPECT_EQ(f().pSpire.Height.get(), 300);
  EXPECT_EQ(floatPixel(0, 0), at(10, 20));
  EXPECT_EQ(floatPixel(39, 19), at(49, 39));
  EXPECT_FALSE(f().mCopy.Enabled);
  // Carried with its corner a sixth of its size above and left of the pointer, its frame along.
  press(1500, 1200);
  EXPECT_EQ(std::pair(int(f().pSpire.Left), int(f().pSpire.Top)), std::pair(1400, 1150));
  move(1600, 950);
  release(1600, 950);
  EXPECT_EQ(std::pair(int(f().pSpire.Left), int(f().pSpire.Top)), std::pair(1500, 900));
  EXPECT_EQ(f().DrawShape.Left.get(), 1500);
  f().pSpire.raiseMouseDown(vbLeftButton, 0, 10, 10);
  EXPECT_FALSE(f().tTemp.Enabled);
  EXPECT_TRUE(f().mCopy.Enabled);
  EXPECT_FALSE(f().pSpire.Visible);
  expectPixels({{100, 60, at(10, 20)}, {139, 79, at(49, 39)}, {140, 60, at(140, 60)}});
}

TEST_F(SelectionTest, SelectAndClearEmptiesTheRectangleInTheBackColourWithAThinPen) {
  f().PicPaint.BackColor = 0x123456;
  f().PicPaint.Picture = f().PicPaint.Picture.get();  // the pattern again, over the new colour
  f().vPencil.Value = 5;
  choose(f().mSelClr);
  drag(10, 10, 30, 30);
  EXPECT_EQ(floatPixel(0, 0), at(10, 10));
  expectPixels({{10, 10, 0x123456}, {29, 29, 0x123456}, {31, 31, at(31, 31)}});
  EXPECT_EQ(f().lPenVal.Caption.get(), "Draw Width : 1");
}

TEST_F(SelectionTest, MirrorAndInvertTurnTheFloatAndTwiceGiveItBack) {
  choose(f().mSelCpy);
  drag(10, 20, 50, 40);
  struct Case { Menu* item; int x, y; Colour expected; };
  for (const Case c : {Case{&f().mMirSel, 0, 0, at(49, 20)}, Case{&f().mMirSel, 0, 0, at(10, 20)},
                       Case{&f().mIvSel, 0, 0, at(10, 39)}}) {
    choose(*c.item);
    EXPECT_EQ(floatPixel(c.x, c.y), c.expected) << c.item->Name().toStdString();
  }
  EXPECT_EQ(f().pSpire.Width.get(), 600);
  EXPECT_EQ(f().pSpire.Height.get(), 300);
}

TEST_F(SelectionTest, TilesStretchTheFloatOverTheCanvasAndKeepItAfloat) {
  choose(f().mSelCpy);
  drag(0, 0, 20, 20);
  const QImage before = f().PicUndo.Picture.get();
  choose(f().m22);
  // Four tiles of 100 x 75, each the 20 x 20 corner stretched.
  for (int c = 0; c < 2; ++c)
    for (int r = 0; r < 2; ++r)
      expectPixels({{c * 100, r * 75, at(0, 0)}, {c * 100 + 99, r * 75 + 74, at(19, 19)}});
  EXPECT_TRUE(f().pSpire.Visible);
  EXPECT_EQ(f().PicUndo.Picture.get(), before);  // no snapshot
}

TEST_F(SelectionTest, TheFloatGoesToTheClipboardAndAPasteCancelledKeepsItsMode) {
  choose(f().mSelCpy);
  drag(10, 20, 50, 40);
  choose(f().mCpySel);
  EXPECT_EQ(headless.clipboard.GetData().size(), QSize(40, 20));
  EXPECT_EQ(headless.clipboard.GetData().pixel(0, 0) & 0xFFFFFF, qRgb(10, 20, 7) & 0xFFFFFF);
  f().pSpire.raiseMouseUp(vbRightButton, 0, 0, 0);
  choose(f().mnuPaste);
  EXPECT_EQ(f().DrawShape.Left.get(), 480);
  stroke({{1600, 950}});  // the canvas carries the pasted picture by the float's rule
  EXPECT_EQ(f().pTemp.Left.get(), 1500);
  f().pTemp.raiseMouseUp(vbRightButton, 0, 0, 0);
  EXPECT_FALSE(f().pTemp.Visible);
  EXPECT_EQ(m().PaintMode, 22);
  EXPECT_EQ(pixel(100, 60), at(100, 60));
}

TEST_F(SelectionTest, SelectForTransparencyHandsTheNextSelectionToTheTransparencyTool) {
  choose(f().mTrans);
  drag(10, 20, 50, 40);
  EXPECT_EQ(m().PaintMode, 26);
  EXPECT_FALSE(f().pSpire.Visible);
  frmBlue& blue = program->w.blue;
  EXPECT_TRUE(blue.Visible);
  EXPECT_EQ(GetPixel(blue.pBlu, 0, 0), at(10, 20));
  blue.Unload();
  choose(f().mSelCpy);
  drag(10, 20, 50, 40);
  EXPECT_TRUE(f().pSpire.Visible);
  EXPECT_EQ(m().PaintMode, 19);
}

}  // namespace
}  // namespace qp::test
