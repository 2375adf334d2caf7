// The TileSetter's events, each to its routine.
#include "app/Wiring.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"
#include "workshops/TileSetter.h"
#include "workshops/WorkshopCommon.h"

namespace qp {

void wireTileSetter(Session& s) {
  s.f.mTileSet.Click = [&s] { mTileSet_Click(s); };
  frmTile* w = tileWindow(s);
  if (!w) return;
  frmTile& t = *w;
  t.Load = [&s] { frmTile_Load(s); };
  t.Resize = [&s] { frmTile_Resize(s); };
  t.Unload = [&s, &t] {
    frmTile_Unload(s);
    t.markUnloaded();
  };
  trackCtrlKey(t, t.CtrlDown);
  t.vTile.Change = [&s] { vTile_Change(s); };
  t.vTW.Change = [&t] { t.lTW.Caption = QString::number(t.vTW.Value); };
  t.vTH.Change = [&t] { t.lTH.Caption = QString::number(t.vTH.Value); };
  t.opTilez(0).Click = [&t] { t.TwoImages = 0; };
  t.opTilez(1).Click = [&t] { t.TwoImages = -1; };
  t.cTile.Click = [&s] { cTile_Click(s); };
  t.tGo.Timer_ = [&s] { tGo_Timer(s); };
  wireWorkshopExplorer(t.explorer, s.f.PicPaint.BackColor);
  t.explorer.cKay.Click = [&s] { Tile_cKay_Click(s); };
  t.explorer.cCancel.Click = [&t] { t.fX.Visible = false; };
  t.cBG.Click = [&s] { cBG_Click(s); };
  auto openExplorer = [&t] {
    trap([&] {
      t.explorer.File1.Refresh();
      t.lInst.Visible = false;
      t.fX.Visible = true;
    });
  };
  t.mLoadImg.Click = openExplorer;
  t.mLdBg.Click = openExplorer;
  t.mQuillora.Click = [&s] { Tile_mQuillora_Click(s); };
  t.mLdStash.Click = [&s] { mLdStash_Click(s); };
  t.mOrig.Click = [&s] { mOrig_Click(s); };
  t.mNew.Click = [&s] { Tile_mNew_Click(s); };
  t.mSave.Click = [&s] { Tile_mSave_Click(s); };
  t.mSend.Click = [&s] { mSend_Click(s); };
  t.mStash.Click = [&s] { Tile_mStash_Click(s); };
  t.mCopyClip.Click = [&s] { Tile_mCopyClip_Click(s); };
  t.mPaste.Click = [&s] { Tile_mPaste_Click(s); };
  t.m64.Click = [&s] { SetTileCanvas(s, 9600, 7200); };
  t.m86.Click = [&s] { SetTileCanvas(s, 12000, 9000); };
  t.m76.Click = [&s] { SetTileCanvas(s, 11520, 7200); };
  t.mInst.Click = [&t] { t.lInst.Visible = true; };
  t.lInst.Click = [&t] { t.lInst.Visible = false; };
  t.pLO.MouseDown = [&s](int b, int, Single x, Single y) { Tile_pLO_MouseDown(s, b, x, y); };
  t.pLO.MouseMove = [&s](int b, int, Single x, Single y) { Tile_pLO_MouseMove(s, b, x, y); };
  t.pLO.MouseUp = [&s](int b, int, Single x, Single y) { Tile_pLO_MouseUp(s, b, x, y); };

  tellOnHover(t.explorer.cCancel, t.lHelp, "Click to cancel");
  tellOnHover(t.explorer.cKay, t.lHelp,
              "Click to Load selected image - Hold CTRL key and click to set selected image as background - Middle "
              "checkbox must be checked for background to show through (Two Image option button must be engaged to "
              "load second image)");
  tellOnHover(t.ckBG, t.lHelp, "If checked, background image will show through in open spaces");
  tellOnHover(t.ckClr, t.lHelp,
              "Clear BackGround checkbox (If unchecked, background image and/or previous Tiles will not be removed)");
  tellOnHover(t.ckVals, t.lHelp,
              "Preset Dimensions checkbox (If unchecked, tiling dimensions are determined with top arrows - First two "
              "styles are always set by by arrows)");
  tellOnHover(t.explorer.cPatt, t.lHelp, "Click to toggle file list file type (*.bmp or *.jpg)");
  tellOnHover(t.cTile, t.lHelp,
              "Click to execute selected Tile style (If second image isn't loaded button will only execute first nine "
              "styles)");
  tellOnHover(t.explorer.Dir1, t.lHelp, "Double-click to open folder");
  tellOnHover(t.explorer.File1, t.lHelp,
              "Click to select image file (Engage Two Image option button to load second image)");
  tellOnHover(t.lHgt, t.lHelp, "Click arrows to set number of tiles tall");
  tellOnHover(t.lWid, t.lHelp, "Click arrows to set number of tiles wide");
  tellOnHover(t.lStyle, t.lHelp, "Click arrows to set Stlye");
  const QString optionHelp =
      "Click option buttons to tile with single image or two images (Two Image option button must be engaged to "
      "load second image - Engage Single Image option button to load a different first image)";
  tellOnHover(t.opTilez(0), t.lHelp, optionHelp);
  tellOnHover(t.opTilez(1), t.lHelp, optionHelp);
  tellOnHover(t.fTilez, t.lHelp, "Instant Help... Read me for instructions when pointer is over a control");
}

}  // namespace qp
