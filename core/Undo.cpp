#include "core/Undo.h"

#include "ui/frmCanvas.h"

namespace qp {

void TakeUndoSnapshot(Session& s) {
  frmCanvas& f = s.f;
  if (s.m.PaintMode == 0) f.tDraw.Enabled = false;  // AutoDraw stops at every snapshot
  f.pUn2.Picture = f.PicUndo.Picture;
  if (f.pPix.Visible) {
    f.pPix.Picture = f.pPix.Image;
    f.PicPaint.Picture = f.pPix.Picture;
    f.PicUndo.Picture = f.pPix.Picture;
  } else {
    f.PicPaint.Picture = f.PicPaint.Image;
    f.pPix.Picture = f.PicPaint.Picture;
    f.PicUndo.Picture = f.PicPaint.Picture;
  }
}

void FlattenCanvas(Session& s) {
  frmCanvas& f = s.f;
  if (f.pPix.Visible) {
    f.pPix.Picture = f.pPix.Image;
    f.PicPaint.Picture = f.pPix.Picture;
  }
  f.PicPaint.Picture = f.PicPaint.Image;
}

void UndoOnce(Session& s) {
  frmCanvas& f = s.f;
  f.PicPaint.Picture = f.PicUndo.Image;
  f.pPix.Picture = f.PicUndo.Picture;
}

void UndoTwice(Session& s) {
  frmCanvas& f = s.f;
  f.pUn2.Picture = f.pUn2.Image;
  f.PicPaint.Picture = f.pUn2.Image;
  f.pPix.Picture = f.pUn2.Picture;
}

}  // namespace qp
