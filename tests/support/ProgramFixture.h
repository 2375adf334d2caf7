#pragma once
// A whole Quillora, headless, on the virtual clock: build it, start it, drive its controls.
#include <gtest/gtest.h>

#include <memory>

#include "platform/Headless.h"
#include "surface/Device.h"
#include "app/Program.h"

namespace qp::test {

class ProgramTest : public ::testing::Test {
 protected:
  void SetUp() override {
    program = std::make_unique<Program>(headless.rt());
    program->start();
  }
  frmCanvas& f() { return program->f; }
  ModQuillora& m() { return program->m; }
  Session& s() { return program->s; }

  // Pointer actions on the paint area, in twips, through its events.
  void press(Single x, Single y, int button = vbLeftButton) { f().PicPaint.raiseMouseDown(button, 0, x, y); }
  void move(Single x, Single y, int button = vbLeftButton) { f().PicPaint.raiseMouseMove(button, 0, x, y); }
  void release(Single x, Single y, int button = vbLeftButton) { f().PicPaint.raiseMouseUp(button, 0, x, y); }
  void choose(Menu& item) { item.raiseClick(); }
  // A menu item by the name scripts know it by.
  void choose(const char* name) {
    auto* item = dynamic_cast<Menu*>(f().find(name));
    ASSERT_NE(item, nullptr) << name;
    item->raiseClick();
  }
  // The pixel of the canvas's bitmap at a pixel position, as 0xBBGGRR. A position outside the
  // bitmap fails the test: a canvas of the wrong size must not pass for one that holds the expected
  // colour (read through the scale, a small bitmap would answer for a large canvas).
  Colour pixel(int x, int y) {
    const Colour c = GetPixel(f().PicPaint, x, y);
    if (c == -1) ADD_FAILURE() << "pixel " << x << ", " << y << " is outside the canvas";
    return c;
  }

  HeadlessRuntime headless;
  std::unique_ptr<Program> program;
};

constexpr Colour kBlack = 0x000000;
constexpr Colour kWhite = 0xFFFFFF;

// The pencil in Standard colour mode: every stroke in the fore colour, white.
class PencilTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    choose(f().mPencil);
    f().vColmode.Value = 0;
  }
  void drawDot(Single x, Single y) {
    press(x, y);
    release(x, y);
  }
};

}  // namespace qp::test
