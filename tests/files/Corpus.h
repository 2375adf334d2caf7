#pragma once
// A corpus of broken and hostile picture files, made fresh for each run in a folder of its own:
// truncations of a good bitmap and JPEG at many lengths, flipped bytes, headers that claim huge or
// negative sizes, empty files, a folder, a pipe and a device named like pictures, and a non-ASCII
// name.
#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>

namespace qp::test {

// A bitmap whose header says claimedW x claimedH, with the pixel bytes of a w x h one behind it.
QByteArray bitmapBytes(int w, int h, int claimedW, int claimedH, int bitsPerPixel = 24);
// A small picture with a pattern that tells its pixels apart.
QImage patternPicture(int w, int h);
QByteArray encode(const QImage& picture, const char* format, int quality = -1);

// Writes bytes to a file, replacing what was there.
void writeFile(const QString& path, const QByteArray& bytes);

// A bitmap whose data holds less than its header promises, with the picture a load must give:
// what the data holds, and black where it holds nothing.
struct ShortBitmap {
  QString name;
  QByteArray bytes;
  QImage expected;
};
// Truncated and short bitmaps of every kind a decoder reads: plain rows bottom-up and top-down,
// a palette, run-length data that ends early or skips pixels, a pixel offset past the end, and a
// 1000 x 1000 picture with 256 bytes of pixels.
QList<ShortBitmap> shortBitmaps();

struct Corpus {
  QStringList files;  // every entry to try, by full path (the folder, pipe and device included)
  QString vanishing;  // listed, and deleted by the test before it is loaded
};
// Writes the corpus into folder, which must exist and be empty.
Corpus makeCorpus(const QString& folder);

}  // namespace qp::test
