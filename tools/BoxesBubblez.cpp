// Boxes N Bubblez. Each tick draws one box or one bubble from the session's Rnd, so a seeded
// session paints the same scatter again.
#include "tools/BoxesBubblez.h"

#include <cmath>

#include "color/ColourEngine.h"
#include "tools/FigureBrush.h"
#include "tools/FigureShapes.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {
// The turn of the bubbles' random angle: a little more than a full circle, so that a few angles
// come round twice.
constexpr double kTurn = 7.28318530717958;
}  // namespace

void DrawBox(Session& s) {
  frmCanvas& f = s.f;
  DrawParts(f.PicPaint, BoxSides(f.BoxKind), f.PointerX, f.PointerY, f.vVal1.Value, s.m.ForeClr.value());
}

void tBrush_Timer(Session& s) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  Random& rnd = s.rt.rnd;
  trap([&] {
    StepDrawColor(s);
    if (f.ckVal.Value == 0) {
      // The random size moves the bar itself and feeds the next tick, so sizes sink towards 3.
      if (f.ckVal2.Value == 1) f.vVal1.Value = static_cast<int>(Int(f.vVal1.Value * rnd.Rnd() + 3));
      f.BoxKind = Int(rnd.Rnd() * 17 + 1);
      DrawBox(s);
      return;
    }
    const double d = Int(rnd.Rnd() * (f.AirSpread + 1)) * 180;
    const double a = rnd.Rnd() * kTurn;
    const Single px = static_cast<Single>(m.LastX + d * std::cos(a));
    // Written the long way round, as the bubbles always were; it comes to LastY - D Sin(A).
    const Single py = static_cast<Single>((m.LastY + m.LastY - d * std::sin(a)) - m.LastY);
    const Single radius = static_cast<Single>(Int(f.vVal2.Value * rnd.Rnd() + 120));
    f.PicPaint.Circle(px, py, radius, m.ForeClr.value(), std::nullopt, std::nullopt, f.vVal3.Value / 6.0);
  });
}

namespace {

void press(Session& s, int, Single X, Single Y) {
  s.f.tBrush.Enabled = true;
  s.m.LastX = X;
  s.m.LastY = Y;
}

void move(Session& s, int, Single X, Single Y) {
  s.m.LastX = X;
  s.m.LastY = Y;
}

void release(Session& s, int, Single, Single) { s.f.tBrush.Enabled = false; }

// The help line repeats the state word, "Boxes" or "Bubblez".
void kindChange(Session& s) { s.f.lHelp.Caption = s.f.lStats.Caption.get(); }

void maxSizeChange(Session& s) {
  s.f.lHelp.Caption = "Click arrows to set Maximum Size   Current Max : " + QString::number(s.f.vVal2.Value);
}

}  // namespace

ToolHooks boxesBubblezHooks() {
  ToolHooks h;
  h.press = press;
  h.move = move;
  h.release = release;
  h.ckValClick = kindChange;
  h.vValChange[1] = maxSizeChange;
  return h;
}

}  // namespace qp
