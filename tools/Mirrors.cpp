// Mirrors N More. The press stretches the canvas's horizontal scale to its height, so that the
// mirrors reflect around a square of user units; the press point itself was read in twips before
// that change and keeps them, which shifts the first dot of a stroke to the right. The release's
// closing steps put the scale back.
#include "tools/Mirrors.h"

#include "color/ColourEngine.h"
#include "ui/frmCanvas.h"

namespace qp {

void MirrorStroke(Session& s, Single X, Single Y, Single FromX, Single FromY, int Axis) {
  frmCanvas& f = s.f;
  PictureBox& p = f.PicPaint;
  const Colour fore = s.m.ForeClr.value();
  const Single SW = p.ScaleWidth, SH = p.ScaleHeight;
  if (Axis == 0) {
    p.Line(SW - FromX, FromY, SW - X, Y, fore);
  } else {
    // The far end reflects Y against the width: the press made the width equal to the height.
    p.Line(FromX, SH - FromY, X, SW - Y, fore);
  }
  if (f.ckVert.Value == 1 && f.ckHoriz.Value == 1) p.Line(SW - FromX, SH - FromY, SW - X, SW - Y, fore);
}

namespace {

void mirrors(Session& s, Single X, Single Y) {
  frmCanvas& f = s.f;
  if (f.ckVert.Value == 1) MirrorStroke(s, X, Y, s.m.StartX, s.m.StartY, 0);
  if (f.ckHoriz.Value == 1) MirrorStroke(s, X, Y, s.m.StartX, s.m.StartY, 1);
}

void mirrorPress(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  if (!f.ckVal2.Enabled) return;  // AutoDraw is on: the keys draw, not the mouse
  f.PicPaint.DrawWidth = m.DrawWidth;
  StepDrawColor(s);
  f.lStats.Caption = "";
  f.PicPaint.ScaleWidth = f.PicPaint.Height.get();
  m.StartX = X;
  m.StartY = Y;
  f.PicPaint.Line(m.StartX, m.StartY, X, Y, m.ForeClr.value());
  mirrors(s, X, Y);
}

void mirrorMove(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  if (!f.ckVal2.Enabled) return;
  f.PicPaint.DrawWidth = m.DrawWidth;
  m.LastX = f.PointerX;
  m.LastY = f.PointerY;
  StepDrawColor(s);
  f.PicPaint.Line(m.StartX, m.StartY, X, Y, m.ForeClr.value());
  mirrors(s, X, Y);
  // "Freehand" chains the segments; "Linez" keeps the press point, so each move adds a spoke.
  if (f.ckVal2.Value == 1) {
    m.StartX = X;
    m.StartY = Y;
  }
}

}  // namespace

ToolHooks mirrorDrawHooks() {
  ToolHooks h;
  h.press = mirrorPress;
  h.move = mirrorMove;
  // The speed of AutoDraw in the mirrors: the panel feeds AutoDrawSpeed and the row's label.
  h.vValChange[0] = [](Session& s) {
    const QString text = "Speed : " + QString::number(s.f.vVal1.Value.get());
    s.f.lStats.Caption = text;
    s.f.lHelp.Caption = text;
  };
  return h;
}

}  // namespace qp
