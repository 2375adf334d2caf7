// Open goes through the Explorer panel, Save through the file window, a dropped file straight
// onto the canvas, whatever the lock says.
#include "files/OpenSave.h"

#include "core/Layout.h"
#include "core/Panel.h"
#include "core/Undo.h"
#include "files/Explorer.h"
#include "files/FileDialog.h"
#include "files/PictureFiles.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"

namespace qp {

void mnuOpen_Click(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    StopAllTools(s);
    if (fileWindowShown(s)) return;
    if (f.CanvasLocked == 0) f.fX.Visible = true;
    else s.rt.msgbox.MsgBox("Unlock canvas to open image file", vbOKOnly, QString());
  });
}

void mnuSave_Click(Session& s) {
  trap([&] {
    StopAllTools(s);
    if (fileWindowShown(s)) return;
    TakeUndoSnapshot(s);
    if (frmFile* d = fileWindow(s)) d->Width = frmFile::kSaveWidth;
    ShowFileDialog(s, FileMode::SaveImage);
  });
}

// The lock keeps Open's panel closed, not a drop: a dropped file always loads. The snapshot comes
// first, so a file that fails to load still leaves the canvas baked as an undo level.
void PicPaint_OLEDragDrop(Session& s, const QStringList& Files) {
  frmCanvas& f = s.f;
  trap([&] {
    TakeUndoSnapshot(s);
    if (Files.isEmpty()) raiseError(RuntimeError::InvalidCall, "Invalid procedure call");
    f.PicPaint.Picture = LoadPicture(Files.front(), f.PicPaint.BackColor);
    s.m.CurrentFile = Files.front();
    f.pPix.Picture = f.PicPaint.Image;
    SetTitle(s);
    Form_Resize(s);
  });
}

}  // namespace qp
