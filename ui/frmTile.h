#pragma once
// The TileSetter: fills the large picture pLO with copies of one or two small images in one of
// fourteen styles. Its routines are in workshops/TileSetter.
#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/Timer.h"
#include "surface/PictureBox.h"
#include "ui/WorkshopExplorer.h"

namespace qp {

class frmTile : public Form {
 public:
  explicit frmTile(Runtime& rt);

  static constexpr const char* kCaption = " Quillora TileSetter";

  // The output and what is drawn over it.
  PictureBox pLO;
  Shape DShp;  // the rectangle dragged on pLO to take a tile from it
  Label lInst; // the instructions, over the output until clicked
  // The controls column.
  CommandButton cTile;
  Label lStyle, lTile;
  VScrollBar vTile;
  Label lWid, lTW;
  HScrollBar vTW;
  Label lHgt, lTH;
  VScrollBar vTH;
  ControlArray<OptionButton> opTilez;
  CheckBox ckVals, ckBG, ckClr;
  Image iPre1, iPre2;
  Frame fTilez;
  Label lHelp;
  // Hidden helpers: the images at tile size, the background, undo, the selection scratch.
  Image iTile1, iTile2;
  PictureBox pStash, pUn, pT1;
  Label lPath1, lPath2, lT1, lT2;
  Timer tGo;
  // The Explorer panel.
  Frame fX;
  WorkshopExplorer explorer;
  CommandButton cBG;  // load the file pressed as the background

  Menu mFile, mLdBg, mLoadImg, mQuillora, mLdStash, mOrig, mNew, mSave, mSend, mStash;
  Menu mEdit, mCopyClip, mPaste;
  Menu mCanvas, m64, m86, m76;
  Menu mInst;

  // The window's variables.
  Integer TilesWide = 2, TilesHigh = 2;
  Integer TwoImages = 0;
  Integer CtrlDown = 0;
  Single StartX = 0, StartY = 0;  // where the tile selection began, in twips of pLO
};

}  // namespace qp
