// SawTooth: each mouse event adds a tooth in the back colour from the previous point shifted down
// and right by the offset, and a spoke in the fore colour from the new point shifted. The tool
// leaves the pen width as the last tool set it.
#include "color/ColourEngine.h"
#include "tools/Freehand.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

void tooth(Session& s) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  const int O = m.StepSize;
  f.PicPaint.Line(O + m.LastX, O + m.LastY, f.PointerX, f.PointerY, m.BackClr.value());
  m.LastX = O + f.PointerX;
  m.LastY = add16(O, f.PointerY);  // two whole twips: 16-bit, and may overflow near the far edge
  f.PicPaint.Line(m.LastX, m.LastY, f.PointerX, f.PointerY, m.ForeClr.value());
}

}  // namespace

ToolHooks sawToothHooks() {
  ToolHooks h;
  h.press = [](Session& s, int, Single, Single) {
    StepDrawColor(s);
    s.m.LastX = s.f.PointerX;
    s.m.LastY = s.f.PointerY;
    tooth(s);
    s.m.LastX = s.f.PointerX;
    s.m.LastY = s.f.PointerY;
  };
  h.move = [](Session& s, int, Single X, Single Y) {
    StepDrawColor(s);
    tooth(s);
    s.m.LastX = X;
    s.m.LastY = Y;
  };
  return h;
}

}  // namespace qp
