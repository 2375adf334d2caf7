// Tile Selection: the floating picture stretched to an N-th of the canvas each way and laid over
// it in a grid. The stretch is done once; every tile after it is a plain copy of the same pixels.
#include <QtGlobal>

#include "surface/PictureBox.h"
#include "surface/Raster.h"
#include "tools/Selection.h"

namespace qp {

void TilePicture(PictureBox& canvas, const QImage& picture, int N) {
  if (N <= 0 || picture.isNull()) return;
  const Single tileWidth = canvas.Width.get() / N, tileHeight = canvas.Height.get() / N;
  const int pw = qRound(tileWidth * canvas.pixelsPerUnitX());
  const int ph = qRound(tileHeight * canvas.pixelsPerUnitY());
  if (pw <= 0 || ph <= 0 || pw > raster::kMaxSide || ph > raster::kMaxSide) return;
  QImage tile(pw, ph, QImage::Format_RGB32);
  raster::stretchCopy(tile, 0, 0, pw, ph, picture, 0, 0, picture.width(), picture.height());
  // Both bounds inclusive: the last column and row stand on the canvas edge and show nothing.
  for (int c = 0; c <= N; ++c)
    for (int r = 0; r <= N; ++r) canvas.PaintPicture(tile, c * tileWidth, r * tileHeight, tileWidth, tileHeight);
}

}  // namespace qp
