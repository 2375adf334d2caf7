// ExtFloodFill: a span fill on the raw scanlines. Each run of matching pixels is found and filled
// with one sweep, and only the rows above and below a run are searched for more, so a fill costs a
// few reads per pixel of the area and touches nothing outside it.
#include <vector>

#include "surface/Device.h"
#include "surface/Raster.h"

namespace qp {

namespace {

struct Run {
  int y, left, right, dy;  // the run [left, right] on row y - dy was filled; look at row y
};

}  // namespace

bool ExtFloodFill(PictureBox& box, int x, int y, Colour colour, int type) {
  const QImage& view = box.bitmap();
  if (type != 1 || box.FillStyle != 0) return false;
  if (x < 0 || y < 0 || x >= view.width() || y >= view.height()) return false;
  const std::uint32_t old = raster::toPixel(colour);
  const std::uint32_t fill = raster::toPixel(box.FillColor);
  auto at = [&](int yy) {
    return reinterpret_cast<const std::uint32_t*>(view.constScanLine(yy));
  };
  if (at(y)[x] != old) return false;
  if (fill == old) return true;  // the area already has the fill colour

  QImage& img = box.editBitmap();
  uchar* bits = img.bits();
  const qsizetype stride = img.bytesPerLine();
  const int w = img.width(), h = img.height();
  auto row = [&](int yy) { return reinterpret_cast<std::uint32_t*>(bits + yy * stride); };
  int minX = x, maxX = x, minY = y, maxY = y;

  std::vector<Run> stack;
  auto push = [&](int yy, int l, int r, int dy) {
    if (yy + dy >= 0 && yy + dy < h) stack.push_back({yy + dy, l, r, dy});
  };
  push(y, x, x, 1);
  push(y + 1, x, x, -1);
  while (!stack.empty()) {
    const Run s = stack.back();
    stack.pop_back();
    std::uint32_t* p = row(s.y);
    int xx = s.left;
    // Extend leftwards from the run's left end.
    while (xx >= 0 && p[xx] == old) p[xx--] = fill;
    int l;
    if (xx >= s.left) goto skip;
    l = xx + 1;
    if (l < s.left) push(s.y, l, s.left - 1, -s.dy);  // the run grew back under its parent
    xx = s.left + 1;
    do {
      while (xx < w && p[xx] == old) p[xx++] = fill;
      push(s.y, l, xx - 1, s.dy);
      if (xx > s.right + 1) push(s.y, s.right + 1, xx - 1, -s.dy);
      minX = std::min(minX, l);
      maxX = std::max(maxX, xx - 1);
      minY = std::min(minY, s.y);
      maxY = std::max(maxY, s.y);
    skip:
      for (++xx; xx <= s.right && p[xx] != old; ++xx) {
      }
      l = xx;
    } while (xx <= s.right);
  }
  box.markDirty(QRect(QPoint(minX, minY), QPoint(maxX, maxY)));
  return true;
}

}  // namespace qp
