// BlueScreen's preparation of the second picture: the key colour chosen from the labels or picked
// with Ctrl from the picture, and the eraser that paints the key colour where the second picture
// is not to be kept. One level of undo, to the last press.
#include <algorithm>
#include <cmath>

#include "core/ModQuillora.h"
#include "surface/Device.h"
#include "ui/Windows.h"
#include "workshops/ImageBlender.h"

namespace qp {

namespace {

constexpr const char* kPickHelp =
    "Hold Ctrl key and click paint area to select custom Transparency color (Only that color will be "
    "transparent) - To overlay a portion of image erase everything except that portion - Right-click "
    "paint area to Undo last erasure";

// One dab of the eraser at the pointer, square or round, in the key colour.
void erase(Session& s, frmBlend& b, Single X, Single Y) {
  const Colour key = static_cast<Colour>(s.m.TransparentClr.value());
  const Single size = static_cast<Single>(b.vVal.Value.get());
  b.shErase.BackColor = key;
  b.shErase.BorderColor = 0xC0C0C0;
  b.shErase.Move(X - size / 2, Y - size / 2, size, size);
  const bool hide = b.ckHide.Value == 1;
  if (!hide) b.shErase.BorderColor = 0xFFFFFF;
  b.shErase.Visible = !hide;
  if (b.opEr(0).Value) {
    b.shErase.Shape_ = 0;
    b.pT2.Line(b.shErase.Left, b.shErase.Top, b.shErase.Left + size, b.shErase.Top + size, key, LineBox::BF);
    return;
  }
  b.shErase.Shape_ = 3;
  b.pT2.FillColor = key;
  b.pT2.FillStyle = 0;
  b.pT2.Circle(X, Y, static_cast<Single>(CInt(size / 2).value()), key);
}

}  // namespace

void SetTransparentColour(Session& s, Colour colour, const QString& name) {
  frmBlend& b = *blendWindow(s);
  trap([&] {
    s.m.TransparentClr = colour;
    b.lColor.BackColor = colour;
    b.lColor.Caption = "Transparent Color : " + name;
    b.Shadw(5).BorderColor = 0xFF8080;
  });
}

void pT2_MouseDown(Session& s, int Button, int Shift, Single X, Single Y) {
  frmBlend& b = *blendWindow(s);
  if (Button != vbLeftButton || b.BlueMode == 0) return;
  trap([&] {
    if (b.CtrlDown != 0) {
      b.pT2.MousePointer = 99;
      b.pT2.MouseIcon = b.iPnt.Picture;
      return;
    }
    b.pUn.Picture = b.pT2.Image;
    b.pT2.Picture = b.pT2.Image;
    erase(s, b, X, Y);
  });
}

void pT2_MouseMove(Session& s, int Button, int Shift, Single X, Single Y) {
  frmBlend& b = *blendWindow(s);
  if (b.BlueMode == 0) return;
  trap([&] {
    if (b.CtrlDown != 0) {
      auto pixel = [](Single v) { return static_cast<int>(std::isfinite(v) ? std::clamp<double>(v, -1e6, 1e6) : -1.0); };
      b.lColor.BackColor = GetPixel(b.pT2, pixel(X), pixel(Y));
      b.lHelp.Caption = kPickHelp;
      return;
    }
    if (Button & vbLeftButton) erase(s, b, X, Y);
  });
}

void pT2_MouseUp(Session& s, int Button, int Shift, Single X, Single Y) {
  frmBlend& b = *blendWindow(s);
  if (b.BlueMode == 0) return;
  trap([&] {
    b.pT2.MousePointer = 1;
    if (Button == vbLeftButton) {
      if (b.CtrlDown != 0) {
        s.m.TransparentClr = b.lColor.BackColor.get();
        b.lColor.Caption = "Transparent Color Selected";
      }
      b.cGo.Enabled = true;
      b.shErase.Visible = false;
    } else if (Button == vbRightButton) {
      b.pT2.Picture = b.pUn.Image;
      b.shErase.Visible = false;
    }
  });
}

}  // namespace qp
