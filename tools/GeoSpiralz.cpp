// The GeoSpiralz mode around the drawing: the whole-canvas button, the MiniSpiralz rectangle, the
// floating result and its set and cancel, and the words the panel's bars show.
#include "tools/GeoSpiralz.h"

#include "core/FloatingBlock.h"
#include "core/ApplyPaintMode.h"
#include "core/Undo.h"
#include "tools/GeoSpiral.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

constexpr Colour kFrameDark = 0xC0C0C0;
constexpr double kStartAngle = 0.01;

bool miniMode(frmCanvas& f) { return f.ckVal.Value == 1; }

QString number(int v) { return QString::number(v); }

// A Double as the runtime writes it: up to fifteen significant digits.
QString decimal(double v) { return QString::number(v, 'g', 15); }

}  // namespace

void cCan_GeoSpiral(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    if (f.SpiralDrawing) return;  // the spiral under way goes on; a second one is not begun
    TakeUndoSnapshot(s);
    if (miniMode(f)) return;  // the button is hidden then; the snapshot stands all the same
    f.pSpire.Visible = false;
    f.DrawShape.Visible = false;
    f.lStats.Caption = "";
    double Angle = kStartAngle;
    DrawGeoSpiral(s, Angle);
  });
}

// The rectangle follows the pointer while no drawing runs: a drawing under way owns pSpire and its
// frame until it ends.
void GeoSpiralzPress(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  if (!miniMode(f) || f.SpiralDrawing) return;
  s.m.LastX = X;
  s.m.LastY = Y;
  f.DownX = CInt(X);
  f.DownY = CInt(Y);
  f.DrawShape.Move(X, Y, 0, 0);
  f.DrawShape.Visible = true;
}

void GeoSpiralzMove(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  if (!miniMode(f) || f.SpiralDrawing) return;
  f.PicPaint.DrawWidth = 1;
  f.DownX = CInt(X);
  f.DownY = CInt(Y);
  f.DrawShape.Left = std::min(X, s.m.LastX);
  f.DrawShape.Top = std::min(Y, s.m.LastY);
  f.DrawShape.Width = std::abs(X - s.m.LastX);
  f.DrawShape.Height = std::abs(Y - s.m.LastY);
}

void GeoSpiralzRelease(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  if (!miniMode(f) || f.SpiralDrawing) return;
  f.pSpire.Picture = QImage();
  f.pSpire.BackColor = f.PicPaint.BackColor.get();
  f.pSpire.Move(f.DrawShape.Left, f.DrawShape.Top, f.DrawShape.Width, f.DrawShape.Height);
  // Its scale is the canvas's, so that the figure's offsets read in twips as on the canvas.
  f.pSpire.ScaleHeight = f.DrawShape.Height.get();
  f.pSpire.ScaleWidth = f.DrawShape.Width.get();
  f.pSpire.Visible = true;
  f.DrawShape.Visible = true;
  f.DrawShape.BorderWidth = 3;
  f.DrawShape.BorderStyle = 3;
  f.DrawShape.BorderColor = kFrameDark;
  f.tTemp.Enabled = true;
  double Angle = kStartAngle;
  DrawMiniSpiral(s, Angle);
  f.lTell.Caption = "Rectangle size : " + decimal(X / 15.0 - f.DownButtonX) + " x " +
                    decimal(Y / 15.0 - f.DownButtonY);
}

// A left press sets the floating spiral into the canvas where its frame stands.
void GeoSpire_MouseDown(Session& s, int Button, Single, Single) {
  frmCanvas& f = s.f;
  if (Button != vbLeftButton) return;
  trap([&] {
    SetFloatOnCanvas(s, f.pSpire, f.DrawShape.Left, f.DrawShape.Top, f.DrawShape.Width.get(), f.DrawShape.Height.get());
    f.pSpire.Visible = false;
    f.DrawShape.Height = 0;
  });
}

// A right click cancels it: the canvas stays as it was.
void GeoSpire_MouseUp(Session& s, int Button, Single, Single) {
  frmCanvas& f = s.f;
  if (Button != vbRightButton) return;
  trap([&] {
    f.pSpire.Visible = false;
    f.DrawShape.BorderColor = kFrameDark;
    f.tTemp.Enabled = false;
    f.DrawShape.Visible = false;
    s.m.PaintMode = f.PriorMode;
    if (s.m.PaintMode == 16 || s.m.PaintMode == 25) ApplyPaintMode(s);
    f.mCopy.Enabled = true;
  });
}

void cCan_MouseMoveSpiral(Session& s) {
  frmCanvas& f = s.f;
  f.cCan.ToolTipText = miniMode(f) ? "" : "Click to draw full spiral";
}

namespace {

void equationChange(Session& s) { s.f.lStats.Caption = "Equation : " + number(s.f.vVal1.Value); }

void symmetryChange(Session& s) {
  frmCanvas& f = s.f;
  const QString v = number(f.vVal2.Value);
  f.lTell.Caption = "Click arrows to set Symmetry   Current Symmetry : " + v;
  f.lStats.Caption = "Symmetry : " + v;
  f.lVal2.ToolTipText = "Symmetry : " + v;
}

void densityChange(Session& s) {
  frmCanvas& f = s.f;
  const QString v = number(f.vVal3.Value);
  f.lStats.Caption = "Density : " + v;
  f.lVal3.ToolTipText = "Density : " + v;
  f.lTell.Caption = "Click arrows to set Density   Current Density : " + v;
}

void styleChange(Session& s) {
  frmCanvas& f = s.f;
  const QString text = "Style : " + number(f.vVal4.Value);
  f.lStats.Caption = text;
  f.lTell.Caption = text;
  f.lVal4.ToolTipText = text;
}

void offsetChange(Session& s) {
  frmCanvas& f = s.f;
  const QString v = number(f.vVal5.Value);
  f.lStats.Caption = "Offset : " + v;
  f.lVal5.ToolTipText = "Offset : " + v;
  f.lTell.Caption = "Click arrows to set Offset    Current Offset : " + v;
}

}  // namespace

ToolHooks geoSpiralzHooks() {
  ToolHooks h;
  h.press = GeoSpiralzPress;
  h.move = GeoSpiralzMove;
  h.release = GeoSpiralzRelease;
  h.spirePress = GeoSpire_MouseDown;
  h.cCanMouseMove = cCan_MouseMoveSpiral;
  h.spireRelease = GeoSpire_MouseUp;
  h.cCanClick = cCan_GeoSpiral;
  h.vValChange = {equationChange, symmetryChange, densityChange, styleChange, offsetChange};
  return h;
}

}  // namespace qp
