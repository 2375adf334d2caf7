#include "core/Pipeline.h"

#include "color/ColourEngine.h"
#include "core/Grid.h"
#include "core/Help.h"
#include "core/ToolTable.h"
#include "core/Undo.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

QString pixels(double twips) { return QString::number(static_cast<int>(CInt(twips / 15))); }

// A Single as the runtime prints it: no trailing zeros, up to seven significant digits.
QString single(double v) { return QString::number(static_cast<float>(v), 'g', 7); }

void setPointer(frmCanvas& f, Single X, Single Y) {
  f.PointerX = X;
  f.PointerY = CInt(Y);
}

// The closing steps of a release: every stroke ends here, also one whose release failed. Each
// step stands on its own, so that one that cannot be done (a release so far off the canvas that
// its position overflows, a canvas of no size) leaves no timer running and no message standing.
void closeStroke(Session& s, Single X, Single Y) {
  frmCanvas& f = s.f;
  trap([&] { f.tGrad.Enabled = false; });
  trap([&] { f.tSphere.Enabled = false; });
  trap([&] { f.PicPaint.ScaleWidth = f.PicPaint.Width; });
  trap([&] { f.PicPaint.ScaleHeight = f.PicPaint.Height; });
  trap([&] { f.PicPaint.DrawWidth = s.m.DrawWidth; });
  trap([&] { HideGuides(s); });
  // AutoDraw goes on from where the mouse left the canvas, or from its last place when that
  // position is out of reach.
  trap([&] { f.AutoDrawX = CInt(X); });
  trap([&] { f.AutoDrawY = CInt(Y); });
  trap([&] { f.lHelp.ForeColor = 0xC0C0C0; });
  trap([&] { f.lTell.Caption = ""; });
  trap([&] { f.mSel.Enabled = true; });
  trap([&] { if (f.ckDcolz.Value == 1) f.tDclrz.Enabled = false; });
}

}  // namespace

void ColourStep(Session& s) { StepDrawColor(s); }

void PicPaint_MouseDown(Session& s, int Button, int Shift, Single X, Single Y) {
  frmCanvas& f = s.f;
  trap([&] {
    f.lMode.ForeColor = 0xFFC0C0;
    f.tTemp2.Enabled = false;
    f.lTell.Caption = "";
    if (Button != vbLeftButton) return;
    if (f.ckDcolz.Value == 1) f.tDclrz.Enabled = true;
    f.PicPaint.ToolTipText = "";
    if (f.ckHide.Value == 1) {
      f.PicPaint.MousePointer = 99;
      f.PicPaint.MouseIcon = f.iPnt.Picture;
    }
    if (s.m.CurrentFile.isEmpty()) s.m.CurrentFile = "Untitled.bmp";
    TakeUndoSnapshot(s);
    f.lStats.Caption = "";
    f.lXb.ToolTipText = "Mouse Down X : " + pixels(X);
    f.lYb.ToolTipText = "Mouse Down Y : " + pixels(Y);
    f.DownButtonX = CInt(X / 15);
    f.DownButtonY = CInt(Y / 15);
    HideGuides(s);
    setPointer(f, X, Y);
    if (const auto& press = s.tools.at(s.m.PaintMode).press) press(s, Button, X, Y);
  });
}

void PicPaint_MouseMove(Session& s, int Button, int Shift, Single X, Single Y) {
  frmCanvas& f = s.f;
  trap([&] {
    f.lX.Caption = "X : " + pixels(X);
    f.lY.Caption = "Y : " + pixels(Y);
    FollowGuides(s, false, X, Y);
    ShowModeHelp(s);
    if (Button != vbLeftButton) return;
    setPointer(f, X, Y);
    if (const auto& move = s.tools.at(s.m.PaintMode).move) move(s, Button, X, Y);
  });
}

void PicPaint_MouseUp(Session& s, int Button, int Shift, Single X, Single Y) {
  frmCanvas& f = s.f;
  bool pointerBack = false;
  const bool picked = [&] {
    bool pick = false;
    trap([&] {
      f.tPenUp.Enabled = false;
      f.tPenDwn.Enabled = false;
      f.PicPaint.CurrentX = X - 100;  // the text cursor's lead for the text tools
      f.PicPaint.CurrentY = Y;
      f.tGrdTx.Enabled = false;
      setPointer(f, X, Y);
      f.PicPaint.MousePointer = f.PointerShape;
      pointerBack = true;
      if (Button == vbLeftButton) {
        f.lXb.ToolTipText = f.lXb.ToolTipText.get() + "   Mouse Up X : " + single(X / 15.0);
        f.lYb.ToolTipText = f.lYb.ToolTipText.get() + "   Mouse Up Y : " + single(Y / 15.0);
        if (const auto& release = s.tools.at(s.m.PaintMode).release) release(s, Button, X, Y);
      } else if (Button == vbRightButton && f.CtrlDown == -1) {
        // Ctrl and the right button pick the colour under the pointer, the third colour too.
        pick = true;
        s.m.ForeClr = f.PicPaint.Point(X, Y);
        f.lForclr.BackColor = s.m.ForeClr;
        f.lColor.BackColor = s.m.ForeClr;
        f.shErSize.FillColor = s.m.ForeClr;
        f.shErSize.BorderColor = s.m.ForeClr;
      } else if (Button == vbRightButton) {
        // The quick undo: one level, no redo.
        f.PicPaint.Picture = f.PicUndo.Image;
        f.DrawShape.Visible = false;
        f.DrawShape.BorderColor = 0xC0C0C0;
        f.tTemp.Enabled = false;
      }
    });
    return pick;
  }();
  // A release whose position could not be held (Y past what a whole number of twips holds) jumps
  // past the pointer's return; the pointer hidden for the stroke must still come back.
  if (!pointerBack) trap([&] { f.PicPaint.MousePointer = f.PointerShape; });
  if (!picked) closeStroke(s, X, Y);
}

void vInt_Change(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    if (f.tDraw.Enabled) return;
    const int v = f.vInt.Value;
    for (Timer* t : {&f.tAir, &f.tDraw, &f.tGrdTx, &f.tBrushTime, &f.tBrush, &f.tSphere, &f.tPix}) t->Interval = v;
    const QString text = "Interval : " + QString::number(v);
    f.lStats.Caption = text;
    f.lHelp.Caption = text;
    f.fInt.ToolTipText = text;
  });
}

}  // namespace qp
