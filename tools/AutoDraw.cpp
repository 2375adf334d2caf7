// AutoDraw. The pen lives in twips of the canvas with no test against its edges: it may leave the
// canvas and come back, its lines cut by the surface. Its position is 16-bit; a pen driven past
// 32767 overflows and that tick ends without drawing.
#include "tools/AutoDraw.h"

#include "color/ColourEngine.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {
constexpr Colour kLive = 0xFF8080;
constexpr Colour kDim = 0x808080;
}  // namespace

void AutoDrawSwitch(Session& s) {
  frmCanvas& f = s.f;
  const bool on = f.ckVal.Value == 1;
  // The speed row and the box's row light up while the pen is engaged.
  for (int n : {1, 2}) {
    f.Shadow(n).BackColor = on ? kLive : kDim;
    f.Shadow(n).BorderColor = on ? kLive : kDim;
  }
  f.lStats.Caption = on ? "AutoDraw Enabled" : "AutoDraw Disabled";
  // The arrow keys steer the pen instead of the width, so the width limits have nothing to do.
  f.vMax.Enabled = !on;
  f.vMin.Enabled = !on;
  f.fInt.Visible = on;
}

void AutoDrawSpeedChange(Session& s) {
  frmCanvas& f = s.f;
  f.AutoDrawSpeed = f.vVal1.Value.get();
  const QString value = QString::number(f.AutoDrawSpeed);
  f.lVal1.Caption = "Speed : " + value;
  f.lStats.Caption = "Speed : " + value;
  f.lHelp.Caption = "Click arrows to set AutoDraw Speed    Current Speed : " + value +
                    "    Set interval with the Interval arrows located to the left of the draw width controls";
  f.lVal1.ToolTipText = "Speed : " + value;
}

void tDraw_Timer(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    // Clearing the box stops the drawing at once; the timer itself stops at the key up.
    if (f.ckVal.Value == 0) return;
    f.AutoDrawPrevX = f.AutoDrawX;
    f.AutoDrawPrevY = f.AutoDrawY;
    // A key held with its opposite cancels on that axis; keys of both axes give a diagonal.
    if (f.AutoDrawLeft == -1 && f.AutoDrawRight == 0) f.AutoDrawX -= f.AutoDrawSpeed;
    if (f.AutoDrawUp == -1 && f.AutoDrawDown == 0) f.AutoDrawY -= f.AutoDrawSpeed;
    if (f.AutoDrawRight == -1 && f.AutoDrawLeft == 0) f.AutoDrawX += f.AutoDrawSpeed;
    if (f.AutoDrawDown == -1 && f.AutoDrawUp == 0) f.AutoDrawY += f.AutoDrawSpeed;
    StepDrawColor(s);
    f.PicPaint.Line(f.AutoDrawX, f.AutoDrawY, f.AutoDrawPrevX, f.AutoDrawPrevY, s.m.ForeClr.value());
    f.lX.Caption = "X : " + QString::number(CInt(f.AutoDrawX / 15.0));
    f.lY.Caption = "Y : " + QString::number(CInt(f.AutoDrawY / 15.0));
  });
}

void wireAutoDraw(Session& s) {
  s.f.tDraw.Timer_ = [&s] { tDraw_Timer(s); };
}

}  // namespace qp
