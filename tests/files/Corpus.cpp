#include "Corpus.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QtEndian>
#include <limits>
#include <random>
#include <tuple>
#include <sys/stat.h>

namespace qp::test {

namespace {

void put16(QByteArray& b, int at, int v) { qToLittleEndian<qint16>(static_cast<qint16>(v), b.data() + at); }
void put32(QByteArray& b, int at, qint32 v) { qToLittleEndian<qint32>(v, b.data() + at); }

// The offset of a JPEG frame header (SOF0 or SOF2), whose height and width follow at +5 and +7.
int frameHeader(const QByteArray& jpg) {
  for (int i = 2; i + 9 < jpg.size(); ++i)
    if (static_cast<unsigned char>(jpg[i]) == 0xFF &&
        (static_cast<unsigned char>(jpg[i + 1]) == 0xC0 || static_cast<unsigned char>(jpg[i + 1]) == 0xC2))
      return i;
  return -1;
}

// A bitmap file: a 40-byte header, a palette for 8 bits or fewer, then the given pixel bytes.
QByteArray bitmapFile(int w, int h, int bits, int compression, const QByteArray& pixels,
                      qint32 offset = -1) {
  const int colours = bits <= 8 ? 1 << bits : 0;
  const int start = 54 + colours * 4;
  QByteArray b(start, '\0');
  b[0] = 'B';
  b[1] = 'M';
  put32(b, 2, start + static_cast<qint32>(pixels.size()));
  put32(b, 10, offset < 0 ? start : offset);
  put32(b, 14, 40);
  put32(b, 18, w);
  put32(b, 22, h);
  put16(b, 26, 1);
  put16(b, 28, bits);
  put32(b, 30, compression);
  // Palette: 0 blue (so that a missing pixel shown as index 0 is told from black), 1 white.
  if (colours > 0) {
    put32(b, 54, 0x0000FF);
    put32(b, 58, 0xFFFFFF);
  }
  return b + pixels;
}

// The expected picture: black, with white rectangles where the data gives pixels.
QImage blackWith(int w, int h, std::initializer_list<QRect> white) {
  QImage img(w, h, QImage::Format_RGB32);
  img.fill(Qt::black);
  QPainter p(&img);
  for (const QRect& r : white) p.fillRect(r, Qt::white);
  return img;
}

}  // namespace

void writeFile(const QString& path, const QByteArray& bytes) {
  QFile f(path);
  if (f.open(QIODevice::WriteOnly)) f.write(bytes);
}

QList<ShortBitmap> shortBitmaps() {
  QList<ShortBitmap> list;
  const int w = 40, h = 30;
  const QByteArray whiteRows24 = QByteArray(w * 3 * 10 + 50, '\xFF');  // ten rows and part of one
  list.append({"short-1000.bmp", bitmapFile(1000, 1000, 24, 0, QByteArray(256, '\xFF')),
               blackWith(1000, 1000, {})});
  list.append({"cut-rows.bmp", bitmapFile(w, h, 24, 0, whiteRows24), blackWith(w, h, {QRect(0, 20, w, 10)})});
  list.append({"cut-top-down.bmp", bitmapFile(w, -h, 24, 0, whiteRows24), blackWith(w, h, {QRect(0, 0, w, 10)})});
  list.append({"cut-palette.bmp", bitmapFile(w, h, 8, 0, QByteArray(w * 10 + 7, '\x01')),
               blackWith(w, h, {QRect(0, 20, w, 10)})});
  list.append({"far-offset-100.bmp", bitmapFile(100, 100, 24, 0, QByteArray(3000, '\xFF'), 0x10000000),
               blackWith(100, 100, {})});
  QByteArray early8;  // five rows of forty white pixels, then the data stops
  for (int i = 0; i < 5; ++i) early8 += QByteArray("\x28\x01\x00\x00", 4);
  list.append({"rle8-early.bmp", bitmapFile(w, h, 8, 1, early8), blackWith(w, h, {QRect(0, 25, w, 5)})});
  // Ten white, a skip of twenty to the right and two rows up, ten white, the end of the picture.
  const QByteArray skip8("\x0A\x01\x00\x02\x14\x02\x0A\x01\x00\x01", 10);
  list.append({"rle8-skip.bmp", bitmapFile(w, h, 8, 1, skip8),
               blackWith(w, h, {QRect(0, 29, 10, 1), QRect(30, 27, 10, 1)})});
  QByteArray early4;  // three rows at four bits a pixel, then the data stops
  for (int i = 0; i < 3; ++i) early4 += QByteArray("\x28\x11\x00\x00", 4);
  list.append({"rle4-early.bmp", bitmapFile(w, h, 4, 2, early4), blackWith(w, h, {QRect(0, 27, w, 3)})});
  return list;
}

QImage patternPicture(int w, int h) {
  QImage img(w, h, QImage::Format_RGB32);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) img.setPixel(x, y, qRgb((x * 37) & 255, (y * 53) & 255, ((x + y) * 11) & 255));
  return img;
}

QByteArray encode(const QImage& picture, const char* format, int quality) {
  QByteArray out;
  QBuffer buf(&out);
  buf.open(QIODevice::WriteOnly);
  picture.save(&buf, format, quality);
  return out;
}

QByteArray bitmapBytes(int w, int h, int claimedW, int claimedH, int bitsPerPixel) {
  QByteArray pixels((((w * 3) + 3) & ~3) * std::abs(h), '\0');
  for (int i = 0; i < pixels.size(); ++i) pixels[i] = static_cast<char>((i * 7) & 0xFF);
  return bitmapFile(claimedW, claimedH, bitsPerPixel, 0, pixels);
}

Corpus makeCorpus(const QString& folder) {
  Corpus c;
  const QDir dir(folder);
  auto add = [&](const QString& name, const QByteArray& bytes) {
    writeFile(dir.filePath(name), bytes);
    c.files << dir.filePath(name);
  };
  const QByteArray bmp = encode(patternPicture(23, 17), "BMP");
  const QByteArray jpg = encode(patternPicture(40, 30), "JPEG", 80);
  // A second JPEG of another size, so that truncations meet other parts of the stream.
  const QByteArray progressive = encode(patternPicture(9, 64), "JPEG", 20);

  add("good.bmp", bmp);
  add("good.jpg", jpg);

  // Truncations: every length through the headers (from none at all), then a step through the pixels.
  for (const auto& [stem, data, ext] : {std::tuple{"bmp", bmp, ".bmp"}, std::tuple{"jpg", jpg, ".jpg"},
                                        std::tuple{"small", progressive, ".jpg"}}) {
    const int n = static_cast<int>(data.size());
    for (int len = 0; len < n; len += len < 80 ? 1 : 37)
      add(QString("cut-%1-%2%3").arg(stem).arg(len, 5, 10, QChar('0')).arg(ext), data.left(len));
  }
  // Flipped bytes at positions chosen by a fixed seed, one per file, and a burst of noise.
  std::mt19937 rng(20240611);
  for (const auto& [stem, data, ext] : {std::tuple{"bmp", bmp, ".bmp"}, std::tuple{"jpg", jpg, ".jpg"}}) {
    for (int i = 0; i < 60; ++i) {
      QByteArray d = data;
      const int at = i < 30 ? i * 2 : static_cast<int>(rng() % static_cast<unsigned>(d.size()));
      d[at] = static_cast<char>(d[at] ^ static_cast<char>(1 << (rng() % 8)));
      add(QString("flip-%1-%2%3").arg(stem).arg(i, 3, 10, QChar('0')).arg(ext), d);
    }
    QByteArray noisy = data;
    for (int i = 20; i < noisy.size(); i += 3) noisy[i] = static_cast<char>(rng());
    add(QString("noise-%1%2").arg(stem).arg(ext), noisy);
  }
  // Headers that lie about the size.
  add("huge.bmp", bitmapBytes(4, 4, 60000, 60000));
  add("wide.bmp", bitmapBytes(4, 4, 60000, 1));
  add("negative-width.bmp", bitmapBytes(4, 4, -4, 4));
  add("negative-height.bmp", bitmapBytes(4, 4, 4, -4));  // top-down: a sound picture
  add("most-negative.bmp", bitmapBytes(4, 4, 4, std::numeric_limits<qint32>::min()));
  add("zero-width.bmp", bitmapBytes(4, 4, 0, 4));
  add("odd-depth.bmp", bitmapBytes(4, 4, 4, 4, 13));
  QByteArray pal = bitmapBytes(4, 4, 4, 4, 8);
  put32(pal, 46, 0x40000000);  // a palette of a billion colours
  add("huge-palette.bmp", pal);
  for (const auto& [name, w, h] : {std::tuple{"huge.jpg", 60000, 60000}, std::tuple{"zero.jpg", 0, 0},
                                   std::tuple{"tall.jpg", 1, 65535}}) {
    QByteArray d = jpg;
    const int sof = frameHeader(d);
    if (sof >= 0) {
      qToBigEndian<quint16>(static_cast<quint16>(h), d.data() + sof + 5);
      qToBigEndian<quint16>(static_cast<quint16>(w), d.data() + sof + 7);
    }
    add(name, d);
  }
  // Names and kinds that are not what they say.
  add("png-inside.bmp", encode(patternPicture(5, 5), "PNG"));
  add("bitmap-inside.jpg", bmp);  // a sound bitmap under a JPEG name still opens
  add(QString::fromUtf8("bild-\u00fcber-\u753b.bmp"), encode(patternPicture(6, 7), "BMP"));
  dir.mkdir("folder.bmp");
  c.files << dir.filePath("folder.bmp");
  const QString pipe = dir.filePath("pipe.bmp");
  if (::mkfifo(QFile::encodeName(pipe).constData(), 0600) == 0) c.files << pipe;
  if (QFile::link("/dev/zero", dir.filePath("zero.bmp"))) c.files << dir.filePath("zero.bmp");
  for (const ShortBitmap& b : shortBitmaps()) add(b.name, b.bytes);
  c.vanishing = dir.filePath("vanishing.bmp");
  writeFile(c.vanishing, bmp);
  c.files << c.vanishing;
  return c;
}

}  // namespace qp::test
