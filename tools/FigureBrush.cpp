// The figure brushes: a press stamps one figure in the colour last chosen; with ckVal set, holding
// the button stamps a figure each tick of tBrushTime at the pointer, stepping the colour each time.
#include "tools/FigureBrush.h"

#include "color/ColourEngine.h"
#include "ui/frmCanvas.h"

namespace qp {

void DrawParts(PictureBox& surface, const std::vector<FigurePart>& parts, Single x, Integer y, int size,
               Colour colour) {
  const auto at = [&](double u) { return static_cast<Single>(x + u * size); };
  const auto down = [&](double v) { return static_cast<Single>(add16(y, CInt(v * size))); };
  for (const FigurePart& p : parts) {
    if (p.kind == FigurePart::Line) {
      surface.Line(at(p.x1), down(p.y1), at(p.x2), down(p.y2), colour);
    } else {
      surface.Circle(at(p.x1), down(p.y1), static_cast<Single>(p.r * size), colour, p.start, p.end, p.aspect);
    }
  }
}

void DrawFigure(Session& s) {
  frmCanvas& f = s.f;
  // A failure part way (a position past what the canvas's numbers hold) keeps the parts drawn.
  trap([&] {
    DrawParts(f.PicPaint, FigureParts(f.BrushFigure), f.PointerX, f.PointerY, f.vVal2.Value,
              s.m.ForeClr.value());
  });
}

void tBrushTime_Timer(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    StepDrawColor(s);
    // The random size feeds the bar back on itself, so the size wanders from tick to tick; a size
    // past the bar's end is refused and the tick draws nothing.
    if (f.ckVal2.Value == 1) f.vVal2.Value = static_cast<int>(Int(f.vVal2.Value * s.rt.rnd.Rnd() + 3));
    DrawFigure(s);
  });
}

namespace {

void press(Session& s, int, Single, Single) {
  s.f.PicPaint.DrawWidth = s.m.DrawWidth;
  DrawFigure(s);
}

void move(Session& s, int, Single, Single) {
  frmCanvas& f = s.f;
  if (f.ckVal.Value != 1) return;
  f.PicPaint.DrawWidth = s.m.DrawWidth;
  f.tBrushTime.Enabled = true;
}

void release(Session& s, int, Single, Single) { s.f.tBrushTime.Enabled = false; }

void sizeChange(Session& s) {
  frmCanvas& f = s.f;
  const QString v = QString::number(f.vVal2.Value);
  f.lStats.Caption = "Size : " + v;
  f.lTell.Caption = "Click arrows to set Brush size   Current Size : " + v;
  f.vVal2.ToolTipText = "Brush Size : " + v;
}

}  // namespace

ToolHooks figureBrushHooks() {
  ToolHooks h;
  h.press = press;
  h.move = move;
  h.release = release;
  h.vValChange[1] = sizeChange;
  return h;
}

}  // namespace qp
