#include "ui/frmTile.h"

#include "ui/Place.h"

namespace qp {

namespace {
const char* const kTileInstructions[] = {
    "Load image or images with the Explorer (To load second image engage the Two Images option button - ",
    "To load a different first image engage Single Image option button) Then select the style with the lower arrows",
    " Set the number of Tiles for both directions using the top set of arrows and uncheck the left checkbox - Press the OK button to Tile image(s) ",
    "If you don't like the output image, right-click the paint area to Undo - The right checkbox determines whether ",
    "or not the Tiled image is cleared - Using this option, you can create different effects and actually Tile with ",
    "more than two images - You can also select any portion of a loaded image to use as a tile image - The middle checkbox, ",
    "(visible ONLY by holding down CTRL key when selecting FIRST image) enables that image to show through open tiles ",
    "as a backgound - After tiling, when you're satisfied with the results, just click the Save menu item - Click this caption to close instructions",
};
}  // namespace

frmTile::frmTile(Runtime& rt)
    : Form(rt, "frmTile"),
      pLO(this, nullptr, "pLO"),
      DShp(this, &pLO, "DShp"),
      lInst(this, nullptr, "lInst"),
      cTile(this, nullptr, "cTile"),
      lStyle(this, nullptr, "lStyle"),
      lTile(this, nullptr, "lTile"),
      vTile(this, nullptr, "vTile"),
      lWid(this, nullptr, "lWid"),
      lTW(this, nullptr, "lTW"),
      vTW(this, nullptr, "vTW"),
      lHgt(this, nullptr, "lHgt"),
      lTH(this, nullptr, "lTH"),
      vTH(this, nullptr, "vTH"),
      ckVals(this, nullptr, "ckVals"),
      ckBG(this, nullptr, "ckBG"),
      ckClr(this, nullptr, "ckClr"),
      iPre1(this, nullptr, "iPre1"),
      iPre2(this, nullptr, "iPre2"),
      fTilez(this, nullptr, "fTilez"),
      lHelp(this, &fTilez, "lHelp"),
      iTile1(this, nullptr, "iTile1"),
      iTile2(this, nullptr, "iTile2"),
      pStash(this, nullptr, "pStash"),
      pUn(this, nullptr, "pUn"),
      pT1(this, nullptr, "pT1"),
      lPath1(this, nullptr, "lPath1"),
      lPath2(this, nullptr, "lPath2"),
      lT1(this, nullptr, "lT1"),
      lT2(this, nullptr, "lT2"),
      tGo(this, "tGo", 500),
      fX(this, nullptr, "fX"),
      explorer(*this, fX, "iPre"),
      cBG(this, &fX, "cBG"),
      mFile(this, nullptr, "mFile", "File"),
      mLdBg(this, &mFile, "mLdBg", "Load Background"),
      mLoadImg(this, &mFile, "mLoadImg", "Load Image"),
      mQuillora(this, &mFile, "mQuillora", "Load Quillora"),
      mLdStash(this, &mFile, "mLdStash", "Load Stash"),
      mOrig(this, &mFile, "mOrig", "Load Original"),
      mNew(this, &mFile, "mNew", "New"),
      mSave(this, &mFile, "mSave", "Save"),
      mSend(this, &mFile, "mSend", "Send to Quillora"),
      mStash(this, &mFile, "mStash", "Send to Stash"),
      mEdit(this, nullptr, "mEdit", "Edit"),
      mCopyClip(this, &mEdit, "mCopyClip", "Copy"),
      mPaste(this, &mEdit, "mPaste", "Paste"),
      mCanvas(this, nullptr, "mCanvas", "Canvas"),
      m64(this, &mCanvas, "m64", "640 x 480"),
      m86(this, &mCanvas, "m86", "800 x 600"),
      m76(this, &mCanvas, "m76", "768 x 480"),
      mInst(this, nullptr, "mInst", "Instructions") {
  Caption = kCaption;
  BackColor = 0x404040;
  KeyPreview = true;
  Move(600, 600, 12600, 8400);
  // The output: 640 x 480 pixels until a Canvas item says otherwise.
  place(pLO, 2760, 120, 9600, 7200);
  pLO.BackColor = 0x000000;
  pLO.AutoSize = true;
  pLO.ToolTipText = "Drag to select a tile image - Right-click to Undo";
  DShp.Visible = false;
  DShp.BorderStyle = 3;
  DShp.BorderColor = 0xC0C0C0;
  place(lInst, 2760, 120, 9600, 2400);
  lInst.Visible = false;
  lInst.BackColor = 0xC0FFFF;
  QString instructions;
  for (const char* part : kTileInstructions) instructions += part;
  lInst.Caption = instructions;

  place(cTile, 120, 120, 2520, 495);
  cTile.Caption = "OK";
  cTile.Enabled = false;
  place(lStyle, 120, 720, 2520, 255);
  lStyle.Caption = "Style";
  place(lTile, 120, 1000, 2040, 495);
  lTile.Caption = "Single Normal";
  place(vTile, 2280, 1000, 360, 495);
  setBar(vTile, 0, 13, 0);
  place(lWid, 120, 1620, 1560, 255);
  lWid.Caption = "Tiles Wide";
  place(vTW, 120, 1900, 1920, 255);
  setBar(vTW, 2, 12, 2);
  vTW.ToolTipText = "Number of Tilez Wide";
  place(lTW, 2160, 1900, 480, 255);
  lTW.Caption = "2";
  place(lHgt, 120, 2280, 1560, 255);
  lHgt.Caption = "Tiles High";
  place(vTH, 2280, 2280, 360, 495);
  setBar(vTH, 12, 2, 2);
  vTH.ToolTipText = "Number of Tilez High";
  place(lTH, 1680, 2400, 480, 255);
  lTH.Caption = "2";
  const char* options[] = {"Tile Single Image", "Tile Two Images"};
  for (int i = 0; i <= 1; ++i) {
    OptionButton& o = opTilez.add(i, this, nullptr, "opTilez");
    place(o, 120, 2880 + i * 300, 2520, 255);
    o.Caption = options[i];
  }
  opTilez(0).Value = true;
  place(ckVals, 120, 3540, 2520, 255);
  ckVals.Caption = "Preset Dimensions";
  ckVals.Value = 1;
  place(ckBG, 120, 3840, 2520, 255);
  ckBG.Caption = "Show Background";
  ckBG.Visible = false;
  place(ckClr, 120, 4140, 2520, 255);
  ckClr.Caption = "Clear BackGround";
  ckClr.Value = 1;
  place(iPre1, 120, 4500, 1200, 1200);
  place(iPre2, 1440, 4500, 1200, 1200);
  for (Image* i : {&iPre1, &iPre2}) {
    i->Stretch = true;
    i->Visible = false;
  }
  place(fTilez, 120, 5820, 2520, 1500);
  fTilez.Caption = "Instant Help...";
  place(lHelp, 60, 240, 2400, 1200);
  lHelp.Caption = "Instant Help... Read me for instructions when pointer is over a control";
  for (Image* i : {&iTile1, &iTile2}) {
    i->Stretch = true;
    i->Visible = false;
  }
  for (PictureBox* p : {&pStash, &pUn, &pT1}) {
    p->Visible = false;
    p->AutoSize = true;
  }
  for (Label* l : {&lPath1, &lPath2, &lT1, &lT2}) l->Visible = false;
  place(fX, 2760, 120, 5175, 5175);
  place(cBG, 2640, 4680, 2415, 375);
  cBG.Caption = "Background";
  mInst.Visible = true;
}

}  // namespace qp
