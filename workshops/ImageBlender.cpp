// The Image Blender: two pictures, each stretched to the working area, mixed at a percentage
// (Blend Pix) or laid one over the other with a key colour left out (BlueScreen, in BlueScreen.cpp).
#include "workshops/ImageBlender.h"

#include "core/Undo.h"
#include "files/FileDialog.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"
#include "ui/frmFile.h"
#include "workshops/PictureOps.h"
#include "workshops/WorkshopCommon.h"

namespace qp {

frmBlend* blendWindow(Session& s) { return s.windows ? &s.windows->blend : nullptr; }

namespace {

// Puts one of the two pictures in place: its source holder, its thumbnail and name, its half of
// the working area, and its working copy at the working area's size.
void loadImage(frmBlend& b, int image, const QImage& picture, const QString& path, const QString& name) {
  if (picture.isNull()) return;
  const bool one = image == 1;
  PictureBox& source = one ? b.pTemp1 : b.pTemp2;
  PictureBox& work = one ? b.pT1 : b.pT2;
  Image& thumb = one ? b.iPre1 : b.iPre2;
  // The two halves stand side by side in the middle band of the working area.
  b.DShp.Move(one ? 0 : b.pMain.Width / 2, b.pMain.Height / 4, b.pMain.Width / 2, b.pMain.Height / 2);
  source.Picture = asRgb32(picture);
  (one ? b.lPath1 : b.lPath2).Caption = path;
  thumb.Picture = source.Picture;
  thumb.touch();
  thumb.Visible = true;
  (one ? b.lPic1 : b.lPic2).Caption = name;
  b.pMain.PaintPicture(source.Picture, b.DShp.Left, b.DShp.Top, b.DShp.Width.get(), b.DShp.Height.get());
  b.pMain.Picture = b.pMain.Image;
  work.Picture = StretchPicture(source.Picture, b.pMain.pixelWidth(), b.pMain.pixelHeight());
  if (b.BlueMode != 0) {
    work.Visible = true;
    if (!one) {
      b.pT1.Visible = false;
      b.pMain.Picture = QImage();
    }
  }
  if (!b.lPath1.Caption.get().isEmpty() && !b.lPath2.Caption.get().isEmpty()) b.cGo.Enabled = true;
  b.fX.Visible = false;
}

// A paste or the canvas fills the first picture while it is missing, else the second.
int slotToFill(const frmBlend& b) { return b.lPath1.Caption.get().isEmpty() ? 1 : 2; }

void setMenusEnabled(frmBlend& b, bool on) {
  for (Menu* m : {&b.mFile, &b.mEdit, &b.mBlend, &b.mBlue, &b.mCanvas}) m->Enabled = on;
}

}  // namespace

void mBlendWindow_Click(Session& s) {
  frmBlend* b = blendWindow(s);
  if (!b) return;
  trap([&] {
    TakeUndoSnapshot(s);
    b->Show(false);
  });
}

void frmBlend_Load(Session& s) {
  frmBlend& b = *blendWindow(s);
  trap([&] {
    b.tGo.Enabled = false;
    setMenusEnabled(b, true);
    if (b.BlueMode != 0) Blend_mBlend_Click(s);
    Blend_mNew_Click(s);
    b.lColor.BackColor = static_cast<Colour>(s.m.TransparentClr.value());
    frmStash& stash = s.windows->stash;
    if (stash.lTrans.Caption.get() == "Temp") {
      b.pMain.Picture = stash.pTrans.Picture;
      b.pMain.Picture = b.pMain.Image;
    }
    adviseScreen(s);
    b.fX.Move(1940, 240);
    b.fStruct.Move(240, 240);
  });
}

void frmBlend_Unload(Session& s) {
  frmBlend& b = *blendWindow(s);
  b.tGo.Enabled = false;  // a blend waiting to start dies with the window
  trap([&] {
    b.fX.Visible = false;
    b.fStruct.Visible = false;
    frmStash& stash = s.windows->stash;
    PictureBox& kept = b.pTemp.Visible ? b.pTemp : (b.BlueMode != 0 && b.pT1.Visible ? b.pT1 : b.pMain);
    kept.Picture = kept.Image;
    stash.pTrans.Picture = kept.Picture;
    stash.lTrans.Caption = "Temp";
  });
}

namespace {

// The value row for blending or for erasing: its caption, the bar (Max before Min, as the row has
// always been set, so the bar's clamping raises the same changes) and the value label.
void setValueRow(frmBlend& b, const QString& caption, int max, int min, int value, int step,
                 const QString& label) {
  b.lValB.Caption = caption;
  b.vVal.Max = max;
  b.vVal.Min = min;
  b.vVal.Value = value;
  b.vVal.LargeChange = step;
  b.vVal.SmallChange = step;
  b.lVal.Caption = label;
}

}  // namespace

void Blend_mBlend_Click(Session& s) {
  frmBlend& b = *blendWindow(s);
  if (b.BlueMode == 0) return;
  trap([&] {
    b.BlueMode = 0;
    b.fRase.Visible = false;
    b.shErase.Visible = false;
    b.cGo.Enabled = false;
    setValueRow(b, "Blend Percentage", 10, 90, 50, 10, "50%");
    Blend_mNew_Click(s);
  });
}

void Blend_mBlue_Click(Session& s) {
  frmBlend& b = *blendWindow(s);
  if (b.BlueMode != 0) return;
  trap([&] {
    b.BlueMode = -1;
    b.fRase.Visible = true;
    setValueRow(b, "Eraser Size", 2, 240, 2, 1, "2");
    Blend_mNew_Click(s);
  });
}

void Blend_mNew_Click(Session& s) {
  frmBlend& b = *blendWindow(s);
  trap([&] {
    for (PictureBox* p : {&b.pT1, &b.pT2, &b.pTemp}) {
      p->Picture = QImage();
      p->Visible = false;
    }
    for (PictureBox* p : {&b.pTemp1, &b.pTemp2, &b.pUn}) p->Picture = QImage();
    b.pMain.Picture = QImage();
    b.pMain.Visible = true;
    for (Image* i : {&b.iPre1, &b.iPre2}) {
      i->Picture = QImage();
      i->touch();
      i->Visible = false;
    }
    for (Label* l : {&b.lPic1, &b.lPic2, &b.lPath1, &b.lPath2}) l->Caption = "";
    b.cGo.Enabled = false;
    b.fStruct.Visible = false;
    b.fX.Visible = false;
  });
}

void Blend_vVal_Change(Session& s) {
  frmBlend& b = *blendWindow(s);
  trap([&] {
    const int v = b.vVal.Value;
    b.lVal.Caption = b.BlueMode == 0 ? QString::number(v) + "%" : QString::number(v);
    if (b.BlueMode != 0) {
      b.shErase.Width = static_cast<Single>(v);
      b.shErase.Height = static_cast<Single>(v);
    }
  });
}

void Blend_mLoad_Click(Session& s, int image) {
  frmBlend& b = *blendWindow(s);
  trap([&] {
    b.loadingImage = image;
    b.explorer.File1.Refresh();
    b.fX.Visible = true;
    b.fStruct.Visible = false;
  });
}

void Blend_cKay_Click(Session& s) {
  frmBlend& b = *blendWindow(s);
  trap([&] {
    const QString path = explorerSelection(b.explorer);
    if (path.isEmpty()) return;
    loadImage(b, b.loadingImage, b.explorer.preview.Picture, path, fileNameOf(path));
  });
}

void Blend_mPaste_Click(Session& s) {
  frmBlend& b = *blendWindow(s);
  trap([&] {
    const QImage picture = s.rt.clipboard.GetData();
    if (picture.isNull()) raiseError(RuntimeError::ClipboardEmpty, "Can't empty Clipboard");
    const int image = slotToFill(b);
    const QString name = image == 1 ? "Clipboard Image 1" : "Clipboard Image 2";
    loadImage(b, image, picture, name, name);
  });
}

void Blend_mQuillora_Click(Session& s) {
  frmBlend& b = *blendWindow(s);
  trap([&] {
    const int image = slotToFill(b);
    const QString name = image == 1 ? "Image1: Quillora" : "Image2: Quillora";
    loadImage(b, image, s.f.PicPaint.Image, name, name);
  });
}

void SetBlendCanvas(Session& s, Single width, Single height) {
  frmBlend& b = *blendWindow(s);
  trap([&] {
    for (PictureBox* p : {&b.pMain, &b.pT1, &b.pT2, &b.pTemp}) {
      p->Width = width;
      p->Height = height;
    }
    b.Width = b.pMain.Left + width + 360;
    b.Height = std::max<Single>(b.pMain.Top + height, 7440) + 960;
  });
}

void cGo_Click(Session& s) {
  frmBlend& b = *blendWindow(s);
  if (b.lPath2.Caption.get().isEmpty()) return;
  trap([&] {
    if (b.BlueMode == 0) {
      b.lHelp.ForeColor = 65535;
      b.lHelp.Caption = "Processing... Please Wait";
      b.Caption = "Processing... Please Wait";
      b.tGo.Enabled = true;
      return;
    }
    QImage over = b.pT1.Image;
    KeyColourOverlay(over, b.pT2.Image, static_cast<Colour>(s.m.TransparentClr.value()));
    b.pT1.Picture = over;
    b.pT1.Refresh();
    b.pT1.Visible = true;
    b.pT2.Visible = false;
    b.shErase.Visible = false;
    b.lHelp.Caption = "Instant Help...";
    b.lHelp.ForeColor = 0;
    b.Caption = frmBlend::kCaption;
    setMenusEnabled(b, true);
    b.fStruct.Visible = false;
    b.fX.Visible = false;
  });
}

void Blend_tGo_Timer(Session& s) {
  frmBlend& b = *blendWindow(s);
  b.tGo.Enabled = false;
  BlendPix(s);
}

void BlendPix(Session& s) {
  frmBlend& b = *blendWindow(s);
  trap([&] {
    const BlendOutcome out = BlendPictures(b.pT1.Image, b.pT2.Image, b.vVal.Value);
    if (out.picture.isNull()) return;
    b.pTemp.Picture = out.picture;
    // A colour the blend could not make stops it there, as far as it got, and silently.
    if (!out.complete) return;
    b.pTemp.Visible = true;
    b.pTemp.Refresh();
    b.lHelp.Caption = "Instant Help...";
    b.lHelp.ForeColor = 0;
    b.Caption = frmBlend::kCaption;
  });
}

void Blend_mSave_Click(Session& s) {
  frmBlend& b = *blendWindow(s);
  if (fileWindowShown(s)) return;
  trap([&] {
    const bool blended = b.BlueMode == 0;
    if (blended && !b.pTemp.Visible) return;
    PictureBox& out = blended ? b.pTemp : b.pT1;
    out.Picture = out.Image;
    if (frmFile* d = fileWindow(s)) d->Width = frmFile::kSaveWidth;
    ShowFileDialog(s, blended ? FileMode::SaveBlended : FileMode::SaveBlueScreen);
    b.fStruct.Visible = false;
    b.fX.Visible = false;
  });
}

void Blend_mCopyClip_Click(Session& s) {
  frmBlend& b = *blendWindow(s);
  trap([&] {
    const bool blended = b.BlueMode == 0;
    if (blended && !b.pTemp.Visible) return;
    PictureBox& out = blended ? b.pTemp : b.pT1;
    out.Picture = out.Image;
    if (out.Picture.isNull()) return;
    s.rt.clipboard.Clear();
    s.rt.clipboard.SetData(out.Picture);
  });
}

}  // namespace qp
