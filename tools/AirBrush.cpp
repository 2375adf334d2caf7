// The AirBrush. The mouse only moves the spray point and steps the colour; the dots come from the
// timer, so holding still goes on spraying in one colour.
#include <cmath>

#include "color/ColourEngine.h"
#include "tools/Freehand.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

void sprayPoint(Session& s) {
  StepDrawColor(s);
  s.m.LastX = s.f.PointerX;
  s.m.LastY = s.f.PointerY;
}

}  // namespace

void tAir_Timer(Session& s) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  trap([&] {
    // The distance is drawn evenly, not by area, in rings of 18 twips: dense at the centre, with
    // grain. The angle sweeps 2 pi + 1, so the first radian's directions come up twice as often.
    const double D = std::floor(static_cast<double>(s.rt.rnd.Rnd()) * (f.AirSpread + 1)) * 18;
    const double A = static_cast<double>(s.rt.rnd.Rnd()) * 7.28318530717958;
    const double lastX = m.LastX, lastY = m.LastY;
    const double PX = lastX + D * std::cos(A);
    const double PY = (lastY + lastY - D * std::sin(A)) - lastY;
    f.PicPaint.DrawWidth = m.DrawWidth;
    f.PicPaint.PSet(static_cast<Single>(PX), static_cast<Single>(PY), m.ForeClr.value());
  });
}

ToolHooks airBrushHooks() {
  ToolHooks h;
  h.press = [](Session& s, int, Single, Single) {
    s.f.tAir.Enabled = true;
    sprayPoint(s);
  };
  h.move = [](Session& s, int, Single, Single) { sprayPoint(s); };
  h.release = [](Session& s, int, Single, Single) { s.f.tAir.Enabled = false; };
  return h;
}

}  // namespace qp
