// The hatched fill styles: lines of FillColor on an 8-pixel grid anchored at the bitmap's origin,
// with the picture beneath showing between them.
#include "surface/SurfaceFixture.h"

namespace qp::test {
namespace {

using Hatch = SurfaceTest;

TEST_F(Hatch, EachStyleLaysItsLinesOnTheGridOfTheOrigin) {
  constexpr Colour kRed = 0x0000FF, kFill = 0x00FF00;
  struct Case {
    int style;
    // Whether the fill shows at (24,24), (25,24), (24,25), (25,25), (31,25).
    bool on[5];
  };
  const QPoint at[5] = {{24, 24}, {25, 24}, {24, 25}, {25, 25}, {31, 25}};
  for (const Case& c : {Case{2, {true, true, false, false, false}}, Case{3, {true, false, true, false, false}},
                        Case{4, {true, false, false, true, false}}, Case{5, {true, false, false, false, true}},
                        Case{6, {true, true, true, false, false}}, Case{7, {true, false, false, true, true}}}) {
    PictureBox& b = box(64, 64, 3, kRed);
    b.FillStyle = c.style;
    b.FillColor = kFill;
    b.Circle(30, 30, 25, 0xFFFFFF);
    for (int i = 0; i < 5; ++i)
      EXPECT_EQ(px(b, at[i].x(), at[i].y()), c.on[i] ? kFill : kRed) << "style " << c.style << " point " << i;
  }
}

TEST_F(Hatch, AWholeCircleIsFilledRowByRowInsideItsOutline) {
  PictureBox& b = box(100, 60, 3);
  b.FillStyle = 0;
  b.FillColor = 0x00FF00;
  b.Circle(50, 30, 40, 0xFFFFFF, {}, {}, 0.5);  // 80 x 40
  EXPECT_EQ(px(b, 50, 30), 0x00FF00);
  EXPECT_EQ(px(b, 88, 30), 0x00FF00);
  EXPECT_EQ(px(b, 50, 48), 0x00FF00);
  EXPECT_EQ(px(b, 50, 52), 0x000000);
  EXPECT_EQ(px(b, 5, 30), 0x000000);
  EXPECT_TRUE(QRect(9, 9, 83, 43).contains(extent(b, 0x00FF00)));
}

}  // namespace
}  // namespace qp::test
