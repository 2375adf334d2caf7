// The Selection Tool. A drag draws the rubber rectangle; the release takes the rectangle into the
// floating pSpire (Select and Clear also clears it from the canvas at once, so that only Undo brings
// it back). While it floats, a press or drag on the canvas carries it, a left press on it sets it
// down, a right click on it drops it.
#include "tools/Selection.h"

#include <cmath>

#include "core/FloatingBlock.h"
#include "core/ApplyPaintMode.h"
#include "core/Undo.h"
#include "files/FileDialog.h"
#include "tools/PaintWithPix.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"
#include "ui/frmFile.h"

namespace qp {

namespace {

constexpr Colour kFrameDark = 0xC0C0C0;
constexpr Single kSmallestSide = 180;  // twips: a smaller drag selects nothing

// The selection menu's commands apply while a selection floats.
void enableFloatCommands(frmCanvas& f, bool on) {
  for (Menu* m : {&f.mSaveSel, &f.mCpySel, &f.mIvSel, &f.mMirSel, &f.mTile}) m->Enabled = on;
}

// The signed distance from the first corner, in pixels, printed as the runtime prints a Single.
void tellSize(Session& s, Single X, Single Y) {
  frmCanvas& f = s.f;
  auto real = [](double v) { return QString::number(static_cast<float>(v), 'g', 7); };
  f.lTell.Caption = "Rectangle size : " + real(X / 15.0 - f.DownButtonX) + " x " +
                    real(Y / 15.0 - f.DownButtonY);
}

void startRubber(Session& s, Single X, Single Y) {
  frmCanvas& f = s.f;
  s.m.StartX = X;
  s.m.StartY = Y;
  f.DrawShape.Shape_ = 0;  // a selection is always a rectangle
  f.DrawShape.Move(X, Y, 0, 0);
  f.DrawShape.Visible = true;
}

void stretchRubber(Session& s, Single X, Single Y) {
  frmCanvas& f = s.f;
  const Single sx = s.m.StartX, sy = s.m.StartY;
  f.DrawShape.Move(std::min(X, sx), std::min(Y, sy), std::abs(X - sx), std::abs(Y - sy));
}

bool tooSmall(frmCanvas& f) {
  if (f.DrawShape.Width.get() >= kSmallestSide && f.DrawShape.Height.get() >= kSmallestSide) return false;
  f.DrawShape.Visible = false;
  f.tTemp.Enabled = false;
  return true;
}

// The rectangle under the rubber frame goes into pT1 and from there into pSpire, which takes the
// frame's place; the frame becomes the float's blinking outline.
void takeRectangle(Session& s, bool show) {
  frmCanvas& f = s.f;
  const Single L = f.DrawShape.Left, T = f.DrawShape.Top;
  const Single W = f.DrawShape.Width, H = f.DrawShape.Height;
  f.pT1.Width = W;
  f.pT1.Height = H;
  f.pSpire.Width = W;
  f.pSpire.Height = H;
  f.pSpire.Left = L;
  f.pSpire.Top = T;
  f.pT1.PaintPicture(f.PicPaint.Picture, 0, 0, W, H, L, T, W, H);
  f.pT1.Picture = f.pT1.Image;
  f.pSpire.PaintPicture(f.pT1.Image, 0, 0, f.pT1.ScaleWidth.get(), f.pT1.ScaleHeight.get());
  f.DrawShape.BorderWidth = 3;
  f.DrawShape.BorderStyle = 3;
  f.DrawShape.BorderColor = kFrameDark;
  if (!show) return;
  f.tTemp.Enabled = true;
  f.pSpire.Visible = true;
  enableFloatCommands(f, true);
}

void SelectionPress(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  f.pT1.ScaleMode = 1;
  if (f.pSpire.Visible) {
    MoveFloat(f.pSpire, f.DrawShape, X, Y);
    return;
  }
  f.pSpire.Picture = QImage();
  f.pT1.Picture = QImage();
  startRubber(s, X, Y);
}

void SelectionMove(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  if (f.pSpire.Visible) MoveFloat(f.pSpire, f.DrawShape, X, Y);
  else stretchRubber(s, X, Y);
}

void SelectAndClearRelease(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  if (tooSmall(f)) return;
  // Only this mode puts the draw width back to one.
  f.PicPaint.DrawWidth = 1;
  s.m.DrawWidth = 1;
  f.vPencil.Value = 1;
  f.lPenVal.Caption = "Draw Width : 1";
  f.pSpire.ScaleMode = 1;
  if (f.pSpire.Visible) {
    MoveFloat(f.pSpire, f.DrawShape, X, Y);
  } else {
    takeRectangle(s, true);
    // The clearing: the pixels leave the canvas now; cancelling the float does not bring them back.
    f.shErase.Move(f.pSpire.Left, f.pSpire.Top, f.pSpire.Width, f.pSpire.Height);
    f.shErase.FillColor = f.PicPaint.BackColor.get();
    const Single L = f.shErase.Left, T = f.shErase.Top;
    f.PicPaint.Line(L, T, L + f.shErase.Width.get(), T + f.shErase.Height.get(), f.shErase.FillColor.get(),
                    LineBox::BF);
    f.pT1.ScaleMode = 3;
  }
  f.mCopy.Enabled = false;
  tellSize(s, X, Y);
}

void SelectAndCopyRelease(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  if (tooSmall(f)) return;
  f.pSpire.ScaleMode = 1;
  if (f.pSpire.Visible) {
    MoveFloat(f.pSpire, f.DrawShape, X, Y);
  } else if (f.TransparencySelect == 0) {
    f.pT1.Picture = QImage();
    takeRectangle(s, true);
    f.pSpire.Picture = f.pSpire.Image;
  } else {
    // Taken for the Transparency Tool: the selection goes straight to its window, unseen here.
    takeRectangle(s, false);
    f.pSpire.Picture = f.pSpire.Image;
    HandSelectionToTransparencyTool(s, f.pSpire.Picture);
    f.TransparencySelect = 0;
    EnterTransparentMode(s);
  }
  f.mCopy.Enabled = false;
  tellSize(s, X, Y);
}

void FloatingPasteFollow(Session& s, int, Single X, Single Y) { MoveFloat(s.f.pTemp, s.f.DrawShape, X, Y); }

void FloatingPastePress(Session& s, int b, Single X, Single Y) {
  FloatingPasteFollow(s, b, X, Y);
  s.f.DrawShape.BorderWidth = 3;
}

// The end of a float, set or dropped: back to the mode that was active before it.
void endFloat(Session& s) {
  frmCanvas& f = s.f;
  f.DrawShape.Visible = false;
  f.DrawShape.BorderWidth = 1;
  f.tTemp.Enabled = false;
  f.pSpire.Visible = false;
  enableFloatCommands(f, false);
  s.m.PaintMode = f.PriorMode.value();
}

// Mirror and invert: the float copied to the scratch pTemp, then painted back from a source
// rectangle of negative width or height.
void flipFloat(Session& s, bool topToBottom) {
  frmCanvas& f = s.f;
  trap([&] {
    if (!f.pSpire.Visible) return;
    f.pTemp.Cls();
    f.pSpire.Picture = f.pSpire.Image;
    f.pTemp.Picture = f.pSpire.Image;
    const Single W = f.pTemp.ScaleWidth, H = f.pTemp.ScaleHeight;
    if (topToBottom) f.pSpire.PaintPicture(f.pTemp.Picture, 0, 0, W, H, 0, H, W, -H);
    else f.pSpire.PaintPicture(f.pTemp.Picture, 0, 0, W, H, W, 0, -W, H);
  });
}

}  // namespace

void MoveFloat(PictureBox& box, Shape& frame, Single X, Single Y) {
  box.Left = X - box.Width.get() / 6;
  box.Top = Y - box.Height.get() / 6;
  frame.Left = box.Left.get();
  frame.Top = box.Top.get();
}

ToolHooks selectAndClearHooks() {
  ToolHooks h;
  h.press = SelectionPress;
  h.move = SelectionMove;
  h.release = SelectAndClearRelease;
  h.spirePress = SelectionSpire_MouseDown;
  h.spireRelease = SelectionSpire_MouseUp;
  return h;
}

ToolHooks selectAndCopyHooks() {
  ToolHooks h;
  h.press = SelectionPress;
  h.move = SelectionMove;
  h.release = SelectAndCopyRelease;
  h.spirePress = SelectionSpire_MouseDown;
  h.spireRelease = SelectionSpire_MouseUp;
  return h;
}

ToolHooks floatingPasteHooks() {
  ToolHooks h;
  h.press = FloatingPastePress;
  h.move = FloatingPasteFollow;
  h.release = FloatingPasteFollow;
  return h;
}

void SelectionSpire_MouseDown(Session& s, int Button, Single, Single) {
  frmCanvas& f = s.f;
  if (Button != vbLeftButton) return;
  trap([&] {
    SetFloatOnCanvas(s, f.pSpire, f.pSpire.Left, f.pSpire.Top, f.pSpire.Width.get(), f.pSpire.Height.get());
    endFloat(s);
    if (s.m.PaintMode == 16) {
      ApplyPaintMode(s);
      s.rt.msgbox.MsgBox("Copy successful", vbOKOnly, QString());
    }
    f.mCopy.Enabled = true;
  });
}

void SelectionSpire_MouseUp(Session& s, int Button, Single, Single) {
  frmCanvas& f = s.f;
  if (Button != vbRightButton) return;
  trap([&] {
    endFloat(s);
    if (s.m.PaintMode == 16 || s.m.PaintMode == 25) ApplyPaintMode(s);
    f.mCopy.Enabled = true;
  });
}

// The paint mode stays at 22 after a cancelled paste, until the next mode is chosen.
void pTemp_MouseUp(Session& s, int Button, int, Single, Single) {
  frmCanvas& f = s.f;
  if (Button != vbRightButton) return;
  trap([&] {
    f.DrawShape.Visible = false;
    f.DrawShape.BorderColor = kFrameDark;
    f.tTemp.Enabled = false;
    f.pTemp.Visible = false;
  });
}

void mIvSel_Click(Session& s) { flipFloat(s, true); }
void mMirSel_Click(Session& s) { flipFloat(s, false); }

void mCpySel_Click(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    if (!f.pSpire.Visible) return;
    f.pSpire.Picture = f.pSpire.Image;
    s.rt.clipboard.Clear();
    s.rt.clipboard.SetData(f.pSpire.Picture);
  });
}

void mSaveSel_Click(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    if (fileWindowShown(s) || !f.pSpire.Visible) return;
    f.pSpire.Picture = f.pSpire.Image;
    if (frmFile* d = fileWindow(s)) d->Width = frmFile::kSaveWidth;
    ShowFileDialog(s, FileMode::SaveSelection);
  });
}

// No undo snapshot: the selection stays afloat, and cancelling it is how the user goes on.
void TileSelection_Click(Session& s, int N) {
  frmCanvas& f = s.f;
  trap([&] {
    if (!f.pSpire.Visible) return;
    f.pSpire.Picture = f.pSpire.Image;
    TilePicture(f.PicPaint, f.pSpire.Picture, N);
  });
}

}  // namespace qp
