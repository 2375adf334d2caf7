// Line, PSet, Point and Circle, read back pixel by pixel.
#include <cmath>
#include <numbers>

#include "SurfaceFixture.h"

namespace qp::test {
namespace {

using DrawingTest = SurfaceTest;
constexpr Colour kWhite = 0xFFFFFF, kRed = 0x0000FF, kBlue = 0xFF0000;

TEST_F(DrawingTest, LineFormsAndCurrentPosition) {
  PictureBox& b = box(100, 100);
  b.ForeColor = kRed;
  b.Line(10, 10, 20, 10);  // pen colour, both ends drawn
  EXPECT_EQ(px(b, 10, 10), kRed);
  EXPECT_EQ(px(b, 20, 10), kRed);
  EXPECT_EQ(px(b, 21, 10), 0);
  EXPECT_EQ(b.CurrentX, 20);
  EXPECT_EQ(b.CurrentY, 10);

  b.LineTo(20, 30, kBlue);  // continues from the second point, in the given colour
  EXPECT_EQ(px(b, 20, 25), kBlue);
  EXPECT_EQ(b.CurrentY, 30);

  b.Cls();
  b.LineTo(5, 0, kWhite);  // right after Cls a figure starts at 0, 0
  EXPECT_EQ(px(b, 0, 0), kWhite);
  EXPECT_EQ(count(b, kWhite), 6);

  b.Line(50, 50, 50, 50, kWhite);  // a point to itself is a dot
  EXPECT_EQ(px(b, 50, 50), kWhite);
  b.DrawWidth = 7;
  b.Line(80, 80, 80, 80, kBlue);  // also for wide pens, where it is a round dot
  EXPECT_EQ(extent(b, kBlue), QRect(77, 77, 7, 7));
  EXPECT_EQ(px(b, 77, 77), 0);
}

TEST_F(DrawingTest, BoxesOutlineAndFilledWithTheLineColour) {
  PictureBox& b = box(60, 60);
  b.FillStyle = 0;
  b.FillColor = kBlue;  // plays no part in boxes
  b.Line(30, 40, 10, 20, kRed, LineBox::B);
  EXPECT_EQ(extent(b, kRed), QRect(10, 20, 21, 21));
  EXPECT_EQ(count(b, kRed), 80);
  EXPECT_EQ(px(b, 20, 30), 0);
  EXPECT_EQ(b.CurrentX, 10);
  EXPECT_EQ(b.CurrentY, 20);

  b.Line(40, 5, 50, 10, kWhite, LineBox::BF);
  EXPECT_EQ(count(b, kWhite), 11 * 6);
  EXPECT_EQ(extent(b, kWhite), QRect(40, 5, 11, 6));

  // A box outline drawn with xor touches each pixel once, even at the corners of wide pens.
  PictureBox& c = box(60, 60);
  c.DrawMode = 7;
  c.DrawWidth = 4;
  c.Line(10, 10, 40, 40, kWhite, LineBox::B);
  EXPECT_EQ(px(c, 10, 10), kWhite);
  EXPECT_EQ(px(c, 40, 25), kWhite);
  EXPECT_EQ(px(c, 25, 25), 0);
}

TEST_F(DrawingTest, WidePensHaveRoundEndsAndKeepTheirWidth) {
  PictureBox& b = box(100, 100);
  b.DrawWidth = 9;
  b.Line(20, 50, 70, 50, kWhite);
  const QRect r = extent(b, kWhite);
  EXPECT_EQ(r, QRect(16, 46, 59, 9));
  EXPECT_EQ(px(b, 16, 46), 0);  // rounded off at the corners of the ends
  EXPECT_EQ(px(b, 16, 50), kWhite);
  EXPECT_EQ(px(b, 45, 46), kWhite);

  // Diagonal strokes keep their width across the line.
  b.Cls();
  b.Line(20, 20, 80, 80, kWhite);
  int across = 0;
  for (int d = -10; d <= 10; ++d) across += px(b, 50 + d, 50 - d) == kWhite;
  EXPECT_GE(across, 6);
  EXPECT_LE(across, 7);
}

TEST_F(DrawingTest, DrawStylesPatternOnlyOnePixelPens) {
  PictureBox& b = box(120, 20);
  // Each style's on and off runs from the start of the line: dash, dot, dash-dot, dash-dot-dot.
  const std::pair<int, const char*> styles[] = {
      {1, "18+6-18+6-"}, {2, "3+3-3+3-"}, {3, "9+6-3+6-9+"}, {4, "9+3-3+3-3+3-9+"}};
  for (const auto& [style, runs] : styles) {
    b.Cls();
    b.DrawStyle = style;
    b.Line(0, 5, 119, 5, kWhite);
    QString seen;
    for (int x = 0, run = 1; x < 60; ++x, ++run)
      if (x == 59 || (px(b, x, 5) == kWhite) != (px(b, x + 1, 5) == kWhite)) {
        seen += QString::number(run) + (px(b, x, 5) == kWhite ? "+" : "-");
        run = 0;
      }
    EXPECT_TRUE(seen.startsWith(runs)) << "style " << style << ": " << seen.toStdString();
  }
  b.Cls();
  b.DrawStyle = 5;  // transparent pen
  b.Line(0, 12, 119, 12, kWhite);
  EXPECT_EQ(px(b, 50, 12), 0);
  b.DrawStyle = 1;
  b.DrawWidth = 3;  // wider pens are solid whatever the style
  b.Line(0, 16, 119, 16, kRed);
  EXPECT_EQ(px(b, 20, 16), kRed);
}

TEST_F(DrawingTest, PSetAndPoint) {
  PictureBox& b = box(50, 50, 1);  // in twips
  b.ForeColor = kBlue;
  b.PSet(150, 150);
  EXPECT_EQ(px(b, 10, 10), kBlue);
  EXPECT_EQ(count(b, kBlue), 1);
  EXPECT_EQ(b.CurrentX, 150);
  EXPECT_EQ(b.Point(150, 150), kBlue);
  EXPECT_EQ(b.Point(149.9f, 150.2f), kBlue);  // rounds to the nearest pixel

  b.DrawWidth = 4;
  b.PSet(450, 450, kRed);
  EXPECT_EQ(extent(b, kRed), QRect(28, 28, 4, 4));

  // Outside the bitmap Point gives -1, and drawing there changes nothing.
  EXPECT_EQ(b.Point(-15, 0), -1);
  EXPECT_EQ(b.Point(50 * 15, 0), -1);
  EXPECT_EQ(b.Point(0, 1e30f), -1);
  EXPECT_EQ(b.Point(std::nanf(""), 0), -1);
  b.PSet(-300, 900, kWhite);
  b.Line(-1e30f, 1e30f, 1e30f, 1e30f, kWhite);
  EXPECT_EQ(count(b, kWhite), 0);
}

TEST_F(DrawingTest, FarAwayEndsKeepTheLineExact) {
  PictureBox& b = box(100, 100);
  // From the centre to a point a hundred million pixels out along the diagonal.
  b.Line(50, 50, 1e8f, 1e8f, kWhite);
  for (int i = 50; i < 100; ++i) EXPECT_EQ(px(b, i, i), kWhite) << i;
  EXPECT_EQ(count(b, kWhite), 50);
}

TEST_F(DrawingTest, CircleSizesByAspect) {
  PictureBox& b = box(400, 400);
  b.Circle(200, 200, 100, kWhite, {}, {}, 0.5);
  QRect r = extent(b, kWhite);
  EXPECT_NEAR(r.width(), 200, 1);
  EXPECT_NEAR(r.height(), 100, 1);
  EXPECT_NEAR(r.center().x(), 200, 1);
  EXPECT_NEAR(r.center().y(), 200, 1);

  b.Cls();
  b.Circle(200, 200, 100, kWhite, {}, {}, 2.0);
  r = extent(b, kWhite);
  EXPECT_NEAR(r.width(), 100, 1);
  EXPECT_NEAR(r.height(), 200, 1);

  // A circle mostly off the bitmap still shows the part that is on it.
  b.Cls();
  b.Circle(-10, 200, 10, kWhite);
  EXPECT_EQ(px(b, 0, 200), kWhite);

  b.Cls();
  b.Circle(200, 200, 50, kWhite);
  r = extent(b, kWhite);
  EXPECT_NEAR(r.width(), 100, 1);
  EXPECT_NEAR(r.height(), 100, 1);
  EXPECT_EQ(px(b, 200, 200), 0);  // FillStyle 1: outline only
  EXPECT_EQ(b.CurrentX, 200);
  EXPECT_EQ(b.CurrentY, 200);
}

TEST_F(DrawingTest, CircleFillAndArcs) {
  PictureBox& b = box(200, 200);
  b.FillStyle = 0;
  b.FillColor = kBlue;
  b.Circle(100, 100, 40, kRed);
  EXPECT_EQ(px(b, 100, 100), kBlue);
  EXPECT_EQ(px(b, 140, 100), kRed);
  EXPECT_EQ(px(b, 60, 100), kRed);

  // An arc from 0 to pi/2 runs counter-clockwise: right, then up.
  b.FillStyle = 1;
  b.Cls();
  constexpr double pi = std::numbers::pi;
  b.Circle(100, 100, 50, kWhite, 0.0, pi / 2);
  EXPECT_EQ(extent(b, kWhite).bottom(), 100);
  EXPECT_EQ(extent(b, kWhite).left(), 100);
  EXPECT_EQ(px(b, 150, 100), kWhite);
  EXPECT_EQ(px(b, 100, 50), kWhite);
  EXPECT_EQ(px(b, 120, 100), 0);  // no radius without a negative angle

  // Negative ends add the radii and close a filled pie slice.
  b.Cls();
  b.FillStyle = 0;
  b.Circle(100, 100, 50, kWhite, -1e-6, -pi / 2);
  EXPECT_EQ(px(b, 125, 100), kWhite);  // radius along +X
  EXPECT_EQ(px(b, 100, 75), kWhite);   // radius up
  EXPECT_EQ(px(b, 120, 80), kBlue);    // inside the slice
  EXPECT_EQ(px(b, 80, 120), 0);        // the other quarters stay empty
}

// Every DrawMode against its bitwise formula on the 24 colour bits, with the bitmap kept opaque.
TEST_F(DrawingTest, DrawModesFollowTheirRasterOperation) {
  const Colour pen = 0x3C5AF0, dst = 0xA5C30F;
  const auto formula = [](int mode, std::uint32_t p, std::uint32_t d) -> std::uint32_t {
    switch (mode) {
      case 1: return 0;
      case 2: return ~(p | d);
      case 3: return d & ~p;
      case 4: return ~p;
      case 5: return p & ~d;
      case 6: return ~d;
      case 7: return p ^ d;
      case 8: return ~(p & d);
      case 9: return p & d;
      case 10: return ~(p ^ d);
      case 11: return d;
      case 12: return d | ~p;
      case 13: return p;
      case 14: return p | ~d;
      case 15: return p | d;
      default: return 0xFFFFFF;
    }
  };
  for (int mode = 1; mode <= 16; ++mode) {
    PictureBox& b = box(40, 40, 3, dst);
    b.DrawMode = mode;
    const Colour want = static_cast<Colour>(formula(mode, pen, dst) & 0xFFFFFF);
    b.Line(2, 2, 30, 2, pen);  // thin line
    b.DrawWidth = 3;
    b.Line(2, 10, 30, 10, pen);  // wide line
    b.Line(2, 20, 8, 24, pen, LineBox::BF);
    b.DrawWidth = 1;
    b.Circle(25, 28, 6, pen);  // circles go through QPainter's raster operations
    b.DrawStyle = 5;           // a fill without outline
    b.FillStyle = 0;
    b.FillColor = pen;
    b.Circle(10, 32, 4);
    EXPECT_EQ(px(b, 15, 2), want) << "line, mode " << mode;
    EXPECT_EQ(px(b, 15, 10), want) << "wide line, mode " << mode;
    EXPECT_EQ(px(b, 5, 22), want) << "box, mode " << mode;
    EXPECT_EQ(px(b, 31, 28), want) << "circle outline, mode " << mode;
    EXPECT_EQ(px(b, 25, 28), dst) << "circle inside, mode " << mode;
    EXPECT_EQ(px(b, 10, 32), want) << "circle fill, mode " << mode;
    EXPECT_EQ(px(b, 38, 38), dst) << "untouched, mode " << mode;
    EXPECT_TRUE(allOpaque(b)) << "mode " << mode;
  }
}

}  // namespace
}  // namespace qp::test
