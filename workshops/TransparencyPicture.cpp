// The Transparency Tool's picture: erasing in the key colour, Ctrl-picking a key colour, the
// selection rectangle, one level of undo, and the zoom.
#include <algorithm>
#include <cmath>

#include "surface/Device.h"
#include "ui/Windows.h"
#include "workshops/Transparency.h"
#include "workshops/TransparencyTool.h"

namespace qp {

namespace {

constexpr Colour kBlinkDark = 0xC0C0C0;
constexpr Colour kBlinkLight = 0xE0E0E0;

frmBlue* window(Session& s) { return s.windows ? &s.windows->blue : nullptr; }

// The picture the pointer is on, with its eraser outline and its undo holder.
struct Board {
  PictureBox& box;
  Shape& eraser;
  PictureBox& undo;
};

Board boardOf(frmBlue& b, bool zoomed) {
  if (zoomed) return {b.pZoom, b.shZraser, b.pZun};
  return {b.pBlu, b.shErase, b.pUn};
}

// Ctrl comes from the window's keys; a pointer event that carries it counts as well, so that Ctrl
// held before the window had the focus still picks.
bool ctrlHeld(const frmBlue& b, int Shift) { return b.CtrlDown == -1 || (Shift & vbCtrlMask) != 0; }

Colour pixelUnder(const PictureBox& box, Single X, Single Y) {
  return GetPixel(box, static_cast<int>(CLng(X / 15)), static_cast<int>(CLng(Y / 15)));
}

// One dab of the eraser at the pointer, in the key colour: a filled square on the outline's
// rectangle, or a filled circle of its width.
void erase(Session& s, frmBlue& b, const Board& d, Single X, Single Y) {
  const Colour key = s.m.TransparentClr;
  Shape& e = d.eraser;
  e.Visible = true;
  e.BorderColor = kBlinkDark;
  e.BackColor = key;
  e.FillColor = key;
  e.Left = X - e.Width.get() / 2;
  e.Top = Y - e.Height.get() / 2;
  if (b.opEr(1).Value) {
    e.Shape_ = 3;
    d.box.FillColor = key;
    d.box.FillStyle = 0;
    // The outline in the key colour too, so that no ring of another colour is left behind.
    d.box.Circle(X, Y, static_cast<Single>(CInt(e.Width.get() / 2)), key);
  } else {
    e.Shape_ = 0;
    const Single L = e.Left, T = e.Top;
    d.box.Line(L, T, L + e.Width.get(), T + e.Height.get(), key, LineBox::BF);
  }
}

void stretchSelection(frmBlue& b, const Board& d, Single X, Single Y) {
  const Single left = std::min(X, b.StartX), top = std::min(Y, b.StartY);
  b.DShp.Move(d.box.Left.get() + left, d.box.Top.get() + top, std::abs(X - b.StartX), std::abs(Y - b.StartY));
}

// The selection rectangle, in pixels of the picture under it.
QRect selectionPixels(const frmBlue& b, const Board& d) {
  const double left = (b.DShp.Left.get() - d.box.Left.get()) / 15.0;
  const double top = (b.DShp.Top.get() - d.box.Top.get()) / 15.0;
  const int x = static_cast<int>(std::lround(left)), y = static_cast<int>(std::lround(top));
  const int w = static_cast<int>(std::lround(b.DShp.Width.get() / 15.0));
  const int h = static_cast<int>(std::lround(b.DShp.Height.get() / 15.0));
  return QRect(x, y, w, h);
}

}  // namespace

void Blue_MouseDown(Session& s, bool zoomed, int Button, int Shift, Single X, Single Y) {
  frmBlue* b = window(s);
  if (!b || Button != vbLeftButton) return;
  const Board d = boardOf(*b, zoomed);
  trap([&] {
    if (ctrlHeld(*b, Shift)) {  // a sample only: the colour is taken at the release
      b->lColor.BackColor = pixelUnder(d.box, X, Y);
      return;
    }
    d.undo.Picture = d.box.Image;
    d.box.Picture = d.box.Image;
    if (b->SelectMode) {
      b->StartX = X;
      b->StartY = Y;
      b->DShp.Move(d.box.Left.get() + X, d.box.Top.get() + Y, 0, 0);
      b->DShp.Visible = true;
      return;
    }
    erase(s, *b, d, X, Y);
  });
}

void Blue_MouseMove(Session& s, bool zoomed, int Button, int Shift, Single X, Single Y) {
  frmBlue* b = window(s);
  if (!b) return;
  const Board d = boardOf(*b, zoomed);
  trap([&] {
    b->lX.Caption = "X:" + QString::number(static_cast<int>(CLng(X / 15)));
    b->lY.Caption = "Y:" + QString::number(static_cast<int>(CLng(Y / 15)));
    if (ctrlHeld(*b, Shift)) b->lColor.BackColor = pixelUnder(d.box, X, Y);
    if (Button != vbLeftButton) return;
    if (b->SelectMode) stretchSelection(*b, d, X, Y);
    else if (!ctrlHeld(*b, Shift)) erase(s, *b, d, X, Y);
  });
}

void Blue_MouseUp(Session& s, bool zoomed, int Button, int Shift, Single X, Single Y) {
  frmBlue* b = window(s);
  if (!b) return;
  const Board d = boardOf(*b, zoomed);
  trap([&] {
    if (Button == vbRightButton) {  // one level of undo, to the last press
      d.box.Picture = d.undo.Image;
      b->DShp.Visible = false;
      d.eraser.Visible = false;
      b->tSel.Enabled = false;
      return;
    }
    if (Button != vbLeftButton) return;
    if (ctrlHeld(*b, Shift)) {
      s.m.TransparentClr = b->lColor.BackColor.get();
      b->lColor.Caption = "Transparent Color Selected - Draw Selection Now";
      b->mSelect.Enabled = true;
      return;
    }
    if (b->SelectMode) {
      const QRect area = selectionPixels(*b, d);
      if (area.isEmpty()) return;  // a click without a drag selects nothing
      b->pT1.Width = area.width() * 15.0f;
      b->pT1.Height = area.height() * 15.0f;
      b->tSel.Enabled = true;
      d.box.Picture = d.box.Image;
      b->pT1.Picture = CutRectangle(d.box.Picture.get(), area, d.box.BackColor.get());
      b->pT1.Picture = b->pT1.Image;
      b->lColor.Caption = "Transparency Ready...";
      b->mDun.Enabled = true;
      s.m.TransparencyDone = -1;
      return;
    }
    if (b->opEr(1).Value) d.eraser.Visible = false;
    b->mSelect.Enabled = true;
  });
}

void Blue_mSelect_Click(Session& s) {
  frmBlue* b = window(s);
  if (!b) return;
  trap([&] {
    const bool toSelect = b->mSelect.Caption.get() == "Set Selection";
    b->mSelect.Caption = toSelect ? "Erase" : "Set Selection";
    b->SelectMode = toSelect ? -1 : 0;
    b->shErase.Visible = false;
    b->shZraser.Visible = false;
    b->fX.Visible = false;
    b->fStruct.Visible = false;
  });
}

void Blue_tSel_Timer(Session& s) {
  frmBlue* b = window(s);
  if (!b) return;
  trap([&] {
    if (b->DShp.BorderColor == kBlinkDark) b->DShp.BorderColor = kBlinkLight;
    else if (b->DShp.BorderColor == kBlinkLight) b->DShp.BorderColor = kBlinkDark;
  });
}

// Back to normal size: the zoomed work is scaled back into pBlu.
void Blue_mZoom1_Click(Session& s) {
  frmBlue* b = window(s);
  if (!b) return;
  trap([&] {
    if (b->pZoom.Visible) {
      b->pZoom.Picture = b->pZoom.Image;
      const QImage back = ShrinkPicture(b->pZoom.Picture, QSize(b->pBlu.pixelWidth(), b->pBlu.pixelHeight()));
      if (!back.isNull()) b->pBlu.PaintPicture(back, 0, 0);
    }
    b->ZoomLevel = 1;
    b->pZoom.Visible = false;
    b->pBlu.Visible = true;
    b->vHigh.Visible = false;
    b->vWidth.Visible = false;
    b->shErase.Visible = false;
    b->shZraser.Visible = false;
    b->DShp.Visible = false;
  });
}

void ApplyZoom(Session& s, int level) {
  frmBlue* b = window(s);
  if (!b) return;
  trap([&] {
    // Zooming again from a zoom starts from the picture at normal size, with the work brought back.
    if (b->pZoom.Visible) Blue_mZoom1_Click(s);
    b->ZoomLevel = level;
    b->pBlu.Picture = b->pBlu.Image;
    const QImage zoomed = ZoomPicture(b->pBlu.Picture, level);
    if (zoomed.isNull()) raiseError(RuntimeError::OutOfMemory, "Out of memory");
    b->pZoom.Height = b->pBlu.Height.get() * level;
    b->pZoom.Width = b->pBlu.Width.get() * level;
    b->pZoom.Move(0, 0);
    b->pZoom.Visible = false;
    b->pZoom.Visible = true;
    b->pZoom.Picture = zoomed;
    b->pBlu.Visible = false;
    b->DShp.Visible = false;
    b->vHigh.Visible = true;
    b->vWidth.Visible = true;
    // The bars run from 0 down to how far the picture reaches past the frame.
    auto reach = [](Single frame, Single picture) { return static_cast<int>(std::clamp(frame - picture, -32768.0f, 0.0f)); };
    b->vWidth.Value = 0;
    b->vHigh.Value = 0;
    b->vWidth.Max = reach(b->fMax.Width, b->pZoom.Width);
    b->vHigh.Max = reach(b->fMax.Height, b->pZoom.Height);
  });
}

void Blue_vWidth_Change(Session& s) {
  if (frmBlue* b = window(s)) trap([&] { b->pZoom.Left = static_cast<Single>(b->vWidth.Value.get()); });
}

void Blue_vHigh_Change(Session& s) {
  if (frmBlue* b = window(s)) trap([&] { b->pZoom.Top = static_cast<Single>(b->vHigh.Value.get()); });
}

}  // namespace qp
