// Reading and writing picture files, and where a save goes.
#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <utility>

#include "Corpus.h"
#include "files/PictureFiles.h"
#include "files/SavePath.h"
#include "platform/Errors.h"

namespace qp::test {
namespace {

int errorOf(const QString& path) {
  try {
    LoadPicture(path);
  } catch (const RuntimeError& e) {
    return e.code();
  }
  return 0;
}

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

TEST(PictureFiles, FailuresRaiseTheLoadErrorsTheHandlersTrap) {
  QTemporaryDir dir;
  QDir(dir.path()).mkdir("folder.bmp");
  // Only bitmaps, JPEGs and PNGs are ever decoded, whatever the name says.
  writeFile(dir.filePath("ppm.bmp"), encode(patternPicture(4, 4), "PPM"));
  // Refused from its header, before any decoding.
  writeFile(dir.filePath("huge.bmp"), bitmapBytes(4, 4, 60000, 60000));
  const std::pair<const char*, int> cases[] = {{"missing.bmp", RuntimeError::FileNotFound},
                                               {"folder.bmp", RuntimeError::InvalidPicture},
                                               {"ppm.bmp", RuntimeError::InvalidPicture},
                                               {"huge.bmp", RuntimeError::InvalidPicture}};
  for (const auto& [name, code] : cases) EXPECT_EQ(errorOf(dir.filePath(name)), code) << name;
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

// The usual names go through the file window in its own tests; these are the edges.
TEST(SavePathRules, TheRootAndATrailingSeparatorGetNoSecondOne) {
  EXPECT_EQ(ComposeSavePath("/", "a").path, "/a.bmp");
  EXPECT_EQ(ComposeSavePath("/pics/", "a").path, "/pics/a.bmp");
}

}  // namespace
}  // namespace qp::test
