// The red, green and blue strips: dragging down a strip with the left button sets one component of
// the custom colour (vRed, vGrn, vBlu), which shows in the Color Option box lColor. With Ctrl the
// three components move together, a gray. The fore and back colours are not touched: a click on
// lColor takes the custom colour over.
#include <cmath>

#include "color/ColourPickers.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

constexpr int kTransparentMode = 26;

struct Strip {
  PictureBox& picture;
  VScrollBar& bar;
  const char* help;
  const char* tipWord;
};

void showCustomColour(frmCanvas& f) {
  f.lColor.BackColor = RGB(f.vRed.Value, f.vGrn.Value, f.vBlu.Value);
}

void stripMove(Session& s, const Strip& strip, int Button, Single Y) {
  frmCanvas& f = s.f;
  trap([&] {
    if (s.m.PaintMode == kTransparentMode) return;
    f.lHelp.Caption = QString(strip.help) + QString::number(strip.bar.Value);
    if (Button != vbLeftButton) return;
    if (f.CtrlDown == -1) {
      f.PointerY = CInt(Y);
      SetGrayLevel(s);
    }
    const double y = Y;
    if (y >= 255) strip.bar.Value = 255;
    else if (y <= 0) strip.bar.Value = 0;
    else strip.bar.Value = static_cast<int>(CInt(y));
    showCustomColour(f);
    strip.picture.ToolTipText = QString(strip.tipWord) + QString::number(strip.bar.Value);
  });
}

}  // namespace

void SetGrayLevel(Session& s) {
  frmCanvas& f = s.f;
  const int level = f.PointerY >= 255 ? 255 : f.PointerY <= 0 ? 0 : static_cast<int>(f.PointerY);
  f.vRed.Value = level;
  f.vGrn.Value = level;
  f.vBlu.Value = level;
  showCustomColour(f);
  f.pR.ToolTipText = "Red : " + QString::number(f.vRed.Value);
  f.pG.ToolTipText = "Green : " + QString::number(f.vGrn.Value);
  f.pB.ToolTipText = "Blue : " + QString::number(f.vBlu.Value);
}

void pR_MouseMove(Session& s, int Button, int Shift, Single X, Single Y) {
  stripMove(s,
            {s.f.pR, s.f.vRed,
             "Hold left mouse button and move pointer to set RED value in custom color    "
             "Current Red value: ",
             "Red : "},
            Button, Y);
}

void pG_MouseMove(Session& s, int Button, int Shift, Single X, Single Y) {
  stripMove(s,
            {s.f.pG, s.f.vGrn,
             "Hold left mouse button and move pointer to set GREEN value in custom color    "
             "Current Green value: ",
             "Green : "},
            Button, Y);
}

void pB_MouseMove(Session& s, int Button, int Shift, Single X, Single Y) {
  stripMove(s,
            {s.f.pB, s.f.vBlu,
             "Hold left mouse button and move pointer to set BLUE value in custom color    "
             "Current Blue value : ",
             "Blue : "},
            Button, Y);
}

}  // namespace qp
