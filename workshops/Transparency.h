#pragma once
// The Transparency Tool's whole-picture work, as plain functions on pictures.
#include <QImage>
#include <QRect>
#include <QSize>

#include "platform/Numeric.h"

namespace qp {

// Every pixel becomes a block of level x level pixels. Level 1 (or less) gives the picture back.
// A result past the largest picture a surface may hold is refused: a null image.
QImage ZoomPicture(const QImage& picture, int level);

// The zoomed work brought back to a picture of `size`, each pixel taken from the block that covers
// it, so ZoomPicture then ShrinkPicture gives the original again, edits included.
QImage ShrinkPicture(const QImage& zoomed, QSize size);

// The pixels of `picture` under `area`, as a picture of the area's size; what lies outside the
// picture is `outside`. An empty area gives a null image.
QImage CutRectangle(const QImage& picture, const QRect& area, Colour outside);

}  // namespace qp
