#pragma once
// Simple Shapes (mode 2): rectangles, box gradients and circles from a dragged DrawShape, and box
// runs drawn during the drag. FloodFill (mode 15): the region under a click on the pixel surface.
#include "core/Session.h"
#include "core/ToolTable.h"

namespace qp {

ToolHooks simpleShapesHooks();
ToolHooks floodFillHooks();

}  // namespace qp
