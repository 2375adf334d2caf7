// PaintPicture: a plain copy of a picture, or of a part of it, stretched to the target rectangle
// with nearest-neighbour sampling. A negative width or height on either side mirrors the copy on
// that axis (x1 + width1 .. x1 when width1 < 0). Only the target pixels covered are written.
//
// Omitted sizes: width2/height2 run to the picture's far edge from x2/y2; width1/height1 default
// to the source part's own size, so the part is copied one to one.
#include "surface/PictureBox.h"
#include "surface/Raster.h"

namespace qp {

void PictureBox::PaintPicture(const QImage& picture, Single x1, Single y1,
                              std::optional<Single> width1, std::optional<Single> height1,
                              std::optional<Single> x2, std::optional<Single> y2,
                              std::optional<Single> width2, std::optional<Single> height2) {
  paintPictureFrom(picture, 1.0, 1.0, 0.0, 0.0, x1, y1, width1, height1, x2, y2, width2, height2);
}

void PictureBox::PaintPicture(const PictureProp& picture, Single x1, Single y1,
                              std::optional<Single> width1, std::optional<Single> height1,
                              std::optional<Single> x2, std::optional<Single> y2,
                              std::optional<Single> width2, std::optional<Single> height2) {
  const PictureBox& from = *picture.owner_;
  paintPictureFrom(picture.get(), from.pixelsPerUnitX(), from.pixelsPerUnitY(), from.ScaleLeft,
                   from.ScaleTop, x1, y1, width1, height1, x2, y2, width2, height2);
}

void PictureBox::PaintPicture(const ImageHandle& image, Single x1, Single y1,
                              std::optional<Single> width1, std::optional<Single> height1,
                              std::optional<Single> x2, std::optional<Single> y2,
                              std::optional<Single> width2, std::optional<Single> height2) {
  const PictureBox& from = *image.owner();
  paintPictureFrom(image.get(), from.pixelsPerUnitX(), from.pixelsPerUnitY(), from.ScaleLeft,
                   from.ScaleTop, x1, y1, width1, height1, x2, y2, width2, height2);
}

void PictureBox::paintPictureFrom(const QImage& picture, double sourcePerUnitX,
                                  double sourcePerUnitY, double sourceLeft, double sourceTop,
                                  Single x1, Single y1, std::optional<Single> width1,
                                  std::optional<Single> height1, std::optional<Single> x2,
                                  std::optional<Single> y2, std::optional<Single> width2,
                                  std::optional<Single> height2) {
  QImage& img = editBitmap();
  if (picture.isNull()) raiseError(RuntimeError::InvalidPicture, "Invalid picture");
  const double sx = x2 ? (*x2 - sourceLeft) * sourcePerUnitX : 0.0;
  const double sy = y2 ? (*y2 - sourceTop) * sourcePerUnitY : 0.0;
  const double sw = width2 ? *width2 * sourcePerUnitX : picture.width() - sx;
  const double sh = height2 ? *height2 * sourcePerUnitY : picture.height() - sy;
  const double dw = width1 ? *width1 * pixelsPerUnitX() : std::abs(sw);
  const double dh = height1 ? *height1 * pixelsPerUnitY() : std::abs(sh);
  const QRect touched = raster::stretchCopy(img, toPixelX(x1), toPixelY(y1), dw, dh, picture, sx,
                                            sy, sw, sh);
  markDirty(touched);
}

}  // namespace qp
