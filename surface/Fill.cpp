// Solid and hatched spans. A hatch row is at most a full span (a horizontal line of the grid) plus
// one or two pixels in every eight, so a hatched area costs less than a solid one.
#include "surface/Fill.h"

#include <algorithm>

namespace qp::raster {

namespace {

constexpr int kGrid = 8;

// The smallest x >= from with x = residue (mod 8).
int firstOnGrid(int from, int residue) {
  const int r = ((residue % kGrid) + kGrid) % kGrid;
  const int shift = ((r - from) % kGrid + kGrid) % kGrid;
  return from + shift;
}

void every8(PixelWriter& out, int y, int x0, int x1, int residue) {
  out.every(y, firstOnGrid(x0, residue), x1, kGrid);
}

}  // namespace

void fillSpan(PixelWriter& out, int y, int x0, int x1, int fillStyle) {
  if (y < 0 || y >= out.height()) return;
  if (x0 > x1) std::swap(x0, x1);
  x0 = std::max(x0, 0);
  x1 = std::min(x1, out.width() - 1);
  if (x0 > x1) return;
  const bool gridRow = y % kGrid == 0;
  switch (fillStyle) {
    case 0: out.span(y, x0, x1); break;
    case 2: if (gridRow) out.span(y, x0, x1); break;
    case 3: every8(out, y, x0, x1, 0); break;
    case 4: every8(out, y, x0, x1, y); break;   // x - y on the grid: lines fall to the right
    case 5: every8(out, y, x0, x1, -y); break;  // x + y on the grid: lines rise to the right
    case 6:
      if (gridRow) out.span(y, x0, x1);
      else every8(out, y, x0, x1, 0);
      break;
    case 7:
      // Where the two diagonals cross, one pen pixel: the mixing modes must see it only once.
      if ((2 * y) % kGrid == 0) every8(out, y, x0, x1, y);
      else out.every(y, firstOnGrid(x0, y), firstOnGrid(x0, -y), x1, kGrid);
      break;
    default: break;
  }
}

}  // namespace qp::raster
