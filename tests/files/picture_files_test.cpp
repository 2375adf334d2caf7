// Reading and writing picture files, and where a save goes.
#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "Corpus.h"
#include "files/PictureFiles.h"
#include "platform/Errors.h"

namespace qp::test {
namespace {

TEST(PictureFiles, BitmapsRoundTripPixelForPixelAndJpegsOpen) {
  QTemporaryDir dir;
  const QImage picture = patternPicture(31, 7);
  SavePicture(picture, dir.filePath("a.bmp"));
  const QImage back = LoadPicture(dir.filePath("a.bmp"));
  EXPECT_EQ(back.format(), QImage::Format_RGB32);  // ready for a surface without a conversion
  EXPECT_EQ(back, picture);
  writeFile(dir.filePath("b.jpg"), encode(picture, "JPEG", 95));
  EXPECT_EQ(LoadPicture(dir.filePath("b.jpg")).size(), picture.size());
  EXPECT_TRUE(LoadPicture("").isNull());  // no name, no picture, no error
}

// Only bitmaps, JPEGs and PNGs are ever decoded, whatever the name says; a header that claims too
// many pixels is refused before any decoding.
TEST(PictureFiles, OtherFormatsAndHugeHeadersAreRefused) {
  QTemporaryDir dir;
  writeFile(dir.filePath("ppm.bmp"), encode(patternPicture(4, 4), "PPM"));
  writeFile(dir.filePath("huge.bmp"), bitmapBytes(4, 4, 60000, 60000));
  for (const char* name : {"ppm.bmp", "huge.bmp"}) EXPECT_FALSE(trap([&] { LoadPicture(dir.filePath(name)); })) << name;
}

// Under the sanitizer fresh memory is filled with a byte no picture here holds, so a pixel that
// no one wrote shows. The backdrop is for see-through pixels only, not for missing ones.
TEST(PictureFiles, WhatAShortBitmapDoesNotGiveIsBlack) {
  QTemporaryDir dir;
  int refused = 0;
  for (const ShortBitmap& c : shortBitmaps()) {
    SCOPED_TRACE(c.name.toStdString());
    writeFile(dir.filePath(c.name), c.bytes);
    QImage got;
    if (!trap([&] { got = LoadPicture(dir.filePath(c.name), 0x3060C0); })) {
      ++refused;
      continue;
    }
    got = got.convertToFormat(QImage::Format_RGB32);
    EXPECT_TRUE(got == c.expected) << std::hex << "top left " << got.pixel(0, 0) << ", bottom left "
                                   << got.pixel(0, got.height() - 1);
  }
  EXPECT_LE(refused, 1);  // the decoders read the short files, they do not refuse them
}

TEST(PictureFiles, ASaveReplacesTheFileWholeAndAFailedOneLeavesIt) {
  QTemporaryDir dir;
  const QString target = dir.filePath("keep.bmp");
  SavePicture(patternPicture(8, 8), target);
  EXPECT_THROW(SavePicture(QImage(), target), RuntimeError);
  EXPECT_EQ(LoadPicture(target), patternPicture(8, 8));
  SavePicture(patternPicture(3, 3), target);
  EXPECT_EQ(LoadPicture(target), patternPicture(3, 3));
  EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList({"keep.bmp"}));  // no temporary left
}

}  // namespace
}  // namespace qp::test
