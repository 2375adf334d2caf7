// The session's colours: the fore and back swatches are the truth, ForeClr and BackClr follow them.
#include <cmath>

#include "color/ColourPickers.h"
#include "core/PanelRoles.h"
#include "ui/frmCanvas.h"

namespace qp {

Colour keyColour(int index) {
  // White, red, green, blue, yellow, cyan, magenta, and the gray of key "8".
  static constexpr Colour kKeys[] = {0xFFFFFF, 0x0000FF, 0x00FF00, 0xFF0000,
                                     0x00FFFF, 0xFFFF00, 0xFF00FF, 0x9B9B9B};
  if (index < 0 || index > 7) return -1;
  return kKeys[index];
}

void ApplyColors(Session& s) {
  frmCanvas& f = s.f;
  s.m.ForeClr = f.lForclr.BackColor.get();
  f.PicPaint.ForeColor = s.m.ForeClr;
  f.shErSize.FillColor = s.m.ForeClr;
  // With the text tools open the back colour is theirs too; otherwise each picker writes BackClr
  // itself, so that a tool's running BackClr is not undone by choosing a fore colour.
  if (f.fText.Visible) {
    // The 3D text sample is drawn with the bars as they stand; the bars follow the colours after
    // it, so the sample takes the new colours at its next drawing.
    ShowTextSample(s);
    SetTextColourBars(s, s.m.ForeClr, f.lBkclr.BackColor);
  }
}

void SetTextColourBars(Session& s, Colour fore, Colour back) {
  frmCanvas& f = s.f;
  f.HS1(3).Value = redOf(fore);
  f.HS1(4).Value = greenOf(fore);
  f.HS1(5).Value = blueOf(fore);
  s.m.BackClr = back;
  f.HS1(0).Value = redOf(back);
  f.HS1(1).Value = greenOf(back);
  f.HS1(2).Value = blueOf(back);
}

void SwapColors(Session& s) {
  frmCanvas& f = s.f;
  const Colour fore = f.lForclr.BackColor;
  f.lForclr.BackColor = f.lBkclr.BackColor.get();
  f.lBkclr.BackColor = fore;
  s.m.ForeClr = f.lForclr.BackColor.get();
  s.m.BackClr = f.lBkclr.BackColor.get();
  SetTextColourBars(s, s.m.ForeClr, s.m.BackClr);
  if (f.fText.Visible) ShowTextSample(s);
  // PicPaint's pen is left alone on purpose: the next tool step or ApplyColors sets it.
}

int ColorPart(Session& s, Colour colour, int part) {
  // Division rather than masking, so that -1 (the colour of a point outside a picture) splits
  // into three bytes of 255 just as it reads back.
  double rest = colour;
  int bytes[3] = {0, 0, 0};
  for (int& b : bytes) {
    b = static_cast<int>(rest - 256 * std::floor(rest / 256));
    rest = (rest - b) / 256;
  }
  s.m.ClrRed = bytes[0];  // the colour steppers build on this
  if (part < 0 || part > 2) return 0;
  return bytes[part];
}

void SetSwatchColor(Session& s) {
  frmCanvas& f = s.f;
  const Colour c = keyColour(f.SwatchKey);
  if (c < 0) return;
  f.lColor.BackColor = c;
  f.lForclr.BackColor = f.lColor.BackColor.get();
  ApplyColors(s);
}

void ColourKey(Session& s, int index, bool setsOption) {
  trap([&] {
    if (index < 0 || index > 7) return;
    s.f.SwatchKey = index;
    SetSwatchColor(s);
    if (setsOption) s.m.ColorOption = index;
  });
}

}  // namespace qp
