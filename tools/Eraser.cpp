// The Eraser stamps squares of the eraser's size under its outline. The press stamps in the third
// colour and the moves in the stepped fore colour: it erases only as far as those are the colour
// of the canvas.
#include "color/ColourEngine.h"
#include "tools/Freehand.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

void centreOutline(Shape& e, Single X, Single Y) {
  e.Left = X - e.Width / 2;
  e.Top = Y - e.Width / 2;
}

void eraserPress(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  Shape& e = f.shErase;
  f.PicPaint.DrawWidth = s.m.DrawWidth;
  e.BorderColor = 0xC0C0C0;
  e.BackColor = f.lColor.BackColor.get();
  centreOutline(e, X, Y);
  f.PicPaint.Line(e.Left, e.Top, e.Left + e.Width, e.Top + e.Height, e.BackColor.get(), LineBox::BF);
  e.Visible = true;
}

void eraserMove(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  Shape& e = f.shErase;
  StepDrawColor(s);
  centreOutline(e, X, Y);
  f.PicPaint.Line(e.Left, e.Top, e.Left + e.Width, e.Top + e.Width, s.m.ForeClr.value(), LineBox::BF);
}

}  // namespace

ToolHooks eraserHooks() {
  ToolHooks h;
  h.press = eraserPress;
  h.move = eraserMove;
  h.release = [](Session& s, int, Single, Single) {
    s.f.PicPaint.DrawWidth = s.m.DrawWidth;
    s.f.shErase.Visible = false;
  };
  return h;
}

}  // namespace qp
