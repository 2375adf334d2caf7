// The GeoSpiralz drawing. The figure's settings are read once; the style, the colour mode and the
// offset are read at every line, so a user may change them while the spiral grows.
#include "tools/GeoSpiral.h"

#include <cmath>

#include "color/ColourEngine.h"
#include "platform/EventLoop.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

constexpr double kTurn = 6.283185308;  // the figure's full turn: this value and no finer one
constexpr int kStepsPerDensity = 72;   // N
constexpr double kClamp = 10000000.0;
constexpr std::int64_t kLineMs = 10;   // at most one line per 10 ms

// Mod as the runtime has it: both sides rounded to whole numbers (halves to even), the remainder
// taking the sign of the left side.
double vbMod(double a, double b) {
  const long long x = CLng(a).value();
  const long long y = CLng(b).value();
  if (y == 0) raiseError(RuntimeError::DivisionByZero, "Division by zero");
  return static_cast<double>(x % y);
}

double divideBy(double a, double b) {
  if (b == 0.0) raiseError(RuntimeError::DivisionByZero, "Division by zero");
  return a / b;
}

double checked(double v) {
  if (std::isnan(v)) raiseError(RuntimeError::Overflow, "Overflow");
  return v;
}

double clampPoint(double v) {
  if (v > kClamp) v = kClamp;
  if (v < -kClamp) v = -kClamp;
  return v;
}

}  // namespace

double SpiralEquation(int Equation, double R, double Radius, int S, int i, double Angle) {
  const double T = S * Angle;
  const double Q = T / kTurn;
  const double sinT = std::sin(T);
  switch (Equation) {
    case 0: return (1.0 - sinT * sinT * 0.3) * Radius;
    case 1: return Radius * (1.0 - 28.0 / (i + 30.0));
    case 2: return std::tan(std::sqrt(T)) * Radius;
    case 3: return (1.0 - sinT * 0.5) * Radius * 0.67;
    case 4: return std::pow(sinT * sinT, 0.1) * Radius;
    case 5: return divideBy(Radius, std::cos(T));
    case 6: return divideBy(Radius * (vbMod(i, S) + 1.0), S);
    case 7: return std::sin(std::sqrt(T)) * Radius;
    case 8: return Radius * vbMod(std::floor(Q), 2);
    case 9: return (Radius * (3.0 * vbMod(std::floor(Q), 2) - 1.0)) / 2.0;
    case 10: return (Radius * (2.0 * vbMod(Q, 2) - 1.0)) * (Q - std::floor(Q));
    case 11: return std::pow(sinT, 6) * Radius;
    case 12: return std::atan(S * (Q - std::floor(Q))) * Radius * 0.6;
    case 13: return divideBy(std::cos(T) * Radius, sinT);
    case 14: return std::tan(T) * Radius;
    case 15: return std::cos(T) * Radius;
    default: return R;
  }
}

bool DrawSpiral(Session& s, PictureBox& target, const SpiralFigure& figure, double& Angle, bool mini,
                SpiralPace pace) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  EventLoop& loop = s.rt.loop;
  const int paintMode = m.PaintMode;
  bool finished = false;
  trap([&] {
    target.DrawWidth = m.DrawWidth.value();
    const int D = figure.Density;
    const int S = figure.Symmetry;
    const double CenterX = target.ScaleWidth * 0.5;
    const double CenterY = target.ScaleHeight * 0.5;
    std::int64_t NextTick = loop.now();
    // The outer width against the inner height, as the figure has always been sized.
    const double Radius = target.Width < target.ScaleHeight ? target.ScaleWidth * 0.45 : target.ScaleHeight * 0.45;
    const long long Steps = static_cast<long long>(D) * kStepsPerDensity + 1;
    const double AngleStep = divideBy(kTurn * (1.0 - 1.0 / kStepsPerDensity), D);
    double R = 0, PrevX = 0, PrevY = 0;
    for (long long i = 1; i <= Steps; ++i) {
      Angle = Angle + AngleStep;
      if (pace == SpiralPace::Paced) {
        NextTick += kLineMs;
        loop.waitUntil(NextTick);
        // Other events ran meanwhile: the program may be ending, the user may have left the mode,
        // or set or cancelled the floating result. The drawing ends there, as far as it got.
        if (loop.closing() || m.PaintMode != paintMode) return;
        if (mini && !target.Visible) return;
      }
      R = checked(SpiralEquation(figure.Equation, R, Radius, S, static_cast<int>(i), Angle));
      const double X = clampPoint(checked(CenterX + std::cos(Angle) * R));
      const double Y = clampPoint(checked(CenterY + std::sin(Angle) * R));
      if (figure.Equation == 10) {
        // This equation's lines start on a shrinking diagonal cross, not at the last point.
        const double Half = Radius * 0.5;
        const double Shrink = (Half * (S - vbMod(static_cast<double>(i), S))) / S;
        const double sign = (i % 2 == 0) ? 1.0 : -1.0;  // (-1)^i
        PrevX = Shrink * -sign + CenterX;
        PrevY = Shrink * sign + CenterY;
      }
      if (i > 1) {
        switch (f.vColmode.Value) {
          case 0: m.ForeClr = f.lForclr.BackColor.get(); break;
          case 1:
            StepRainbowColor(s, f.vVar.Value);
            if (!mini) m.BackClr = m.ForeClr;
            break;
          case 2:
            StepGlowColor(s, f.vVar.Value);
            if (!mini) m.BackClr = m.ForeClr;
            break;
          case 3: f.tGrad.Enabled = true; break;
          default: break;
        }
        switch (f.vVal4.Value) {
          case 0: target.Line(X, Y, PrevX, PrevY, m.ForeClr.value()); break;
          case 1: {
            const double off = m.StepSize.value();
            target.Line(X + off, Y + off, PrevX + off, PrevY + off, m.BackClr.value());
            target.Line(X, Y, PrevX, PrevY, m.ForeClr.value());
            break;
          }
          case 2: target.Line(X, Y, PrevX, PrevY, m.GradClr.value()); break;
          default: break;
        }
      }
      PrevX = X;
      PrevY = Y;
    }
    finished = true;
  });
  return finished;
}

namespace {

SpiralFigure readFigure(frmCanvas& f) {
  SpiralFigure fig;
  fig.Equation = f.vVal1.Value;
  fig.Density = f.vVal3.Value;
  fig.Symmetry = f.vVal2.Value;
  return fig;
}

// One drawing at a time: a second one asked for while the first waits on the loop (a second click
// of the button, a rectangle released meanwhile) is not started.
bool drawOnce(Session& s, PictureBox& target, double& Angle, bool mini, SpiralPace pace) {
  frmCanvas& f = s.f;
  if (f.SpiralDrawing) return false;
  f.SpiralDrawing = true;
  const bool done = DrawSpiral(s, target, readFigure(f), Angle, mini, pace);
  f.SpiralDrawing = false;
  return done;
}

}  // namespace

bool DrawGeoSpiral(Session& s, double& Angle, SpiralPace pace) {
  return drawOnce(s, s.f.PicPaint, Angle, false, pace);
}

bool DrawMiniSpiral(Session& s, double& Angle, SpiralPace pace) {
  return drawOnce(s, s.f.pSpire, Angle, true, pace);
}

}  // namespace qp
