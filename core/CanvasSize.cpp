#include "core/CanvasSize.h"

#include "core/Layout.h"
#include "ui/frmCanvas.h"

namespace qp {

void FitScreen(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    f.Width = s.rt.screen.Width();
    f.Height = s.rt.screen.Height();
    MatchPixSurface(s);
  });
}

void mCustm_Click(Session& s) {
  s.f.fCust.Visible = true;
  s.f.PicPaint.MousePointer = 1;
}

void cCustm_Click(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    f.PicPaint.Height = f.vCustm.Value.get();
    f.PicPaint.Width = f.hCustm.Value.get();
    if (f.PicPaint.Width <= f.fMax.Width && f.PicPaint.Height <= f.fMax.Height) f.mLo.Visible = false;
    f.mLock.Checked = false;
    f.mLock.Caption = "Lock Canvas";
    f.CanvasLocked = 0;
    Form_Resize(s);
    f.fCust.Visible = false;
  });
}

void cCanCust_Click(Session& s) { s.f.fCust.Visible = false; }

void mLock_Click(Session& s) {
  frmCanvas& f = s.f;
  const bool lock = !f.mLock.Checked;
  f.mLock.Checked = lock;
  f.CanvasLocked = lock ? -1 : 0;
  f.mLock.Caption = lock ? "Unlock Canvas" : "Lock Canvas";
}

void vWidth_Change(Session& s) {
  s.f.PicPaint.Left = static_cast<Single>(-s.f.vWidth.Value);
  s.f.pPix.Left = s.f.PicPaint.Left;
}

void vHigh_Change(Session& s) {
  s.f.PicPaint.Top = static_cast<Single>(-s.f.vHigh.Value);
  s.f.pPix.Top = s.f.PicPaint.Top;
}

}  // namespace qp
