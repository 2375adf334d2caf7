#pragma once
// Decoding a picture from the bytes of a file or of the clipboard so that every pixel of the result
// is defined. A bitmap whose header promises more pixels than its data holds (a truncated file,
// run-length data that ends early or skips pixels, a pixel offset past the end) still decodes, and
// what the data does not give is black: never whatever memory the decoder was handed, which may
// hold an earlier picture since freed picture memory is kept for reuse.
#include <QByteArray>
#include <QImage>
#include <QList>

namespace qp {

struct PictureLimits {
  long long maxPixels;
  int maxSide;
};
// The largest picture that comes in from anywhere: 64 million pixels (an 8192 x 8192 canvas), no
// side longer than a surface may be.
constexpr PictureLimits kPictureLimits{64LL * 1024 * 1024, 16384};

// The picture in data, as 32-bit RGB, or a null image when data is not a picture in one of the
// accepted formats (Qt's format names, "bmp", "jpeg", "png"; an empty list accepts every format Qt
// reads) or is larger than the limits allow. A picture with transparency is laid on `backdrop`
// (0xAARRGGBB), as it would look on a canvas of that colour; a pixel a short file does not give is
// black all the same, whatever the backdrop.
QImage DecodePicture(const QByteArray& data, const QList<QByteArray>& accepted, PictureLimits limits,
                     QRgb backdrop = 0xFF000000);

}  // namespace qp
