#pragma once
// The small freehand tools: AirBrush (mode 3), Eraser (mode 6), SawTooth (mode 30) and Crazy
// Pencil (mode 23).
#include "core/Session.h"
#include "core/ToolTable.h"

namespace qp {

ToolHooks airBrushHooks();
// One dot of spray around the spray point; the AirBrush's timer runs it.
void tAir_Timer(Session& s);

ToolHooks eraserHooks();
ToolHooks sawToothHooks();
ToolHooks crazyPencilHooks();

}  // namespace qp
