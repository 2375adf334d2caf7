// The bars of the colour block: Color Mode, Color Variance and Color Option, with their texts.
#include "color/ColourEngine.h"
#include "color/ColourPickers.h"
#include "core/Panel.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

constexpr int kTextBrushMode = 20;

struct ColourModeRow {
  const char* name;
  bool transient;  // the Transient Color Generator belongs to Glow only
  bool variance;
  bool colourOption;
};

constexpr ColourModeRow kColourModes[] = {
    {"Standard", false, false, true},
    {"Rainbow", false, true, false},
    {"Glow", true, true, true},
    {"Gradient", false, false, true},
};

}  // namespace

QString ColourOptionName(int option) {
  static const char* const kNames[] = {"White", "Red", "Green", "Blue", "Yellow", "Cyan", "Magenta"};
  if (option < 0 || option > 6) return {};
  return kNames[option];
}

void ShowColorName(Session& s) {
  frmCanvas& f = s.f;
  const QString name = ColourOptionName(s.m.ColorOption);
  f.lStats.Caption = name;
  f.lColorVal.ToolTipText = "Color : " + name;
}

void vColmode_Change(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    const int v = f.vColmode.Value;
    if (v < 0 || v > 3) return;
    const ColourModeRow& row = kColourModes[v];
    f.lStats.Caption = row.name;
    const QString text = QString("Color Mode : ") + row.name;
    f.lColMode.ToolTipText = text;
    f.lColMode.Caption = text;
    f.ckDcolz.Visible = row.transient;
    if (row.variance) ShowVariance(s);
    else HideVariance(s);
    if (row.colourOption) ShowColorOption(s);
    else HideColorOption(s);
    if (s.m.PaintMode == kTextBrushMode) f.ckTxGrad.Visible = v == 3;
  });
}

void vVar_Change(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    const QString value = QString::number(f.vVar.Value);
    f.lHelp.Caption = "Current Color Variance : " + value;
    f.lVar.ToolTipText = "Current Color Variance : " + value;
    f.lStats.Caption = "Color Variance : " + value;
  });
}

void vColors_Change(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    s.m.ColorOption = f.vColors.Value.get();
    ShowColorName(s);
    f.lHelp.Caption = "Current " + f.lColorVal.ToolTipText.get();
    f.SwatchKey = f.vColors.Value.get();
    SetSwatchColor(s);
  });
}

}  // namespace qp
