// The stash: one whole canvas set aside on a hidden surface. It outlives undo and clearing, and
// can be fetched again and again.
#include "core/Edit.h"
#include "core/Panel.h"
#include "core/Undo.h"
#include "ui/frmCanvas.h"

namespace qp {

void mSendStash_Click(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    StopAllTools(s);
    FlattenCanvas(s);
    f.pStash.Picture = f.PicPaint.Picture;
    f.mGet.Enabled = true;
  });
}

// The stashed picture replaces the canvas unstretched; the canvas keeps its size.
void mGet_Click(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    StopAllTools(s);
    TakeUndoSnapshot(s);
    // Unlike an opened picture, the stash comes back at the canvas's own size, so the canvas does
    // not follow the picture here.
    f.PicPaint.AutoSize = false;
    const bool placed = trap([&] { f.PicPaint.Picture = f.pStash.Picture; });
    f.PicPaint.AutoSize = true;
    if (!placed) raiseError(RuntimeError::OutOfMemory, "Out of memory");
  });
}

}  // namespace qp
