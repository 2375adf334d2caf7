// The freehand pencil. The colour steps once per mouse event, so a Rainbow changes with every
// segment, not with the distance covered.
#include "tools/Pencil.h"

#include "color/ColourEngine.h"
#include "tools/AutoDraw.h"
#include "ui/frmCanvas.h"

namespace qp {

void PencilPress(Session& s, int, Single, Single) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  f.PicPaint.DrawWidth = m.DrawWidth;
  m.LastX = f.PointerX;
  m.LastY = f.PointerY;
  StepDrawColor(s);
  // From the point to itself: a dot of the draw width, so a click without movement still marks.
  f.PicPaint.Line(m.LastX, m.LastY, f.PointerX, f.PointerY, m.ForeClr.value());
  m.LastX = f.PointerX;
  m.LastY = f.PointerY;
}

void PencilMove(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  f.PicPaint.DrawWidth = m.DrawWidth;
  StepDrawColor(s);
  f.PicPaint.Line(m.LastX, m.LastY, f.PointerX, f.PointerY, m.ForeClr.value());
  // The segment ended at the rounded Y; the next one starts at the raw event Y. They differ by
  // less than a twip, which no pixel shows.
  m.LastX = X;
  m.LastY = Y;
}

ToolHooks pencilHooks() {
  ToolHooks h;
  h.press = PencilPress;
  h.move = PencilMove;
  h.ckValClick = AutoDrawSwitch;
  h.vValChange[0] = AutoDrawSpeedChange;
  return h;
}

}  // namespace qp
