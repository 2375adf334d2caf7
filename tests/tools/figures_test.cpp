// The figure brushes and Boxes N Bubblez, driven through the paint area and the virtual clock.
#include <algorithm>
#include <map>
#include <set>

#include "core/PanelRoles.h"
#include "tools/FigureShapes.h"
#include "tools/ToolFixture.h"

namespace qp::test {
namespace {

class FigureTest : public ToolTest {
 protected:
  void SetUp() override {
    ToolTest::SetUp();
    enter(f().mBrushes);
  }
  // A figure stamped by one click at (300, 200) pixels; a unit of the figure is `size` twips.
  void stamp(int figure, int size) {
    f().ckVal.Value = 0;
    f().vVal1.Value = figure;
    f().vVal2.Value = size;
    stroke({{4500, 3000}});
  }
  // Whether the pixel at a figure offset (u, v), in units of size 4, or one beside it is lit:
  // curves need not fall on the exact pixel.
  bool litNear(double u, double v) {
    const int x = static_cast<int>(300 + u * 4 / 15.0), y = static_cast<int>(200 + v * 4 / 15.0);
    for (int dy = -1; dy <= 1; ++dy)
      for (int dx = -1; dx <= 1; ++dx)
        if (pixel(x + dx, y + dy) == kWhite) return true;
    return false;
  }
};

// Where each figure must and must not paint, in its own units: the orientation (which way a
// slash leans, where a tree stands, which quarter a pie fills) and the ellipses' long axes.
struct FigureCase {
  int figure;
  std::vector<std::pair<double, double>> lit, dark;
};

TEST_F(FigureTest, EachFigurePaintsOnItsOwnSideOfThePointer) {
  const std::vector<FigureCase> cases = {
      {0, {{-45, 0}, {45, 0}}, {{0, 45}}},                   // Horizontal
      {5, {{0, 120}, {-60, 60}}, {{0, -120}, {-60, -60}}},   // Box hangs below
      {24, {{0, -240}}, {{0, 240}}},                         // Spear Up
      {2, {{30, 30}}, {{-30, 30}, {30, -30}}},               // Backslash: down to the right
      {8, {{240, 0}}, {{0, -200}}},                          // Long Ellipse: wide
      {32, {{0, 100}, {0, -235}}, {{0, 235}}},               // Tree: trunk below, top above
      {46, {{-120, 0}, {0, -120}, {-60, 0}}, {{120, 0}, {0, 120}, {60, 0}}},  // 1/4: upper left, with radii
      {55, {{-240, 0}, {0, 240}, {240, 0}}, {{100, 100}}},   // Scope
  };
  for (const FigureCase& c : cases) {
    SCOPED_TRACE(BrushFigureName(c.figure).toStdString());
    f().PicPaint.Picture = QImage();
    stamp(c.figure, 4);
    for (auto [u, v] : c.lit) EXPECT_TRUE(litNear(u, v)) << u << ", " << v;
    for (auto [u, v] : c.dark) EXPECT_FALSE(litNear(u, v)) << u << ", " << v;
  }
}

TEST_F(FigureTest, HeldStampsFollowTheClockInPlaceAndRandomSizesStayOnTheBar) {
  f().vVal2.Value = 4;  // Horizontal, 16 pixels each way
  press(1500, 1500);    // Draw is set at entry: the press stamps once, the timer goes on
  move(6000, 4500);
  const uchar* bits = f().PicPaint.bitmap().constBits();
  (void)f().PicPaint.takeDirty();
  headless.loop.advance(19);
  EXPECT_EQ(pixel(400, 300), kBlack);  // the stamps follow the clock, not the distance
  headless.loop.advance(1);
  EXPECT_EQ(pixel(400, 300), kWhite);
  EXPECT_EQ(f().PicPaint.bitmap().constBits(), bits);  // drawn in place, marking only the stamp
  const QRect dirty = f().PicPaint.takeDirty();
  EXPECT_TRUE(!dirty.isEmpty() && QRect(380, 296, 41, 9).contains(dirty));
  f().ckVal2.Value = 1;
  std::set<int> sizes;
  for (int tick = 0; tick < 40; ++tick, headless.loop.advance(20)) sizes.insert(f().vVal2.Value);
  release(6000, 4500);
  EXPECT_GE(sizes.size(), 3u);
  EXPECT_GE(*sizes.begin(), 3);  // a random size is never below 3
}

// A figure's lines and circles as a set, mirrored about the vertical through the pointer or not; a
// line is the same line drawn either way.
std::set<std::vector<double>> shapeOf(const std::vector<FigurePart>& parts, bool mirrored) {
  const double m = mirrored ? -1 : 1;
  std::set<std::vector<double>> out;
  for (const FigurePart& p : parts) {
    std::vector<double> a{m * p.x1, p.y1, m * p.x2, p.y2}, b{m * p.x2, p.y2, m * p.x1, p.y1};
    if (p.kind == FigurePart::Circle) a = b = {m * p.x1, p.y1, p.r, p.aspect.value_or(1), 1};
    out.insert(std::min(a, b));
  }
  return out;
}

TEST(FigureShapes, FiguresAreSymmetricAndOutlinesCloseWhereUsersSeeThem) {
  // Open or one-sided on purpose: the slashes, Diamond II and Spear Down, and the pie figures.
  const std::set<int> oneSided = {2, 3, 20, 25, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46, 47, 48};
  for (int k = 0; k < kFigureCount; ++k) {
    if (oneSided.count(k)) continue;
    EXPECT_EQ(shapeOf(FigureParts(k), true), shapeOf(FigureParts(k), false)) << k;
  }
  EXPECT_EQ(shapeOf(FigureParts(2), true), shapeOf(FigureParts(3), false));  // the slashes mirror each other
  // Each corner of a closed outline is the end of exactly two sides.
  auto closed = [](const std::vector<FigurePart>& sides) {
    std::map<std::pair<double, double>, int> ends;
    for (const FigurePart& p : sides) ++ends[{p.x1, p.y1}], ++ends[{p.x2, p.y2}];
    return std::all_of(ends.begin(), ends.end(), [](const auto& e) { return e.second == 2; });
  };
  for (int k : {5, 6, 7, 19, 21, 34}) EXPECT_TRUE(closed(FigureParts(k))) << k;
  for (int kind = 1; kind <= 17; ++kind) EXPECT_TRUE(closed(BoxSides(kind))) << kind;
  EXPECT_FALSE(closed(BoxSides(0)));
  EXPECT_EQ(shapeOf(FigureParts(22), false), shapeOf(FigureParts(23), false));  // Butterfly twice
  EXPECT_TRUE(FigureParts(-1).empty());
  EXPECT_TRUE(FigureParts(kFigureCount).empty());
}

TEST_F(ToolTest, BoxSizesSinkTowardsSmallBoxesWhenRandom) {
  enter(f().mBubble);
  f().vVal1.Value = 12;
  EXPECT_EQ(f().ckVal2.Value, 1);  // random sizes are on from the start
  press(4500, 3750);
  headless.loop.advance(20 * 40);
  release(4500, 3750);
  const int size = f().vVal1.Value;
  EXPECT_LE(size, 8);
  EXPECT_GE(size, 3);
  headless.loop.advance(400);
  EXPECT_EQ(f().vVal1.Value, size);  // the release stopped the ticks
}

TEST_F(ToolTest, BubblezScatterAsFarAsTheSpreadReaches) {
  enter(f().mBubble);
  f().ckVal.Value = 1;   // Bubblez
  f().vVal1.Value = 4;   // up to 4 x 180 twips, 48 pixels, off the pointer
  f().vVal2.Value = 120;  // radii under 240 twips, 16 pixels
  press(4500, 3750);
  headless.loop.advance(20 * 60);
  release(4500, 3750);
  // Sixty bubbles: some stood 540 twips off or more, which a spread one short never reaches.
  const double farthest = inkOf(f().PicPaint, {300.5, 250.5}).farthest;
  EXPECT_GT(farthest, 42);
  EXPECT_LE(farthest, 48 + 16 + 2);
}

}  // namespace
}  // namespace qp::test
