#pragma once
// The road of a stroke on the pixel surface pPix, for the paint modes that work in pixels: the
// surface's own common steps of press, move and release, then the paint mode's hook.
#include "core/Session.h"

namespace qp {

void pPix_MouseDown(Session& s, int Button, int Shift, Single X, Single Y);
void pPix_MouseMove(Session& s, int Button, int Shift, Single X, Single Y);
void pPix_MouseUp(Session& s, int Button, int Shift, Single X, Single Y);

// The arrow keys on a pixel surface run the draw width timers while they are held.
void PixSurface_KeyDown(Session& s, int KeyCode);
void PixSurface_KeyUp(Session& s, int KeyCode);

}  // namespace qp
