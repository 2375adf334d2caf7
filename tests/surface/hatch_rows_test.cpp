// The rows of the hatched fills, against the grid each style stands for: which pixels a span puts
// down, that a mixing mode meets each of them once, and the rectangle reported as touched.
#include <gtest/gtest.h>

#include <QImage>

#include "surface/Fill.h"

namespace qp::raster {
namespace {

// Whether the style's lines pass through pixel (x, y): the grid of 8 anchored at the origin.
bool onGrid(int style, int x, int y) {
  const auto on = [](int v) { return ((v % 8) + 8) % 8 == 0; };
  switch (style) {
    case 0: return true;
    case 2: return on(y);
    case 3: return on(x);
    case 4: return on(x - y);
    case 5: return on(x + y);
    case 6: return on(x) || on(y);
    case 7: return on(x - y) || on(x + y);
    default: return false;
  }
}

TEST(HatchRows, EverySpanPutsDownExactlyItsGridOnce) {
  constexpr std::uint32_t kBack = 0xFF123456, kPen = 0xFF00FF00;
  struct Span { int x0, x1; };
  // Aligned and unaligned ends, reversed, shorter than a group, clipped on both sides.
  const Span spans[] = {{0, 39}, {3, 36}, {36, 3}, {9, 13}, {-20, 70}, {17, 17}, {8, 15}, {5, 6}};
  for (int mode : {13, 7}) {  // copy pen, and xor: a pixel written twice would come back
    for (int style : {0, 2, 3, 4, 5, 6, 7}) {
      for (int y = 0; y < 16; ++y) {
        for (const Span& s : spans) {
          QImage img(50, 20, QImage::Format_RGB32);
          img.fill(kBack);
          PixelWriter out(img, 0x00FF00, mode);
          fillSpan(out, y, s.x0, s.x1, style);
          const auto* row = reinterpret_cast<const std::uint32_t*>(img.constScanLine(y));
          const int lo = std::max(0, std::min(s.x0, s.x1)), hi = std::min(49, std::max(s.x0, s.x1));
          QRect painted;
          for (int x = 0; x < 50; ++x) {
            const bool want = x >= lo && x <= hi && onGrid(style, x, y);
            const std::uint32_t expect = !want ? kBack : mode == 13 ? kPen : ((kBack ^ kPen) | 0xFF000000u);
            ASSERT_EQ(row[x], expect) << "mode " << mode << " style " << style << " y " << y << " span " << s.x0
                                      << ".." << s.x1 << " x " << x;
            if (want) painted |= QRect(x, y, 1, 1);
          }
          EXPECT_EQ(out.touched(), painted) << "style " << style << " y " << y << " span " << s.x0 << ".." << s.x1;
        }
      }
    }
  }
}

}  // namespace
}  // namespace qp::raster
