#pragma once
// The panel's canvas button (cCan) and the floating block over the canvas (pSpire) serve several
// paint modes; their events reach the hooks of the mode in use.
#include "core/Session.h"

namespace qp {

class PictureBox;

void cCan_Click(Session& s);
void cCan_MouseMove(Session& s);
void pSpire_MouseDown(Session& s, int Button, int Shift, Single X, Single Y);
void pSpire_MouseUp(Session& s, int Button, int Shift, Single X, Single Y);

// Sets a floating picture into the canvas over the rectangle given, stretched to it, as an undo
// point: what was drawn on the box is baked first, and the canvas is baked after.
void SetFloatOnCanvas(Session& s, PictureBox& box, Single Left, Single Top, Single Width, Single Height);

// Puts a floating block away without setting it: the canvas stays as it is and no snapshot is
// taken. The mode before comes back, with its panel rebuilt where the block's mode changed it.
void CancelSpire(Session& s);

}  // namespace qp
