// Decoding pictures with every pixel defined. Qt's decoders write into memory they allocate and
// leave unwritten what a short file does not reach, so the program checks what a bitmap's data
// really covers, decodes run-length bitmaps itself, and gives the decoders a cleared picture to
// fill where they take one.
#include "platform/PictureDecode.h"

#include <QBuffer>
#include <QColor>
#include <QImageReader>
#include <QPainter>
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>

namespace qp {

namespace {

constexpr QRgb kNotGiven = 0xFF000000;  // black: what a file does not give

std::uint32_t u32(const QByteArray& d, qsizetype at) {
  std::uint32_t v = 0;
  for (int i = 3; i >= 0; --i) v = (v << 8) | static_cast<unsigned char>(d[at + i]);
  return v;
}
std::uint16_t u16(const QByteArray& d, qsizetype at) {
  return static_cast<std::uint16_t>(static_cast<unsigned char>(d[at]) |
                                    (static_cast<unsigned char>(d[at + 1]) << 8));
}

// What a bitmap's header says about its pixel data.
struct BmpLayout {
  qint64 width = 0, height = 0;  // height as a count of rows, whatever the order
  bool topDown = false;
  int bits = 0;
  std::uint32_t compression = 0;
  qint64 paletteStart = 0;
  qint64 paletteEntries = 0;
  int paletteEntrySize = 4;
  qint64 dataStart = 0;  // where the pixels begin at the latest, whichever start the decoder takes
};

std::optional<BmpLayout> readLayout(const QByteArray& d) {
  if (d.size() < 26 || d[0] != 'B' || d[1] != 'M') return std::nullopt;
  BmpLayout b;
  const qint64 offBits = u32(d, 10);
  const qint64 infoSize = u32(d, 14);
  std::uint32_t coloursUsed = 0;
  if (infoSize == 12) {  // the old core header: 16-bit sizes, three-byte palette entries
    b.width = u16(d, 18);
    b.height = u16(d, 20);
    b.bits = u16(d, 24);
    b.paletteEntrySize = 3;
  } else if (infoSize >= 40 && d.size() >= 54) {
    b.width = static_cast<std::int32_t>(u32(d, 18));
    const qint64 h = static_cast<std::int32_t>(u32(d, 22));
    b.topDown = h < 0;
    b.height = h < 0 ? -h : h;
    b.bits = u16(d, 28);
    b.compression = u32(d, 30);
    coloursUsed = u32(d, 46);
  } else {
    return std::nullopt;
  }
  if (b.width <= 0 || b.height <= 0 || b.bits <= 0) return std::nullopt;
  qint64 masks = 0;
  if (infoSize == 40 && b.compression == 3) masks = 12;
  if (infoSize == 40 && b.compression == 6) masks = 16;
  b.paletteStart = 14 + infoSize + masks;
  if (b.bits <= 8) {
    const qint64 full = qint64(1) << b.bits;
    b.paletteEntries = coloursUsed > 0 && coloursUsed < full ? coloursUsed : full;
  }
  b.dataStart = std::max(offBits, b.paletteStart + b.paletteEntries * b.paletteEntrySize);
  return b;
}

std::vector<QRgb> readPalette(const QByteArray& d, const BmpLayout& b) {
  std::vector<QRgb> palette(static_cast<size_t>(qint64(1) << std::min(b.bits, 8)), kNotGiven);
  for (qint64 i = 0; i < b.paletteEntries; ++i) {
    const qint64 at = b.paletteStart + i * b.paletteEntrySize;
    if (at + 3 > d.size()) break;
    palette[static_cast<size_t>(i)] = qRgb(static_cast<unsigned char>(d[at + 2]),
                                           static_cast<unsigned char>(d[at + 1]),
                                           static_cast<unsigned char>(d[at]));
  }
  return palette;
}

// Run-length bitmaps (8 and 4 bits a pixel), decoded onto black: a run past the row's end, a skip
// and data that stops early leave black behind them.
QImage decodeRunLength(const QByteArray& d, const BmpLayout& b) {
  const bool four = b.compression == 2;
  if (b.topDown || b.bits != (four ? 4 : 8)) return QImage();
  QImage image(static_cast<int>(b.width), static_cast<int>(b.height), QImage::Format_RGB32);
  if (image.isNull()) return image;
  image.fill(kNotGiven);
  const std::vector<QRgb> palette = readPalette(d, b);
  const qint64 w = b.width, h = b.height, end = d.size();
  qint64 x = 0, y = 0, at = b.dataStart;
  auto put = [&](qint64 px, unsigned index) {
    if (px < w && y < h)
      reinterpret_cast<QRgb*>(image.scanLine(static_cast<int>(h - 1 - y)))[px] = palette[index];
  };
  auto byte = [&](qint64 i) { return static_cast<unsigned char>(d[i]); };
  while (y < h && at + 2 <= end) {
    const unsigned count = byte(at), value = byte(at + 1);
    at += 2;
    if (count > 0) {  // a run of one value (two alternating ones at 4 bits)
      for (unsigned i = 0; i < count && x < w; ++i, ++x)
        put(x, four ? (i % 2 ? value & 15 : value >> 4) : value);
      continue;
    }
    if (value == 0) {  // end of row
      x = 0;
      ++y;
    } else if (value == 1) {  // end of picture
      break;
    } else if (value == 2) {  // skip right and up, leaving the pixels passed over
      if (at + 2 > end) break;
      x += byte(at);
      y += byte(at + 1);
      at += 2;
    } else {  // value literal pixels, padded to a whole number of 16-bit words
      const qint64 bytes = four ? (value + 1) / 2 : value;
      for (unsigned i = 0; i < value; ++i, ++x) {
        const qint64 src = at + (four ? i / 2 : i);
        if (src >= end) break;
        put(x, four ? (i % 2 ? byte(src) & 15 : byte(src) >> 4) : byte(src));
      }
      at += bytes + (bytes % 2);
    }
  }
  return image;
}

// Rows of an uncompressed bitmap that its data does not hold in full are made black.
void blackenRowsNotGiven(QImage& image, const QByteArray& d, const BmpLayout& b) {
  if (image.width() != b.width || image.height() != b.height) return;
  const qint64 rowBytes = (b.width * b.bits + 31) / 32 * 4;
  const qint64 available = std::max<qint64>(0, d.size() - b.dataStart);
  const qint64 given = std::min(b.height, available / rowBytes);
  for (qint64 row = given; row < b.height; ++row) {
    const int y = static_cast<int>(b.topDown ? row : b.height - 1 - row);
    std::fill_n(reinterpret_cast<QRgb*>(image.scanLine(y)), image.width(), kNotGiven);
  }
}

bool withinLimits(QSize size, PictureLimits limits) {
  return size.width() > 0 && size.height() > 0 && size.width() <= limits.maxSide &&
         size.height() <= limits.maxSide &&
         static_cast<long long>(size.width()) * size.height() <= limits.maxPixels;
}

// A picture with transparency as it shows on a backdrop of one colour.
QImage layOnBackdrop(const QImage& picture, QRgb backdrop) {
  QImage flat(picture.size(), QImage::Format_RGB32);
  if (flat.isNull()) return flat;
  flat.fill(backdrop | 0xFF000000);
  QPainter painter(&flat);
  painter.drawImage(0, 0, picture);
  return flat;
}

}  // namespace

QImage DecodePicture(const QByteArray& data, const QList<QByteArray>& accepted, PictureLimits limits,
                     QRgb backdrop) {
  QByteArray bytes = data;  // QBuffer wants a non-const array; this shares, it does not copy
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  // The content decides, not the name.
  reader.setDecideFormatFromContent(true);
  const QByteArray format = reader.format();
  if (format.isEmpty() || (!accepted.isEmpty() && !accepted.contains(format))) return QImage();
  const QSize claimed = reader.size();
  if (claimed.isValid() && !withinLimits(claimed, limits)) return QImage();
  const std::optional<BmpLayout> bmp = format == "bmp" ? readLayout(data) : std::nullopt;
  QImage picture;
  if (bmp && (bmp->compression == 1 || bmp->compression == 2)) {
    if (!withinLimits(QSize(static_cast<int>(std::min<qint64>(bmp->width, limits.maxSide + 1)),
                            static_cast<int>(std::min<qint64>(bmp->height, limits.maxSide + 1))),
                      limits))
      return QImage();
    picture = decodeRunLength(data, *bmp);
  } else {
    // A decoder that takes the picture it is given fills a cleared one, not recycled memory.
    const QImage::Format kind = reader.imageFormat();
    if (claimed.isValid() && kind != QImage::Format_Invalid) {
      picture = QImage(claimed, kind);
      // Opaque black, so that what a short file leaves unwritten is not taken for transparency.
      if (picture.hasAlphaChannel()) picture.fill(QColor(Qt::black));
      else if (!picture.isNull()) picture.fill(0);
    }
    if (!reader.read(&picture)) return QImage();
  }
  if (picture.isNull() || !withinLimits(picture.size(), limits)) return QImage();
  if (picture.hasAlphaChannel()) picture = layOnBackdrop(picture, backdrop);
  else if (picture.format() != QImage::Format_RGB32) picture = picture.convertToFormat(QImage::Format_RGB32);
  if (picture.isNull()) return picture;
  if (bmp && bmp->compression != 1 && bmp->compression != 2) blackenRowsNotGiven(picture, data, *bmp);
  return picture;
}

}  // namespace qp
