#pragma once
#include "core/ToolTable.h"

namespace qp {

// Canvas Gradients (mode 25): the canvas button fills the whole canvas with the chosen style.
void CanvasGradientClick(Session& s);
// The direction buttons of the linear ramps.
void opVert_Click(Session& s);
ToolHooks canvasGradientHooks();

// Gradient Shapes (mode 17): a dragged rectangle gets a gradient on the floating block, set by a
// left press on it and put away by a right click.
ToolHooks gradientShapeHooks();

}  // namespace qp
