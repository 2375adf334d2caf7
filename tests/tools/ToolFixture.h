#pragma once
// A paint mode chosen from its menu in Standard colour mode, on a black square canvas, with ways
// to count and find what a stroke painted.
#include <cmath>

#include "support/ProgramFixture.h"
#include "surface/Device.h"
#include "ui/frmCanvas.h"

namespace qp::test {

constexpr Colour kGray = 0x808080;  // the back colour at start
constexpr Colour kBlue = 0xFF0000;  // the third colour at start

// Pixels of a surface in the colour c.
inline int countColour(const PictureBox& p, Colour c) {
  const QImage& img = p.bitmap();
  int n = 0;
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x) n += GetPixel(p, x, y) == c;
  return n;
}

// The pixels of a surface off its background: how many, the box around them, and how near and how
// far their centres lie from a point, in pixels.
struct Ink {
  int lit = 0;
  QRect box;
  double nearest = 1e9, farthest = 0;
};
inline Ink inkOf(const PictureBox& p, QPointF from = {}, Colour background = 0) {
  const QImage& img = p.bitmap();
  Ink ink;
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x) {
      if (GetPixel(p, x, y) == background) continue;
      ++ink.lit;
      ink.box |= QRect(x, y, 1, 1);
      const double d = std::hypot(x + 0.5 - from.x(), y + 0.5 - from.y());
      ink.nearest = std::min(ink.nearest, d);
      ink.farthest = std::max(ink.farthest, d);
    }
  return ink;
}

class ToolTest : public ProgramTest {
 protected:
  // The session starts on the pixel surface; leave it, so that the paint area holds the canvas.
  void SetUp() override {
    ProgramTest::SetUp();
    choose(f().mPencil);
  }
  // A square canvas makes the mirrors' stretched scale equal to twips.
  void enter(Menu& item, int side = 600) {
    QImage black(side, side, QImage::Format_RGB32);
    black.fill(Qt::black);
    f().PicPaint.Picture = black;
    choose(item);
    f().vColmode.Value = 0;
  }
  int count(Colour c) { return countColour(f().PicPaint, c); }
  // A drag on the canvas between two pixel positions.
  void drag(int x0, int y0, int x1, int y1) { stroke({{x0 * 15.0f, y0 * 15.0f}, {x1 * 15.0f, y1 * 15.0f}}); }
  // A stroke through the given points, on the canvas in twips unless another surface is named.
  void stroke(std::initializer_list<QPointF> points, PictureBox* on = nullptr) {
    PictureBox& box = on ? *on : f().PicPaint;
    const QPointF* last = nullptr;
    for (const QPointF& p : points) {
      if (!last) box.raiseMouseDown(vbLeftButton, 0, p.x(), p.y());
      else box.raiseMouseMove(vbLeftButton, 0, p.x(), p.y());
      last = &p;
    }
    box.raiseMouseUp(vbLeftButton, 0, last->x(), last->y());
  }
  struct Probe { int x, y; Colour c; };
  // Pixels of a surface (the canvas unless another is named), each with the colour it must have.
  void expectPixels(std::initializer_list<Probe> probes, const PictureBox* box = nullptr) {
    for (const Probe& p : probes)
      EXPECT_EQ(GetPixel(box ? *box : f().PicPaint, p.x, p.y), p.c) << "pixel " << p.x << ", " << p.y;
  }
  // Pointer actions on the pixel surface, in its own units.
  void pixPress(Single x, Single y, int b = vbLeftButton) { f().pPix.raiseMouseDown(b, 0, x, y); }
  void pixMove(Single x, Single y) { f().pPix.raiseMouseMove(vbLeftButton, 0, x, y); }
  void pixRelease(Single x, Single y, int b = vbLeftButton) { f().pPix.raiseMouseUp(b, 0, x, y); }
};

}  // namespace qp::test
