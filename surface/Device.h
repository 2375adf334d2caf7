#pragma once
// The device calls on a surface's bitmap, all in pixels from its top-left corner, whatever the
// surface's ScaleMode. They ignore DrawMode and DrawWidth, like the device layer they stand for.
#include "platform/Numeric.h"
#include "surface/PictureBox.h"

namespace qp {

// The colour of the pixel, or -1 (an invalid colour) outside the bitmap or on an empty surface.
Colour GetPixel(const PictureBox& box, int x, int y);

// Sets one pixel; nothing happens outside the bitmap.
void SetPixel(PictureBox& box, int x, int y, Colour colour);

// type 1: fills the four-connected area of pixels that have exactly `colour`, starting at x, y,
// with FillColor when FillStyle is 0. Returns false, changing nothing, when the seed is outside,
// the seed pixel is not `colour`, FillStyle is not 0, or type is not 1.
bool ExtFloodFill(PictureBox& box, int x, int y, Colour colour, int type);

// Copies the source rectangle onto the target rectangle, stretched where the sizes differ, leaving
// target pixels alone where the source pixel is exactly `key`. Returns false, changing nothing,
// for a size that is not positive.
bool TransparentBlt(PictureBox& dst, int xd, int yd, int wd, int hd, const PictureBox& src, int xs,
                    int ys, int ws, int hs, Colour key);

}  // namespace qp
