// The persistent bitmap: its size from Width/Height and AutoSize, Picture and Image by value, Cls,
// BackColor, the scale modes, refusals, and what the view learns (dirty rectangle, refresh).
#include "SurfaceFixture.h"
#include "support/ErrorCode.h"

namespace qp::test {
namespace {

using BitmapTest = SurfaceTest;

QImage filled(int w, int h, QRgb c) {
  QImage pic(w, h, QImage::Format_RGB32);
  pic.fill(c);
  return pic;
}

TEST_F(BitmapTest, SizeFollowsTwipsOrParentPixels) {
  PictureBox& canvas = box(0, 0, 1);
  canvas.Width = 11295, canvas.Height = 8295;
  EXPECT_EQ(pixels(canvas), QSize(753, 553));
  EXPECT_EQ(QSizeF(canvas.ScaleWidth, canvas.ScaleHeight), QSizeF(11295, 8295));  // twips: the outer size
  // A child of a picture box in pixels takes its size in pixels.
  PictureBox& parent = box(100, 100, 3);
  PictureBox child(&form, &parent, "child");
  child.ScaleMode = 3;
  child.Width = 33, child.Height = 20;
  EXPECT_EQ(pixels(child), QSize(33, 20));
  EXPECT_EQ(QSizeF(child.ScaleWidth, child.ScaleHeight), QSizeF(33, 20));
}

TEST_F(BitmapTest, AutoSizeKeepsItsSizeForAnEmptyPictureAndRefusesAnOversizedOne) {
  PictureBox& b = box(10, 10, 1, 0x0000FF);
  b.AutoSize = true;
  b.Picture = filled(30, 20, qRgb(0, 255, 0));
  b.Picture = QImage();  // the back colour shows
  EXPECT_EQ(pixels(b), QSize(30, 20));
  EXPECT_EQ(px(b, 29, 19), 0x0000FF);
  EXPECT_EQ(errorCode([&] { b.Picture = QImage(20000, 1, QImage::Format_RGB32); }), RuntimeError::OutOfMemory);
  EXPECT_TRUE(pixels(b) == QSize(30, 20) && b.Picture.isNull());
}

TEST_F(BitmapTest, GrowingKeepsDrawingShrinkingLosesTheCutPart) {
  PictureBox& b = box(20, 20, 3, 0x000000);
  b.Line(0, 0, 19, 19, 0x0000FF, LineBox::BF);
  b.Width = 40 * 15;
  expectAt(b, {{19, 19, 0x0000FF}, {30, 5, 0x000000}});  // kept, and the new part in the back colour
  b.Width = 10 * 15;
  b.Width = 20 * 15;
  expectAt(b, {{9, 5, 0x0000FF}, {15, 5, 0x000000}});  // the cut part is gone
}

TEST_F(BitmapTest, ImageCopiesAreByValueAndCostOneDetach) {
  PictureBox& x = box(64, 64, 3, 0x000000);
  PictureBox& y = box(64, 64, 3, 0x808080);
  x.PSet(5, 5, 0x00FF00);
  y.Picture = x.Image;
  // Sharing: neither the copy nor the laying on y copied pixels.
  EXPECT_TRUE(y.bitmap().constBits() == x.bitmap().constBits() && px(y, 5, 5) == 0x00FF00);
  x.Picture = x.Image;  // baking costs nothing either
  const QImage kept = x.Image;
  const uchar* before = x.bitmap().constBits();
  x.PSet(6, 6, 0xFF0000);
  const uchar* after = x.bitmap().constBits();
  EXPECT_NE(after, before);  // the first drawing call copied once...
  x.Line(0, 0, 63, 63, 0xFFFFFF);
  x.Circle(30, 30, 10, 0xFFFFFF);
  EXPECT_EQ(x.bitmap().constBits(), after);  // ...and never again
  // Later drawing on x reaches neither the copy nor y, and Cls brings x's Picture back in place,
  // drawn part only, without a second copy.
  EXPECT_TRUE((kept.pixel(6, 6) & 0xFFFFFF) == 0 && px(y, 6, 6) == 0x000000);
  x.Cls();
  expectAt(x, {{6, 6, 0x000000}, {5, 5, 0x00FF00}, {63, 63, 0x000000}, {40, 30, 0x000000}});
  EXPECT_EQ(x.bitmap().constBits(), after);
}

TEST_F(BitmapTest, ClsAndBackColorLayThePictureOverTheBackground) {
  PictureBox& b = box(30, 20, 3, 0x112233);
  b.Picture = filled(10, 10, 0xFF0000FF);  // blue as 0xAARRGGBB
  expectAt(b, {{5, 5, 0xFF0000}, {20, 5, 0x112233}});
  b.CurrentX = 7, b.CurrentY = 9;
  b.PSet(25, 15, 0xFFFFFF);
  b.Cls();
  EXPECT_EQ(px(b, 25, 15), 0x112233);
  EXPECT_EQ(at(b), QPointF(0, 0));
  b.PSet(25, 15, 0xFFFFFF);
  b.BackColor = 0x00FF00;  // clears what was drawn, the picture staying on top
  expectAt(b, {{25, 15, 0x00FF00}, {2, 2, 0xFF0000}});
  b.Picture = QImage();  // an emptied picture leaves only the back colour
  EXPECT_EQ(px(b, 2, 2), 0x00FF00);
}

TEST_F(BitmapTest, ScaleModesAndUserScale) {
  PictureBox& b = box(200, 100, 1);
  b.ScaleWidth = 2, b.ScaleLeft = -1, b.ScaleHeight = 1;  // a user scale from -1 to 1 across
  EXPECT_EQ(b.ScaleMode, 0);
  b.PSet(0, 0.5f, 0x00FFFF);
  EXPECT_EQ(px(b, 100, 50), 0x00FFFF);
  b.Width = 400 * 15;  // resizing keeps a user scale: the units stretch with the bitmap
  EXPECT_TRUE(b.ScaleWidth == 2 && b.toPixelX(0) == 200) << b.toPixelX(0);
  b.ScaleMode = 3;
  EXPECT_FLOAT_EQ(b.ScaleLeft, 0);
  EXPECT_FLOAT_EQ(b.ScaleWidth, 400);
  for (Prop<Single>* origin : {&b.ScaleLeft, &b.ScaleTop}) {
    *origin = -10;  // a moved origin alone makes a user scale too
    EXPECT_EQ(b.ScaleMode, 0);
    b.ScaleMode = 3;
  }
  b.ScaleTop = -10;
  b.PSet(0, 0, 0x0000FF);
  EXPECT_EQ(px(b, 0, 10), 0x0000FF);
  b.ScaleMode = 1;
  EXPECT_FLOAT_EQ(b.ScaleWidth, 6000);
}

TEST_F(BitmapTest, RefusalsRaiseAndChangeNothing) {
  PictureBox& empty = box(0, 0, 3);
  PictureBox& b = box(10, 10, 3);
  const struct { std::function<void()> call; int code; } cases[] = {
      {[&] { empty.Line(0, 0, 5, 5); }, RuntimeError::InvalidCall},
      {[&] { empty.PSet(0, 0); }, RuntimeError::InvalidCall},
      {[&] { empty.Circle(1, 1, 1); }, RuntimeError::InvalidCall},
      {[&] { empty.Print("x"); }, RuntimeError::InvalidCall},
      {[&] { empty.Cls(); }, 0},
      {[&] { b.Width = 20000 * 15; }, RuntimeError::OutOfMemory},
      {[&] { b.Height = -1; }, RuntimeError::InvalidPropertyValue},
      {[&] { b.DrawWidth = 0; }, RuntimeError::InvalidPropertyValue},
      {[&] { b.DrawMode = 17; }, RuntimeError::InvalidPropertyValue},
      {[&] { b.ScaleWidth = 0; }, RuntimeError::InvalidPropertyValue},
      {[&] { b.FontSize = 2160; }, 0},
      {[&] { b.FontSize = 2160.5f; }, RuntimeError::InvalidPropertyValue},
      {[&] { b.FontSize = 0; }, RuntimeError::InvalidPropertyValue},
      {[&] { b.Line(0, 0, std::nanf(""), 3); }, RuntimeError::Overflow},
      {[&] { b.PaintPicture(QImage(), 0, 0); }, RuntimeError::InvalidPicture},
  };
  for (size_t i = 0; i < std::size(cases); ++i) EXPECT_EQ(errorCode(cases[i].call), cases[i].code) << "case " << i;
  EXPECT_EQ(empty.Point(0, 0), -1);
  EXPECT_EQ(pixels(b), QSize(10, 10));
}

TEST_F(BitmapTest, DirtyRectangleCoversOnlyWhatWasDrawn) {
  PictureBox& b = box(300, 300, 3);
  b.takeDirty();
  EXPECT_TRUE(b.takeDirty().isEmpty());
  b.Line(10, 20, 40, 20, 0xFFFFFF);
  EXPECT_EQ(b.takeDirty(), QRect(10, 20, 31, 1));
  b.DrawWidth = 5;
  b.PSet(100, 100, 0xFFFFFF);
  EXPECT_EQ(b.takeDirty(), QRect(98, 98, 5, 5));
  b.Line(-50, -50, 2, 2, 0xFFFFFF);  // clipped to the bitmap
  const QRect r = b.takeDirty();
  EXPECT_TRUE(r.topLeft() == QPoint(0, 0) && r.right() <= 5) << r.right();
  EXPECT_FALSE(b.takeRefreshRequest());
  b.Refresh();
  EXPECT_TRUE(b.takeRefreshRequest() && !b.takeRefreshRequest());
}

}  // namespace
}  // namespace qp::test
