// The value rows' labels: what each bar means in each paint mode, the text its label shows (also
// its tool tip) and the variable it feeds. A row whose frame is dim ignores its bar.
#include <QString>
#include <vector>

#include "color/ColourEngine.h"
#include "core/Panel.h"
#include "core/PanelRoles.h"
#include "core/ToolTable.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

// Where a bar's value goes besides its label.
enum class Feed {
  None, StepSize, AirSpread, AutoDrawSpeed, CrazyEquation, SpiralStep, GradStepSize, ColorOption,
  BrushFigure, EraserSize, CrazyDrawMode, GradientStyle, SpiralStyle, BoxOrSpread
};

struct RowRole {
  int mode;
  int row;
  const char* text;   // shown before the value; unused where the label is a name
  int divisor;        // offsets and sizes are shown in tenths of their twips
  Feed feed;
  std::vector<const char*> names;  // the label is the name of the value, when there are names
};

const std::vector<RowRole>& rowRoles() {
  using F = Feed;
  // Mode 0's speed bar belongs to AutoDraw, which labels it itself through the tool table.
  static const std::vector<RowRole> kRoles = {
      {1, 1, "Offset : ", 10, F::StepSize, {}},
      {2, 1, "Offset : ", 10, F::StepSize, {}},
      {2, 2, "", 1, F::None, {"Solid", "Open", "H-Lines", "V-Lines", "Up\\", "Down\\", "++++", "xxxx"}},
      {2, 3, "", 1, F::None, {"Rectangle", "Box Gradient", "Circle"}},
      {3, 1, "Spread : ", 1, F::AirSpread, {}},
      {4, 1, "Offset : ", 10, F::StepSize, {}},
      {6, 1, "Eraser size: ", 10, F::EraserSize, {}},
      {7, 1, "", 1, F::BrushFigure, {}},
      {7, 2, "Size : ", 1, F::None, {}},
      {8, 1, "Limit : ", 1, F::None, {}},
      {8, 2, "Step : ", 1, F::None, {}},
      {8, 3, "Aspect : ", 1, F::None, {}},
      {8, 4, "", 1, F::ColorOption, {}},
      {9, 1, "", 1, F::BoxOrSpread, {}},
      {9, 2, "Max Size : ", 1, F::None, {}},
      {9, 3, "Aspect : ", 1, F::None, {}},
      {10, 1, "Equation : ", 1, F::CrazyEquation, {}},
      {11, 1, "Step : ", 1, F::None, {}},
      {11, 2, "Radius : ", 1, F::None, {}},
      {11, 3, "Intensity : ", 1, F::None, {}},
      {11, 4, "Depth : ", 1, F::None, {}},
      {11, 5, "Aspect : ", 1, F::None, {}},
      {12, 1, "Equation : ", 1, F::None, {}},
      {12, 2, "Symmetry : ", 1, F::None, {}},
      {12, 3, "Density : ", 1, F::None, {}},
      {12, 4, "Style : ", 1, F::SpiralStyle, {}},
      {12, 5, "Offset : ", 1, F::StepSize, {}},
      {16, 1, "Lines/Pass : ", 1, F::SpiralStep, {}},
      {28, 1, "Lines/Pass : ", 1, F::SpiralStep, {}},
      {17, 1, "", 1, F::GradientStyle, {"Diamonds", "Squares", "Circles"}},
      {17, 2, "Intensity : ", 1, F::GradStepSize, {}},
      {17, 3, "Aspect : ", 1, F::None, {}},
      {17, 4, "", 1, F::ColorOption, {}},
      {23, 1, "", 1, F::CrazyDrawMode, {}},
      {24, 1, "Speed : ", 1, F::AutoDrawSpeed, {}},
      {25, 1, "", 1, F::GradientStyle, {"Diamond", "Square", "Circle", "Gradient"}},
      {25, 2, "Intensity : ", 1, F::GradStepSize, {}},
      {25, 3, "Aspect : ", 1, F::None, {}},
      {30, 1, "Offset  : ", 10, F::StepSize, {}},
  };
  return kRoles;
}

const RowRole* findRole(int mode, int row) {
  for (const RowRole& r : rowRoles())
    if (r.mode == mode && r.row == row) return &r;
  return nullptr;
}

QString withValue(const char* text, int value, int divisor) {
  const QString number = divisor == 1 ? QString::number(value) : QString::number(value / double(divisor));
  return QString::fromLatin1(text) + number;
}

// The gradient styles use one of the rows below them: Squares the intensity row, Circles the aspect
// row. The row of the chosen style turns live, the other dim, so that only the bar that matters moves.
void lightStyleRows(Session& s, int style) {
  s.f.Shadow(2).BorderColor = style == 1 ? kLiveFrame : kDimFrame;
  s.f.Shadow(3).BorderColor = style == 2 ? kLiveFrame : kDimFrame;
}

void applyRole(Session& s, const RowRole& role) {
  frmCanvas& f = s.f;
  ScrollBar& bar = f.valueBar(role.row);
  Label& label = f.valueLabel(role.row);
  const int v = bar.Value;
  QString text = role.names.empty() ? withValue(role.text, v, role.divisor)
                 : (v >= 0 && v < static_cast<int>(role.names.size())) ? QString(role.names[size_t(v)])
                                                                        : QString();
  switch (role.feed) {
    case Feed::None: break;
    case Feed::StepSize: s.m.StepSize = v; break;
    case Feed::AirSpread: f.AirSpread = v; break;
    case Feed::AutoDrawSpeed: f.AutoDrawSpeed = v; break;
    case Feed::CrazyEquation: f.CrazyEquation = v; break;
    case Feed::SpiralStep: s.m.SpiralStep = v; break;
    case Feed::GradStepSize: f.GradStepSize = v; break;
    case Feed::BrushFigure:
      f.BrushFigure = v;
      ShowBrushName(s);
      text = BrushFigureName(v);
      break;
    case Feed::ColorOption:
      s.m.ColorOption = v;
      ShowColorName(s);
      text = ColourOptionName(v);
      break;
    case Feed::EraserSize:
      // The bar's value is the eraser's side in twips, for the preview and the outline alike.
      f.shErSize.Width = v;
      f.shErSize.Height = f.shErSize.Width.get();
      f.shErase.Width = v;
      f.shErase.Height = f.shErase.Width.get();
      break;
    case Feed::CrazyDrawMode:
      // The mixing table writes the label itself, and leaves it alone for the value it skips.
      ApplyCrazyDrawMode(s);
      label.ToolTipText = label.Caption.get();
      return;
    case Feed::GradientStyle: lightStyleRows(s, v); break;
    case Feed::SpiralStyle:
      // Only style 1 uses the offset row below.
      f.Shadow(5).BorderColor = v == 1 ? kLiveFrame : kDimFrame;
      break;
    case Feed::BoxOrSpread:
      if (f.ckVal.Value == 1) {  // Bubblez: the bar is the spread around the pointer
        f.AirSpread = v;
        text = withValue("Spread : ", v, 1);
      } else {
        text = withValue("Box Size : ", v, 1);
      }
      break;
  }
  label.Caption = text;
  label.ToolTipText = text;
}

}  // namespace

void vVal_Change(Session& s, int row) {
  trap([&] {
    if (!rowIsLive(s, row)) {
      s.f.valueLabel(row).ToolTipText = "";
      return;
    }
    const int mode = s.m.PaintMode;
    if (const RowRole* role = findRole(mode, row)) applyRole(s, *role);
    if (const PanelHook& hook = s.tools.at(mode).vValChange[static_cast<size_t>(row - 1)]) hook(s);
  });
}

}  // namespace qp
