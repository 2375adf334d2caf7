#include "tools/GradientFill.h"

#include <utility>

namespace qp {

std::optional<Colour> RampColour(int option, int v) {
  switch (option) {
    case 0: return RGB(v, v, v);
    case 1: return RGB(v, 0, 0);
    case 2: return RGB(0, v, 0);
    case 3: return RGB(0, 0, v);
    case 4: return RGB(v, v, 0);
    case 5: return RGB(0, v, v);
    case 6: return RGB(v, 0, v);
    default: return std::nullopt;
  }
}

std::optional<Colour> PureColour(int option) { return RampColour(option, 255); }

void DrawSquares(PictureBox& target, int option, int stepSize) {
  if (!RampColour(option, 0)) return;
  target.Cls();
  const double CX = target.ScaleWidth / 2.0, CY = target.ScaleHeight / 2.0;
  int V = 0;
  for (int i = 100; i >= 0; --i) {
    const double F = i / 100.0, Lo = 1 - F, Hi = 1 + F;
    target.ForeColor = *RampColour(option, V);
    V += stepSize;
    target.Line(static_cast<Single>(CX * Lo), static_cast<Single>(CY * Lo), static_cast<Single>(CX * Hi),
                static_cast<Single>(CY * Hi), std::nullopt, LineBox::BF);
  }
}

bool DrawDiamonds(PictureBox& target, int option, const std::function<bool()>& doEvents) {
  if (!RampColour(option, 0)) return true;
  // The outer size, not the scale: on these surfaces both are twips.
  const double CX = target.Width / 2.0, CY = target.Height / 2.0;
  target.DrawWidth = 2;
  target.ForeColor = 0x000000;
  int V = 0;
  for (int i = 255; i >= 0; --i) {
    const double F = i / 255.0, Lo = 1 - F, Hi = 1 + F;
    const auto x = [](double v) { return static_cast<Single>(v); };
    target.Line(x(CX * Lo), x(CY), x(CX), x(CY * Lo));
    target.LineTo(x(CX * Hi), x(CY));
    target.LineTo(x(CX), x(CY * Hi));
    target.LineTo(x(CX * Lo), x(CY));
    // The colour changes after the ring, so the first ring is black and the last reaches 254.
    target.ForeColor = *RampColour(option, V);
    ++V;
    if (!doEvents()) return false;
  }
  return true;
}

int CirclePenWidth(Single canvasWidth, Single canvasHeight) {
  if (canvasWidth > 12000) return 5;
  if (canvasHeight > 9000) return 5;
  return 3;
}

void DrawGradientCircles(PictureBox& target, Colour from, Colour to, double aspect, int penWidth) {
  const int R1 = redOf(from), G1 = greenOf(from), B1 = blueOf(from);
  const int R2 = redOf(to), G2 = greenOf(to), B2 = blueOf(to);
  target.Cls();
  target.DrawStyle = 6;
  target.ScaleMode = 3;
  target.DrawMode = 13;
  target.DrawWidth = penWidth;
  target.ScaleHeight = 512;
  target.ScaleWidth = 512;
  Integer DR = 0, DG = 0, DB = 0;
  // Each channel's share of the distance, rounded at every step (halves to even).
  const auto step = [](Integer d, int distance) { return CInt(d + distance / 255.0); };
  for (int i = 0; i <= 255; ++i) {
    const Colour c = RGB(R1 + DR, G1 + DG, B1 + DB);
    const Single cx = div16(CInt(target.ScaleWidth.get()), 2);
    const Single cy = div16(CInt(target.ScaleHeight.get()), 2);
    target.Circle(cx, cy, static_cast<Single>(i + 2), c, std::nullopt, std::nullopt, aspect);
    DR = step(DR, R2 - R1);
    DG = step(DG, G2 - G1);
    DB = step(DB, B2 - B1);
  }
}

void DrawLinearRamp(PictureBox& target, Colour from, Colour to, double x1, double y1, double x2,
                    double y2, bool vertical) {
  if (x2 < x1) std::swap(x1, x2);
  if (y2 < y1) std::swap(y1, y2);
  const int R1 = redOf(from), G1 = greenOf(from), B1 = blueOf(from);
  const int R2 = redOf(to), G2 = greenOf(to), B2 = blueOf(to);
  const double First = vertical ? x1 : y1;
  const double Last = vertical ? x2 : y2;
  const double span = Last - First;
  const auto channel = [&](int a, int b, double i) { return CInt(a + divide(b - a, span) * (i - First)); };
  // Lines 10 units apart may fall on the same pixel row; with the copy pen the later one covers the
  // earlier exactly, so only the last of each row is drawn.
  const bool copyPen = target.DrawMode == 13;
  const auto pixelOf = [&](double i) { return roundHalfEven(vertical ? target.toPixelX(i) : target.toPixelY(i)); };
  for (double i = First; i <= Last; i += 10) {
    if (copyPen && i + 10 <= Last && pixelOf(i) == pixelOf(i + 10)) continue;
    const Colour c = RGB(channel(R1, R2, i), channel(G1, G2, i), channel(B1, B2, i));
    const auto v = static_cast<Single>(i);
    if (vertical)
      target.Line(v, static_cast<Single>(y1), v, static_cast<Single>(y2), c);
    else
      target.Line(static_cast<Single>(x1), v, static_cast<Single>(x2), v, c);
  }
}

}  // namespace qp
