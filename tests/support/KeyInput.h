#pragma once
// Keys as the window delivers them: the window sees every key first (key preview), then the
// control with the focus, here the paint area.
#include "ui/frmCanvas.h"

namespace qp::test {

inline void windowKeyDown(frmCanvas& f, int code) {
  if (f.KeyDown) f.KeyDown(code, 0);
}
inline void windowKeyUp(frmCanvas& f, int code) {
  if (f.KeyUp) f.KeyUp(code, 0);
}
inline void canvasKeyDown(frmCanvas& f, int code) {
  if (f.KeyPreview && f.KeyDown) f.KeyDown(code, 0);
  if (code != 0 && f.PicPaint.KeyDown) f.PicPaint.KeyDown(code, 0);
}
inline void canvasKeyUp(frmCanvas& f, int code) {
  if (f.KeyPreview && f.KeyUp) f.KeyUp(code, 0);
  if (code != 0 && f.PicPaint.KeyUp) f.PicPaint.KeyUp(code, 0);
}

// A key pressed and let go on the window.
inline void windowKey(frmCanvas& f, int code) {
  windowKeyDown(f, code);
  windowKeyUp(f, code);
}

}  // namespace qp::test
