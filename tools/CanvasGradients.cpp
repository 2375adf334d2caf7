// Canvas Gradients: each press of the canvas button is an undo point, then the whole canvas takes
// the style of the top bar in the colour option (diamonds, squares, circles) or the ramp from the
// fore to the back colour.
#include "tools/CanvasGradients.h"

#include "core/Undo.h"
#include "tools/GradientFill.h"
#include "tools/GradientPanel.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

// The ramp runs over the whole canvas from its first twip.
void linearGradient(Session& s) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  f.PicPaint.DrawWidth = m.DrawWidth.value();
  m.LastX = 1;
  m.LastY = 1;
  const double right = roundHalfEven(f.PicPaint.Width);
  const double bottom = roundHalfEven(f.PicPaint.Height);
  // The press positions hold 16 bits; a canvas wider than that keeps its ends in the ramp's own
  // values, so that a large canvas gets its gradient too.
  if (right <= Integer::kMax) f.DownX = right;
  if (bottom <= Integer::kMax) f.DownY = bottom;
  DrawLinearRamp(f.PicPaint, m.ForeClr.value(), m.BackClr.value(), m.LastX, m.LastY, right, bottom,
                 f.CanvasGradDir == -1);
}

}  // namespace

void CanvasGradientClick(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    TakeUndoSnapshot(s);
    const int option = s.m.ColorOption;
    switch (f.vVal1.Value) {
      case 0: DrawDiamonds(f.PicPaint, option, GradientDoEvents(s)); break;
      case 1: DrawSquares(f.PicPaint, option, f.GradStepSize); break;
      case 2:
        if (const auto pure = PureColour(option))
          DrawGradientCircles(f.PicPaint, *pure, 0x000000, f.vVal3.Value / 6.0,
                              CirclePenWidth(f.PicPaint.Width, f.PicPaint.Height));
        break;
      case 3: linearGradient(s); break;
      default: break;
    }
  });
}

void opVert_Click(Session& s) {
  trap([&] { s.f.CanvasGradDir = s.f.opVert(0).Value ? 0 : -1; });
}

ToolHooks canvasGradientHooks() {
  ToolHooks h;
  addGradientRows(h, {"Diamond", "Square", "Circle", "Gradient"});
  h.cCanClick = CanvasGradientClick;
  h.cCanMouseMove = [](Session& s) { s.f.cCan.ToolTipText = "Click to draw gradient"; };
  return h;
}

}  // namespace qp
