// Gradient Shapes: the user drags a rectangle; at the release the gradient is drawn on the floating
// block pSpire over it, under a pulsing frame, until a left press sets it or a right click puts it
// away. A new rectangle while one floats replaces it.
#include <algorithm>
#include <cmath>

#include "core/FloatingBlock.h"
#include "core/Undo.h"
#include "tools/CanvasGradients.h"
#include "tools/GradientFill.h"
#include "tools/GradientPanel.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

constexpr Colour kFrame = 0xC0C0C0;
// Below this size in twips, a drag is taken as a click and draws nothing.
constexpr Single kSmallest = 5;

void ShapePress(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  s.m.LastX = X;
  s.m.LastY = Y;
  f.DownX = CInt(X);
  f.DownY = CInt(Y);
  f.DrawShape.Shape_ = 0;  // the rubber band of a rectangle
  f.DrawShape.Move(X, Y, 0, 0);
  f.DrawShape.Visible = true;
}

void ShapeMove(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  f.PicPaint.DrawWidth = 1;
  f.DownX = CInt(X);
  f.DownY = CInt(Y);
  f.DrawShape.Move(std::min<Single>(X, m.LastX), std::min<Single>(Y, m.LastY), std::abs(X - m.LastX),
                   std::abs(Y - m.LastY));
}

// Draws the style of the top bar on the block; false when a newer drawing or a change of mode
// took over while it ran.
bool drawOnBlock(Session& s) {
  frmCanvas& f = s.f;
  PictureBox& block = f.pSpire;
  const int option = s.m.ColorOption;
  switch (f.vVal1.Value) {
    case 0: return DrawDiamonds(block, option, GradientDoEvents(s, [&f] { return f.pSpire.Visible.get(); }));
    case 1: DrawSquares(block, option, f.GradStepSize); return true;
    case 2:
      if (const auto pure = PureColour(option))
        DrawGradientCircles(block, *pure, 0x000000, f.vVal3.Value / 6.0,
                            CirclePenWidth(f.PicPaint.Width, f.PicPaint.Height));
      return true;
    default: return true;
  }
}

void ShapeRelease(Session& s, int, Single, Single) {
  frmCanvas& f = s.f;
  if (f.DrawShape.Width < kSmallest || f.DrawShape.Height < kSmallest) {
    f.DrawShape.Visible = false;
    f.tTemp.Enabled = false;
    return;
  }
  PictureBox& block = f.pSpire;
  block.ScaleMode = 1;
  block.Picture = QImage();
  block.BackColor = f.PicPaint.BackColor.get();
  block.Height = f.DrawShape.Height.get();
  block.Width = f.DrawShape.Width.get();
  block.Top = f.DrawShape.Top.get();
  block.Left = f.DrawShape.Left.get();
  block.Visible = true;
  if (!drawOnBlock(s)) return;
  f.DrawShape.BorderWidth = 3;
  f.DrawShape.BorderStyle = 3;
  f.DrawShape.BorderColor = kFrame;
  f.tTemp.Enabled = true;  // the frame pulses while the block floats
}

// A left press sets the block into the canvas, as an undo point; a right click puts it away.
void BlockPress(Session& s, int Button, Single, Single) {
  if (Button != vbLeftButton) return;
  frmCanvas& f = s.f;
  SetFloatOnCanvas(s, f.pSpire, f.DrawShape.Left, f.DrawShape.Top, f.DrawShape.Width.get(), f.DrawShape.Height.get());
  f.pSpire.Visible = false;
  f.DrawShape.Visible = false;
  f.tTemp.Enabled = false;  // nothing is left to pulse
}

void BlockRelease(Session& s, int Button, Single, Single) {
  if (Button == vbRightButton) CancelSpire(s);
}

}  // namespace

ToolHooks gradientShapeHooks() {
  ToolHooks h;
  addGradientRows(h, {"Diamonds", "Squares", "Circles"});
  h.press = ShapePress;
  h.move = ShapeMove;
  h.release = ShapeRelease;
  h.spirePress = BlockPress;
  h.spireRelease = BlockRelease;
  return h;
}

}  // namespace qp
