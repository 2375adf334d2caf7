#pragma once
// Two whole-canvas undo levels kept as pictures on hidden surfaces; no stroke history.
#include "core/Session.h"

namespace qp {

// Bakes the drawing into the visible surface, makes PicPaint and pPix equal, and keeps the result
// as the first undo level (the level before it moves to the second).
void TakeUndoSnapshot(Session& s);
// Bakes what was drawn into the canvas's lasting picture, taking it from the pixel twin when that
// is the surface in use. Copy and the stash start with this; the snapshot does it as well.
void FlattenCanvas(Session& s);
// Back to the last snapshot; the levels stay, so a second call gives the same picture.
void UndoOnce(Session& s);
// Back to the snapshot before that.
void UndoTwice(Session& s);

}  // namespace qp
