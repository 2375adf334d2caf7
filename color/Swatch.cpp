// The swatch pColor, the colour in waiting lColor, the fore colour swatch and the swap button.
// A colour picked on the swatch waits in lColor; a click takes it to the fore or back colour.
#include <QColor>
#include <cmath>

#include "color/ColourPickers.h"
#include "surface/Device.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

constexpr int kTransparentMode = 26;  // the colour pickers rest while the transparency key is chosen

// The colour of the chart at (x, y) of a w x h chart: hues run across, and down each column the
// colour goes from white through the pure hue to black. The last columns are a gray ramp, so that
// every gray, white and black can be picked as well.
QRgb chartColour(int x, int y, int w, int h) {
  const double down = h > 1 ? static_cast<double>(y) / (h - 1) : 0.5;
  const double lightness = 1.0 - down;
  const int grayColumns = std::max(1, w / 12);
  const int hueColumns = w - grayColumns;
  if (x >= hueColumns) {
    const int v = static_cast<int>(std::lround(255 * lightness));
    return qRgb(v, v, v);
  }
  const double hue = hueColumns > 0 ? static_cast<double>(x) / hueColumns : 0;
  return QColor::fromHslF(static_cast<float>(hue), 1.0f, static_cast<float>(lightness)).rgb();
}

void takeToFore(Session& s) {
  frmCanvas& f = s.f;
  s.m.ForeClr = f.lColor.BackColor.get();
  f.lForclr.BackColor = s.m.ForeClr;
  f.shErSize.BorderColor = f.lColor.BackColor.get();
  f.shErSize.FillColor = f.lColor.BackColor.get();
  ApplyColors(s);
}

void takeToBack(Session& s) {
  frmCanvas& f = s.f;
  s.m.BackClr = f.lColor.BackColor.get();
  f.lBkclr.BackColor = s.m.BackClr;
  ApplyColors(s);
}

}  // namespace

void PaintSwatch(Session& s) {
  trap([&] {
    PictureBox& p = s.f.pColor;
    // The swatch shows no AutoRedraw picture, but its bitmap is what the picker reads back.
    QImage& img = p.mutableBitmap();
    const int w = img.width(), h = img.height();
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x) img.setPixel(x, y, chartColour(x, y, w, h));
  });
}

void pColor_MouseMove(Session& s, int Button, int Shift, Single X, Single Y) {
  frmCanvas& f = s.f;
  trap([&] {
    // With Ctrl held the colour stays, so the pointer can leave the swatch without losing it.
    if (f.CtrlDown != -1) {
      const int px = static_cast<int>(std::floor(X / 15.0));
      const int py = static_cast<int>(std::floor(Y / 15.0));
      f.lColor.BackColor = GetPixel(f.pColor, px, py);
      f.shErSize.BorderColor = f.lColor.BackColor.get();
      f.shErSize.FillColor = f.lColor.BackColor.get();
    }
    f.pColor.ToolTipText = s.m.PaintMode == 9
        ? "Mister President! We have have martians running around loose all over Nevada!"
        : "";
    f.lHelp.Caption =
        "Move pointer over swatch to choose a color for the Color Option box - Left-click to set "
        "draw color - Right-click to set second color - Hold Ctrl key to keep the color while "
        "leaving the swatch";
  });
}

void pColor_MouseDown(Session& s, int Button, int Shift, Single X, Single Y) {
  trap([&] {
    if (Button != vbLeftButton || s.m.PaintMode == kTransparentMode) return;
    takeToFore(s);
  });
}

void pColor_MouseUp(Session& s, int Button, int Shift, Single X, Single Y) {
  trap([&] {
    if (Button != vbRightButton) return;
    takeToBack(s);
  });
}

void lColor_MouseDown(Session& s, int Button, int Shift, Single X, Single Y) {
  frmCanvas& f = s.f;
  trap([&] {
    if (Button != vbLeftButton) return;
    f.lForclr.BackColor = f.lColor.BackColor.get();
    ApplyColors(s);
  });
}

void lColor_MouseUp(Session& s, int Button, int Shift, Single X, Single Y) {
  trap([&] {
    if (Button != vbRightButton) return;
    takeToBack(s);
  });
}

void lForclr_MouseUp(Session& s, int Button, int Shift, Single X, Single Y) {
  trap([&] {
    if (Button == vbRightButton) SwapColors(s);
  });
}

void cSwap_Click(Session& s) {
  trap([&] { SwapColors(s); });
}

}  // namespace qp
