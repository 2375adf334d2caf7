// Line, PSet, Point and Circle with their pens and fills, read back pixel by pixel.
#include <cmath>
#include <numbers>

#include "SurfaceFixture.h"

namespace qp::test {
namespace {

using DrawingTest = SurfaceTest;
constexpr Colour kWhite = 0xFFFFFF, kRed = 0x0000FF, kGreen = 0x00FF00, kBlue = 0xFF0000;
constexpr double pi = std::numbers::pi;

TEST_F(DrawingTest, LineFormsAndCurrentPosition) {
  PictureBox& b = box(100, 100);
  b.ForeColor = kRed;
  b.Line(10, 10, 20, 10);  // pen colour, both ends drawn
  EXPECT_EQ(extent(b, kRed), QRect(10, 10, 11, 1));
  EXPECT_EQ(at(b), QPointF(20, 10));
  b.LineTo(20, 30, kBlue);  // continues from the second point, in the given colour
  b.LineTo(5, 25, kBlue);   // and runs leftwards and upwards as well
  EXPECT_EQ(extent(b, kBlue), QRect(5, 10, 16, 21));
  EXPECT_EQ(px(b, 5, 25), kBlue);
  EXPECT_EQ(at(b), QPointF(5, 25));
  b.Cls();
  b.LineTo(5, 0, kWhite);  // right after Cls a figure starts at 0, 0
  b.Line(50, 50, 50, 50, kWhite);  // a point to itself is a dot
  EXPECT_EQ(count(b, kWhite), 7);
  EXPECT_EQ(extent(b, kWhite), QRect(0, 0, 51, 51));
  b.DrawWidth = 7;
  b.Line(80, 80, 80, 80, kBlue);  // also for wide pens, where it is a round dot
  EXPECT_TRUE(extent(b, kBlue) == QRect(77, 77, 7, 7) && px(b, 77, 77) == 0);
  // From the centre to a point a hundred million pixels out along the diagonal, exactly.
  PictureBox& far = box(100, 100);
  far.Line(50, 50, 1e8f, 1e8f, kWhite);
  for (int i = 50; i < 100; ++i) EXPECT_EQ(px(far, i, i), kWhite) << i;
  EXPECT_EQ(count(far, kWhite), 50);
}

TEST_F(DrawingTest, BoxesOutlineAndFilledWithTheLineColour) {
  PictureBox& b = box(60, 60);
  b.FillStyle = 0, b.FillColor = kBlue;  // plays no part in boxes
  b.Line(30, 40, 10, 20, kRed, LineBox::B);
  EXPECT_EQ(extent(b, kRed), QRect(10, 20, 21, 21));
  EXPECT_EQ(count(b, kRed), 80);
  EXPECT_EQ(at(b), QPointF(10, 20));
  b.Line(40, 5, 50, 10, kWhite, LineBox::BF);
  EXPECT_EQ(count(b, kWhite), 11 * 6);  // filled: the count equals the extent's area
  EXPECT_EQ(extent(b, kWhite), QRect(40, 5, 11, 6));
  // A box outline drawn with xor touches each pixel once, even at the corners of wide pens.
  PictureBox& c = box(60, 60);
  c.DrawMode = 7, c.DrawWidth = 4;
  c.Line(10, 10, 40, 40, kWhite, LineBox::B);
  expectAt(c, {{10, 10, kWhite}, {40, 25, kWhite}, {25, 25, 0}});
}

TEST_F(DrawingTest, WidePensHaveRoundEndsAndKeepTheirWidth) {
  PictureBox& b = box(100, 100);
  b.DrawWidth = 9;
  b.Line(20, 50, 70, 50, kWhite);
  EXPECT_EQ(extent(b, kWhite), QRect(16, 46, 59, 9));
  expectAt(b, {{16, 46, 0}, {16, 50, kWhite}, {45, 46, kWhite}});  // rounded off at the corners of the ends
  b.Cls();  // diagonal strokes keep their width across the line
  b.Line(20, 20, 80, 80, kWhite);
  int across = 0;
  for (int d = -10; d <= 10; ++d) across += px(b, 50 + d, 50 - d) == kWhite;
  EXPECT_TRUE(across == 6 || across == 7) << across;
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
  b.DrawStyle = 1;
  b.DrawWidth = 3;  // wider pens are solid whatever the style
  b.Line(0, 16, 119, 16, kRed);
  expectAt(b, {{50, 12, 0}, {20, 16, kRed}});
}

TEST_F(DrawingTest, PSetAndPointRoundToPixelsAndIgnoreTheOutside) {
  PictureBox& b = box(50, 50, 1);  // in twips
  b.ForeColor = kBlue;
  b.PSet(150, 150);
  EXPECT_EQ(extent(b, kBlue), QRect(10, 10, 1, 1));
  EXPECT_EQ(at(b), QPointF(150, 150));
  EXPECT_EQ(b.Point(149.9f, 150.2f), kBlue);  // rounds to the nearest pixel
  b.DrawWidth = 4;
  b.PSet(450, 450, kRed);
  EXPECT_EQ(extent(b, kRed), QRect(28, 28, 4, 4));
  for (const QPointF p : {QPointF(-15, 0), QPointF(50 * 15, 0), QPointF(0, 1e30), QPointF(std::nan(""), 0)})
    EXPECT_EQ(b.Point(p.x(), p.y()), -1) << p.x() << ", " << p.y();
  b.PSet(-300, 900, kWhite);
  b.Line(-1e30f, 1e30f, 1e30f, 1e30f, kWhite);
  EXPECT_EQ(count(b, kWhite), 0);
}

TEST_F(DrawingTest, CircleSizesByAspectAndStaysCentred) {
  PictureBox& b = box(400, 400);
  // Centre, radius, aspect: the extent of the outline.
  const struct { int x, y, r; double aspect; QRect outline; } cases[] = {
      {200, 200, 100, 0.5, {100, 150, 201, 101}}, {200, 200, 100, 2.0, {150, 100, 101, 201}},
      {200, 200, 50, 1.0, {150, 150, 101, 101}}};
  for (const auto& c : cases) {
    b.Cls();
    b.Circle(c.x, c.y, c.r, kWhite, {}, {}, c.aspect);
    const QRect r = extent(b, kWhite), d(r.topLeft() - c.outline.topLeft(), r.bottomRight() - c.outline.bottomRight());
    for (int off : {d.left(), d.top(), d.right(), d.bottom()}) EXPECT_LE(std::abs(off), 1) << c.r << " / " << c.aspect;
  }
  EXPECT_EQ(px(b, 200, 200), 0);  // FillStyle 1: outline only
  EXPECT_EQ(at(b), QPointF(200, 200));
  b.Circle(-10, 200, 10, kWhite);  // mostly off the bitmap, the part on it shows
  EXPECT_EQ(px(b, 0, 200), kWhite);
}

TEST_F(DrawingTest, CircleFillAndArcs) {
  PictureBox& b = box(200, 200);
  b.FillStyle = 0, b.FillColor = kBlue;
  // Negative ends add the radii and close a filled pie slice, counter-clockwise from the first.
  b.Circle(100, 100, 50, kWhite, -1e-6, -pi / 2);
  // The radii along +X and up, the inside of the slice, another quarter left empty.
  expectAt(b, {{125, 100, kWhite}, {100, 75, kWhite}, {120, 80, kBlue}, {80, 120, 0}});
  // A whole ellipse is filled row by row inside its outline.
  PictureBox& e = box(100, 60, 3);
  e.FillStyle = 0, e.FillColor = kGreen;
  e.Circle(50, 30, 40, kWhite, {}, {}, 0.5);  // 80 x 40
  expectAt(e, {{50, 30, kGreen}, {88, 30, kGreen}, {50, 48, kGreen}, {50, 52, 0}, {5, 30, 0}});
  EXPECT_TRUE(QRect(9, 9, 83, 43).contains(extent(e, kGreen)));
}

// A hatched circle lays its lines on the 8-pixel grid of the bitmap's origin, the picture beneath
// showing between them; with xor, where the crossed hatch's diagonals meet the pen mixes once.
TEST_F(DrawingTest, HatchedCirclesStandOnTheGridOfTheOrigin) {
  PictureBox& x = box(64, 64, 3, kRed);
  x.DrawMode = 7, x.FillStyle = 7, x.FillColor = kGreen;
  x.Circle(30, 30, 25, kWhite);
  constexpr Colour mixed = kRed ^ kGreen;
  expectAt(x, {{24, 24, mixed}, {28, 28, mixed}, {25, 25, mixed}, {31, 25, mixed}, {20, 28, mixed}, {25, 24, kRed}});
}

// Every DrawMode against its bitwise formula on the 24 colour bits, with the bitmap kept opaque.
TEST_F(DrawingTest, DrawModesFollowTheirRasterOperation) {
  const std::uint32_t p = 0x3C5AF0, d = 0xA5C30F;
  const std::uint32_t formula[17] = {0,        0,      ~(p | d), d & ~p, ~p,     p & ~d,   ~d,       p ^ d, ~(p & d),
                                     p & d,    ~(p ^ d), d,      d | ~p, p,      p | ~d,   p | d,    0xFFFFFF};
  for (int mode = 1; mode <= 16; ++mode) {
    PictureBox& b = box(40, 40, 3, d);
    b.DrawMode = mode;
    const Colour want = static_cast<Colour>(formula[mode] & 0xFFFFFF);
    b.Line(2, 2, 30, 2, p);  // thin line
    b.DrawWidth = 3;
    b.Line(2, 10, 30, 10, p);  // wide line
    b.Line(2, 20, 8, 24, p, LineBox::BF);
    b.DrawWidth = 1;
    b.Circle(25, 28, 6, p);  // circles go through QPainter's raster operations
    b.DrawStyle = 5, b.FillStyle = 0, b.FillColor = p;  // a fill without outline
    b.Circle(10, 32, 4);
    const struct { int x, y; Colour c; const char* what; } probes[] = {
        {15, 2, want, "line"},     {15, 10, want, "wide line"},     {5, 22, want, "box"},
        {31, 28, want, "outline"}, {25, 28, d, "circle inside"}, {10, 32, want, "circle fill"}, {38, 38, d, "untouched"}};
    for (const auto& q : probes) {
      EXPECT_EQ(px(b, q.x, q.y), q.c) << q.what << ", mode " << mode;
      EXPECT_EQ(qAlpha(b.bitmap().pixel(q.x, q.y)), 255) << q.what << ", mode " << mode;  // Format_RGB32 needs it
    }
  }
}

}  // namespace
}  // namespace qp::test
