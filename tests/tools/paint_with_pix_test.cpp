// Paint w/Pix: Collage Mode and Transparent Mode.
#include <QDir>
#include <QTemporaryDir>

#include "tools/ToolFixture.h"
#include "tools/PaintWithPix.h"

namespace qp::test {
namespace {

constexpr Colour kKey = 0x00FF00;

class TransparentModeTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    // A brush of 4 x 4: the key colour in its left half, a colour one step from the key at the top
    // right, red below it.
    QImage brush(4, 4, QImage::Format_RGB32);
    for (int y = 0; y < 4; ++y)
      for (int x = 0; x < 4; ++x) brush.setPixel(x, y, x < 2 ? qRgb(0, 255, 0) : y < 2 ? qRgb(0, 254, 0) : qRgb(255, 0, 0));
    m().TransparentClr = kKey;
    m().TransparencyDone = -1;
    f().pT1.Move(f().pT1.Left, f().pT1.Top, 60, 60);
    f().pT1.Picture = brush;
    choose(f().mBluScrn);
    program->w.blue.Unload();  // straight back to the canvas with the brush
    f().pPix.Picture = QImage();
    f().pPix.Cls();
  }
  void pressPix(Single x, Single y) { f().pPix.raiseMouseDown(vbLeftButton, 0, x, y); }
  void movePix(Single x, Single y) { f().pPix.raiseMouseMove(vbLeftButton, 0, x, y); }
  void releasePix(Single x, Single y, int button = vbLeftButton) { f().pPix.raiseMouseUp(button, 0, x, y); }
  int stampedAt(int x, int y) { return GetPixel(f().pPix, x, y) == 0x0000FF ? 1 : 0; }
};

TEST_F(TransparentModeTest, TheKeyColourIsLeftOutExactlyAndOnlyIt) {
  ASSERT_EQ(m().PaintMode, 26);
  const Colour ground = GetPixel(f().pPix, 0, 0);
  pressPix(100, 80);
  releasePix(100, 80);
  // The stamp stands off the pointer by an eighth of the surface.
  const int x0 = m().PixDrawX, y0 = m().PixDrawY;
  EXPECT_EQ(x0, static_cast<int>(CLng(100 - f().pPix.Width.get() / 15 / 8)));
  EXPECT_EQ(y0, static_cast<int>(CLng(80 - f().pPix.Height.get() / 15 / 8)));
  EXPECT_EQ(GetPixel(f().pPix, x0, y0), ground);          // key: the canvas shows through
  EXPECT_EQ(GetPixel(f().pPix, x0 + 1, y0 + 3), ground);
  EXPECT_EQ(GetPixel(f().pPix, x0 + 2, y0), 0x00FE00);    // one step off the key: painted
  EXPECT_EQ(GetPixel(f().pPix, x0 + 3, y0 + 3), 0x0000FF);
  EXPECT_EQ(GetPixel(f().pPix, x0 + 4, y0 + 3), ground);  // nothing past the picture
  releasePix(0, 0, vbRightButton);                         // undo
  EXPECT_EQ(GetPixel(f().pPix, x0 + 3, y0 + 3), ground);
}

TEST_F(TransparentModeTest, OnePressStampsOnceUnlessTheBoxAsksForTheTimer) {
  struct Case { int box; int stamps; };
  for (const Case c : {Case{0, 1}, Case{1, 3}}) {
    f().pPix.Cls();
    f().ckVal2.Value = c.box;
    pressPix(100, 100);
    headless.loop.advance(f().tPix.Interval * 1);
    movePix(110, 100);  // the pointer moves: the timer's next stamp goes there
    headless.loop.advance(f().tPix.Interval * 1);
    movePix(120, 100);
    headless.loop.advance(f().tPix.Interval * 1);
    releasePix(120, 100);
    const int offX = m().PixDrawX - 120, offY = m().PixDrawY - 100;
    int stamps = 0;
    for (int x : {100, 110, 120}) stamps += stampedAt(x + offX + 3, 100 + offY + 3);
    EXPECT_EQ(stamps, c.stamps) << "box " << c.box;
    EXPECT_FALSE(f().tPix.Enabled);
  }
}

TEST_F(TransparentModeTest, AnEmptyBrushPaintsNothing) {
  f().pT1.Picture = QImage();
  const QImage before = f().pPix.Image;
  pressPix(100, 100);
  releasePix(100, 100);
  EXPECT_EQ(f().pPix.Image.get(), before);
}

class CollageTest : public ToolTest {
 protected:
  void SetUp() override {
    ToolTest::SetUp();
    ASSERT_TRUE(dir.isValid());
    QImage picture(2, 1, QImage::Format_RGB32);
    picture.setPixel(0, 0, qRgb(255, 0, 0));
    picture.setPixel(1, 0, qRgb(0, 0, 255));
    picture.save(dir.filePath("two.bmp"), "BMP");
    QFile broken(dir.filePath("broken.bmp"));
    broken.open(QIODevice::WriteOnly);
    broken.write("BM not a picture");
    choose(f().mPwp);
    f().Dir1.Path = dir.path();
    f().File1.Pattern = "*.bmp";
  }
  void pick(const QString& name) {
    f().File1.ListIndex = static_cast<int>(f().File1.items().indexOf(name));
    f().File1.raiseMouseDown(vbLeftButton, 0, 0, 0);
    f().cPic.raiseClick();
  }
  QTemporaryDir dir;
};

TEST_F(CollageTest, EachDragStretchesThePictureIntoItsRectangle) {
  const Colour ground = pixel(30, 30);
  drag(10, 10, 50, 50);  // no picture yet
  EXPECT_EQ(pixel(30, 30), ground);
  pick("broken.bmp");    // nothing to paint with
  EXPECT_FALSE(f().cCan.Enabled);

  pick("two.bmp");
  drag(60, 40, 20, 30);  // a thin rectangle, dragged backwards
  EXPECT_EQ(pixel(20, 30), 0x0000FF);
  EXPECT_EQ(pixel(39, 39), 0x0000FF);
  EXPECT_EQ(pixel(40, 30), 0xFF0000);
  EXPECT_EQ(pixel(59, 39), 0xFF0000);
  EXPECT_EQ(pixel(60, 30), ground);
}

}  // namespace
}  // namespace qp::test
