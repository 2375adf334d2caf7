// The pixel surface's stroke. It has the shape of the paint area's: the press bakes the canvas for
// undo before any mode runs, the right button undoes or picks a colour at release, and the release
// always ends with the same closing steps. Positions are in pPix's own scale, pixels as a rule.
#include "core/PixPipeline.h"

#include "core/Grid.h"
#include "core/Keyboard.h"
#include "core/ToolTable.h"
#include "core/Undo.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

QString whole(double v) { return QString::number(static_cast<int>(CInt(v))); }

}  // namespace

void pPix_MouseDown(Session& s, int Button, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  trap([&] {
    if (f.ckHide.Value == 1) {
      f.pPix.MousePointer = 99;
      f.pPix.MouseIcon = f.iPnt.Picture;
    }
    if (Button != vbLeftButton) return;
    TakeUndoSnapshot(s);
    f.lXb.ToolTipText = "Mouse Down X : " + whole(X);
    f.lYb.ToolTipText = "Mouse Down Y : " + whole(Y);
    HideGuides(s);
    if (s.m.CurrentFile.isEmpty()) s.m.CurrentFile = "Untitled.bmp";
    f.lStats.Caption = "";
    f.PicUndo.Picture = f.pPix.Image;
    f.PicPaint.DrawWidth = s.m.DrawWidth;
    if (f.ckDcolz.Value == 1) f.tDclrz.Enabled = true;
    f.PointerX = X;
    f.PointerY = CInt(Y);
    if (const auto& press = s.tools.at(s.m.PaintMode).pixPress) press(s, Button, X, Y);
  });
}

void pPix_MouseMove(Session& s, int Button, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  trap([&] {
    f.lX.Caption = "X : " + whole(X);
    f.lY.Caption = "Y : " + whole(Y);
    FollowGuides(s, true, X, Y);
    f.pPix.DrawWidth = s.m.DrawWidth;
    if (Button == vbLeftButton) {
      f.PointerX = X;
      f.PointerY = CInt(Y);
    }
    if (const auto& move = s.tools.at(s.m.PaintMode).pixMove) move(s, Button, X, Y);
  });
}

void pPix_MouseUp(Session& s, int Button, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  trap([&] {
    f.tPenUp.Enabled = false;
    f.tPenDwn.Enabled = false;
    f.pPix.MousePointer = f.PointerShape;
    if (Button == vbLeftButton) {
      if (const auto& release = s.tools.at(s.m.PaintMode).pixRelease) release(s, Button, X, Y);
    } else if (Button == vbRightButton && f.CtrlDown == -1) {
      s.m.ForeClr = f.pPix.Point(X, Y);
      f.lForclr.BackColor = s.m.ForeClr;
      f.lColor.BackColor = s.m.ForeClr;
      f.shErSize.FillColor = s.m.ForeClr;
      f.shErSize.BorderColor = s.m.ForeClr;
    } else if (Button == vbRightButton) {
      f.pPix.Picture = f.PicUndo.Picture;  // one level of undo
    }
  });
  // The closing steps, each on its own, as on the paint area.
  trap([&] { HideGuides(s); });
  trap([&] { f.pPix.Refresh(); });
  trap([&] { if (f.ckDcolz.Value == 1) f.tDclrz.Enabled = false; });
  trap([&] { f.lHelp.ForeColor = 0xC0C0C0; });
  trap([&] { f.lTell.Caption = ""; });
}

void PixSurface_KeyDown(Session& s, int KeyCode) {
  frmCanvas& f = s.f;
  trap([&] {
    if (KeyCode == vbKeyUp || KeyCode == vbKeyRight) f.tPenUp.Enabled = true;
    if (KeyCode == vbKeyLeft || KeyCode == vbKeyDown) f.tPenDwn.Enabled = true;
  });
}

void PixSurface_KeyUp(Session& s, int) {
  frmCanvas& f = s.f;
  trap([&] {
    f.lHelp.ForeColor = 0xC0C0C0;
    f.lTell.Caption = "";
    // With Hold the width keeps moving after the key is up, until it meets its limit.
    if (f.ckHold.Value != 1) {
      f.tPenUp.Enabled = false;
      f.tPenDwn.Enabled = false;
    }
  });
}

}  // namespace qp
