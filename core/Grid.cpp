#include "core/Grid.h"

#include "ui/frmCanvas.h"

namespace qp {

namespace {

// The two lines and two labels of one surface's guides.
struct Guides {
  Line& x;
  Line& y;
  Label& lx;
  Label& ly;
};

Guides guidesOf(frmCanvas& f, bool onPix) {
  if (onPix) return {f.lnPX, f.lnPY, f.lLnPX, f.lLnPY};
  return {f.lnX, f.lnY, f.lLnX, f.lLnY};
}

}  // namespace

void ToggleGrid(Session& s) {
  // On the pixel surface the pixel guides are the ones that show.
  const Guides g = guidesOf(s.f, s.f.pPix.Visible);
  const bool show = !g.x.Visible;
  g.x.Visible = show;
  g.y.Visible = show;
  g.lx.Visible = show;
  g.ly.Visible = show;
}

void FollowGuides(Session& s, bool onPix, Single X, Single Y) {
  frmCanvas& f = s.f;
  const Guides g = guidesOf(f, onPix);
  if (!g.x.Visible) return;
  g.x.X1 = X;
  g.x.X2 = X;
  g.y.Y1 = Y;
  g.y.Y2 = Y;
  // The labels stand off the pointer in the surface's own units: twips on the canvas, pixels on
  // the pixel surface.
  const Single near = onPix ? 10 : 100, farX = onPix ? 30 : 500, farY = onPix ? 30 : 400;
  g.lx.Move(X + near, Y + farY);
  g.lx.Caption = f.lX.Caption.get();
  g.ly.Move(X + farX, Y + near);
  g.ly.Caption = f.lY.Caption.get();
}

void HideGuides(Session& s) {
  frmCanvas& f = s.f;
  for (Line* l : {&f.lnX, &f.lnY, &f.lnPX, &f.lnPY}) l->Visible = false;
  for (Label* l : {&f.lLnX, &f.lLnY, &f.lLnPX, &f.lLnPY}) l->Visible = false;
}

void SetGridColors(Session& s) {
  frmCanvas& f = s.f;
  f.lnX.BorderColor = s.m.ForeClr.value();
  f.lXb.ForeColor = s.m.ForeClr.value();
  f.lLnX.ForeColor = s.m.ForeClr.value();
  f.lnY.BorderColor = s.m.BackClr.value();
  f.lYb.ForeColor = s.m.BackClr.value();
  f.lLnY.ForeColor = s.m.BackClr.value();
}

void SetPointerShape(Session& s, int shape) {
  frmCanvas& f = s.f;
  f.PointerShape = shape;
  f.mCross.Checked = shape == 2;
  f.mArrow.Checked = shape == 1;
  f.PicPaint.MousePointer = shape;
  f.pPix.MousePointer = shape;
  f.pPX.MousePointer = shape;
}

}  // namespace qp
