// Paint w/Pix: Collage Mode on the canvas in twips, Transparent Mode on the pixel surface.
#include "tools/PaintWithPix.h"

#include <algorithm>
#include <cmath>

#include "core/ApplyPaintMode.h"
#include "core/Undo.h"
#include "surface/Device.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

constexpr int kCollageMode = 14;
constexpr int kTransparentMode = 26;

void CollagePress(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  s.m.StartX = X;
  s.m.StartY = Y;
  f.DrawShape.Shape_ = 0;
  f.DrawShape.Move(X, Y, 0, 0);
  f.DrawShape.Visible = true;
}

void CollageMove(Session& s, int, Single X, Single Y) {
  const Single sx = s.m.StartX, sy = s.m.StartY;
  s.f.DrawShape.Move(std::min(X, sx), std::min(Y, sy), std::abs(X - sx), std::abs(Y - sy));
}

// Each drag paints one more copy, stretched to the rectangle however thin: that is the collage.
// Before a picture was chosen a drag ends with the rectangle and paints nothing.
void CollageRelease(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  if (!f.cCan.Enabled) {
    f.DrawShape.Visible = false;
    return;
  }
  f.PicPaint.PaintPicture(f.pT1.Picture, f.DrawShape.Left, f.DrawShape.Top, f.DrawShape.Width.get(),
                          f.DrawShape.Height.get());
  f.PicPaint.Picture = f.PicPaint.Image;
  f.DrawShape.Visible = false;
  auto real = [](double v) { return QString::number(static_cast<float>(v), 'g', 7); };
  f.lTell.Caption = "Rectangle size : " + real(X / 15.0 - f.DownButtonX) + " x " +
                    real(Y / 15.0 - f.DownButtonY);
}

// The user prepares a picture first: the Transparency Tool opens and the main window steps aside.
void OpenTransparencyWindow(Session& s) {
  frmBlue* blue = transparencyWindow(s);
  if (!blue) return;
  blue->Show();
  s.f.Hide();
}

// The stamp stands off the pointer by an eighth of the surface, whatever the picture's own size.
void aimStamp(Session& s, Single X, Single Y) {
  frmCanvas& f = s.f;
  f.pPix.ScaleWidth = f.pPix.Width.get() / 15;
  f.pPix.ScaleHeight = f.pPix.Height.get() / 15;
  s.m.PixDrawX = CLng(X - f.pPix.ScaleWidth.get() / 8);
  s.m.PixDrawY = CLng(Y - f.pPix.ScaleHeight.get() / 8);
}

}  // namespace

void StampTransparent(Session& s, PictureBox& target, const PictureBox& source, Colour key) {
  if (source.Picture.isNull()) return;
  const int w = static_cast<int>(CLng(source.ScaleWidth.get()));
  const int h = static_cast<int>(CLng(source.ScaleHeight.get()));
  TransparentBlt(target, s.m.PixDrawX, s.m.PixDrawY, w, h, source, 0, 0, w, h, key);
  target.Refresh();
}

ToolHooks collageHooks() {
  ToolHooks h;
  h.press = CollagePress;
  h.move = CollageMove;
  h.release = CollageRelease;
  h.cCanClick = CollageOpenExplorer;
  return h;
}

ToolHooks transparentModeHooks() {
  ToolHooks h;
  h.enter = OpenTransparencyWindow;
  h.pixPress = [](Session& s, int Button, Single X, Single Y) { TransparentPress(s, Button, 0, X, Y); };
  h.pixMove = [](Session& s, int Button, Single X, Single Y) { TransparentMove(s, Button, 0, X, Y); };
  h.pixRelease = [](Session& s, int Button, Single X, Single Y) { TransparentRelease(s, Button, 0, X, Y); };
  return h;
}

void CollageTakePicture(Session& s) {
  frmCanvas& f = s.f;
  if (s.m.PaintMode != kCollageMode) return;
  trap([&] {
    if (f.File1.FileName().isEmpty()) return;
    // A file that could not be decoded left no preview: there is nothing to paint with.
    if (f.imPre.Picture.isNull()) return;
    f.pT1.Picture = f.imPre.Picture;
    f.fX.Visible = false;
    f.PicPaint.MousePointer = f.PointerShape.value();
    f.cCan.Enabled = true;
  });
}

void CollageOpenExplorer(Session& s) {
  frmCanvas& f = s.f;
  if (s.m.PaintMode != kCollageMode) return;
  trap([&] {
    f.fX.Visible = true;
    f.PicPaint.MousePointer = 1;  // an arrow while the panel is open
  });
}

void TransparentPress(Session& s, int Button, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  if (Button != vbLeftButton) return;
  trap([&] {
    TakeUndoSnapshot(s);
    f.pPix.Picture = f.pPix.Image;
    aimStamp(s, X, Y);
    StampTransparent(s, f.pPix, f.pT1, s.m.TransparentClr);
    if (f.ckVal2.Value == 1) f.tPix.Enabled = true;
  });
}

// No stamp here: while the button is held the stamps are the timer's.
void TransparentMove(Session& s, int Button, int, Single X, Single Y) {
  if (Button != vbLeftButton) return;
  trap([&] { aimStamp(s, X, Y); });
}

void TransparentRelease(Session& s, int Button, int, Single, Single) {
  frmCanvas& f = s.f;
  trap([&] {
    f.tPix.Enabled = false;
    if (Button == vbRightButton && f.CtrlDown != -1) f.pPix.Picture = f.PicUndo.Picture;
  });
}

void tPix_Timer(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    if (s.m.PaintMode != kTransparentMode) return;
    StampTransparent(s, f.pPix, f.pT1, s.m.TransparentClr);
  });
}

frmBlue* transparencyWindow(Session& s) { return s.windows ? &s.windows->blue : nullptr; }

void HandSelectionToTransparencyTool(Session& s, const QImage& picture) {
  frmBlue* blue = transparencyWindow(s);
  if (!blue) return;
  if (!blue->loaded()) {
    blue->Show();
    blue->Hide();
  }
  blue->pBlu.Picture = picture;
}

void EnterTransparentMode(Session& s) {
  s.m.PaintMode = kTransparentMode;
  ApplyPaintMode(s);
}

}  // namespace qp
