// Pixel-level helpers of the surfaces: mixing, spans, clipping and the stretch copy behind
// PaintPicture and TransparentBlt.
#include "surface/Raster.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace qp::raster {

QPainter::CompositionMode compositionFor(int mode) {
  switch (mode) {
    case 1: return QPainter::RasterOp_ClearDestination;
    case 2: return QPainter::RasterOp_NotSourceAndNotDestination;
    case 3: return QPainter::RasterOp_NotSourceAndDestination;
    case 4: return QPainter::RasterOp_NotSource;
    case 5: return QPainter::RasterOp_SourceAndNotDestination;
    case 6: return QPainter::RasterOp_NotDestination;
    case 7: return QPainter::RasterOp_SourceXorDestination;
    case 8: return QPainter::RasterOp_NotSourceOrNotDestination;
    case 9: return QPainter::RasterOp_SourceAndDestination;
    case 10: return QPainter::RasterOp_NotSourceXorDestination;
    case 12: return QPainter::RasterOp_NotSourceOrDestination;
    case 14: return QPainter::RasterOp_SourceOrNotDestination;
    case 15: return QPainter::RasterOp_SourceOrDestination;
    case 16: return QPainter::RasterOp_SetDestination;
    default: return QPainter::CompositionMode_SourceOver;  // 13; 11 is never drawn at all
  }
}

void restoreAlpha(QImage& img, const QRect& area) {
  const QRect r = area & img.rect();
  if (r.isEmpty()) return;
  for (int y = r.top(); y <= r.bottom(); ++y) {
    auto* p = reinterpret_cast<std::uint32_t*>(img.scanLine(y)) + r.left();
    for (int x = 0; x < r.width(); ++x) p[x] |= 0xFF000000u;
  }
}

PixelWriter::PixelWriter(QImage& img, Colour colour, int mode)
    : bits_(img.bits()),  // the one detach, if the bitmap is still shared with a Picture
      stride_(img.bytesPerLine()),
      w_(img.width()),
      h_(img.height()),
      pen_(toPixel(colour)),
      mode_(mode) {}

void PixelWriter::note(int y, int x0, int x1) {
  minX_ = std::min(minX_, x0);
  maxX_ = std::max(maxX_, x1);
  minY_ = std::min(minY_, y);
  maxY_ = std::max(maxY_, y);
}

void PixelWriter::plot(int x, int y) {
  if (x < 0 || y < 0 || x >= w_ || y >= h_) return;
  std::uint32_t* p = row(y) + x;
  *p = mode_ == 13 ? pen_ : mix(mode_, pen_, *p);
  note(y, x, x);
}

void PixelWriter::span(int y, int x0, int x1) {
  if (y < 0 || y >= h_) return;
  if (x0 > x1) std::swap(x0, x1);
  x0 = std::max(x0, 0);
  x1 = std::min(x1, w_ - 1);
  if (x0 > x1) return;
  std::uint32_t* p = row(y);
  if (mode_ == 13) {
    std::fill(p + x0, p + x1 + 1, pen_);
  } else {
    for (int x = x0; x <= x1; ++x) p[x] = mix(mode_, pen_, p[x]);
  }
  note(y, x0, x1);
}

void PixelWriter::every(int y, int first, int x1, int step) {
  if (y < 0 || y >= h_ || step <= 0) return;
  if (first < 0) first += ((-first + step - 1) / step) * step;
  x1 = std::min(x1, w_ - 1);
  if (first > x1) return;
  std::uint32_t* p = row(y);
  int x = first;
  if (mode_ == 13) {
    for (; x <= x1; x += step) p[x] = pen_;
  } else {
    for (; x <= x1; x += step) p[x] = mix(mode_, pen_, p[x]);
  }
  note(y, first, x - step);
}

void PixelWriter::every(int y, int firstA, int firstB, int x1, int step) {
  if (y < 0 || y >= h_ || step <= 0) return;
  if (firstA > firstB) std::swap(firstA, firstB);
  if (mode_ != 13 || firstA < 0 || firstB - firstA >= step) {
    every(y, firstA, x1, step);
    every(y, firstB, x1, step);
    return;
  }
  x1 = std::min(x1, w_ - 1);
  if (firstA > x1) return;
  std::uint32_t* p = row(y);
  const int gap = firstB - firstA;
  int x = firstA;
  for (; x + gap <= x1; x += step) {
    p[x] = pen_;
    p[x + gap] = pen_;
  }
  int last = x - step + gap;
  if (x <= x1) {
    p[x] = pen_;
    last = x;
  }
  note(y, firstA, last);
}

QRect PixelWriter::touched() const {
  if (minX_ > maxX_) return {};
  return QRect(QPoint(minX_, minY_), QPoint(maxX_, maxY_));
}

bool clipSegment(double& ax, double& ay, double& bx, double& by, double x0, double y0, double x1,
                 double y1) {
  const double dx = bx - ax, dy = by - ay;
  double t0 = 0, t1 = 1;
  const double p[4] = {-dx, dx, -dy, dy};
  const double q[4] = {ax - x0, x1 - ax, ay - y0, y1 - ay};
  for (int i = 0; i < 4; ++i) {
    if (p[i] == 0) {
      if (q[i] < 0) return false;
      continue;
    }
    const double t = q[i] / p[i];
    if (p[i] < 0) t0 = std::max(t0, t);
    else t1 = std::min(t1, t);
    if (t0 > t1) return false;
  }
  const double nax = ax + t0 * dx, nay = ay + t0 * dy;
  bx = ax + t1 * dx;
  by = ay + t1 * dy;
  ax = nax;
  ay = nay;
  return true;
}

namespace {

// Destination pixels whose centres fall inside [origin, origin + size), clipped to [0, limit).
void coveredRange(double origin, double size, int limit, int& first, int& last) {
  double lo = size >= 0 ? origin : origin + size;
  double hi = size >= 0 ? origin + size : origin;
  lo = std::clamp(std::ceil(lo - 0.5), 0.0, static_cast<double>(limit));
  hi = std::clamp(std::ceil(hi - 0.5), 0.0, static_cast<double>(limit));
  first = static_cast<int>(lo);
  last = static_cast<int>(hi) - 1;
}

// One row of a one-to-one copy, in the widest vectors the processor has. The target was detached
// from the source before, so the two runs never overlap.
[[gnu::noinline, gnu::target_clones("arch=skylake-avx512", "avx2", "default")]]
void plainRun(std::uint32_t* __restrict out, const std::uint32_t* __restrict in, int n) {
  for (int i = 0; i < n; ++i) out[i] = in[i] | 0xFF000000u;
}

// The same, leaving the target alone where the source has exactly the key colour. Wide vectors
// write such a run with a masked store.
[[gnu::noinline, gnu::target_clones("arch=skylake-avx512", "avx2", "default")]]
void keyedRun(std::uint32_t* __restrict out, const std::uint32_t* __restrict in, int n, std::uint32_t key) {
  for (int i = 0; i < n; ++i) {
    const std::uint32_t p = in[i];
    if ((p & 0xFFFFFFu) != key) out[i] = p | 0xFF000000u;
  }
}

// Source pixel sampled by destination pixel i, or -1 when it falls outside the source.
int sampleAt(int i, double d0, double dsize, double s0, double ssize, int slimit) {
  const double t = (i + 0.5 - d0) / dsize;
  const double s = std::floor(s0 + t * ssize);
  if (!(s >= 0 && s < slimit)) return -1;
  return static_cast<int>(s);
}

}  // namespace

QRect stretchCopy(QImage& dst, double dx, double dy, double dw, double dh, const QImage& src,
                  double sx, double sy, double sw, double sh, const std::uint32_t* key) {
  for (double* v : {&dx, &dy, &dw, &dh, &sx, &sy, &sw, &sh}) *v = clampPixel(*v);
  if (dst.isNull() || src.isNull() || dw == 0 || dh == 0 || sw == 0 || sh == 0) return {};
  int x0, x1, y0, y1;
  coveredRange(dx, dw, dst.width(), x0, x1);
  coveredRange(dy, dh, dst.height(), y0, y1);
  if (x0 > x1 || y0 > y1) return {};

  // A held copy of the source keeps it intact even when it shares its pixels with dst.
  QImage source = src;
  if (source.format() != QImage::Format_RGB32 && source.format() != QImage::Format_ARGB32)
    source = source.convertToFormat(QImage::Format_RGB32);

  // One to one, on whole pixels and wholly inside the source: each row is a straight run, copied
  // without a table of columns (a stamp, a tile, a floating picture set down). Positions that come
  // from twips carry a rounding error far below a pixel; within a millionth they count as whole.
  auto whole = [](double v) {
    const double r = std::round(v);
    return std::abs(v - r) < 1e-6 ? r : v;
  };
  const double wdx = whole(dx), wdy = whole(dy), wdw = whole(dw), wdh = whole(dh);
  const double wsx = whole(sx), wsy = whole(sy), wsw = whole(sw), wsh = whole(sh);
  if (wdw == wsw && wdh == wsh && wdw > 0 && wdh > 0 && wdx == std::floor(wdx) && wdy == std::floor(wdy) &&
      wsx == std::floor(wsx) && wsy == std::floor(wsy) && wsx + (x0 - wdx) >= 0 && wsy + (y0 - wdy) >= 0 &&
      wsx + (x1 - wdx) < source.width() && wsy + (y1 - wdy) < source.height()) {
    const int ox = static_cast<int>(wsx - wdx), oy = static_cast<int>(wsy - wdy);
    const std::uint32_t keyPixel = key ? (*key & 0xFFFFFFu) : 0;
    uchar* base = dst.bits();
    const qsizetype pitch = dst.bytesPerLine();
    const int n = x1 - x0 + 1;
    // A 32-bit RGB picture is opaque by its format: its rows go over as they are.
    const bool opaque = source.format() == QImage::Format_RGB32;
    for (int y = y0; y <= y1; ++y) {
      const auto* in = reinterpret_cast<const std::uint32_t*>(source.constScanLine(y + oy)) + (x0 + ox);
      auto* out = reinterpret_cast<std::uint32_t*>(base + y * pitch) + x0;
      if (key) keyedRun(out, in, n, keyPixel);
      else if (opaque) std::memcpy(out, in, static_cast<size_t>(n) * 4);
      else plainRun(out, in, n);
    }
    return QRect(x0, y0, n, y1 - y0 + 1);
  }

  std::vector<int> columns(static_cast<size_t>(x1 - x0 + 1));
  for (int x = x0; x <= x1; ++x)
    columns[static_cast<size_t>(x - x0)] = sampleAt(x, dx, dw, sx, sw, source.width());

  const std::uint32_t keyRgb = key ? (*key & 0xFFFFFFu) : 0;
  uchar* bits = dst.bits();
  const qsizetype stride = dst.bytesPerLine();
  QRect touched;
  for (int y = y0; y <= y1; ++y) {
    const int sy0 = sampleAt(y, dy, dh, sy, sh, source.height());
    if (sy0 < 0) continue;
    const auto* in = reinterpret_cast<const std::uint32_t*>(source.constScanLine(sy0));
    auto* out = reinterpret_cast<std::uint32_t*>(bits + y * stride);
    for (int x = x0; x <= x1; ++x) {
      const int c = columns[static_cast<size_t>(x - x0)];
      if (c < 0) continue;
      const std::uint32_t p = in[c];
      if (key && (p & 0xFFFFFFu) == keyRgb) continue;
      out[x] = p | 0xFF000000u;
    }
    touched |= QRect(x0, y, x1 - x0 + 1, 1);
  }
  return touched;
}

}  // namespace qp::raster
