#pragma once
// Rasterisers for pen strokes in pixel space: one-pixel lines with the DrawStyle patterns, and
// round-ended wide strokes (a dot is a stroke of length zero). Every pixel of a stroke is written
// exactly once per call, so the mixing modes (xor and the like) give the same result however the
// stroke overlaps itself.
#include "surface/Raster.h"

namespace qp::raster {

struct Segment {
  double ax, ay, bx, by;  // pixel coordinates; whole numbers are pixel centres
};

// Bresenham line including both ends; style 1..4 are dash patterns, others solid.
void thinSegment(PixelWriter& out, int x0, int y0, int x1, int y1, int style);

// The union of round-ended strokes of the given width (at least 2). An even width cannot centre
// on a pixel, so it leans up and left by half a pixel, giving a 2x2 dot at width 2.
void wideSegments(PixelWriter& out, const Segment* segs, int count, int width);

// Draws the segment at the pen width, cut first to a margin around the bitmap so that far-away
// ends stay exact and cheap.
void strokeSegment(PixelWriter& out, double ax, double ay, double bx, double by, int width,
                   int style);

}  // namespace qp::raster
