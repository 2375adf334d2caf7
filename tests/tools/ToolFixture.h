#pragma once
// A paint mode chosen from its menu in Standard colour mode, on a black square canvas, with ways
// to count and find what a stroke painted.
#include "support/ProgramFixture.h"
#include "surface/Device.h"
#include "ui/frmCanvas.h"

namespace qp::test {

constexpr Colour kGray = 0x808080;  // the back colour at start
constexpr Colour kBlue = 0xFF0000;  // the third colour at start

// Pixels of a surface in the colour c, and those off the background colour.
inline int countColour(const PictureBox& p, Colour c) {
  const QImage& img = p.bitmap();
  int n = 0;
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x) n += GetPixel(p, x, y) == c;
  return n;
}
inline int litPixels(const PictureBox& p, Colour background = 0) {
  return p.bitmap().width() * p.bitmap().height() - countColour(p, background);
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
  // A stroke through the given points, in twips.
  void stroke(std::initializer_list<QPointF> points) {
    const QPointF* last = nullptr;
    for (const QPointF& p : points) {
      if (!last) press(p.x(), p.y());
      else move(p.x(), p.y());
      last = &p;
    }
    release(last->x(), last->y());
  }
};

}  // namespace qp::test
