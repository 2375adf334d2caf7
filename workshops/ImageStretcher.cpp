// The Image Stretcher: every resize of the window paints the untouched source afresh at the new
// size, so shrinking and growing back loses nothing.
#include "workshops/ImageStretcher.h"

#include <algorithm>
#include <cmath>

#include "core/Undo.h"
#include "files/FileDialog.h"
#include "files/PictureFiles.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"
#include "ui/frmFile.h"
#include "workshops/PictureOps.h"

namespace qp {

frmStretch* stretchWindow(Session& s) { return s.windows ? &s.windows->stretch : nullptr; }

namespace {

// The source is shown as it came, until the next resize stretches it.
void showSource(frmStretch& w) {
  w.pTemp.Picture = w.pTemp.Image;
  w.mSave.Enabled = true;
  w.pTemp.Move(w.pLO.Left, w.pLO.Top);
  w.pTemp.Visible = true;
  w.pLO.Picture = w.pTemp.Picture;
}

// Pointer positions far outside any picture are cut, so that every conversion stays defined.
int pixelsOf(Single twips) {
  const double px = std::isfinite(twips) ? std::clamp(twips / 15.0, -1e6, 1e6) : 0.0;
  return static_cast<int>(std::lround(px));
}

}  // namespace

void mStretchWindow_Click(Session& s) {
  frmStretch* w = stretchWindow(s);
  if (!w) return;
  trap([&] {
    TakeUndoSnapshot(s);
    w->Show(false);
  });
}

void frmStretch_Load(Session& s) {
  frmStretch& w = *stretchWindow(s);
  trap([&] {
    w.tSel.Enabled = false;
    w.DShp.Visible = false;
    w.mSaveSel.Enabled = false;
    w.fStruct.Visible = true;
    frmStash& stash = s.windows->stash;
    w.pTemp.Picture = stash.lStretch.Caption.get() == "Temp" ? QImage(stash.pStretch.Picture) : QImage();
    w.mSave.Enabled = !w.pTemp.Picture.isNull();
  });
}

void frmStretch_Unload(Session& s) {
  frmStretch& w = *stretchWindow(s);
  w.tSel.Enabled = false;
  trap([&] {
    frmStash& stash = s.windows->stash;
    stash.pStretch.Picture = w.pTemp.Picture;
    stash.lStretch.Caption = "Temp";
  });
}

void frmStretch_Resize(Session& s) {
  frmStretch& w = *stretchWindow(s);
  trap([&] {
    w.Caption = "";
    w.DShp.Visible = false;
    w.tSel.Enabled = false;
    w.mSaveSel.Enabled = false;
    // A window dragged smaller than its margins has nothing to show: the last picture stays.
    const Single width = w.Width - 360, height = w.Height - 720;
    if (width < 15 || height < 15) return;
    w.pLO.Width = width;
    w.pLO.Height = height;
    w.DrawShape.Move(w.DrawShape.Left, w.DrawShape.Top, width, height);
    w.shLO.Move(240, 120, width - 120, height - 120);
    w.pTemp.Visible = false;
    // Always from the source, never from the last stretch.
    w.pLO.Picture = StretchPicture(w.pTemp.Picture, w.pLO.pixelWidth(), w.pLO.pixelHeight());
    w.pLO.Picture = w.pLO.Image;
    w.pLO.ToolTipText = "Click and drag to crop and save a selection";
    w.mSave.Enabled = !w.pTemp.Picture.isNull();
    w.Caption = QString(frmStretch::kCaption) + " " + QString::number(w.pLO.Width / 15.0) + " x " +
                QString::number(w.pLO.Height / 15.0);
  });
}

void LoadStretchSource(Session& s, const QImage& picture) {
  frmStretch* w = stretchWindow(s);
  if (!w || picture.isNull()) return;
  trap([&] {
    w->pTemp.Picture = picture;
    showSource(*w);
  });
}

void Stretch_mLoad_Click(Session& s) {
  if (fileWindowShown(s)) return;
  trap([&] { ShowFileDialog(s, FileMode::LoadStretch); });
}

void Stretch_pLO_OLEDragDrop(Session& s, const QStringList& Files) {
  if (Files.isEmpty()) return;
  // A file that cannot be decoded leaves the old source.
  trap([&] { LoadStretchSource(s, LoadPicture(Files.first(), s.f.PicPaint.BackColor)); });
}

void mClip_Click(Session& s) {
  frmStretch& w = *stretchWindow(s);
  trap([&] {
    const QImage picture = s.rt.clipboard.GetData();
    if (picture.isNull()) raiseError(RuntimeError::ClipboardEmpty, "Can't empty Clipboard");
    w.pTemp.Cls();
    LoadStretchSource(s, picture);
  });
}

void Stretch_mLdQuillora_Click(Session& s) {
  trap([&] {
    s.f.PicPaint.Picture = s.f.PicPaint.Image;
    LoadStretchSource(s, s.f.PicPaint.Picture);
  });
}

void Stretch_mStash_Click(Session& s) {
  trap([&] {
    s.f.pStash.Picture = s.f.pStash.Image;
    LoadStretchSource(s, s.f.pStash.Picture);
  });
}

void Stretch_pLO_MouseDown(Session& s, int Button, Single X, Single Y) {
  frmStretch& w = *stretchWindow(s);
  if (Button != vbLeftButton) return;
  trap([&] {
    w.StartX = X;
    w.StartY = Y;
    w.DShp.Move(X, Y, 0, 0);
    w.DShp.Visible = true;
  });
}

void Stretch_pLO_MouseMove(Session& s, int Button, Single X, Single Y) {
  frmStretch& w = *stretchWindow(s);
  if (!(Button & vbLeftButton) || !w.DShp.Visible) return;
  trap([&] {
    w.DShp.Move(std::min(X, w.StartX), std::min(Y, w.StartY), std::abs(X - w.StartX), std::abs(Y - w.StartY));
  });
}

void Stretch_pLO_MouseUp(Session& s, int Button, Single X, Single Y) {
  frmStretch& w = *stretchWindow(s);
  if (Button != vbLeftButton || !w.DShp.Visible) return;
  trap([&] {
    const QRect rect(pixelsOf(w.DShp.Left), pixelsOf(w.DShp.Top), pixelsOf(w.DShp.Width), pixelsOf(w.DShp.Height));
    w.pLO.Picture = w.pLO.Image;
    const QImage crop = CropPicture(w.pLO.Picture, rect);
    if (crop.isNull()) {  // a click without a drag crops nothing
      w.DShp.Visible = false;
      return;
    }
    w.pT1.Picture = crop;
    w.pT1.Picture = w.pT1.Image;
    w.Caption = "Selection Ready To Be Saved...";
    w.tSel.Enabled = true;
    w.mSaveSel.Enabled = true;
  });
}

void Stretch_tSel_Timer(Session& s) {
  frmStretch& w = *stretchWindow(s);
  w.DShp.BorderColor = w.DShp.BorderColor == 0xC0C0C0 ? 0xE0E0E0 : 0xC0C0C0;
}

void Stretch_mSave_Click(Session& s) {
  frmStretch& w = *stretchWindow(s);
  if (fileWindowShown(s)) return;
  trap([&] {
    w.pLO.Picture = w.pLO.Image;
    if (frmFile* d = fileWindow(s)) d->Width = frmFile::kSaveWidth;
    ShowFileDialog(s, FileMode::SaveStretched);
  });
}

void Stretch_mSaveSel_Click(Session& s) {
  frmStretch& w = *stretchWindow(s);
  if (fileWindowShown(s)) return;
  trap([&] {
    w.pT1.Picture = w.pT1.Image;
    if (frmFile* d = fileWindow(s)) d->Width = frmFile::kSaveWidth;
    ShowFileDialog(s, FileMode::SaveCropped);
  });
}

void Stretch_mCopyClip_Click(Session& s) {
  frmStretch& w = *stretchWindow(s);
  trap([&] {
    if (w.pLO.Picture.isNull()) return;
    s.rt.clipboard.Clear();
    s.rt.clipboard.SetData(w.pLO.Picture);
  });
}

}  // namespace qp
