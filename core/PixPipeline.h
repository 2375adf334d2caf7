#pragma once
// The road of a stroke on the pixel surface pPix, for the modes that paint in pixels: the common
// steps of press, move and release, then the paint mode's own pPix hook from the tool table.
#include "core/Session.h"

namespace qp {

void pPix_MouseDown(Session& s, int Button, int Shift, Single X, Single Y);
void pPix_MouseMove(Session& s, int Button, int Shift, Single X, Single Y);
void pPix_MouseUp(Session& s, int Button, int Shift, Single X, Single Y);

}  // namespace qp
