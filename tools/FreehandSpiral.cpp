// Freehand Spiralz on the pixel surface. Every move re-reads the colour once, before its ring, so
// that a whole ring has one colour; the rings go straight to the surface, with no copy between.
#include "tools/FreehandSpiral.h"

#include <cmath>

#include "color/ColourEngine.h"
#include "core/Undo.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

constexpr float kTurn = 6.2831853f;
constexpr double kPi = 3.14159265;
constexpr float kPiSingle = 3.14159274f;  // the Single nearest pi

// The points of a ring: from 0 to a full turn by Step, the end included while the Single sum
// allows it, so a pass holds SpiralStep or SpiralStep + 1 points.
template <class F>
void forEachTurn(int SpiralStep, F&& f) {
  if (SpiralStep <= 0) raiseError(RuntimeError::DivisionByZero, "Division by zero");
  const float Step = static_cast<float>(static_cast<double>(kTurn) / SpiralStep);
  for (float PixTurn = 0; PixTurn <= kTurn; PixTurn += Step) f(PixTurn);
}

}  // namespace

void PointAngle(Single X0, Single Y0, Single X, Single Y, Single& Angle) {
  if (Y != Y0 && X != X0) {
    const float slope = (Y - Y0) / (X - X0);
    Angle = static_cast<float>(std::atan(static_cast<double>(slope)) - kPi);
    if (X0 < X) Angle = static_cast<float>(static_cast<double>(Angle) + kPi);
  } else if (Y == Y0 && X > X0) {
    Angle = 0;
  } else if (Y == Y0 && X < X0) {
    Angle = kPiSingle;
  } else if (Y < Y0 && X == X0) {
    Angle = 4.712388975f;
  } else if (Y > Y0 && X == X0) {
    Angle = static_cast<float>(kPi / 2.0);
  }
}

void FindSpiralPoint(Session& s, Single X, Single Y) {
  const double dx = kSpiralCentre - X, dy = kSpiralCentre - Y;
  s.m.SpiralRadius = CInt(std::sqrt(dx * dx + dy * dy));
  Single angle = 0;
  PointAngle(kSpiralCentre, kSpiralCentre, X, Y, angle);
  s.m.SpiralAngle = angle;
}

void SpiralRing(Session& s, PictureBox& T) {
  const double r = s.m.SpiralRadius.value();
  const double a = s.m.SpiralAngle;
  forEachTurn(s.m.SpiralStep.value(), [&](float t) {
    T.PSet(static_cast<Single>(r * std::cos(t + a) + kSpiralCentre), static_cast<Single>(r * std::sin(t + a) + kSpiralCentre));
  });
}

void SpiralRingJoined(Session& s, PictureBox& T, Single lastRadius, Single lastAngle) {
  const double r = s.m.SpiralRadius.value();
  const double a = s.m.SpiralAngle;
  forEachTurn(s.m.SpiralStep.value(), [&](float t) {
    T.PSet(static_cast<Single>(r * std::cos(t + a) + kSpiralCentre), static_cast<Single>(r * std::sin(t + a) + kSpiralCentre));
    T.Line(static_cast<Single>(lastRadius * std::cos(t + lastAngle) + kSpiralCentre),
           static_cast<Single>(lastRadius * std::sin(t + lastAngle) + kSpiralCentre), T.CurrentX, T.CurrentY);
  });
}

namespace {

const char* const kHelpPix16 =
    "Click top arrows to set Lines per Pass - Click and drag in paint area to draw spiral - Top checkbox toggles "
    "Orbital/Radial spiral - Middle checkbox enables/disables MiniSpirals - Select Colors and Color Mode below - "
    "Use keyboard ARROW keys to change draw width on-the-fly - Right-click paint area to Undo (Hold onto your "
    "shorts, campers... This thing is a trip! Whoa Dude... Do the thing with the keyboard ARROW keys! Now, "
    "THAT'S FREAKY!) F9 key to paint/close FullScreen";
const char* const kHelpPix28 =
    "Click arrows to set Lines per Pass - Click and drag in paint area to draw spiral - Top checkbox toggles "
    "Orbital/Radial spiral - Middle checkbox enables/disables MiniSpirals - Select Colors and Color Mode below - "
    "Use keyboard ARROW keys to change draw width on-the-fly - Right-click paint area to Undo";
const char* const kHelpPX =
    "Click arrows to set Lines per Pass - Click and drag in paint area to draw spiral - Top checkbox toggles "
    "Orbital/Radial spiral - Uncheck middle checkbox to close MiniSpirals - Select Colors and Color Mode below - "
    "Use keyboard ARROW keys to change draw width on-the-fly - Right-click paint area to clear image (Hold Ctrl "
    "key and right-click to set image)";

constexpr Colour kFrameDark = 0xC0C0C0;
constexpr Single kSmallestBox = 5;

void squareOn(PictureBox& T) {
  T.ScaleWidth = kSpiralSquare;
  T.ScaleHeight = kSpiralSquare;
}

}  // namespace

void SpiralPressOn(Session& s, PictureBox& T, int drawWidth, Single X, Single Y, Single& lastRadius,
                   Single& lastAngle) {
  squareOn(T);
  T.DrawWidth = drawWidth;
  FindSpiralPoint(s, X, Y);
  SpiralRing(s, T);
  lastRadius = static_cast<Single>(s.m.SpiralRadius.value());
  lastAngle = static_cast<Single>(s.m.SpiralAngle);
}

bool SpiralMoveOn(Session& s, PictureBox& T, Single X, Single Y, Single& lastRadius, Single& lastAngle) {
  squareOn(T);
  T.ForeColor = static_cast<Colour>(s.m.ForeClr.value());
  FindSpiralPoint(s, X, Y);
  SpiralRingJoined(s, T, lastRadius, lastAngle);
  const bool radial = s.f.ckVal.Value == 0;
  if (radial) {
    lastRadius = static_cast<Single>(s.m.SpiralRadius.value());
    lastAngle = static_cast<Single>(s.m.SpiralAngle);
  }
  return radial;
}

namespace {

// The pen keeps the colour it had at a press, so the first ring comes in the colour of the stroke
// before; each move sets it from the stepped colour.
void ringPress(Session& s, PictureBox& T, Single X, Single Y) {
  StepDrawColor(s);
  SpiralPressOn(s, T, s.m.DrawWidth.value(), X, Y, s.f.PixLastRadius, s.f.PixLastAngle);
}

bool ringMove(Session& s, PictureBox& T, Single X, Single Y) {
  StepDrawColor(s);
  return SpiralMoveOn(s, T, X, Y, s.f.PixLastRadius, s.f.PixLastAngle);
}

QString rounded(Single v) { return QString::number(static_cast<int>(CInt(v))); }

void spiralPress(Session& s, int, Single X, Single Y) {
  ringPress(s, s.f.pPix, X, Y);
  s.m.LastX = X;
  s.m.LastY = Y;
}

void spiralMove(Session& s, int Button, Single X, Single Y) {
  s.f.lHelp.Caption = kHelpPix16;
  if (Button != vbLeftButton) return;
  if (ringMove(s, s.f.pPix, X, Y)) {
    s.m.LastX = X;
    s.m.LastY = Y;
  }
}

void spiralRelease(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  f.tGrad.Enabled = false;
  f.lXb.ToolTipText = f.lXb.ToolTipText.get() + "   Mouse Up X : " + rounded(X);
  f.lYb.ToolTipText = f.lYb.ToolTipText.get() + "   Mouse Up Y : " + rounded(Y);
}

// Mode 28 on pPix: the MiniSpirals box is dragged out first, while no box stands.
void boxPress(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  if (f.pPX.Visible) return;  // set or clear the box first
  s.m.LastX = X;
  s.m.LastY = Y;
  f.DownX = CInt(X);
  f.DownY = CInt(Y);
  f.pPX.Picture = QImage();
  f.Dshp.Move(X, Y, 0, 0);
  f.Dshp.Visible = true;
}

void boxMove(Session& s, int Button, Single X, Single Y) {
  frmCanvas& f = s.f;
  f.lHelp.Caption = kHelpPix28;
  if (Button != vbLeftButton || f.pPX.Visible || !f.Dshp.Visible) return;
  f.DownX = CInt(X);
  f.DownY = CInt(Y);
  f.Dshp.Left = std::min(X, s.m.LastX);
  f.Dshp.Top = std::min(Y, s.m.LastY);
  f.Dshp.Width = std::abs(X - s.m.LastX);
  f.Dshp.Height = std::abs(Y - s.m.LastY);
}

void pulseFrame(Shape& frame) {
  frame.BorderWidth = 3;
  frame.BorderStyle = 3;
  frame.BorderColor = kFrameDark;
}

void boxRelease(Session& s, int, Single, Single) {
  frmCanvas& f = s.f;
  if (f.pPX.Visible) return;
  if (f.Dshp.Width < kSmallestBox || f.Dshp.Height < kSmallestBox) {  // too small: gone without a word
    f.Dshp.Visible = false;
    f.tTemp.Enabled = false;
    return;
  }
  f.pPX.Move(f.Dshp.Left, f.Dshp.Top, f.Dshp.Width, f.Dshp.Height);
  pulseFrame(f.Dshp);
  f.tTemp.Enabled = true;
  f.pPX.Visible = true;
  squareOn(f.pPX);
  f.pPX.BackColor = f.PicPaint.BackColor.get();
}

}  // namespace

void pPX_MouseDown(Session& s, int Button, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  if (s.m.PaintMode != 28) return;
  trap([&] {
    if (f.ckHide.Value == 1) {
      f.pPX.MousePointer = 99;
      f.pPX.MouseIcon = f.iPnt.Picture;
    }
    if (Button != vbLeftButton) return;
    f.Dshp.Visible = false;
    f.tTemp.Enabled = false;
    TakeUndoSnapshot(s);
    f.lStats.Caption = "";
    if (f.ckDcolz.Value == 1) f.tDclrz.Enabled = true;
    ringPress(s, f.pPX, X, Y);
  });
}

void pPX_MouseMove(Session& s, int Button, int, Single X, Single Y) {
  if (s.m.PaintMode != 28) return;
  trap([&] {
    s.f.lHelp.Caption = kHelpPX;
    if (Button == vbLeftButton) ringMove(s, s.f.pPX, X, Y);
  });
}

void pPX_MouseUp(Session& s, int Button, int, Single, Single) {
  frmCanvas& f = s.f;
  if (s.m.PaintMode != 28) return;
  trap([&] {
    f.tGrad.Enabled = false;
    if (Button != vbRightButton) return;
    if (f.CtrlDown == 0) {  // the box is cleared and stays
      f.Dshp.Visible = true;
      pulseFrame(f.Dshp);
      f.tTemp.Enabled = true;
      f.pPX.Picture = QImage();
    } else {  // Ctrl: the box's picture is set into the canvas
      TakeUndoSnapshot(s);
      f.pPX.Picture = f.pPX.Image;
      f.pPix.PaintPicture(f.pPX.Picture, f.pPX.Left, f.pPX.Top, f.pPX.Width.get(), f.pPX.Height.get());
      f.pPix.Picture = f.pPix.Image;
      f.PicPaint.Picture = f.pPix.Picture;
      f.pPX.Visible = false;
    }
  });
  trap([&] { if (f.ckDcolz.Value == 1) f.tDclrz.Enabled = false; });
  trap([&] { f.tGrad.Enabled = false; });
  trap([&] { f.lHelp.ForeColor = 0xC0C0C0; });
  trap([&] { f.lTell.Caption = ""; });
  trap([&] { f.pPX.MousePointer = f.PointerShape; });
  trap([&] { f.pPX.Refresh(); });
  trap([&] { f.pPix.Refresh(); });
}

namespace {
void linesPerPass(Session& s) { s.f.lStats.Caption = "Lines/Pass : " + QString::number(s.f.vVal1.Value); }
}  // namespace

void ckVal_MouseMoveSpiral(Session& s) {
  frmCanvas& f = s.f;
  const bool orbital = f.ckVal.Value == 1;
  f.lHelp.Caption = orbital ? "Click to engage Radial Mode" : "Click to engage Orbital Mode";
  f.lStats.Caption = orbital ? "Orbital Mode" : "Radial Mode";
}

ToolHooks freehandSpiralzHooks() {
  ToolHooks h;
  h.vValChange[0] = linesPerPass;
  h.pixPress = spiralPress;
  h.pixMove = spiralMove;
  h.pixRelease = spiralRelease;
  return h;
}

ToolHooks miniSpiralsHooks() {
  ToolHooks h;
  h.vValChange[0] = linesPerPass;
  h.pixPress = boxPress;
  h.pixMove = boxMove;
  h.pixRelease = boxRelease;
  return h;
}

}  // namespace qp
