// GetPixel, SetPixel and TransparentBlt on a surface's bitmap.
#include "surface/Device.h"

#include "surface/Raster.h"

namespace qp {

Colour GetPixel(const PictureBox& box, int x, int y) {
  const QImage& img = box.bitmap();
  if (x < 0 || y < 0 || x >= img.width() || y >= img.height()) return -1;
  return raster::toColour(reinterpret_cast<const std::uint32_t*>(img.constScanLine(y))[x]);
}

void SetPixel(PictureBox& box, int x, int y, Colour colour) {
  const QImage& view = box.bitmap();
  if (x < 0 || y < 0 || x >= view.width() || y >= view.height()) return;
  QImage& img = box.editBitmap();
  reinterpret_cast<std::uint32_t*>(img.scanLine(y))[x] = raster::toPixel(colour);
  box.markDirty(QRect(x, y, 1, 1));
}

bool TransparentBlt(PictureBox& dst, int xd, int yd, int wd, int hd, const PictureBox& src, int xs,
                    int ys, int ws, int hs, Colour key) {
  if (wd <= 0 || hd <= 0 || ws <= 0 || hs <= 0) return false;
  if (dst.bitmap().isNull() || src.bitmap().isNull()) return false;
  const std::uint32_t k = raster::toPixel(key);
  const QRect touched = raster::stretchCopy(dst.editBitmap(), xd, yd, wd, hd, src.bitmap(), xs, ys,
                                            ws, hs, &k);
  dst.markDirty(touched);
  return true;
}

}  // namespace qp
