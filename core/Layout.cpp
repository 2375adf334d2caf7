#include "core/Layout.h"

#include "ui/frmCanvas.h"

namespace qp {

namespace {

void centreGuides(Line& vertical, Line& horizontal, Single w, Single h) {
  vertical.X1 = w / 2;
  vertical.X2 = w / 2;
  vertical.Y1 = 0;
  vertical.Y2 = h;
  horizontal.X1 = 0;
  horizontal.X2 = w;
  horizontal.Y1 = h / 2;
  horizontal.Y2 = h / 2;
}

}  // namespace

void Form_Resize(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    if (f.CanvasLocked == -1) return;  // a locked canvas stays as it is
    f.fMax.Left = 1440;
    f.fMax.Top = 0;
    f.fMax.Width = f.Width - 1440 - 320;
    f.fMax.Height = f.Height - 1785;
    f.vHigh.Left = f.fMax.Width + f.fMax.Left + 60;
    f.vHigh.Height = f.fMax.Height;
    f.vHigh.Max = static_cast<int>(f.fMax.Height);
    f.vWidth.Top = f.fMax.Height + 60;
    f.vWidth.Width = f.fMax.Width;
    f.fColors.Top = f.fMax.Height + 240;
    if (s.m.CurrentFile.isEmpty()) {  // an untitled canvas follows its frame
      f.PicPaint.Width = f.fMax.Width;
      f.PicPaint.Height = f.fMax.Height;
      f.vWidth.Visible = false;
      f.vHigh.Visible = false;
    }
    f.Shadow(21).Width = f.fMax.Width - 120;
    f.Shadow(21).Height = f.fMax.Height - 120;
    const bool wide = f.PicPaint.Width > f.fMax.Width;
    const bool tall = f.PicPaint.Height > f.fMax.Height;
    f.vWidth.Visible = wide;
    f.vHigh.Visible = tall;
    f.mLo.Visible = wide || tall;
    MatchPixSurface(s);
    SetTitle(s);
  });
}

void MatchPixSurface(Session& s) {
  frmCanvas& f = s.f;
  f.PicPaint.Picture = f.PicPaint.Image;
  f.pPix.Picture = f.PicPaint.Picture;
  f.pPix.Width = f.PicPaint.ScaleWidth;
  f.pPix.Height = f.PicPaint.ScaleHeight;
  f.pPix.Left = f.PicPaint.Left;
  f.pPix.Top = f.PicPaint.Top;
  f.pPix.BackColor = f.PicPaint.BackColor;
  f.PicUndo.Width = f.PicPaint.Width;
  f.PicUndo.Height = f.PicPaint.Height;
  f.PicUndo.BackColor = f.PicPaint.BackColor;
  // The guides run through the middle of the canvas, in each surface's own unit.
  centreGuides(f.lnX, f.lnY, f.PicPaint.Width, f.PicPaint.Height);
  centreGuides(f.lnPX, f.lnPY, f.pPix.ScaleWidth, f.pPix.ScaleHeight);
}

void SetTitle(Session& s) {
  frmCanvas& f = s.f;
  const QString size = QString::number(static_cast<int>(CInt(f.PicPaint.Width / 15.0))) + " x " +
                       QString::number(static_cast<int>(CInt(f.PicPaint.Height / 15.0)));
  if (s.m.CurrentFile.isEmpty()) {
    f.Caption = " Quillora Pro - Untitled.bmp - " + size;
  } else {
    // The file name is what follows the last path separator of the full path.
    const QString& path = s.m.CurrentFile;
    const int cut = std::max(path.lastIndexOf('/'), path.lastIndexOf('\\'));
    f.Caption = " Quillora Pro - " + path.mid(cut + 1) + "   " + size;
  }
}

}  // namespace qp
