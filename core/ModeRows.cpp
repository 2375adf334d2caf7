// The panel row of each paint mode: its value bars, the height of the panel, the mode display and
// the state word. Kept as data so that one routine applies every mode alike.
#include <QString>
#include <algorithm>
#include <optional>
#include <vector>

#include "core/ApplyPaintMode.h"
#include "core/PaintModes.h"
#include "core/Panel.h"
#include "core/PanelRoles.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

// A bar's values as the panel gives them. A value may come from a variable of the session.
enum class From { Fixed, AirSpread, StepSize, ColorOption };
struct Bar {
  int row;
  int min, max, value, small, large;
  From from = From::Fixed;
  bool on = true;     // switched on at entry (ShowValueRow) or only set
  bool live = false;  // the frame goes live
  bool enabled = true;
};

struct ModeRow {
  int mode;
  std::vector<Bar> bars;
  std::optional<int> panelRows;  // nullopt: the panel keeps the height of the mode before
  const char* stats;             // lStats at entry, nullptr: not touched
  bool clearsHelp = true;        // ends by clearing lHelp, the cue for the mode's help text
};

const std::vector<ModeRow>& modeRows() {
  using F = From;
  static const std::vector<ModeRow> kRows = {
      {0, {{1, 40, 1, 4, 1, 1}}, 0, "Proceed..."},
      {1, {{1, 1200, 40, 60, 20, 20}}, 0, "Single Mode"},
      {2, {{1, 960, 40, 40, 10, 10}, {2, 7, 0, 1, 1, 1, F::Fixed, true, true}, {3, 3, 0, 0, 1, 1, F::Fixed, true, true}},
       2, "Proceed..."},
      {3, {{1, 160, 1, 0, 1, 1, F::AirSpread, true, true}}, 0, "Proceed..."},
      {4, {{1, 960, 40, 0, 10, 10, F::StepSize, true, true}}, 0, "Proceed..."},
      {5, {}, 2, "Proceed..."},
      {6, {{1, 1600, 20, 120, 10, 10, F::Fixed, true, true}}, 0, "Proceed..."},
      {7, {{1, 55, 0, 0, 1, 1, F::Fixed, true, true}, {2, 20, 1, 4, 1, 1, F::Fixed, true, true}}, 0, "Horizontal"},
      {8, {{1, 500, 20, 50, 2, 2, F::Fixed, true, true}, {2, 25, 1, 10, 1, 1, F::Fixed, true, true},
           {3, 24, 1, 6, 1, 1, F::Fixed, true, true}, {4, 6, 0, 0, 1, 1, F::ColorOption, true, true}},
       2, "Proceed..."},
      {9, {{1, 12, 1, 2, 1, 1, F::Fixed, true, true}, {2, 960, 120, 240, 20, 20, F::Fixed, true, false, false},
           {3, 24, 3, 6, 1, 1, F::Fixed, true, false, false}},
       1, "Proceed..."},
      {10, {{1, 50, 1, 1, 1, 1, F::Fixed, true, true}}, 0, "Equation : 1"},
      {11, {{1, 10, 1, 3, 1, 1, F::Fixed, true, true}, {2, 500, 20, 50, 2, 2, F::Fixed, true, true},
            {3, 20, 1, 12, 1, 1, F::Fixed, true, true}, {4, 60, 1, 5, 1, 1, F::Fixed, true, true},
            {5, 36, 1, 6, 1, 1, F::Fixed, true, true}},
       std::nullopt, "Proceed..."},
      {12, {{1, 15, 0, 0, 1, 1, F::Fixed, true, true}, {2, 32, 1, 3, 1, 1, F::Fixed, true, true},
            {3, 8, 1, 3, 1, 1, F::Fixed, true, true}, {4, 2, 0, 0, 1, 1, F::Fixed, true, true},
            {5, 1200, 60, 120, 20, 20, F::Fixed, true, false}},
       3, "Proceed..."},
      {14, {}, std::nullopt, "Proceed..."},
      {15, {}, 0, "Proceed..."},
      {16, {{1, 72, 6, 12, 6, 6, F::Fixed, true, true}}, 0, "Proceed..."},
      {17, {{1, 0, 2, 0, 1, 1, F::Fixed, true, true}, {2, 1, 20, 2, 1, 1}, {3, 24, 1, 6, 1, 1},
            {4, 6, 0, 0, 1, 1, F::ColorOption, true, true}},
       2, "Proceed..."},
      {18, {}, 0, nullptr, false},
      {19, {}, 0, nullptr, false},
      {20, {}, std::nullopt, nullptr},
      {21, {}, std::nullopt, "Proceed..."},
      {23, {{1, 13, 0, 13, 1, 1, F::Fixed, true, true}}, 0, "pROcEed..."},
      {24, {{1, 50, 2, 16, 1, 1, F::Fixed, false, true}}, 2, "Proceed..."},
      {25, {{1, 0, 3, 0, 1, 1, F::Fixed, true, true}, {2, 20, 2, 2, 1, 1}, {3, 24, 1, 6, 1, 1}}, 3, "Diamonds"},
      {26, {}, std::nullopt, "Proceed..."},
      {29, {}, 4, "Proceed..."},
      {30, {{1, 960, 60, 60, 10, 10, F::Fixed, true, true}}, 0, "Proceed..."},
  };
  return kRows;
}

int valueFrom(Session& s, const Bar& b) {
  switch (b.from) {
    case From::AirSpread: return s.f.AirSpread;
    case From::StepSize: return s.m.StepSize;
    case From::ColorOption: return s.m.ColorOption;
    case From::Fixed: break;
  }
  return b.value;
}

// Another mode's wider bar can carry a variable past this bar's end (Single Line's offset goes to
// 1200, Shadow Draw's stops at 960). Such a value stands at the bar's nearer end instead of being
// refused, which would end the mode change half way and leave the panel of neither mode.
int withinBar(int value, const Bar& b) {
  if (b.from == From::Fixed) return value;
  return std::clamp(value, std::min(b.min, b.max), std::max(b.min, b.max));
}

}  // namespace

void ApplyModeRow(Session& s) {
  frmCanvas& f = s.f;
  const int mode = s.m.PaintMode;
  if (const PaintModeInfo* info = paintMode(mode); info && info->display) f.lMode.Caption = info->display;
  for (const ModeRow& row : modeRows()) {
    if (row.mode != mode) continue;
    for (const Bar& b : row.bars) {
      VScrollBar& bar = f.valueBar(b.row);
      // The row is shown and lit before its values go in, so that its own Change handler writes
      // the label; a value that does not change leaves the label of the mode before. A value taken
      // from a variable is read first, since a new range may move the bar and its handler would
      // write the moved value back into the variable.
      const int value = valueFrom(s, b);
      if (b.on) ShowValueRow(s, b.row);
      if (b.live) f.Shadow(b.row).BorderColor = kLiveFrame;
      bar.Min = b.min;
      bar.Max = b.max;
      bar.Value = withinBar(value, b);
      bar.SmallChange = b.small;
      bar.LargeChange = b.large;
      if (!b.enabled) bar.Enabled = false;
    }
    if (mode == 1) s.m.StepSize = 60;
    // Crazy Pencil's mixing follows the bar only through the bar's Change: entered with the bar
    // already at its value, the mode keeps the DrawMode 13 of the entry and the row's earlier words.
    ApplyModeEntry(s);
    if (row.panelRows) {
      f.PanelRows = *row.panelRows;
      SizeControlPanel(s);
    }
    if (row.stats) f.lStats.Caption = row.stats;
    if (row.clearsHelp) f.lHelp.Caption = "";
    return;
  }
}

}  // namespace qp
