#include "tools/Tools.h"

#include "core/ToolTable.h"
#include "tools/PaintWithPix.h"
#include "tools/Pencil.h"
#include "tools/Selection.h"
#include "tools/ShadowDraw.h"

namespace qp {

void registerTools(ToolTable& table) {
  table.set(0, pencilHooks());
  table.set(4, shadowDrawHooks());
  table.set(14, collageHooks());
  table.set(18, selectAndClearHooks());
  table.set(19, selectAndCopyHooks());
  table.set(22, floatingPasteHooks());
  table.set(26, transparentModeHooks());
}

}  // namespace qp
