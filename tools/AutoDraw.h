#pragma once
#include "core/Session.h"

namespace qp {

// AutoDraw: with ckVal set in the Pencil, the arrow keys steer a pen that tDraw moves by
// AutoDrawSpeed twips a tick, drawing as it goes. The keys themselves are in core/Keyboard.

// ckVal in the Pencil switches AutoDraw on and off.
void AutoDrawSwitch(Session& s);
// vVal1 in the Pencil is the pen's speed.
void AutoDrawSpeedChange(Session& s);
// One step of the pen.
void tDraw_Timer(Session& s);

void wireAutoDraw(Session& s);

}  // namespace qp
