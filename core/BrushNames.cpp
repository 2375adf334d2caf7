// The names of the 56 figure brushes, shown in the state line as the figure bar moves. The spelling
// and the look-alike pairs are the brushes' own; they stay as users know them.
#include "core/PanelRoles.h"

#include "ui/frmCanvas.h"

namespace qp {

QString BrushFigureName(int figure) {
  static const char* const kNames[] = {
      "Horizontal", "Vertical", "Backslash", "Fwdslash", "Circle", "Box", "Long Box", "Tall Box",
      "Long Ellipse", "Tall Ellipse", "Plus", "X", "Star I", "Star II", "Star III", "Star IV", "StarV",
      "Star VI", "Star VII", "Diamond", "Diamond II", "DiamondIII", "Butterfly", "ButterflyII",
      "Spear Up", "Spear Down", "Arrowhead", "Stick man", "Smiley guy", "House", "TV", "Point", "Tree",
      "Cone", "Stop Sign", "Yeild Sign", "Bio", "CapMan I", "CapMan II", "CapMan III", "CapMan IV",
      "CapMan V", "CapMan VI", "CapMan VII", "Slice", "Slice2", "1/4", "1/2", "3/4", "Saucer I",
      "Saucer II", "Saucer III", "Saucer IV", "Saucer V", "Saucer VI", "Scope"};
  static_assert(std::size(kNames) == 56);
  if (figure < 0 || figure >= static_cast<int>(std::size(kNames))) return {};
  return kNames[figure];
}

void ShowBrushName(Session& s) { s.f.lStats.Caption = BrushFigureName(s.f.BrushFigure.value()); }

}  // namespace qp
