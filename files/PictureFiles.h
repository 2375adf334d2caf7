#pragma once
// Reading and writing pictures. The program reads .bmp, .jpg and .png files; Save writes .bmp, and
// Export as PNG writes .png.
//
// LoadPicture refuses, before decoding, any file whose header claims more pixels than a canvas may
// hold, so that a hostile or broken file can neither exhaust memory nor stall the program. Every
// failure raises RuntimeError, which the handler's trap turns into a silent stop.
#include <QImage>
#include <QString>

#include "platform/Numeric.h"
#include "platform/PictureDecode.h"

namespace qp {

// The largest picture a file may bring in: 64 million pixels (an 8192 x 8192 canvas).
constexpr long long kMaxPicturePixels = kPictureLimits.maxPixels;
// The longest side a picture may have: as long as a surface may be.
constexpr int kMaxPictureSide = kPictureLimits.maxSide;

// The picture in a .bmp, .jpg or .png file, as 32-bit RGB so that it goes onto a surface without
// another conversion. An empty path gives an empty picture. Missing files raise FileNotFound;
// anything that is not a plain, readable, decodable picture within the limit raises InvalidPicture.
// A picture with transparency is laid on `backdrop` (a colour as the controls hold it, 0xBBGGRR):
// the canvas's own colour, so that it looks as it would painted there.
QImage LoadPicture(const QString& path, Colour backdrop = 0x000000);
// The same for a picture in any format Qt reads, within the same limits: a script's clipboard.
// A pixel a short file does not give is black, on every path a picture comes in by.
QImage LoadAnyPicture(const QString& path, Colour backdrop = 0x000000);

// Writes the picture as a Windows bitmap. The bytes go to a temporary file beside the target,
// which replaces the target only when complete: a failed save leaves an existing file untouched.
// Failure (no such folder, a folder in the way, a full disk) raises RuntimeError.
void SavePicture(const QImage& picture, const QString& path);
// The same, in Qt's format `format` ("png" for Export as PNG), equally safe.
void SavePicture(const QImage& picture, const QString& path, const char* format);

}  // namespace qp
