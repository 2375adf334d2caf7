#pragma once
// Picture boxes on a headless form, and ways to read their pixels back.
#include <gtest/gtest.h>

#include <memory>

#include "platform/Form.h"
#include "platform/Headless.h"
#include "surface/Device.h"
#include "surface/PictureBox.h"

namespace qp::test {

class SurfaceTest : public ::testing::Test {
 protected:
  // A box of w x h pixels on the form (its Width and Height in twips), in the given ScaleMode.
  PictureBox& box(int w, int h, int scaleMode = 3, Colour back = 0x000000) {
    auto b = std::make_unique<PictureBox>(&form, nullptr, QString("p%1").arg(boxes.size()));
    b->BackColor = back;
    b->Width = w * 15.0f;
    b->Height = h * 15.0f;
    b->ScaleMode = scaleMode;
    boxes.push_back(std::move(b));
    return *boxes.back();
  }

  // Reading outside the bitmap fails the test instead of giving a colour to compare.
  static Colour px(const PictureBox& b, int x, int y) {
    const Colour c = GetPixel(b, x, y);
    if (c == -1) ADD_FAILURE() << "pixel " << x << ", " << y << " is outside the surface";
    return c;
  }

  struct Probe { int x, y; Colour c; };
  static void expectAt(const PictureBox& b, std::initializer_list<Probe> probes, const char* what = "") {
    for (const Probe& p : probes) EXPECT_EQ(GetPixel(b, p.x, p.y), p.c) << what << " at " << p.x << ", " << p.y;
  }

  // The bitmap's size in pixels and the current drawing position.
  static QSize pixels(const PictureBox& b) { return {b.pixelWidth(), b.pixelHeight()}; }
  static QPointF at(const PictureBox& b) { return {b.CurrentX, b.CurrentY}; }

  static int count(const PictureBox& b, Colour c) {
    int n = 0;
    for (int y = 0; y < b.pixelHeight(); ++y)
      for (int x = 0; x < b.pixelWidth(); ++x) n += GetPixel(b, x, y) == c;
    return n;
  }

  // The smallest rectangle holding every pixel of colour c (empty when there is none).
  static QRect extent(const PictureBox& b, Colour c) {
    QRect r;
    for (int y = 0; y < b.pixelHeight(); ++y)
      for (int x = 0; x < b.pixelWidth(); ++x)
        if (GetPixel(b, x, y) == c) r |= QRect(x, y, 1, 1);
    return r;
  }

  HeadlessRuntime headless;
  Form form{headless.rt(), "frmTest"};
  std::vector<std::unique_ptr<PictureBox>> boxes;
};

}  // namespace qp::test
