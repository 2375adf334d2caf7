// Paint w/Pix: Collage Mode and Transparent Mode.
#include <QTemporaryDir>

#include "tools/ToolFixture.h"
#include "tools/PaintWithPix.h"

namespace qp::test {
namespace {

constexpr Colour kKey = 0x00FF00;

class TransparentModeTest : public ToolTest {
 protected:
  void SetUp() override {
    ToolTest::SetUp();
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
  int stampedAt(int x, int y) { return GetPixel(f().pPix, x, y) == 0x0000FF ? 1 : 0; }
};

TEST_F(TransparentModeTest, TheKeyColourIsLeftOutExactlyAndOnlyIt) {
  ASSERT_EQ(m().PaintMode, 26);
  const Colour ground = GetPixel(f().pPix, 0, 0);
  pixPress(100, 80);
  pixRelease(100, 80);
  const int x0 = m().PixDrawX, y0 = m().PixDrawY;  // an eighth of the surface off the pointer
  EXPECT_EQ(std::pair(x0, y0), std::pair(static_cast<int>(CLng(100 - f().pPix.Width.get() / 15 / 8)),
                                         static_cast<int>(CLng(80 - f().pPix.Height.get() / 15 / 8))));
  // The key lets the canvas through, a colour one step off it is painted, nothing past the picture.
  expectPixels({{x0, y0, ground}, {x0 + 1, y0 + 3, ground}, {x0 + 2, y0, 0x00FE00}, {x0 + 3, y0 + 3, 0x0000FF},
                {x0 + 4, y0 + 3, ground}}, &f().pPix);
  pixRelease(0, 0, vbRightButton);  // undo
  EXPECT_EQ(GetPixel(f().pPix, x0 + 3, y0 + 3), ground);
}

TEST_F(TransparentModeTest, OnePressStampsOnceUnlessTheBoxAsksForTheTimer) {
  struct Case { int box; int stamps; };
  for (const Case c : {Case{0, 1}, Case{1, 3}}) {
    f().pPix.Cls();
    f().ckVal2.Value = c.box;
    pixPress(100, 100);
    headless.loop.advance(f().tPix.Interval * 1);
    pixMove(110, 100);  // the pointer moves: the timer's next stamp goes there
    headless.loop.advance(f().tPix.Interval * 1);
    pixMove(120, 100);
    headless.loop.advance(f().tPix.Interval * 1);
    pixRelease(120, 100);
    const int offX = m().PixDrawX - 120, offY = m().PixDrawY - 100;
    int stamps = 0;
    for (int x : {100, 110, 120}) stamps += stampedAt(x + offX + 3, 100 + offY + 3);
    EXPECT_EQ(stamps, c.stamps) << "box " << c.box;
    EXPECT_FALSE(f().tPix.Enabled);
  }
}

TEST_F(ToolTest, CollageStretchesThePictureIntoEachDraggedRectangle) {
  QTemporaryDir dir;
  QImage picture(2, 1, QImage::Format_RGB32);
  picture.setPixel(0, 0, qRgb(255, 0, 0));
  picture.setPixel(1, 0, qRgb(0, 0, 255));
  picture.save(dir.filePath("two.bmp"), "BMP");
  QFile broken(dir.filePath("broken.bmp"));
  broken.open(QIODevice::WriteOnly);
  broken.write("BM not a picture");
  broken.close();
  choose(f().mPwp);
  f().Dir1.Path = dir.path();
  f().File1.Pattern = "*.bmp";
  auto pick = [&](const QString& name) {
    f().File1.ListIndex = static_cast<int>(f().File1.items().indexOf(name));
    f().File1.raiseMouseDown(vbLeftButton, 0, 0, 0);
    f().cPic.raiseClick();
  };
  const Colour ground = pixel(60, 30);
  drag(10, 10, 50, 50);  // no picture yet
  EXPECT_EQ(pixel(30, 30), ground);
  pick("broken.bmp");  // nothing to paint with
  EXPECT_FALSE(f().cCan.Enabled);
  pick("two.bmp");
  drag(60, 40, 20, 30);  // a thin rectangle, dragged backwards
  expectPixels({{20, 30, 0x0000FF}, {39, 39, 0x0000FF}, {40, 30, 0xFF0000}, {59, 39, 0xFF0000}, {60, 30, ground}});
}

}  // namespace
}  // namespace qp::test
