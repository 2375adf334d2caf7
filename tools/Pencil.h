#pragma once
#include "core/ToolTable.h"

namespace qp {

// The freehand pencil (mode 0): a dot at the press, a segment per move, one colour step a segment.
void PencilPress(Session& s, int Button, Single X, Single Y);
void PencilMove(Session& s, int Button, Single X, Single Y);
ToolHooks pencilHooks();

}  // namespace qp
