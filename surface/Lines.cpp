// Line in all its forms, PSet and Point.
#include <algorithm>
#include <cmath>

#include "surface/PictureBox.h"
#include "surface/Strokes.h"

namespace qp {

using raster::PixelWriter;

namespace {

// The outline of a box. At width 1 each side's pixels are written once, corners included; wider
// pens are the union of four round-ended strokes, so the corners come out round.
void boxOutline(PixelWriter& out, int x0, int y0, int x1, int y1, int width, int style) {
  if (x0 > x1) std::swap(x0, x1);
  if (y0 > y1) std::swap(y0, y1);
  if (width > 1) {
    const raster::Segment sides[4] = {{double(x0), double(y0), double(x1), double(y0)},
                                      {double(x1), double(y0), double(x1), double(y1)},
                                      {double(x1), double(y1), double(x0), double(y1)},
                                      {double(x0), double(y1), double(x0), double(y0)}};
    raster::wideSegments(out, sides, 4, width);
  } else if (style >= 1 && style <= 4) {
    raster::strokeSegment(out, x0, y0, x1, y0, 1, style);
    raster::strokeSegment(out, x1, y0, x1, y1, 1, style);
    raster::strokeSegment(out, x1, y1, x0, y1, 1, style);
    raster::strokeSegment(out, x0, y1, x0, y0, 1, style);
  } else {
    const int top = std::max(y0, 0), bottom = std::min(y1, out.height() - 1);
    for (int y = top; y <= bottom; ++y) {
      if (y == y0 || y == y1) {
        out.span(y, x0, x1);
      } else {
        out.plot(x0, y);
        if (x1 != x0) out.plot(x1, y);
      }
    }
  }
}

void filledBox(PixelWriter& out, int x0, int y0, int x1, int y1) {
  if (y0 > y1) std::swap(y0, y1);
  const int top = std::max(y0, 0), bottom = std::min(y1, out.height() - 1);
  for (int y = top; y <= bottom; ++y) out.span(y, x0, x1);
}

}  // namespace

void PictureBox::Line(Single x1, Single y1, Single x2, Single y2, std::optional<Colour> colour,
                      LineBox box) {
  QImage& img = editBitmap();
  const int mode = DrawMode;
  const int style = DrawStyle;
  // Mode 11 leaves the bitmap alone; style 5 is an invisible pen, though a BF box is a fill.
  if (mode != 11 && (style != 5 || box == LineBox::BF)) {
    PixelWriter out(img, colour.value_or(ForeColor), mode);
    const int width = DrawWidth;
    if (box == LineBox::None) {
      raster::strokeSegment(out, toPixelX(x1), toPixelY(y1), toPixelX(x2), toPixelY(y2), width,
                            width == 1 ? style : 0);
    } else if (box == LineBox::B) {
      boxOutline(out, pixelX(x1), pixelY(y1), pixelX(x2), pixelY(y2), width, style);
    } else {
      filledBox(out, pixelX(x1), pixelY(y1), pixelX(x2), pixelY(y2));
    }
    markDirty(out.touched());
  }
  CurrentX = x2;
  CurrentY = y2;
}

void PictureBox::LineTo(Single x2, Single y2, std::optional<Colour> colour, LineBox box) {
  Line(CurrentX, CurrentY, x2, y2, colour, box);
}

void PictureBox::PSet(Single x, Single y, std::optional<Colour> colour) {
  QImage& img = editBitmap();
  if (DrawMode != 11) {
    PixelWriter out(img, colour.value_or(ForeColor), DrawMode);
    const int px = pixelX(x), py = pixelY(y);
    if (DrawWidth == 1) {
      out.plot(px, py);
    } else {
      const raster::Segment dot{double(px), double(py), double(px), double(py)};
      raster::wideSegments(out, &dot, 1, DrawWidth);
    }
    markDirty(out.touched());
  }
  CurrentX = x;
  CurrentY = y;
}

Colour PictureBox::Point(Single x, Single y) const {
  if (image_.isNull()) return -1;
  const double px = toPixelX(x), py = toPixelY(y);
  if (!std::isfinite(px) || !std::isfinite(py)) return -1;
  const double rx = roundHalfEven(px), ry = roundHalfEven(py);
  if (rx < 0 || ry < 0 || rx >= image_.width() || ry >= image_.height()) return -1;
  return raster::toColour(image_.pixel(static_cast<int>(rx), static_cast<int>(ry)));
}

}  // namespace qp
