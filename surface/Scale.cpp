// The coordinate scale of a picture box. Modes 1..7 are fixed units (twips, points, pixels,
// characters, inches, millimetres, centimetres) counted from the top-left corner; mode 0 is a user
// scale that maps ScaleLeft..ScaleLeft+ScaleWidth onto the bitmap's width, whatever its size.
#include <cmath>

#include "surface/PictureBox.h"
#include "surface/Raster.h"

namespace qp {

namespace {
// Twips in one unit of each ScaleMode, across and down (a character is 120 x 240 twips).
double twipsPerUnit(int mode, bool vertical) {
  switch (mode) {
    case 2: return 20.0;
    case 3: return 15.0;
    case 4: return vertical ? 240.0 : 120.0;
    case 5: return 1440.0;
    case 6: return 1440.0 / 25.4;
    case 7: return 1440.0 / 2.54;
    default: return 1.0;
  }
}
}  // namespace

// In twips ScaleWidth mirrors Width exactly, so `Width - ScaleWidth` style sums stay whole; in
// pixels it is the bitmap's size; other units derive from the pixel size.
void PictureBox::applyScaleMode() {
  const int mode = ScaleMode;
  if (mode == 0) return;
  ScaleLeft.setRaw(0);
  ScaleTop.setRaw(0);
  if (mode == 1) {
    ScaleWidth.setRaw(static_cast<Single>(outerTwips(Width)));
    ScaleHeight.setRaw(static_cast<Single>(outerTwips(Height)));
  } else if (mode == 3) {
    ScaleWidth.setRaw(static_cast<Single>(pixelWidth()));
    ScaleHeight.setRaw(static_cast<Single>(pixelHeight()));
  } else {
    ScaleWidth.setRaw(static_cast<Single>(pixelWidth() * 15.0 / twipsPerUnit(mode, false)));
    ScaleHeight.setRaw(static_cast<Single>(pixelHeight() * 15.0 / twipsPerUnit(mode, true)));
  }
}

double PictureBox::pixelsPerUnitX() const {
  const int mode = ScaleMode;
  if (mode != 0) return twipsPerUnit(mode, false) / 15.0;
  // A user scale over an empty bitmap has no meaning yet; fall back to twips.
  if (pixelWidth() == 0 || ScaleWidth == 0) return 1.0 / 15.0;
  return pixelWidth() / static_cast<double>(ScaleWidth);
}

double PictureBox::pixelsPerUnitY() const {
  const int mode = ScaleMode;
  if (mode != 0) return twipsPerUnit(mode, true) / 15.0;
  if (pixelHeight() == 0 || ScaleHeight == 0) return 1.0 / 15.0;
  return pixelHeight() / static_cast<double>(ScaleHeight);
}

double PictureBox::toPixelX(double x) const { return (x - ScaleLeft) * pixelsPerUnitX(); }
double PictureBox::toPixelY(double y) const { return (y - ScaleTop) * pixelsPerUnitY(); }

int PictureBox::pixelX(Single x) const { return raster::toPixelInt(toPixelX(x)); }
int PictureBox::pixelY(Single y) const { return raster::toPixelInt(toPixelY(y)); }

}  // namespace qp
