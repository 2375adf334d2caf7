#pragma once
// A started program on a 4096 x 4096 canvas in one paint mode, its colour held still, and the
// zigzag the stroke benchmarks draw on it.
#include <memory>

#include "app/Program.h"
#include "platform/Headless.h"

namespace qp::bench {

constexpr int kSide = 4096;
constexpr int kMoves = 1000;

// A zigzag of 100-pixel segments down the left of the canvas, in twips.
inline Single zigzagX(int i) { return static_cast<Single>((200 + (i % 2) * 100) * 15); }
inline Single zigzagY(int i) { return static_cast<Single>((100 + (i % 1000) * 3) * 15); }

struct CanvasSession {
  HeadlessRuntime headless;
  std::unique_ptr<Program> program;
  CanvasSession(Menu frmCanvas::*mode, int width) {
    program = std::make_unique<Program>(headless.rt());
    program->start();
    (program->f.*mode).raiseClick();
    program->f.vColmode.Value = 0;
    program->m.CurrentFile = "bench.bmp";  // a titled canvas keeps its own size
    program->f.PicPaint.Width = kSide * 15;
    program->f.PicPaint.Height = kSide * 15;
    program->f.vPencil.Value = width;
  }
  PictureBox& pic() { return program->f.PicPaint; }
};

}  // namespace qp::bench
