#include "tools/Tools.h"

#include "core/ToolTable.h"
#include "tools/Pencil.h"
#include "tools/ShadowDraw.h"

namespace qp {

void registerTools(ToolTable& table) {
  table.set(0, pencilHooks());
  table.set(4, shadowDrawHooks());
}

}  // namespace qp
