#pragma once
// The whole-picture operations of the image workshops, as plain functions on images. The windows
// only gather their inputs and show what comes back; these do the work, fast and in one pass.
//
// Pictures are 32-bit RGB (0xFFRRGGBB); other formats are converted first. Colours are the
// program's 0xBBGGRR values.
#include <QImage>
#include <QRect>
#include <QString>

#include "platform/Numeric.h"

namespace qp {

// ---- Tiling -----------------------------------------------------------------------------------

constexpr int kTileStyles = 14;
// The name of a tiling style as the TileSetter shows it ("Single Normal" ...); "" outside 0..13.
QString TileStyleName(int style);
// Styles 9 to 13 tile with two images.
inline bool TileStyleNeedsTwo(int style) { return style >= 9 && style <= 13; }

// Tiles `target` in place with the style's passes. The tile is W = width / tilesWide by
// H = height / tilesHigh pixels (real numbers; each cell's edges round to the nearest pixel), and
// every pass counts its cells one past the number of tiles, so the last row and column fall on the
// edge and are clipped. A mirrored pass draws the tile reversed left to right and extending to the
// left of its X. `two` is used only by the two-image styles. Does nothing for a style outside
// 0..13, counts below 1, an empty target or an empty image.
void TilePicture(QImage& target, const QImage& one, const QImage& two, int style, int tilesWide,
                 int tilesHigh);

// ---- Blending ---------------------------------------------------------------------------------

struct BlendOutcome {
  QImage picture;         // one's size; black where nothing was written
  bool complete = true;   // false: a pixel gave a colour below zero and the blend stopped there
};
// Mixes `two` over `one` at `percent` opacity of the second picture, channel by channel:
// (c2 * p + c1 * (100 - p)) / 100, rounded to nearest with halves to even. `one` sets the size;
// where `two` has no pixel it reads as the invalid colour -1 (red -1, green 256, blue -1), and a
// channel that then comes out below zero stops the blend at that pixel, columns running outer
// and rows inner, as the pixel-by-pixel original does.
BlendOutcome BlendPictures(const QImage& one, const QImage& two, int percent);

// Lays `over` on `base` at 0, 0 at its own size, leaving base alone wherever `over` has exactly
// the key colour. Clipped to base.
void KeyColourOverlay(QImage& base, const QImage& over, Colour key);

// ---- Stretching and cropping ------------------------------------------------------------------

// The whole source stretched (nearest pixel) to width x height. Empty for an empty source or a
// size below 1.
QImage StretchPicture(const QImage& source, int width, int height);
// The same into an existing target, whose size is the stretch's.
void StretchInto(QImage& target, const QImage& source);
// The part of the picture inside the rectangle, cut to the picture; empty when nothing is left.
QImage CropPicture(const QImage& picture, const QRect& rect);

// 32-bit RGB, converting only when needed.
QImage asRgb32(const QImage& picture);

}  // namespace qp
