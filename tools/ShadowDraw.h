#pragma once
#include "core/ToolTable.h"

namespace qp {

// Shadow Draw (mode 4): the pointer's track in BackClr, with copies shifted on both axes by the
// offset StepSize in ForeClr and the third colour (lColor).
void ShadowDrawPress(Session& s, int Button, Single X, Single Y);
void ShadowDrawMove(Session& s, int Button, Single X, Single Y);
// Draws the shifted copies of the segment from (FromX, FromY) to (X, Y) on the canvas.
void ShadowStroke(Session& s, Single X, Single Y, Single FromX, Single FromY);
ToolHooks shadowDrawHooks();

}  // namespace qp
