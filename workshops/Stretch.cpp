// Stretching a whole picture to a new size and cutting a rectangle out of one.
#include <algorithm>
#include <cstring>
#include <vector>

#include "workshops/PictureOps.h"

namespace qp {

void StretchInto(QImage& target, const QImage& source) {
  if (target.isNull() || source.isNull()) return;
  if (target.format() != QImage::Format_RGB32) target = target.convertToFormat(QImage::Format_RGB32);
  const QImage src = asRgb32(source);
  const int w = target.width(), h = target.height(), sw = src.width(), sh = src.height();
  // Nearest pixel, sampled at the centre of each target pixel.
  std::vector<int> cols(static_cast<size_t>(w));
  for (int x = 0; x < w; ++x) cols[static_cast<size_t>(x)] = static_cast<int>((2LL * x + 1) * sw / (2LL * w));
  int lastSy = -1;
  for (int y = 0; y < h; ++y) {
    const int sy = static_cast<int>((2LL * y + 1) * sh / (2LL * h));
    auto* row = reinterpret_cast<std::uint32_t*>(target.scanLine(y));
    if (sy == lastSy) {  // a source row used twice is copied, not sampled again
      std::memcpy(row, target.constScanLine(y - 1), static_cast<size_t>(w) * 4);
      continue;
    }
    lastSy = sy;
    const auto* in = reinterpret_cast<const std::uint32_t*>(src.constScanLine(sy));
    for (int x = 0; x < w; ++x) row[x] = in[cols[static_cast<size_t>(x)]];
  }
}

QImage StretchPicture(const QImage& source, int width, int height) {
  if (source.isNull() || width < 1 || height < 1) return QImage();
  QImage out(width, height, QImage::Format_RGB32);
  if (out.isNull()) return out;
  StretchInto(out, source);
  return out;
}

QImage CropPicture(const QImage& picture, const QRect& rect) {
  const QRect r = rect.normalized() & picture.rect();
  if (picture.isNull() || r.isEmpty()) return QImage();
  return asRgb32(picture).copy(r);
}

}  // namespace qp
