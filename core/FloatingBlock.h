#pragma once
// The panel's canvas button (cCan) and the floating block over the canvas (pSpire) serve several
// paint modes; their events reach the hooks of the mode in use.
#include "core/Session.h"

namespace qp {

void cCan_Click(Session& s);
void cCan_MouseMove(Session& s);
void pSpire_MouseDown(Session& s, int Button, int Shift, Single X, Single Y);
void pSpire_MouseUp(Session& s, int Button, int Shift, Single X, Single Y);

// Puts a floating block away without setting it: the canvas stays as it is and no snapshot is
// taken. The mode before comes back, with its panel rebuilt where the block's mode changed it.
void CancelSpire(Session& s);

}  // namespace qp
