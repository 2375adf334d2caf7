#include "core/Grid.h"

#include "ui/frmCanvas.h"

namespace qp {

void ToggleGrid(Session& s) {
  frmCanvas& f = s.f;
  // On the pixel surface the pixel guides are the ones that show.
  const bool onPix = f.pPix.Visible;
  Line& x = onPix ? f.lnPX : f.lnX;
  Line& y = onPix ? f.lnPY : f.lnY;
  Label& lx = onPix ? f.lLnPX : f.lLnX;
  Label& ly = onPix ? f.lLnPY : f.lLnY;
  const bool show = !x.Visible;
  x.Visible = show;
  y.Visible = show;
  lx.Visible = show;
  ly.Visible = show;
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
