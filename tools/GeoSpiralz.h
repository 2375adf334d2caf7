#pragma once
// GeoSpiralz (mode 12): a spiral over the whole canvas at the button, or a MiniSpiralz in a dragged
// rectangle that floats on pSpire until a left press sets it or a right click cancels it.
#include "core/ToolTable.h"

namespace qp {

void GeoSpiralzPress(Session& s, int Button, Single X, Single Y);
void GeoSpiralzMove(Session& s, int Button, Single X, Single Y);
void GeoSpiralzRelease(Session& s, int Button, Single X, Single Y);
void cCan_GeoSpiral(Session& s);
void GeoSpire_MouseDown(Session& s, int Button, Single X, Single Y);
void GeoSpire_MouseUp(Session& s, int Button, Single X, Single Y);
// The button's tool tip, while the pointer is over it.
void cCan_MouseMoveSpiral(Session& s);
ToolHooks geoSpiralzHooks();

}  // namespace qp
