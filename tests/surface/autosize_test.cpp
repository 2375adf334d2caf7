// AutoSize: a box given a picture takes the picture's size; an empty picture keeps the box's size.
#include "SurfaceFixture.h"

namespace qp::test {
namespace {

class AutoSizeTest : public SurfaceTest {};

TEST_F(AutoSizeTest, APictureGivesTheBoxItsSizeAndAnEmptyOneKeepsIt) {
  PictureBox& b = box(10, 10, 1, 0x0000FF);
  b.AutoSize = true;
  QImage pic(30, 20, QImage::Format_RGB32);
  pic.fill(qRgb(0, 255, 0));
  b.Picture = pic;
  EXPECT_EQ(b.Width.get(), 450);
  EXPECT_EQ(b.Height.get(), 300);
  EXPECT_EQ(b.pixelWidth(), 30);
  EXPECT_EQ(b.ScaleWidth.get(), 450);  // the scale follows the new size
  EXPECT_EQ(px(b, 29, 19), 0x00FF00);
  b.Picture = QImage();
  EXPECT_EQ(b.pixelWidth(), 30);
  EXPECT_EQ(px(b, 29, 19), 0x0000FF);  // the back colour shows
  // A picture of another format is converted onto the surface at its size too.
  QImage indexed = pic.convertToFormat(QImage::Format_Indexed8);
  indexed = indexed.copy(0, 0, 5, 4);
  b.Picture = indexed;
  EXPECT_EQ(b.pixelWidth(), 5);
  EXPECT_EQ(px(b, 4, 3), 0x00FF00);
  // A picture as wide as the box but taller still gives the box its height.
  b.Picture = pic.copy(0, 0, 5, 9);
  EXPECT_EQ(b.pixelHeight(), 9);
  EXPECT_EQ(px(b, 4, 8), 0x00FF00);
}

TEST_F(AutoSizeTest, WithoutAutoSizeTheBoxKeepsItsSizeAndAnOversizedPictureIsRefused) {
  PictureBox& plain = box(10, 10, 3);
  QImage pic(30, 20, QImage::Format_RGB32);
  pic.fill(Qt::white);
  plain.Picture = pic;
  EXPECT_EQ(plain.pixelWidth(), 10);

  PictureBox& sized = box(10, 10, 3);
  sized.AutoSize = true;
  QImage tooWide(20000, 1, QImage::Format_RGB32);
  EXPECT_THROW(sized.Picture = tooWide, RuntimeError);
  EXPECT_EQ(sized.pixelWidth(), 10);
  EXPECT_TRUE(sized.Picture.isNull());  // refused before anything changed
}

}  // namespace
}  // namespace qp::test
