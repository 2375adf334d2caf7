#pragma once
// The line tools: Single Line (mode 1) and Mirror Lines (mode 5) stretch the rubber band lnDraw
// and draw at release; Crazy Linez (mode 10) draws one of fifty equations at every move.
#include "core/Session.h"
#include "core/ToolTable.h"

namespace qp {

ToolHooks singleLineHooks();
ToolHooks mirrorLinesHooks();
ToolHooks crazyLinezHooks();

}  // namespace qp
