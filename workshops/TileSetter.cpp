// The TileSetter: its images come from its Explorer panel, the clipboard, the canvas, the stash or
// a rectangle dragged on its own output; a style tiles them over pLO after a short wait that lets
// "Processing... Please wait" show.
#include "workshops/TileSetter.h"

#include <algorithm>
#include <cmath>

#include "core/Layout.h"
#include "core/Undo.h"
#include "files/FileDialog.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"
#include "ui/frmFile.h"
#include "workshops/PictureOps.h"
#include "workshops/WorkshopCommon.h"

namespace qp {

frmTile* tileWindow(Session& s) { return s.windows ? &s.windows->tile : nullptr; }

namespace {

// The image slot that a load fills: the second while "Tile Two Images" is engaged.
struct Slot {
  Image& preview;
  Label& path;
  const char* prefix;  // "Image1: " or "Image2: "
};
Slot slotOf(frmTile& t) {
  if (t.TwoImages != 0) return {t.iPre2, t.lPath2, "Image2: "};
  return {t.iPre1, t.lPath1, "Image1: "};
}

// Puts a picture into the slot and makes the window ready to tile. `name` is shown as the
// slot's path and tool tip.
void fillSlot(frmTile& t, const QImage& picture, const QString& name, const QString& tip) {
  if (picture.isNull()) return;
  Slot slot = slotOf(t);
  slot.preview.Picture = asRgb32(picture);
  slot.preview.touch();
  slot.preview.Visible = true;
  slot.preview.ToolTipText = tip;
  slot.path.Caption = name;
  if (t.TwoImages == 0) t.lT1.Caption = "1";
  t.cTile.Enabled = true;
}

bool stylesShowBackground(int style) { return style >= 2 && style <= 8; }

// The size the output's pixels take in twips, as shown in the caption.
// Pointer positions far outside any picture are cut, so that every conversion stays defined.
int pixelsOf(Single twips) {
  const double px = std::isfinite(twips) ? std::clamp(twips / 15.0, -1e6, 1e6) : 0.0;
  return static_cast<int>(std::lround(px));
}

void setMenusEnabled(frmTile& t, bool on) {
  t.mFile.Enabled = on;
  t.mEdit.Enabled = on;
}

}  // namespace

void mTileSet_Click(Session& s) {
  frmTile* t = tileWindow(s);
  if (!t) return;
  trap([&] {
    TakeUndoSnapshot(s);  // the window opens with the baked canvas
    t->Show(false);
  });
}

void frmTile_Load(Session& s) {
  frmTile& t = *tileWindow(s);
  trap([&] {
    // A fresh window: the inputs of the last opening are gone, the tiled picture comes back.
    t.tGo.Enabled = false;
    Tile_mNew_Click(s);
    t.cTile.Enabled = false;
    t.lPath1.Caption = "";
    t.lT1.Caption = "";
    t.lT2.Caption = "";
    t.lInst.Visible = false;
    t.fX.Visible = false;
    setMenusEnabled(t, true);
    frmStash& stash = s.windows->stash;
    if (stash.lTile.Caption.get() == "Temp") {
      t.pLO.Picture = stash.pTile.Picture;
      t.pLO.Picture = t.pLO.Image;
    }
    if (adviseScreen(s)) t.pLO.Left = 480;
  });
}

void frmTile_Unload(Session& s) {
  frmTile& t = *tileWindow(s);
  t.tGo.Enabled = false;  // a run waiting to start dies with the window
  trap([&] {
    t.pLO.Picture = t.pLO.Image;
    frmStash& stash = s.windows->stash;
    stash.pTile.Picture = t.pLO.Picture;
    stash.lTile.Caption = "Temp";
  });
}

void frmTile_Resize(Session& s) {
  frmTile& t = *tileWindow(s);
  trap([&] {
    const Single maxW = static_cast<Single>(s.rt.screen.Width() - 2400);
    const Single maxH = static_cast<Single>(s.rt.screen.Height() - 1200);
    if (t.Width > maxW && maxW > 0) t.Width = maxW;
    if (t.Height > maxH && maxH > 0) t.Height = maxH;
    t.Caption = QString(frmTile::kCaption) + "  " + QString::number(pixelsOf(t.pLO.Width)) + " X " +
                QString::number(pixelsOf(t.pLO.Height));
  });
}

void vTile_Change(Session& s) {
  frmTile& t = *tileWindow(s);
  trap([&] {
    const int style = t.vTile.Value;
    if (TileStyleNeedsTwo(style) && !t.iPre2.Visible) return;  // the name waits for a second image
    t.lTile.Caption = TileStyleName(style);
  });
}

void cTile_Click(Session& s) {
  frmTile& t = *tileWindow(s);
  trap([&] {
    if (t.lPath1.Caption.get().isEmpty()) return;
    t.lHelp.ForeColor = 0x00FFFF;
    t.lHelp.Caption = "Processing... Please wait";
    t.tGo.Enabled = true;
  });
}

void tGo_Timer(Session& s) {
  frmTile& t = *tileWindow(s);
  t.tGo.Enabled = false;
  DoTiling(s);
}

void DoTiling(Session& s) {
  frmTile& t = *tileWindow(s);
  const bool done = trap([&] {
    setMenusEnabled(t, false);
    const int style = t.vTile.Value;
    if (t.ckClr.Value == 1) {
      t.pLO.Picture = QImage();
      if (stylesShowBackground(style) && t.ckBG.Value == 1 && !t.pStash.Picture.isNull()) {
        // The background fills the output at the output's size.
        t.pLO.Picture = StretchPicture(t.pStash.Picture, t.pLO.pixelWidth(), t.pLO.pixelHeight());
      }
    }
    const bool preset = style >= 2 && t.ckVals.Value == 1;
    t.TilesWide = preset ? 7 : t.vTW.Value.get();
    t.TilesHigh = preset ? 7 : t.vTH.Value.get();
    t.iTile1.Picture = t.iPre1.Picture;
    t.iTile1.Width = t.pLO.Width / t.TilesWide.value();
    t.iTile1.Height = t.pLO.Height / t.TilesHigh.value();
    if (TileStyleNeedsTwo(style)) {
      if (!t.iPre2.Visible) {
        s.rt.msgbox.MsgBox("Second image has not been loaded", vbOKOnly, QString());
        // Nothing was drawn; the window is usable again.
        setMenusEnabled(t, true);
        t.lHelp.ForeColor = 0;
        t.lHelp.Caption = "Instant Help...";
        return;
      }
      t.iTile2.Picture = t.iPre2.Picture;
      t.iTile2.Width = t.iTile1.Width.get();
      t.iTile2.Height = t.iTile1.Height.get();
    }
    QImage out = t.pLO.Image;
    TilePicture(out, t.iTile1.Picture, t.iTile2.Picture, style, t.TilesWide.value(), t.TilesHigh.value());
    t.pLO.Picture = out;
    t.lHelp.ForeColor = 0;
    t.lHelp.Caption = "Finished";
    t.Caption = frmTile::kCaption;
    setMenusEnabled(t, true);
    t.lT2.Caption = "1";
    t.tGo.Enabled = false;
  });
  if (!done) setMenusEnabled(t, true);  // a failed run must not leave Save out of reach
}

void Tile_cKay_Click(Session& s) {
  frmTile& t = *tileWindow(s);
  trap([&] {
    const QString path = explorerSelection(t.explorer);
    if (path.isEmpty() || t.explorer.preview.Picture.isNull()) return;
    t.pLO.Picture = t.pLO.Image;
    t.pUn.Picture = t.pLO.Picture;
    if (t.CtrlDown != 0) {
      cBG_Click(s);
      return;
    }
    fillSlot(t, t.explorer.preview.Picture, path, fileNameOf(path));
    t.fX.Visible = false;
    frmTile_Resize(s);
  });
}

void cBG_Click(Session& s) {
  frmTile& t = *tileWindow(s);
  trap([&] {
    if (explorerSelection(t.explorer).isEmpty() || t.explorer.preview.Picture.isNull()) return;
    t.pStash.Picture = t.explorer.preview.Picture;
    t.ckBG.Visible = true;
    t.ckBG.Value = 1;
    t.fX.Visible = false;
    frmTile_Resize(s);
  });
}

void Tile_mPaste_Click(Session& s) {
  frmTile& t = *tileWindow(s);
  trap([&] {
    const QImage picture = s.rt.clipboard.GetData();
    if (picture.isNull()) raiseError(RuntimeError::ClipboardEmpty, "Can't empty Clipboard");
    const QString name = t.TwoImages != 0 ? "Image2: Clipboard" : "Image1: Clipboard";
    fillSlot(t, picture, name, name);
  });
}

void Tile_mQuillora_Click(Session& s) {
  frmTile& t = *tileWindow(s);
  trap([&] { fillSlot(t, s.f.PicPaint.Picture, "Quillora", "Quillora"); });
}

void mLdStash_Click(Session& s) {
  frmTile& t = *tileWindow(s);
  trap([&] { fillSlot(t, s.f.pStash.Picture, "Stash", "Stash"); });
}

void mOrig_Click(Session& s) {
  frmTile& t = *tileWindow(s);
  trap([&] {
    if (t.pStash.Picture.isNull()) return;
    t.pUn.Picture = t.pLO.Image;
    t.pLO.Picture = StretchPicture(t.pStash.Picture, t.pLO.pixelWidth(), t.pLO.pixelHeight());
  });
}

void Tile_mNew_Click(Session& s) {
  frmTile& t = *tileWindow(s);
  trap([&] {
    t.iPre2.Visible = false;
    t.iPre2.ToolTipText = "";
    t.lPath2.Caption = "";
    t.pLO.Picture = QImage();
    t.pStash.Picture = QImage();
    t.iPre1.Picture = QImage();
    t.iPre2.Picture = QImage();
    t.iPre1.touch();
    t.iPre2.touch();
    t.ckBG.Visible = false;
    t.ckBG.Value = 0;
  });
}

void SetTileCanvas(Session& s, Single width, Single height) {
  frmTile& t = *tileWindow(s);
  trap([&] {
    t.pLO.Picture = t.pLO.Image;
    t.pLO.Width = width;
    t.pLO.Height = height;
    t.Width = t.pLO.Left + width + 360;
    t.Height = std::max<Single>(t.pLO.Top + height, 7440) + 960;
    frmTile_Resize(s);
  });
}

void Tile_pLO_MouseDown(Session& s, int Button, Single X, Single Y) {
  frmTile& t = *tileWindow(s);
  trap([&] {
    if (Button == vbRightButton) {  // undo, to the picture before the last press or load
      t.pLO.Picture = t.pUn.Picture;
      t.DShp.Visible = false;
      return;
    }
    if (Button != vbLeftButton) return;
    t.pUn.Picture = t.pLO.Image;
    t.StartX = X;
    t.StartY = Y;
    t.DShp.Move(X, Y, 0, 0);
    t.DShp.Visible = true;
  });
}

void Tile_pLO_MouseMove(Session& s, int Button, Single X, Single Y) {
  frmTile& t = *tileWindow(s);
  if (!(Button & vbLeftButton) || !t.DShp.Visible) return;
  trap([&] {
    t.DShp.Move(std::min(X, t.StartX), std::min(Y, t.StartY), std::abs(X - t.StartX),
                std::abs(Y - t.StartY));
  });
}

void Tile_pLO_MouseUp(Session& s, int Button, Single X, Single Y) {
  frmTile& t = *tileWindow(s);
  if (Button != vbLeftButton || !t.DShp.Visible) return;
  trap([&] {
    t.DShp.Visible = false;
    const QRect rect(pixelsOf(t.DShp.Left), pixelsOf(t.DShp.Top), pixelsOf(t.DShp.Width),
                     pixelsOf(t.DShp.Height));
    const QImage tile = CropPicture(t.pLO.Image, rect);
    if (tile.isNull()) return;  // a click without a drag selects nothing
    t.pT1.Picture = tile;
    const Slot slot = slotOf(t);
    const QString name = t.TwoImages != 0 ? "Image2: Selection" : "Image1: Selection";
    fillSlot(t, t.pT1.Image, slot.path.Caption.get().isEmpty() ? name : slot.path.Caption.get(), name);
    t.lT1.Caption = "1";
  });
}

void Tile_mSave_Click(Session& s) {
  frmTile& t = *tileWindow(s);
  if (t.lPath1.Caption.get().isEmpty() || fileWindowShown(s)) return;
  trap([&] {
    t.pLO.Picture = t.pLO.Image;
    if (frmFile* d = fileWindow(s)) d->Width = frmFile::kSaveWidth;
    ShowFileDialog(s, FileMode::SaveTiled);
  });
}

void Tile_mCopyClip_Click(Session& s) {
  frmTile& t = *tileWindow(s);
  trap([&] {
    t.pLO.Picture = t.pLO.Image;
    s.rt.clipboard.Clear();
    s.rt.clipboard.SetData(t.pLO.Picture);
  });
}

void mSend_Click(Session& s) {
  frmTile& t = *tileWindow(s);
  if (t.lPath1.Caption.get().isEmpty() || fileWindowShown(s)) return;
  trap([&] {
    if (s.m.CurrentFile.isEmpty()) s.m.CurrentFile = "Untitled.bmp";
    t.pLO.Picture = t.pLO.Image;
    s.f.PicPaint.Picture = t.pLO.Picture;
    // The canvas's trigger places the Explorer's preview: that preview must be this picture.
    s.f.imPre.Picture = t.pLO.Picture;
    s.f.imPre.touch();
    s.f.lPic.Caption = s.m.CurrentFile;
    if (t.Unload) t.Unload();
    t.markUnloaded();
  });
}

void Tile_mStash_Click(Session& s) {
  frmTile& t = *tileWindow(s);
  trap([&] {
    s.f.pStash.Picture = t.pLO.Image;
    s.f.mGet.Enabled = true;  // the stash now holds something to get
  });
}

}  // namespace qp
