// Reading and writing picture files, and where a save goes.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

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

  QFile jpg(dir.filePath("b.jpg"));
  ASSERT_TRUE(jpg.open(QIODevice::WriteOnly));
  jpg.write(encode(picture, "JPEG", 95));
  jpg.close();
  EXPECT_EQ(LoadPicture(dir.filePath("b.jpg")).size(), picture.size());
  EXPECT_TRUE(LoadPicture("").isNull());  // no name, no picture, no error
}

TEST(PictureFiles, FailuresRaiseTheLoadErrorsTheHandlersTrap) {
  QTemporaryDir dir;
  EXPECT_EQ(errorOf(dir.filePath("missing.bmp")), RuntimeError::FileNotFound);
  QDir(dir.path()).mkdir("folder.bmp");
  EXPECT_EQ(errorOf(dir.filePath("folder.bmp")), RuntimeError::InvalidPicture);
  QFile ppm(dir.filePath("ppm.bmp"));
  ASSERT_TRUE(ppm.open(QIODevice::WriteOnly));
  ppm.write(encode(patternPicture(4, 4), "PPM"));  // only bitmaps, JPEGs and PNGs are ever decoded
  ppm.close();
  EXPECT_EQ(errorOf(dir.filePath("ppm.bmp")), RuntimeError::InvalidPicture);
  QFile huge(dir.filePath("huge.bmp"));
  ASSERT_TRUE(huge.open(QIODevice::WriteOnly));
  huge.write(bitmapBytes(4, 4, 60000, 60000));  // refused from its header, before any decoding
  huge.close();
  EXPECT_EQ(errorOf(dir.filePath("huge.bmp")), RuntimeError::InvalidPicture);
}

TEST(PictureFiles, AFailedSaveLeavesTheOldFileAsItWas) {
  QTemporaryDir dir;
  const QString target = dir.filePath("keep.bmp");
  SavePicture(patternPicture(8, 8), target);
  QFile f(target);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  const QByteArray before = f.readAll();
  f.close();
  // A target whose folder is a file cannot be written; nor can an empty picture.
  QFile blocker(dir.filePath("not-a-folder"));
  ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
  blocker.close();
  EXPECT_THROW(SavePicture(patternPicture(8, 8), dir.filePath("not-a-folder/x.bmp")), RuntimeError);
  EXPECT_THROW(SavePicture(QImage(), target), RuntimeError);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  EXPECT_EQ(f.readAll(), before);
  // Saving over it replaces it whole, without a leftover temporary file beside it.
  SavePicture(patternPicture(3, 3), target);
  EXPECT_EQ(LoadPicture(target).size(), QSize(3, 3));
  EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 2);
}

// The usual names go through the file window in its own tests; these are the edges.
TEST(SavePathRules, OnlyJpgIsRefusedAndTheRootGetsNoSecondSeparator) {
  EXPECT_EQ(ComposeSavePath("/pics", "sky.jpeg").path, "/pics/sky.jpeg.bmp");
  EXPECT_FALSE(ComposeSavePath("/pics", "sky.jpeg").refused);
  EXPECT_TRUE(ComposeSavePath("/pics", "SKY.JPG").refused);
  EXPECT_EQ(ComposeSavePath("/", "a").path, "/a.bmp");
  EXPECT_EQ(ComposeSavePath("/pics/", "a").path, "/pics/a.bmp");
}

}  // namespace
}  // namespace qp::test
