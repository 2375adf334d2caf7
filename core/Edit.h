#pragma once
// The Edit commands and their keys: clearing, the canvas colour, the stash, the clipboard and the
// floating picture a paste leaves under the pointer. Undo itself is in core/Undo.
#include "core/Session.h"

namespace qp {

// Clearing. The menu command overwrites the undo level and cannot be undone; the Delete key takes
// a snapshot first and also forgets the file.
void mClear_Click(Session& s);
void ClearWithSnapshot(Session& s);
void mnuNew_Click(Session& s);
void lColor_DblClick(Session& s);
void mCvReset_Click(Session& s);

// The stash: one picture set aside, kept through undo and clearing.
void mSendStash_Click(Session& s);
void mGet_Click(Session& s);

// The clipboard. mCopy puts the whole canvas there; a paste floats the clipboard's picture over
// the canvas until a click sets it down.
void mCopy_Click(Session& s);
void mnuPaste_Click(Session& s);
void PasteToFloat(Session& s);
void tTemp_Timer(Session& s);
void pTemp_MouseDown(Session& s, int Button, int Shift, Single X, Single Y);

}  // namespace qp
