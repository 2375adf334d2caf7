// The device calls (GetPixel, SetPixel, ExtFloodFill, TransparentBlt), PaintPicture and Print.
#include <random>

#include "SurfaceFixture.h"

namespace qp::test {
namespace {

using DeviceTest = SurfaceTest;
constexpr Colour kWhite = 0xFFFFFF, kRed = 0x0000FF, kGreen = 0x00FF00, kBlue = 0xFF0000;

TEST_F(DeviceTest, PixelsCarryRedInTheLowByte) {
  PictureBox& b = box(10, 10, 1);  // device calls are in pixels whatever the scale
  SetPixel(b, 3, 4, RGB(10, 20, 30));
  EXPECT_TRUE(GetPixel(b, 3, 4) == 0x1E140A && b.Point(45, 60) == 0x1E140A);
  EXPECT_EQ(b.bitmap().pixel(3, 4), 0xFF0A141Eu);  // the bitmap is 0xAARRGGBB
  for (int i : {0, 9}) SetPixel(b, i, i, kGreen);  // the first and last pixels are inside
  EXPECT_EQ(count(b, kGreen), 2);
  EXPECT_EQ(GetPixel(b, -1, 0) & GetPixel(b, 10, 0), -1);  // both outside
  SetPixel(b, 10, 10, kWhite);  // outside: nothing
  EXPECT_EQ(count(b, kWhite), 0);
}

TEST_F(DeviceTest, FloodFillTakesTheFourConnectedAreaOfExactlyThatColour) {
  // Random walls on small boxes, each fill checked against a plain search of the area.
  std::mt19937 rng(7);
  for (int n = 0; n < 300; ++n) {
    const int w = 2 + static_cast<int>(rng() % 9), h = 2 + static_cast<int>(rng() % 9);
    PictureBox& b = box(w, h, 3, kWhite);
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x)
        if (rng() % 5 < 2) SetPixel(b, x, y, rng() % 4 ? 0x000000 : 0xFEFFFF);  // nearly white walls too
    const int sx = static_cast<int>(rng() % w), sy = static_cast<int>(rng() % h);
    std::vector<char> want(w * h, 0);
    std::vector<QPoint> todo{{sx, sy}};
    QRect area;
    while (!todo.empty()) {
      const QPoint p = todo.back();
      todo.pop_back();
      if (p.x() < 0 || p.y() < 0 || p.x() >= w || p.y() >= h || want[p.y() * w + p.x()] || px(b, p.x(), p.y()) != kWhite)
        continue;
      want[p.y() * w + p.x()] = 1;
      area |= QRect(p, QSize(1, 1));
      todo.insert(todo.end(), {p + QPoint(1, 0), p - QPoint(1, 0), p + QPoint(0, 1), p - QPoint(0, 1)});
    }
    b.FillStyle = 0, b.FillColor = kRed;
    b.takeDirty();
    EXPECT_EQ(ExtFloodFill(b, sx, sy, kWhite, 1), want[sy * w + sx] == 1);
    int wrong = 0;
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x) wrong += (px(b, x, y) == kRed) != (want[y * w + x] == 1);
    ASSERT_EQ(wrong, 0) << "box " << n << ", " << w << " x " << h << ", from " << sx << ", " << sy;
    EXPECT_EQ(b.takeDirty(), area) << "box " << n;  // the view repaints the filled area only
  }
  // No fill from outside the box, even one pixel past an edge; none with a transparent fill.
  PictureBox& b = box(20, 20, 3, kWhite);
  b.FillStyle = 0, b.FillColor = kRed;
  for (const QPoint p : {QPoint(20, 0), QPoint(0, 20), QPoint(-1, 0), QPoint(0, -1), QPoint(20, 19), QPoint(19, 20)})
    EXPECT_FALSE(ExtFloodFill(b, p.x(), p.y(), kWhite, 1)) << p.x() << ", " << p.y();
  b.FillStyle = 1;
  EXPECT_FALSE(ExtFloodFill(b, 19, 19, kWhite, 1));
  EXPECT_EQ(count(b, kWhite), 400);
}

TEST_F(DeviceTest, TransparentBltLeavesTheKeyOut) {
  PictureBox& src = box(4, 4, 3, kRed);
  SetPixel(src, 1, 1, kGreen);  // the key colour
  PictureBox& dst = box(20, 20, 3, kBlue);
  EXPECT_TRUE(TransparentBlt(dst, 2, 3, 4, 4, src, 0, 0, 4, 4, kGreen));
  // Stretched twice over: the key pixel becomes a 2x2 hole.
  EXPECT_TRUE(TransparentBlt(dst, 10, 10, 8, 8, src, 0, 0, 4, 4, kGreen));
  const int empty[][4] = {{0, 4, 4, 4}, {4, 0, 4, 4}, {4, 4, 0, 4}, {4, 4, 4, 0}};  // nothing to copy to or from
  for (const auto& [w, h, sw, sh] : empty) EXPECT_FALSE(TransparentBlt(dst, 0, 0, w, h, src, 0, 0, sw, sh, kGreen));
  expectAt(dst, {{2, 3, kRed}, {3, 4, kBlue}, {5, 6, kRed}, {6, 7, kBlue}, {10, 10, kRed}, {12, 12, kBlue},
                 {13, 13, kBlue}, {14, 14, kRed}, {17, 17, kRed}}, "blt");
}

TEST_F(DeviceTest, PaintPictureStretchesCopiesPartsAndMirrors) {
  QImage pic(4, 2, QImage::Format_RGB32);  // reds rising along the top row, greens along the bottom
  for (int x = 0; x < 4; ++x) pic.setPixel(x, 0, qRgb(x * 10, 0, 0)), pic.setPixel(x, 1, qRgb(0, x * 10, 0));
  PictureBox& b = box(40, 40, 3, kWhite);
  b.takeDirty();
  b.PaintPicture(pic, 0, 0);  // natural size
  EXPECT_EQ(b.takeDirty(), QRect(0, 0, 4, 2));
  expectAt(b, {{3, 0, RGB(30, 0, 0)}, {4, 0, kWhite}}, "natural");
  b.PaintPicture(pic, 10, 10, 8, 4);
  expectAt(b, {{10, 10, 0}, {13, 11, RGB(10, 0, 0)}, {17, 13, RGB(0, 30, 0)}, {18, 10, kWhite}}, "stretched");
  b.PaintPicture(pic, 20, 0, -4, 2);  // negative width: mirrored, ending at x1
  expectAt(b, {{16, 0, RGB(30, 0, 0)}, {19, 0, 0}, {20, 0, kWhite}}, "mirrored");
  b.PaintPicture(pic, 30, 30, 4, 2, 4, 2, -4, -2);  // source read backwards: both axes flipped
  expectAt(b, {{30, 30, RGB(0, 30, 0)}, {33, 31, 0}}, "flipped");
  b.PaintPicture(pic, 0, 20, {}, {}, 2, 1, 2, 1);  // a part, one to one
  expectAt(b, {{0, 20, RGB(0, 20, 0)}, {1, 20, RGB(0, 30, 0)}, {2, 20, kWhite}, {0, 21, kWhite}}, "part");
  b.PaintPicture(pic, 0, 30, 4, 2, 2, 0, 4, 2);  // a part reaching past the source's edge
  expectAt(b, {{0, 30, RGB(20, 0, 0)}, {1, 31, RGB(0, 30, 0)}, {2, 30, kWhite}, {3, 31, kWhite}}, "past the edge");
}

TEST_F(DeviceTest, PaintPictureFromAnotherSurfaceUsesItsUnits) {
  PictureBox& twips = box(10, 10, 1, kRed);
  SetPixel(twips, 5, 5, kGreen);
  twips.Picture = twips.Image;
  PictureBox& pixels = box(10, 10, 3, kWhite);
  // The source part (75, 75)-(90, 90) twips is the pixel 5, 5.
  pixels.PaintPicture(twips.Picture, 0, 0, 3, 3, 75, 75, 15, 15);
  expectAt(pixels, {{0, 0, kGreen}, {2, 2, kGreen}, {3, 3, kWhite}}, "part in twips");
  // A surface may paint from its own picture: the copy reads the picture as it was.
  pixels.Picture = pixels.Image;
  pixels.PaintPicture(pixels.Picture, 1, 1);
  expectAt(pixels, {{1, 1, kGreen}, {3, 3, kGreen}, {4, 4, kWhite}}, "from itself");
}

TEST_F(DeviceTest, PrintWritesAtTheCurrentPositionAndMovesToTheNextLine) {
  PictureBox& b = box(300, 120, 3, kWhite);
  b.ForeColor = kBlue;
  b.FontSize = 12;  // 16 pixels
  b.CurrentX = 20, b.CurrentY = 10;
  const Single h = b.TextHeight("Hg");
  b.Print("Hello");
  QRect ink = extent(b, kBlue);
  ASSERT_FALSE(ink.isEmpty());
  EXPECT_TRUE(QRectF(20, 10, 300, h + 1).contains(ink)) << ink.x() << "," << ink.y();
  EXPECT_NEAR(ink.width(), b.TextWidth("Hello"), 4);
  EXPECT_TRUE(b.CurrentX == 20 && b.CurrentY >= 10 + h - 1) << b.CurrentX << "," << b.CurrentY;
  // Text is drawn without antialiasing: only the pen colour and the background exist.
  EXPECT_EQ(count(b, kBlue) + count(b, kWhite), 300 * 120);
  // An opaque font paints its background.
  b.FontTransparent = false;
  b.BackColor = 0x000000;  // also clears
  b.BackColor.setRaw(kGreen);
  b.CurrentX = 0, b.CurrentY = 60;
  b.Print("Wide");
  EXPECT_TRUE(count(b, kGreen) > 0 && px(b, 0, 59) == 0x000000);
  // Sizes follow the scale: twice as many units per pixel reads twice as large.
  b.FontBold = true;
  const Single pixelsWide = b.TextWidth("Bold");
  b.ScaleMode = 1;
  EXPECT_FLOAT_EQ(b.TextWidth("Bold"), pixelsWide * 15);
  EXPECT_GT(b.TextHeight("a\nb"), b.TextHeight("a") * 1.5f);
  // Each style of the font changes the ink of the same word.
  PictureBox& t = box(120, 40, 3, kWhite);
  t.ForeColor = kBlue;
  t.FontSize = 14;
  auto printed = [&] { return t.Cls(), t.Print("Hmm"), t.bitmap().copy(); };
  const QImage plain = printed();
  Prop<bool>* styles[] = {&t.FontBold, &t.FontItalic, &t.FontUnderline, &t.FontStrikethru};
  for (int i = 0; i < 4; ++i) {
    *styles[i] = true;
    EXPECT_NE(printed(), plain) << "style " << i;
    *styles[i] = false;
  }
}

}  // namespace
}  // namespace qp::test
