#include "core/ApplyPaintMode.h"

#include "core/Grid.h"
#include "core/Panel.h"
#include "core/Undo.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

void resetPanel(Session& s) {
  frmCanvas& f = s.f;
  // Drawing state and the surfaces.
  f.PicPaint.DrawMode = 13;
  f.PriorMode = s.m.PaintMode;
  f.PicPaint.FillStyle = 1;
  f.mnuOpen.Enabled = true;
  f.pT1.ScaleMode = 3;
  f.DrawShape.BorderStyle = 3;
  f.fBow.Visible = false;
  f.lHelp.Caption = "";
  f.lTell.Caption = "";  // the state line spoke of the mode before
  f.PointerShape = 2;  // a mode change always brings back the cross
  f.ckVal.Enabled = true;
  f.ckVal2.Enabled = true;
  f.PicPaint.Visible = true;
  f.mnuPaste.Enabled = true;
  f.PicPaint.MousePointer = f.PointerShape;
  f.pPix.MousePointer = f.PointerShape;
  f.pSpire.Visible = false;
  f.DrawShape.Visible = false;
  f.pTemp.Visible = false;
  if (f.pPix.Visible) {  // the canvas moves back from the pixel surface
    f.PicPaint.Picture = f.pPix.Image;
    f.pPix.Visible = false;
  }
  f.vInt.Value = 20;
  ShowDrawWidthLimits(s);
  f.ckHold.Visible = true;
  f.lMode.ForeColor = 0xFFC0C0;
  s.m.DrawWidth = f.vPencil.Value.get();
  f.fPencil.Visible = true;
  f.pSpire.ScaleMode = 1;
  f.ckFreeTx.Visible = false;
  f.ckTx.Visible = false;
  f.ckTxGrad.Visible = false;
  f.vMin.Enabled = true;
  f.vMax.Enabled = true;
  f.cCan.ToolTipText = "";
  HideGuides(s);
  f.cCan.Visible = false;
  f.Shadow(20).Visible = false;
  f.opVert(0).Visible = false;
  f.opVert(1).Visible = false;
  f.ckVal.Visible = false;
  f.ckVal.Value = 0;
  f.ckVert.Visible = false;
  f.ckHoriz.Visible = false;
  f.Shadow(8).Visible = false;
  f.Shadow(9).Visible = false;
  // The help line goes back under the fifth row, and the panel reaches down to it, so that a mode
  // that keeps the height of the mode before still shows all its rows.
  f.lHelpb.Top = 3600;
  f.lHelp.Top = 3615;
  f.fVal.Height = 3600;
  FitHelpLine(s);
  f.ckHide.Visible = true;
  f.Shadow(38).Visible = true;
  for (int n = 1; n <= 5; ++n) {
    f.valueBar(n).Visible = false;
    f.valueLabel(n).Visible = false;
    f.Shadow(n).Visible = false;
  }
  f.cSwap.Visible = false;
  f.Shadow(14).Visible = false;
  // The colour block.
  for (VisualControl* c : std::initializer_list<VisualControl*>{
           &f.vColmode, &f.vVar, &f.lColMode, &f.lVar, &f.Shadow(10), &f.Shadow(36), &f.vColors,
           &f.Shadow(33), &f.lColorVal})
    c->Visible = true;
  f.fColCov.Visible = false;
  f.Shadow(20).BorderColor = kDimFrame;
  f.ckVal2.Visible = false;
  f.ckVal2.Value = 0;
  f.Shadow(34).Visible = false;
  f.Shadow(24).Visible = false;
  f.Shadow(24).BorderColor = kDimFrame;
  f.ckHide.Visible = true;
  f.Shadow(38).Visible = true;
  f.shErSize.Visible = false;
  f.fText.Visible = false;
  f.DrawShape.BorderWidth = 1;
  f.fInt.Visible = false;
  f.fShad.Visible = false;
  for (int i = 1; i <= 9; ++i) f.Shadow(i).BorderColor = kDimFrame;
}

}  // namespace

void ApplyPaintMode(Session& s) {
  // A failure inside (a font that cannot be set, say) leaves the rest undone, silently.
  trap([&] {
    TakeUndoSnapshot(s);
    resetPanel(s);
    ApplyModeRow(s);
  });
}

}  // namespace qp
