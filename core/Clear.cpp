// Clearing the canvas, a new canvas, the canvas colour and the reset of its size.
#include <QImage>

#include "core/ApplyPaintMode.h"
#include "core/Edit.h"
#include "core/Layout.h"
#include "core/Panel.h"
#include "core/Undo.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

// An empty picture leaves the canvas in its back colour; the pixel twin follows.
void clearCanvas(frmCanvas& f) {
  f.PicPaint.Picture = QImage();
  f.pPix.Picture = f.PicPaint.Image;
}

}  // namespace

// No snapshot first, and the undo level takes the empty canvas: the menu command cannot be undone.
void mClear_Click(Session& s) {
  trap([&] {
    clearCanvas(s.f);
    s.f.PicUndo.Picture = s.f.PicPaint.Image;
  });
}

// The Delete key is the undoable clear: its snapshot is left as the undo level, so an undo brings
// the picture back. It also makes the canvas untitled.
void ClearWithSnapshot(Session& s) {
  trap([&] {
    TakeUndoSnapshot(s);
    clearCanvas(s.f);
    s.m.CurrentFile = "";
    SetTitle(s);
  });
}

void mnuNew_Click(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    StopAllTools(s);
    // While the file window is open a new canvas waits: the window may be about to save this one.
    if (s.windows && s.windows->file.Visible) return;
    f.mLock.Checked = false;
    f.mLock.Caption = "Lock Canvas";
    f.CanvasLocked = 0;
    s.m.PaintMode = 0;
    s.m.CurrentFile = "";
    ApplyPaintMode(s);
    f.PicPaint.Picture = QImage();
    SetTitle(s);
    f.PicPaint.BackColor = f.lBg.BackColor.get();
  });
}

// The colour in waiting becomes the canvas colour and replaces the whole picture. The undo level
// ends up holding the new empty canvas, so this cannot be undone either.
void lColor_DblClick(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    f.PicUndo.Picture = f.PicPaint.Image;
    f.PicPaint.Picture = QImage();
    f.lBg.BackColor = f.lColor.BackColor.get();
    f.PicPaint.BackColor = f.lColor.BackColor.get();
    f.PicPaint.Refresh();
    f.pPix.Picture = f.PicPaint.Image;
    f.PicUndo.Picture = f.PicPaint.Image;
  });
}

// The canvas follows its frame again; the picture stays.
void mCvReset_Click(Session& s) {
  trap([&] {
    s.m.CurrentFile = "";
    Form_Resize(s);
  });
}

}  // namespace qp
