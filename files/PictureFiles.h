#pragma once
// Reading and writing pictures. The program reads .bmp and .jpg files and writes .bmp only.
//
// LoadPicture refuses, before decoding, any file whose header claims more pixels than a canvas may
// hold, so that a hostile or broken file can neither exhaust memory nor stall the program. Every
// failure raises RuntimeError, which the handler's trap turns into a silent stop.
#include <QImage>
#include <QString>

#include "platform/PictureDecode.h"

namespace qp {

// The largest picture a file may bring in: 64 million pixels (an 8192 x 8192 canvas).
constexpr long long kMaxPicturePixels = kPictureLimits.maxPixels;
// The longest side a picture may have: as long as a surface may be.
constexpr int kMaxPictureSide = kPictureLimits.maxSide;

// The picture in a .bmp or .jpg file, as 32-bit RGB so that it goes onto a surface without another
// conversion. An empty path gives an empty picture. Missing files raise FileNotFound; anything
// that is not a plain, readable, decodable picture within the limit raises InvalidPicture.
QImage LoadPicture(const QString& path);
// The same for a picture in any format Qt reads, within the same limits: a script's clipboard.
// A pixel a short file does not give is black, on every path a picture comes in by.
QImage LoadAnyPicture(const QString& path);

// Writes the picture as a Windows bitmap. The bytes go to a temporary file beside the target,
// which replaces the target only when complete: a failed save leaves an existing file untouched.
// Failure (no such folder, a folder in the way, a full disk) raises RuntimeError.
void SavePicture(const QImage& picture, const QString& path);

}  // namespace qp
