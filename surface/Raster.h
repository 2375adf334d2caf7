#pragma once
// Pixel-level helpers shared by the drawing calls: the colour <-> pixel mapping, the sixteen pen
// mixing modes, clipped span writing, and safe conversion of floating coordinates to pixels.
// Internal to the surface library; the rest of the program speaks Colour and the present scale.
#include <QImage>
#include <QPainter>
#include <QRect>
#include <climits>
#include <cmath>
#include <cstdint>

#include "platform/Errors.h"
#include "platform/Numeric.h"

namespace qp::raster {

// Bitmaps larger than this are refused before any allocation is tried.
constexpr int kMaxSide = 16384;
constexpr long long kMaxPixels = 256LL * 1024 * 1024;
// Pixel coordinates beyond this distance from the bitmap cannot touch it and are clamped, which
// keeps every float-to-int conversion defined.
constexpr double kFarAway = 1 << 24;

// Colours keep red in the low byte; Format_RGB32 pixels are 0xFFRRGGBB. Only the low 24 bits of a
// Colour take part, so -1 (what Point gives outside a surface) draws as white rather than failing.
inline std::uint32_t toPixel(Colour c) {
  const auto u = static_cast<std::uint32_t>(c);
  return 0xFF000000u | ((u & 0xFFu) << 16) | (u & 0xFF00u) | ((u >> 16) & 0xFFu);
}
inline Colour toColour(std::uint32_t p) {
  return static_cast<Colour>(((p >> 16) & 0xFFu) | (p & 0xFF00u) | ((p & 0xFFu) << 16));
}

// The binary raster operations of DrawMode 1..16 on the colour bits; the result is always opaque.
inline std::uint32_t mix(int mode, std::uint32_t pen, std::uint32_t dst) {
  std::uint32_t r;
  switch (mode) {
    case 1: r = 0; break;
    case 2: r = ~(pen | dst); break;
    case 3: r = dst & ~pen; break;
    case 4: r = ~pen; break;
    case 5: r = pen & ~dst; break;
    case 6: r = ~dst; break;
    case 7: r = pen ^ dst; break;
    case 8: r = ~(pen & dst); break;
    case 9: r = pen & dst; break;
    case 10: r = ~(pen ^ dst); break;
    case 11: r = dst; break;
    case 12: r = dst | ~pen; break;
    case 14: r = pen | ~dst; break;
    case 15: r = pen | dst; break;
    case 16: r = 0xFFFFFFu; break;
    default: r = pen; break;  // 13 copy pen
  }
  return r | 0xFF000000u;
}

// QPainter's equivalent of a DrawMode, for the calls drawn through QPainter (circles).
QPainter::CompositionMode compositionFor(int mode);

// Qt's raster operations also combine the alpha byte; a Format_RGB32 bitmap must keep it 0xFF.
void restoreAlpha(QImage& img, const QRect& area);

// Writes pen pixels into a bitmap through a DrawMode, clipped to the bitmap, and remembers the
// rectangle it touched so the caller can mark exactly that as changed.
class PixelWriter {
 public:
  PixelWriter(QImage& img, Colour colour, int mode);
  int width() const { return w_; }
  int height() const { return h_; }
  void plot(int x, int y);
  void span(int y, int x0, int x1);  // inclusive, any order, clipped
  // Every step-th pixel of row y from x = first on, up to x1 (inclusive, clipped): the lines of
  // a hatch, at a pixel's cost each.
  void every(int y, int first, int x1, int step);
  // The same for two interleaved runs with one step, in one sweep along the row.
  void every(int y, int firstA, int firstB, int x1, int step);
  QRect touched() const;

 private:
  std::uint32_t* row(int y) { return reinterpret_cast<std::uint32_t*>(bits_ + y * stride_); }
  void note(int y, int x0, int x1);
  uchar* bits_;
  qsizetype stride_;
  int w_, h_;
  std::uint32_t pen_;
  int mode_;
  int minX_ = INT_MAX, minY_ = INT_MAX, maxX_ = INT_MIN, maxY_ = INT_MIN;
};

// Rounds a pixel coordinate to the nearest pixel (half to even, like every conversion of the
// runtime), clamped to a range that cannot overflow. NaN and infinities raise Overflow.
inline double clampPixel(double v) {
  if (!std::isfinite(v)) raiseError(RuntimeError::Overflow, "Overflow");
  if (v > kFarAway) return kFarAway;
  if (v < -kFarAway) return -kFarAway;
  return v;
}
inline int toPixelInt(double v) { return static_cast<int>(roundHalfEven(clampPixel(v))); }

// Cuts the segment a-b to the rectangle [x0,x1]x[y0,y1] (Liang-Barsky). False when it misses.
bool clipSegment(double& ax, double& ay, double& bx, double& by, double x0, double y0, double x1,
                 double y1);

// Nearest-neighbour copy of the source rectangle (sx, sy, sw, sh) onto the destination rectangle
// (dx, dy, dw, dh), all in pixels. Negative sizes on one side mirror the copy on that axis. Source
// pixels equal to *key are left out. Returns the destination pixels touched.
QRect stretchCopy(QImage& dst, double dx, double dy, double dw, double dh, const QImage& src,
                  double sx, double sy, double sw, double sh, const std::uint32_t* key = nullptr);

}  // namespace qp::raster
