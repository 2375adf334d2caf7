// Simple Shapes. The shape goes down at release from the press point to the far corner of the last
// move; the copies lie under it, offset down and right, so that the shape itself comes out on top.
#include <algorithm>
#include <cmath>

#include "color/ColourEngine.h"
#include "color/ColourPickers.h"
#include "tools/Shapes.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

constexpr Single kSmallestShape = 180;  // twips: a drag shorter than 12 pixels draws nothing

enum Shape { Rectangle = 0, BoxGradient = 1, Circle = 2, BoxRun = 3 };

int shapeOf(frmCanvas& f) { return f.vVal3.Value; }

void press(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  f.PicPaint.DrawWidth = m.DrawWidth;
  const int shape = shapeOf(f);
  m.LastX = X;
  m.LastY = Y;
  if (shape == BoxRun) {
    StepDrawColor(s);
    f.PicPaint.Line(m.LastX, m.LastY, X, Y, m.ForeClr.value(), LineBox::B);
    f.DrawShape.Visible = false;
    return;
  }
  f.DownX = CInt(X);
  f.DownY = CInt(Y);
  // The rubber band takes the form of what will be drawn: an oval for circles, else a box.
  f.DrawShape.Shape_ = shape == Circle ? 2 : 0;
  f.DrawShape.Move(X, Y, 0, 0);
  f.DrawShape.Visible = true;
}

void boxRunMove(Session& s, Single X, Single Y) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  const int O = m.StepSize;
  f.DrawShape.Visible = false;
  StepDrawColor(s);
  if (f.ckVal.Value == 0) {
    // Every box shares the press corner; the third copy lies under it, offset.
    if (f.ckVal2.Value == 1) f.PicPaint.Line(O + m.LastX, O + m.LastY, O + X, O + Y, m.BackClr.value(), LineBox::B);
    f.PicPaint.Line(m.LastX, m.LastY, X, Y, m.ForeClr.value(), LineBox::B);
  } else {
    // The boxes chain along the stroke, filled with the third box set.
    f.PicPaint.Line(m.LastX, m.LastY, X, Y, m.ForeClr.value(), f.ckVal2.Value == 1 ? LineBox::BF : LineBox::B);
    m.LastX = X;
    m.LastY = Y;
  }
}

void move(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  if (shapeOf(f) == BoxRun) {
    boxRunMove(s, X, Y);
    return;
  }
  f.PicPaint.DrawWidth = m.DrawWidth;
  f.DownX = CInt(f.PointerX);
  f.DownY = f.PointerY;
  const Single px = f.PointerX, py = f.PointerY;
  f.DrawShape.Move(std::min<Single>(m.LastX, px), std::min<Single>(m.LastY, py), std::fabs(m.LastX - px),
                   std::fabs(m.LastY - py));
  f.DrawShape.Visible = true;
}

void rectangle(Session& s) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  const int O = m.StepSize;
  const Integer O2 = mul16(2, O);
  if (f.ckVal2.Value == 1)
    f.PicPaint.Line(O2 + m.LastX, O2 + m.LastY, add16(O2, f.DownX), add16(O2, f.DownY), f.lColor.BackColor.get(),
                    LineBox::B);
  if (f.ckVal.Value == 1)
    f.PicPaint.Line(O + m.LastX, O + m.LastY, add16(O, f.DownX), add16(O, f.DownY), m.BackClr.value(), LineBox::B);
  f.PicPaint.Line(m.LastX, m.LastY, f.DownX, f.DownY, m.ForeClr.value(), LineBox::B);
}

// Bands 10 twips apart from the fore colour to the back colour, across or down the box.
void boxGradient(Session& s) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  const Colour fore = m.ForeClr.value(), back = m.BackClr.value();
  const double R1 = ColorPart(s, fore, 0), G1 = ColorPart(s, fore, 1), B1 = ColorPart(s, fore, 2);
  const double R2 = ColorPart(s, back, 0), G2 = ColorPart(s, back, 1), B2 = ColorPart(s, back, 2);
  if (f.DownX < m.LastX) {
    const Single x = m.LastX;
    m.LastX = f.DownX;
    f.DownX = CInt(x);
  }
  if (f.DownY < m.LastY) {
    const Single y = m.LastY;
    m.LastY = f.DownY;
    f.DownY = CInt(y);
  }
  const bool across = f.CanvasGradDir == -1;
  const double S = across ? m.LastX : m.LastY;
  const double E = across ? f.DownX : f.DownY;
  const double span = E - S;
  for (double i = S; i <= E; i += 10) {
    const double t = i - S;
    const Colour c = RGB(CInt(R1 + divide(R2 - R1, span) * t), CInt(G1 + divide(G2 - G1, span) * t),
                         CInt(B1 + divide(B2 - B1, span) * t));
    if (across) f.PicPaint.Line(static_cast<Single>(i), m.LastY, static_cast<Single>(i), f.DownY, c);
    else f.PicPaint.Line(m.LastX, static_cast<Single>(i), f.DownX, static_cast<Single>(i), c);
  }
}

void circle(Session& s) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  f.PicPaint.DrawWidth = m.DrawWidth;
  const double dx = std::fabs(f.DownX - m.LastX), dy = std::fabs(f.DownY - m.LastY);
  f.ShapeRadius = CInt(std::max(dx, dy) / 2);
  if (f.DownX == m.LastX) return;  // no width: the aspect would divide by zero
  const double aspect = dy / dx;
  const Single cx = (m.LastX + f.DownX) / 2, cy = (m.LastY + f.DownY) / 2;
  const int O = m.StepSize;
  if (f.ckVal2.Value == 1)
    f.PicPaint.Circle(cx + mul16(2, O), cy + mul16(2, O), f.ShapeRadius, f.lColor.BackColor.get(), {}, {}, aspect);
  if (f.ckVal.Value == 1) f.PicPaint.Circle(cx + O, cy + O, f.ShapeRadius, m.BackClr.value(), {}, {}, aspect);
  f.PicPaint.Circle(cx, cy, f.ShapeRadius, m.ForeClr.value(), {}, {}, aspect);
}

QString number(double v) { return QString::number(static_cast<float>(v), 'g', 7); }

void release(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  if (f.DrawShape.Width < kSmallestShape || f.DrawShape.Height < kSmallestShape) {
    f.DrawShape.Visible = false;
    return;
  }
  const int shape = shapeOf(f);
  if (shape == Rectangle || shape == Circle) {
    // Only circles take the fill; a box is an outline whatever the style.
    f.PicPaint.FillColor = static_cast<Colour>(m.BackClr.value());
    f.PicPaint.FillStyle = f.vVal2.Value.get();
  }
  if (shape == Rectangle) rectangle(s);
  else if (shape == BoxGradient) boxGradient(s);
  else if (shape == Circle) circle(s);
  if (shape != BoxRun) f.DrawShape.Visible = false;
  // The closing steps of the release clear this line again straight away.
  f.lTell.Caption = "Rectangle size : " + number(X / 15.0f - f.DownButtonX) + " x " +
                    number(Y / 15.0f - f.DownButtonY);
}

}  // namespace

ToolHooks simpleShapesHooks() {
  ToolHooks h;
  h.press = press;
  h.move = move;
  h.release = release;
  return h;
}

}  // namespace qp
