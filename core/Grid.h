#pragma once
// The guide lines through the canvas, their colours, and the pointer shapes.
#include "core/Session.h"

namespace qp {

void ToggleGrid(Session& s);
// Puts away both sets of guides, with their labels.
void HideGuides(Session& s);
// Moves the shown guides of the canvas (or of the pixel surface) through the pointer, with their
// labels beside it carrying the captions of lX and lY.
void FollowGuides(Session& s, bool onPix, Single X, Single Y);
void SetGridColors(Session& s);
void SetPointerShape(Session& s, int shape);  // 2 cross, 1 arrow

}  // namespace qp
