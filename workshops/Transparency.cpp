#include "workshops/Transparency.h"

#include <algorithm>
#include <cstdint>

#include "surface/Raster.h"

namespace qp {

namespace {
QImage asRgb32(const QImage& picture) {
  if (picture.format() == QImage::Format_RGB32 || picture.format() == QImage::Format_ARGB32) return picture;
  return picture.convertToFormat(QImage::Format_RGB32);
}
}  // namespace

QImage ZoomPicture(const QImage& picture, int level) {
  if (picture.isNull()) return {};
  if (level <= 1) return picture;
  const long long w = static_cast<long long>(picture.width()) * level;
  const long long h = static_cast<long long>(picture.height()) * level;
  if (w > raster::kMaxSide || h > raster::kMaxSide || w * h > raster::kMaxPixels) return {};
  const QImage src = asRgb32(picture);
  QImage out(static_cast<int>(w), static_cast<int>(h), QImage::Format_RGB32);
  for (int y = 0; y < out.height(); ++y) {
    const auto* in = reinterpret_cast<const std::uint32_t*>(src.constScanLine(y / level));
    auto* row = reinterpret_cast<std::uint32_t*>(out.scanLine(y));
    for (int x = 0; x < out.width(); ++x) row[x] = in[x / level] | 0xFF000000u;
  }
  return out;
}

QImage ShrinkPicture(const QImage& zoomed, QSize size) {
  if (zoomed.isNull() || size.isEmpty()) return {};
  const QImage src = asRgb32(zoomed);
  QImage out(size, QImage::Format_RGB32);
  for (int y = 0; y < size.height(); ++y) {
    const int sy = static_cast<int>(static_cast<long long>(y) * src.height() / size.height());
    const auto* in = reinterpret_cast<const std::uint32_t*>(src.constScanLine(sy));
    auto* row = reinterpret_cast<std::uint32_t*>(out.scanLine(y));
    for (int x = 0; x < size.width(); ++x)
      row[x] = in[static_cast<long long>(x) * src.width() / size.width()] | 0xFF000000u;
  }
  return out;
}

QImage CutRectangle(const QImage& picture, const QRect& area, Colour outside) {
  if (area.isEmpty() || area.width() > raster::kMaxSide || area.height() > raster::kMaxSide) return {};
  QImage out(area.size(), QImage::Format_RGB32);
  out.fill(raster::toPixel(outside));
  if (picture.isNull()) return out;
  const QRect inside = area & picture.rect();
  if (inside.isEmpty()) return out;
  const QImage src = asRgb32(picture);
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    const auto* in = reinterpret_cast<const std::uint32_t*>(src.constScanLine(y)) + inside.left();
    auto* row = reinterpret_cast<std::uint32_t*>(out.scanLine(y - area.top())) + (inside.left() - area.left());
    for (int x = 0; x < inside.width(); ++x) row[x] = in[x] | 0xFF000000u;
  }
  return out;
}

}  // namespace qp
