#pragma once
// The road of a stroke on the paint area: the common steps of press, move and release, then the
// paint mode's own hook from the tool table.
#include "core/Session.h"

namespace qp {

void PicPaint_MouseDown(Session& s, int Button, int Shift, Single X, Single Y);
void PicPaint_MouseMove(Session& s, int Button, int Shift, Single X, Single Y);
void PicPaint_MouseUp(Session& s, int Button, int Shift, Single X, Single Y);

// The colour step that tools run before each piece of drawing: Standard takes the fore colour,
// Rainbow and Glow step it, Gradient switches its timer on.
void ColourStep(Session& s);

// The shared interval of the paint timers.
void vInt_Change(Session& s);

}  // namespace qp
