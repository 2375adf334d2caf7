// Single Line and Mirror Lines. Neither steps the colour: the line comes in ForeClr as it stands,
// whatever the Colour Mode.
#include "tools/Lines.h"

#include "tools/Mirrors.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

void singlePress(Session& s, int, Single, Single) {
  frmCanvas& f = s.f;
  f.lStats.Caption = "";
  f.PicPaint.DrawWidth = s.m.DrawWidth;
  f.lnDraw.X1 = f.PointerX;
  f.lnDraw.X2 = f.PointerX;
  f.lnDraw.Y1 = f.PointerY;
  f.lnDraw.Y2 = f.PointerY;
  f.lnDraw.Visible = true;
  f.lnDraw.BorderWidth = s.m.DrawWidth;
}

void singleMove(Session& s, int, Single, Single) {
  frmCanvas& f = s.f;
  f.lnDraw.X2 = f.PointerX;
  f.lnDraw.Y2 = f.PointerY;
  f.lnDraw.Visible = true;
  f.lnDraw.BorderWidth = s.m.DrawWidth;
}

void singleRelease(Session& s, int, Single, Single) {
  frmCanvas& f = s.f;
  const Single X1 = f.lnDraw.X1, Y1 = f.lnDraw.Y1, X2 = f.lnDraw.X2, Y2 = f.lnDraw.Y2;
  const int O = s.m.StepSize;
  f.PicPaint.DrawWidth = s.m.DrawWidth;
  if (f.ckVal2.Value == 1) f.PicPaint.Line(X1 - O, Y1 - O, X2 - O, Y2 - O, f.lColor.BackColor.get());
  if (f.ckVal.Value == 1) f.PicPaint.Line(X1 + O, Y1 + O, X2 + O, Y2 + O, s.m.BackClr.value());
  // The main line last, on top of its copies.
  f.PicPaint.Line(X1, Y1, X2, Y2, s.m.ForeClr.value());
  f.lnDraw.Visible = false;
  f.lnDraw.BorderWidth = 1;
}

// Mirror Lines stretch the horizontal scale to the height at the press, as the mirrors do; the
// press point and the rubber band's first end were read in twips before that and keep them.
void mirrorPress(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  f.lStats.Caption = "";
  f.PicPaint.ScaleWidth = f.PicPaint.Height.get();
  f.PicPaint.DrawWidth = s.m.DrawWidth;
  f.lnDraw.X1 = X;
  f.lnDraw.X2 = X;
  f.lnDraw.Y1 = Y;
  f.lnDraw.Y2 = Y;
  f.lnDraw.Visible = true;
  s.m.StartX = X;
  s.m.StartY = Y;
}

void mirrorMove(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  f.PicPaint.DrawWidth = s.m.DrawWidth;
  f.lnDraw.X2 = X;
  f.lnDraw.Y2 = Y;
}

// "Single Mode" draws from the press point; the other option from the end of the line before, so
// that the lines join into a polygon while the rubber band still starts at the press.
void mirrorRelease(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  Single& fromX = f.ckVal.Value == 0 ? m.StartX : m.LastX;
  Single& fromY = f.ckVal.Value == 0 ? m.StartY : m.LastY;
  f.PicPaint.Line(fromX, fromY, X, Y, m.ForeClr.value());
  if (f.ckVert.Value == 1) MirrorStroke(s, X, Y, fromX, fromY, 0);
  if (f.ckHoriz.Value == 1) MirrorStroke(s, X, Y, fromX, fromY, 1);
  f.lnDraw.Visible = false;
  fromX = X;
  fromY = Y;
  f.PicPaint.ScaleWidth = f.PicPaint.Width.get();
}

}  // namespace

ToolHooks singleLineHooks() {
  ToolHooks h;
  h.press = singlePress;
  h.move = singleMove;
  h.release = singleRelease;
  return h;
}

ToolHooks mirrorLinesHooks() {
  ToolHooks h;
  h.press = mirrorPress;
  h.move = mirrorMove;
  h.release = mirrorRelease;
  return h;
}

}  // namespace qp
