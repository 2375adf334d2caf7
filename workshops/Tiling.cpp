// Tiling a picture with one or two small images in fourteen styles. Each style is a list of
// passes over a grid of cells; a pass draws the image stretched to the tile size into every cell
// it counts. Tiles are scaled once per cell size and then copied row by row.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <map>
#include <tuple>
#include <vector>

#include "workshops/PictureOps.h"

namespace qp {

namespace {

struct TilePass {
  int image;           // 1 or 2
  int rowStart, rowStep;
  int colStart, colStep;
  int xTimes, yTimes;  // X = xTimes * c * W, Y = yTimes * r * H
  bool mirrored;       // width -W: reversed, extending to the left of X
};

// The passes of each style, in drawing order. Later passes overwrite earlier ones where they
// overlap; those overlaps are the patterns.
const std::vector<TilePass>& passesOf(int style) {
  static const std::vector<TilePass> styles[kTileStyles] = {
      {{1, 0, 1, 0, 1, 1, 1, false}},
      {{1, 0, 1, 0, 1, 1, 1, true}},
      {{1, 0, 2, 0, 2, 1, 1, false}, {1, 1, 2, 1, 2, 1, 1, false}},
      {{1, 0, 1, 0, 1, 1, 1, false}, {1, 0, 1, 0, 1, 2, 1, true}},
      {{1, 0, 2, 0, 1, 1, 1, false}},
      {{1, 0, 1, 0, 2, 1, 1, false}},
      {{1, 0, 2, 0, 1, 1, 1, false}, {1, 0, 1, 0, 2, 1, 1, true}},
      {{1, 0, 1, 0, 2, 1, 1, false}, {1, 0, 2, 0, 1, 1, 1, true}},
      {{1, 0, 1, 0, 1, 2, 2, false}, {1, 1, 1, 1, 1, 2, 1, true}},
      {{1, 0, 1, 0, 1, 1, 1, false}, {2, 0, 1, 0, 1, 2, 2, false}, {2, 1, 2, 1, 2, 1, 1, false}},
      {{1, 0, 1, 0, 1, 1, 1, false}, {2, 1, 2, 1, 2, 1, 1, false}},
      {{1, 0, 1, 0, 1, 1, 1, false}, {2, 0, 2, 0, 1, 1, 1, false}},
      {{1, 0, 1, 0, 1, 1, 1, false}, {2, 0, 1, 0, 2, 1, 1, false}},
      {{1, 0, 2, 0, 2, 1, 1, false}, {2, 1, 2, 1, 2, 1, 1, false}},
  };
  return styles[style];
}

// The pixel where the k-th multiple of a real tile size begins. Far beyond the picture the value
// is cut, which keeps the conversion defined.
int edgeAt(long long k, double size) {
  const double v = std::clamp(static_cast<double>(k) * size, -1e9, 1e9);
  return static_cast<int>(roundHalfEven(v));
}

// The image scaled to w x h (nearest pixel), optionally reversed left to right.
QImage scaledTile(const QImage& image, int w, int h, bool mirrored) {
  QImage out(w, h, QImage::Format_RGB32);
  if (out.isNull()) return out;
  std::vector<int> cols(static_cast<size_t>(w));
  for (int x = 0; x < w; ++x) {
    const int sx = static_cast<int>((2LL * x + 1) * image.width() / (2LL * w));
    cols[static_cast<size_t>(mirrored ? w - 1 - x : x)] = sx;
  }
  for (int y = 0; y < h; ++y) {
    const int sy = static_cast<int>((2LL * y + 1) * image.height() / (2LL * h));
    const auto* in = reinterpret_cast<const std::uint32_t*>(image.constScanLine(sy));
    auto* row = reinterpret_cast<std::uint32_t*>(out.scanLine(y));
    if (y > 0 && sy == static_cast<int>((2LL * (y - 1) + 1) * image.height() / (2LL * h))) {
      std::memcpy(row, out.constScanLine(y - 1), static_cast<size_t>(w) * 4);
      continue;
    }
    for (int x = 0; x < w; ++x) row[x] = in[cols[static_cast<size_t>(x)]] | 0xFF000000u;
  }
  return out;
}

// Copies the tile to x, y on the target, clipped.
void blit(QImage& target, const QImage& tile, int x, int y) {
  const int x0 = std::max(x, 0), y0 = std::max(y, 0);
  const int x1 = std::min(x + tile.width(), target.width());
  const int y1 = std::min(y + tile.height(), target.height());
  if (x0 >= x1 || y0 >= y1) return;
  const size_t bytes = static_cast<size_t>(x1 - x0) * 4;
  for (int ty = y0; ty < y1; ++ty)
    std::memcpy(target.scanLine(ty) + static_cast<size_t>(x0) * 4,
                tile.constScanLine(ty - y) + static_cast<size_t>(x0 - x) * 4, bytes);
}

}  // namespace

QString TileStyleName(int style) {
  static const char* const names[kTileStyles] = {
      "Single Normal", "Single Mirror", "Single Checkered", "Full Alterenating Reversed",
      "Single Horizontal", "Single Vertical", "Single Checkered Reversed # 1",
      "Single Checkered Reversed # 2", "Single Checkered Reversed # 3", "Double Interaced",
      "Double Wrap Around Second Image", "Double Horizontal", "Double Vertical", "Double Checkered"};
  return style >= 0 && style < kTileStyles ? QString(names[style]) : QString();
}

void TilePicture(QImage& target, const QImage& one, const QImage& two, int style, int tilesWide,
                 int tilesHigh) {
  if (style < 0 || style >= kTileStyles || tilesWide < 1 || tilesHigh < 1 || target.isNull()) return;
  if (one.isNull() || (TileStyleNeedsTwo(style) && two.isNull())) return;
  if (target.format() != QImage::Format_RGB32) target = target.convertToFormat(QImage::Format_RGB32);
  const QImage images[2] = {asRgb32(one), two.isNull() ? QImage() : asRgb32(two)};
  const double W = static_cast<double>(target.width()) / tilesWide;
  const double H = static_cast<double>(target.height()) / tilesHigh;
  // Cells differ by a pixel at most, so only a few scaled tiles are ever made.
  std::map<std::tuple<int, int, int, bool>, QImage> scaled;
  for (const TilePass& pass : passesOf(style)) {
    const QImage& image = images[pass.image - 1];
    for (int r = pass.rowStart; r <= tilesHigh; r += pass.rowStep) {
      const long long ky = static_cast<long long>(pass.yTimes) * r;
      const int y0 = edgeAt(ky, H), y1 = edgeAt(ky + 1, H);
      if (y1 <= y0 || y0 >= target.height()) continue;
      for (int c = pass.colStart; c <= tilesWide; c += pass.colStep) {
        const long long kx = static_cast<long long>(pass.xTimes) * c;
        const int x0 = pass.mirrored ? edgeAt(kx - 1, W) : edgeAt(kx, W);
        const int x1 = pass.mirrored ? edgeAt(kx, W) : edgeAt(kx + 1, W);
        if (x1 <= x0 || x0 >= target.width() || x1 <= 0) continue;
        const auto key = std::make_tuple(pass.image, x1 - x0, y1 - y0, pass.mirrored);
        auto it = scaled.find(key);
        if (it == scaled.end()) it = scaled.emplace(key, scaledTile(image, x1 - x0, y1 - y0, pass.mirrored)).first;
        if (!it->second.isNull()) blit(target, it->second, x0, y0);
      }
    }
  }
}

QImage asRgb32(const QImage& picture) {
  if (picture.isNull() || picture.format() == QImage::Format_RGB32) return picture;
  return picture.convertToFormat(QImage::Format_RGB32);
}

}  // namespace qp
