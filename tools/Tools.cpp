#include "tools/Tools.h"

#include "core/ToolTable.h"
#include "tools/FreehandSpiral.h"
#include "tools/FullScreen.h"
#include "tools/GeoSpiralz.h"
#include "tools/Pencil.h"
#include "tools/ShadowDraw.h"

namespace qp {

void registerTools(ToolTable& table) {
  table.set(0, pencilHooks());
  table.set(4, shadowDrawHooks());
  table.set(12, geoSpiralzHooks());
  ToolHooks freehand = freehandSpiralzHooks();
  freehand.fullScreenKey = OpenFullScreen;  // F9
  table.set(16, freehand);
  table.set(28, miniSpiralsHooks());
}

}  // namespace qp
