#include "Corpus.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QtEndian>
#include <limits>
#include <random>
#include <tuple>
#include <sys/stat.h>

namespace qp::test {

namespace {

void put16(QByteArray& b, int at, int v) { qToLittleEndian<qint16>(static_cast<qint16>(v), b.data() + at); }
void put32(QByteArray& b, int at, qint32 v) { qToLittleEndian<qint32>(v, b.data() + at); }

void write(const QString& path, const QByteArray& bytes) {
  QFile f(path);
  if (f.open(QIODevice::WriteOnly)) f.write(bytes);
}

// The offset of a JPEG frame header (SOF0 or SOF2), whose height and width follow at +5 and +7.
int frameHeader(const QByteArray& jpg) {
  for (int i = 2; i + 9 < jpg.size(); ++i)
    if (static_cast<unsigned char>(jpg[i]) == 0xFF &&
        (static_cast<unsigned char>(jpg[i + 1]) == 0xC0 || static_cast<unsigned char>(jpg[i + 1]) == 0xC2))
      return i;
  return -1;
}

}  // namespace

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
  const int row = ((w * 3) + 3) & ~3;
  const int pixels = row * std::abs(h);
  QByteArray b(54 + pixels, '\0');
  b[0] = 'B';
  b[1] = 'M';
  put32(b, 2, 54 + pixels);
  put32(b, 10, 54);
  put32(b, 14, 40);
  put32(b, 18, claimedW);
  put32(b, 22, claimedH);
  put16(b, 26, 1);
  put16(b, 28, bitsPerPixel);
  put32(b, 34, pixels);
  for (int i = 0; i < pixels; ++i) b[54 + i] = static_cast<char>((i * 7) & 0xFF);
  return b;
}

Corpus makeCorpus(const QString& folder) {
  Corpus c;
  c.folder = folder;
  const QDir dir(folder);
  auto add = [&](const QString& name, const QByteArray& bytes) {
    write(dir.filePath(name), bytes);
    c.files << dir.filePath(name);
  };
  const QByteArray bmp = encode(patternPicture(23, 17), "BMP");
  const QByteArray jpg = encode(patternPicture(40, 30), "JPEG", 80);
  const QByteArray progressive = [&] {
    // A second JPEG of another size, so that truncations meet other parts of the stream.
    return encode(patternPicture(9, 64), "JPEG", 20);
  }();

  c.good = dir.filePath("good.bmp");
  write(c.good, bmp);
  c.files << c.good;
  add("good.jpg", jpg);

  // Truncations: every length through the headers, then a step through the pixels.
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
  add("deep.bmp", bitmapBytes(4, 4, 4, 4, 64));
  {
    QByteArray d = bitmapBytes(4, 4, 4, 4);
    put32(d, 10, 0x7FFFFFF0);  // pixels said to start far past the end
    add("far-offset.bmp", d);
    QByteArray pal = bitmapBytes(4, 4, 4, 4, 8);
    put32(pal, 46, 0x40000000);  // a palette of a billion colours
    add("huge-palette.bmp", pal);
  }
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
  add("empty.bmp", QByteArray());
  add("empty.jpg", QByteArray());
  add("text.bmp", QByteArray("this is not a picture\n").repeated(40));
  add("png-inside.bmp", encode(patternPicture(5, 5), "PNG"));
  add("bitmap-inside.jpg", bmp);  // a sound bitmap under a JPEG name still opens
  add(QString::fromUtf8("bild-\u00fcber-\u753b.bmp"), encode(patternPicture(6, 7), "BMP"));
  dir.mkdir("folder.bmp");
  c.files << dir.filePath("folder.bmp");
  const QString pipe = dir.filePath("pipe.bmp");
  if (::mkfifo(QFile::encodeName(pipe).constData(), 0600) == 0) c.files << pipe;
  c.vanishing = dir.filePath("vanishing.bmp");
  write(c.vanishing, bmp);
  c.files << c.vanishing;
  return c;
}

}  // namespace qp::test
