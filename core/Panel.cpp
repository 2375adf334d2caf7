#include "core/Panel.h"

#include <algorithm>

#include "core/Grid.h"
#include "ui/frmCanvas.h"

namespace qp {

void SizeControlPanel(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    static constexpr int kHeights[] = {2040, 2520, 3000, 3600, 4000};
    const int rows = f.PanelRows;
    if (rows > 4) return;  // no such height class: the routine's trap ends it
    f.PanelHeight = kHeights[rows];
    // The panel's frame is as tall as its rows need: a shorter frame would cut off the lower rows.
    f.fVal.Height = f.PanelHeight;
    f.lHelpb.Top = f.PanelHeight;
    f.lHelp.Top = f.PanelHeight + 15;
    FitHelpLine(s);
  });
}

void FitHelpLine(Session& s) {
  frmCanvas& f = s.f;
  // The longest help texts wrap to many lines in the narrow column: the help line takes all the
  // room down to the state line, wherever the panel above it ends.
  f.lHelpb.Height = std::max<Single>(0, f.lTell.Top - f.lHelpb.Top);
  f.lHelp.Height = f.lHelpb.Height;
}

void ShowValueRow(Session& s, int n) {
  frmCanvas& f = s.f;
  f.valueBar(n).Visible = true;
  f.Shadow(n).Visible = true;
  f.valueLabel(n).Visible = true;
  f.valueBar(n).Enabled = true;
}

void ShowDrawWidthLimits(Session& s) {
  frmCanvas& f = s.f;
  f.vMax.Visible = true;
  f.vMin.Visible = true;
  f.Shadow(35).Visible = true;
  f.Shadow(32).Visible = true;
}

void HideDrawWidthLimits(Session& s) {
  frmCanvas& f = s.f;
  f.vMin.Visible = false;
  f.vMax.Visible = false;
  f.ckHold.Visible = false;
  f.Shadow(35).Visible = false;
  f.Shadow(32).Visible = false;
}

void ShowColorOption(Session& s) {
  s.f.vColors.Visible = true;
  s.f.lColorVal.Visible = true;
  s.f.Shadow(33).Visible = true;
}

void HideColorOption(Session& s) {
  s.f.vColors.Visible = false;
  s.f.lColorVal.Visible = false;
  s.f.Shadow(33).Visible = false;
}

void ShowVariance(Session& s) {
  s.f.vVar.Visible = true;
  s.f.lVar.Visible = true;
  s.f.Shadow(36).Visible = true;
}

void HideVariance(Session& s) {
  s.f.vVar.Visible = false;
  s.f.lVar.Visible = false;
  s.f.Shadow(36).Visible = false;
}

void ApplyCrazyDrawMode(Session& s) {
  frmCanvas& f = s.f;
  // The bar's values 0 to 13 map onto the mixing modes; 11 has no entry and changes nothing, so
  // the mixing stays as it was and the label keeps its text.
  static constexpr int kDrawMode[] = {2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 13, -1, 14, 15};
  const int v = f.vVal1.Value;
  if (v < 0 || v > 13 || kDrawMode[v] < 0) return;
  f.PicPaint.DrawMode = kDrawMode[v];
  f.lVal1.Caption = "DrawMode : " + QString::number(v);
}

void StopAllTools(Session& s) {
  frmCanvas& f = s.f;
  f.stopPaintTimers();
  f.lHelp.ForeColor = 0xC0C0C0;
  f.lTell.Caption = "";
  f.PicPaint.ScaleWidth = f.PicPaint.Width;
  f.PicPaint.ScaleHeight = f.PicPaint.Height;
  HideGuides(s);
}

bool rowIsLive(Session& s, int n) { return s.f.Shadow(n).BorderColor != kDimFrame; }

}  // namespace qp
