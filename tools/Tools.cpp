#include "tools/Tools.h"

#include "core/ToolTable.h"
#include "tools/Pencil.h"
#include "tools/ShadowDraw.h"
#include "tools/CanvasGradients.h"
#include "tools/Spheres.h"

namespace qp {

void registerTools(ToolTable& table) {
  table.set(0, pencilHooks());
  table.set(4, shadowDrawHooks());
  table.set(8, sphereHooks());
  table.set(11, circleFxHooks());
  table.set(17, gradientShapeHooks());
  table.set(25, canvasGradientHooks());
}

}  // namespace qp
