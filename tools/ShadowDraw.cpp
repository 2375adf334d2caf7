// Shadow Draw. The main track is drawn in BackClr and the shifted copies in ForeClr: the names
// are the wrong way round to what one would guess, and users' pictures rely on it.
#include "tools/ShadowDraw.h"

#include "color/ColourEngine.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

// One copy of the segment, shifted by d twips right and down (a negative d goes left and up).
void copyAt(frmCanvas& f, Single X, Single Y, Single FromX, Single FromY, int d, Colour colour) {
  f.PicPaint.Line(FromX + d, FromY + d, X + d, Y + d, colour);
}

}  // namespace

void ShadowStroke(Session& s, Single X, Single Y, Single FromX, Single FromY) {
  frmCanvas& f = s.f;
  const Colour fore = s.m.ForeClr.value();
  const Colour third = f.lColor.BackColor;
  const int o = s.m.StepSize;
  // Twice the offset is 16-bit, as the offset is: too large, it ends the stroke's step where it
  // is needed, after the copies before it are drawn.
  auto twice = [o] { return static_cast<int>(mul16(2, o)); };
  const bool shadow = f.ckVal.Value == 1;
  const bool thirdBox = f.ckVal2.Value == 1;
  // Where copies overlap the later one lies on top, so this order is part of the picture. With
  // both boxes set the first two copies are painted twice; that costs only time.
  if (f.ckVal.Value == 0) {
    copyAt(f, X, Y, FromX, FromY, -o, fore);
  } else if (shadow) {
    copyAt(f, X, Y, FromX, FromY, o, fore);
    copyAt(f, X, Y, FromX, FromY, -o, third);
  }
  if (thirdBox && shadow) {
    copyAt(f, X, Y, FromX, FromY, o, fore);
    copyAt(f, X, Y, FromX, FromY, -o, third);
    copyAt(f, X, Y, FromX, FromY, twice(), third);
    copyAt(f, X, Y, FromX, FromY, -twice(), fore);
  }
  if (thirdBox && f.ckVal.Value == 0) {
    copyAt(f, X, Y, FromX, FromY, o, fore);
    copyAt(f, X, Y, FromX, FromY, -o, fore);
    copyAt(f, X, Y, FromX, FromY, twice(), third);
    copyAt(f, X, Y, FromX, FromY, -twice(), third);
  }
}

void ShadowDrawPress(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  f.lStats.Caption = "";
  f.PicPaint.DrawWidth = m.DrawWidth;
  m.LastX = X;
  m.LastY = Y;
  StepDrawColor(s);
  f.PicPaint.Line(m.LastX, m.LastY, X, Y, m.BackClr.value());
  ShadowStroke(s, X, Y, m.LastX, m.LastY);
}

void ShadowDrawMove(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  f.PicPaint.DrawWidth = m.DrawWidth;
  StepDrawColor(s);
  // With the shadow box set, a Rainbow or Glow moves the main track's colour along with the
  // copies'. The press has no such copy, so a stroke's first dot keeps the back colour.
  const int colourMode = f.vColmode.Value;
  if ((colourMode == 1 || colourMode == 2) && f.ckVal.Value == 1) m.BackClr = m.ForeClr;
  f.PicPaint.Line(m.LastX, m.LastY, X, Y, m.BackClr.value());
  ShadowStroke(s, X, Y, m.LastX, m.LastY);
  m.LastX = X;
  m.LastY = Y;
}

ToolHooks shadowDrawHooks() {
  ToolHooks h;
  h.press = ShadowDrawPress;
  h.move = ShadowDrawMove;
  return h;
}

}  // namespace qp
