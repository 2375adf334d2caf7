#include "tools/Tools.h"

#include "core/ToolTable.h"
#include "tools/Pencil.h"
#include "tools/BoxesBubblez.h"
#include "tools/FigureBrush.h"
#include "tools/ShadowDraw.h"
#include "tools/TextTools.h"

namespace qp {

void registerTools(ToolTable& table) {
  table.set(0, pencilHooks());
  table.set(4, shadowDrawHooks());
  table.set(7, figureBrushHooks());
  table.set(9, boxesBubblezHooks());
  table.set(20, textBrushHooks());
  table.set(21, text3DHooks());
  table.set(29, shadowTextHooks());
}

}  // namespace qp
