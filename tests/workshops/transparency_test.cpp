// The Transparency Tool: its picture functions alone, then the window driven through its controls.
#include <QClipboard>
#include <QGuiApplication>

#include "platform/qt/QtRuntime.h"
#include "support/ProgramFixture.h"
#include "surface/Device.h"
#include "workshops/Transparency.h"

namespace qp::test {
namespace {

QImage gradient(int w, int h) {
  QImage img(w, h, QImage::Format_RGB32);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) img.setPixel(x, y, qRgb(x * 7 % 256, y * 5 % 256, 9));
  return img;
}

// Zooming and cutting inside the picture are checked through the window; here, their edges.
TEST(TransparencyPictures, ATooBigZoomIsRefusedAndACutPastTheEdgeTakesTheFillColour) {
  EXPECT_TRUE(ZoomPicture(QImage(9000, 9000, QImage::Format_RGB32), 2).isNull());
  const QImage pic = gradient(6, 6);
  const QImage cut = CutRectangle(pic, QRect(4, -1, 4, 3), 0x0000FF);
  ASSERT_EQ(cut.size(), QSize(4, 3));
  EXPECT_EQ(cut.pixel(1, 2), pic.pixel(5, 1));
  EXPECT_EQ(cut.pixel(2, 1) & 0xFFFFFF, 0xFF0000u);  // right of the picture
  EXPECT_EQ(cut.pixel(0, 0) & 0xFFFFFF, 0xFF0000u);  // above it
}

class TransparencyToolTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    choose(f().mBluScrn);
    headless.clipboard.SetData(gradient(40, 30));
    b().mPaste.raiseClick();
  }
  frmBlue& b() { return program->w.blue; }
  void down(Single x, Single y, int shift = 0) { b().pBlu.raiseMouseDown(vbLeftButton, shift, x * 15, y * 15); }
  void drag(Single x, Single y, int shift = 0) { b().pBlu.raiseMouseMove(vbLeftButton, shift, x * 15, y * 15); }
  void up(Single x, Single y, int shift = 0, int button = vbLeftButton) { b().pBlu.raiseMouseUp(button, shift, x * 15, y * 15); }
  Colour at(int x, int y) { return GetPixel(b().pBlu, x, y); }
  void select(int x0, int y0, int x1, int y1) {
    if (b().SelectMode == 0) b().mSelect.raiseClick();
    down(x0, y0);
    drag(x1, y1);
    up(x1, y1);
  }
};

TEST_F(TransparencyToolTest, TheEraserPaintsTheKeyColourAndRightClickUndoesToThePress) {
  b().lWht.raiseClick();
  EXPECT_EQ(m().TransparentClr, 0xFFFFFF);
  EXPECT_EQ(b().lColor.Caption.get(), "Transparent Color : White");
  b().vRase.Value = 300;  // 20 pixels
  const Colour untouched = at(35, 25), original = at(1, 1);
  down(10, 10);
  EXPECT_EQ(at(1, 1), 0xFFFFFF);
  EXPECT_EQ(at(19, 19), 0xFFFFFF);
  drag(25, 10);
  EXPECT_EQ(at(34, 1), 0xFFFFFF);
  EXPECT_EQ(at(35, 25), untouched);
  up(25, 10);
  up(25, 10, 0, vbRightButton);
  EXPECT_EQ(at(1, 1), original);
  EXPECT_NE(at(34, 1), 0xFFFFFF);
}

TEST_F(TransparencyToolTest, CtrlSamplesOnPressAndTakesTheColourOnRelease) {
  const Colour picked = GetPixel(b().pBlu, 20, 10);
  down(20, 10, vbCtrlMask);
  EXPECT_EQ(b().lColor.BackColor.get(), picked);
  EXPECT_EQ(m().TransparentClr, 0);
  up(20, 10, vbCtrlMask);
  EXPECT_EQ(m().TransparentClr, picked);
  EXPECT_EQ(b().lColor.Caption.get(), "Transparent Color Selected - Draw Selection Now");
  EXPECT_EQ(at(20, 10), picked);  // a pick does not erase
}

TEST_F(TransparencyToolTest, DoneHandsTheLastSelectionAndItsKeyToTheCanvas) {
  b().mDun.Click();  // with nothing selected Done changes nothing
  EXPECT_TRUE(b().Visible);
  b().lBlu.raiseClick();
  select(5, 4, 25, 14);
  ASSERT_TRUE(b().DShp.Visible && b().tSel.Enabled);
  up(25, 14, 0, vbRightButton);  // a right click takes the selection away
  EXPECT_FALSE(b().DShp.Visible || b().tSel.Enabled);
  select(5, 4, 25, 14);
  const Colour corner = at(5, 4);
  b().mDun.raiseClick();
  EXPECT_TRUE(!b().Visible && f().Visible && m().PaintMode == 26);  // back to the canvas, stamping
  EXPECT_EQ(m().TransparentClr, 0xFF0000);
  EXPECT_EQ(f().pT1.Picture.get().size(), QSize(20, 10));
  EXPECT_EQ(GetPixel(f().pT1, 0, 0), corner);
  // The window comes back with its last picture, and Load Previous brings it too.
  choose(f().mBluScrn);
  EXPECT_EQ(b().pBlu.Width.get(), 600);
  EXPECT_EQ(at(5, 4), corner);
  headless.clipboard.SetData(gradient(8, 8));
  b().mPaste.raiseClick();
  EXPECT_EQ(b().pBlu.Width.get(), 120);
  b().mPrev.raiseClick();
  EXPECT_EQ(at(5, 4), corner);
}

TEST_F(TransparencyToolTest, ZoomTriplesAndNormalBringsTheWorkBack) {
  b().mZoom3.raiseClick();
  EXPECT_EQ(b().pZoom.Width.get(), 1800);
  b().lBlk.raiseClick();
  b().vRase.Value = 120;  // 8 pixels of the zoomed picture
  b().pZoom.raiseMouseDown(vbLeftButton, 0, 60 * 15, 60 * 15);
  b().pZoom.raiseMouseUp(vbLeftButton, 0, 60 * 15, 60 * 15);
  b().mZoom1.raiseClick();
  EXPECT_EQ(at(19, 19), 0x000000);
  EXPECT_NE(at(5, 5), 0x000000);
}

// The real system clipboard: a picture copied here is there for another program, and one put
// there by another program pastes here.
TEST(SystemClipboard, PicturesGoBothWays) {
  HeadlessRuntime h;
  QtClipboard system;
  Runtime rt{h.loop, h.rnd, h.msgbox, system, h.screen};
  Program p(rt);
  p.start();
  const QImage pic = gradient(30, 20);
  p.f.mSelCpy.raiseClick();
  p.f.PicPaint.Picture = pic;
  p.f.PicPaint.raiseMouseDown(vbLeftButton, 0, 0, 0);
  p.f.PicPaint.raiseMouseMove(vbLeftButton, 0, 300, 225);
  p.f.PicPaint.raiseMouseUp(vbLeftButton, 0, 300, 225);
  p.f.mCpySel.raiseClick();
  const QImage there = QGuiApplication::clipboard()->image();
  ASSERT_EQ(there.size(), QSize(20, 15));
  EXPECT_EQ(there.pixel(19, 14) & 0xFFFFFF, pic.pixel(19, 14) & 0xFFFFFF);

  QImage other(7, 5, QImage::Format_ARGB32);
  other.fill(qRgb(1, 2, 3));
  QGuiApplication::clipboard()->setImage(other);
  p.f.mnuPaste.raiseClick();
  ASSERT_TRUE(p.f.pTemp.Visible);
  EXPECT_EQ(GetPixel(p.f.pTemp, 6, 4), RGB(1, 2, 3));
}

}  // namespace
}  // namespace qp::test
