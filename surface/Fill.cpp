// Solid and hatched spans. Each row of a hatch is one row of an 8-pixel pattern, a byte of
// columns: a line of the grid fills the row, the others put down one or two pixels in eight.
#include "surface/Fill.h"

#include <cstdint>

namespace qp::raster {

namespace {

constexpr int kGrid = 8;

// The columns (mod 8) of the grid's lines that cross row y, as bits of a byte.
std::uint8_t columnsOf(int fillStyle, int y) {
  const int r = y % kGrid;  // y is on the bitmap, never negative
  const auto column = [](int x) { return static_cast<std::uint8_t>(1u << (((x % kGrid) + kGrid) % kGrid)); };
  const bool gridRow = r == 0;
  switch (fillStyle) {
    case 0: return 0xFF;
    case 2: return gridRow ? 0xFF : 0;
    case 3: return column(0);
    case 4: return column(r);   // x - y on the grid: lines fall to the right
    case 5: return column(-r);  // x + y on the grid: lines rise to the right
    case 6: return gridRow ? 0xFF : column(0);
    // Where the two diagonals cross, one bit: the mixing modes see that pixel only once.
    case 7: return column(r) | column(-r);
    default: return 0;
  }
}

}  // namespace

void fillSpan(PixelWriter& out, int y, int x0, int x1, int fillStyle) {
  if (y < 0 || y >= out.height()) return;
  const std::uint8_t columns = columnsOf(fillStyle, y);
  if (columns == 0xFF) out.span(y, x0, x1);
  else out.pattern(y, x0, x1, columns);
}

}  // namespace qp::raster
