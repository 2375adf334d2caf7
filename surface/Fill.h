#pragma once
// The fills of FillStyle: 0 solid, 2 to 7 hatched on an 8-pixel grid anchored at the bitmap's
// origin (2 horizontal lines, 3 vertical lines, 4 upward diagonal "\", 5 downward diagonal "/",
// 6 cross, 7 diagonal cross). A hatch writes only its lines; what lies beneath shows between them.
// Internal to the surface library.
#include "surface/Raster.h"

namespace qp::raster {

// True for the fill styles that put anything down (0 and 2..7).
inline bool fills(int fillStyle) { return fillStyle == 0 || (fillStyle >= 2 && fillStyle <= 7); }

// Fills the pixels x0..x1 (inclusive, any order, clipped) of row y by the fill style.
void fillSpan(PixelWriter& out, int y, int x0, int x1, int fillStyle);

}  // namespace qp::raster
